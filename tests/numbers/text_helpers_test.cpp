#include "numbers/text_helpers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace orl;

namespace {

struct FormatCase {
    const char *name;
    const char *number;
    const char *format;
    const char *shown;
};

class FormattedNumber : public testing::TestWithParam<FormatCase> {};

TEST_P(FormattedNumber, FollowsTheFormatAsFarAsItGoes) {
    const FormatCase &row = GetParam();
    EXPECT_EQ(formattedNumber(QString::fromUtf8(row.number), QString::fromUtf8(row.format)).toStdString(),
              row.shown);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FormattedNumber,
    testing::Values(FormatCase{"whole", "+1 555 010 9922", "+X (XXX) XXX-XXXX", "+1 (555) 010-9922"},
                    FormatCase{"digits_beyond", "123456789", "XXX XXX", "123 456789"},
                    FormatCase{"too_few_digits", "12", "(XXX)", "(12"},
                    FormatCase{"no_format", "+1 (55)", "", "155"}, FormatCase{"no_digits", "+ --", "XXX", ""},
                    FormatCase{"closing_mark_needs_a_digit_behind", "123", "(XXX)", "(123"},
                    FormatCase{"foreign_digits_do_not_count", "\u06611\u06622", "X-X", "1-2"}),
    [](const auto &row) { return row.param.name; });

struct CodesCase {
    const char *name;
    const char *text;
    std::vector<const char *> codes;
};

class ExtractNumbers : public testing::TestWithParam<CodesCase> {};

TEST_P(ExtractNumbers, FindsTheCodes) {
    QStringList expected;
    for (const char *code : GetParam().codes)
        expected << QString::fromUtf8(code);
    EXPECT_EQ(extractNumbers(3, QString::fromUtf8(GetParam().text)), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ExtractNumbers,
    testing::Values(
        CodesCase{"hyphen", "Your code is 123-456", {"123456"}},
        CodesCase{"plus", "Call +44 123 456", {"+44123456"}}, CodesCase{"blanks_join", "12 34", {"1234"}},
        CodesCase{"too_short", "You have 12 points", {}},
        CodesCase{"order_and_duplicates", "777, 888, 777", {"777", "888", "777"}},
        CodesCase{"plus_elsewhere_with_the_same_digits", "+44 1234, code 4455", {"+441234", "+4455"}},
        CodesCase{"plus_ahead_of_other_digits", "+1 55512, code 9988", {"155512", "9988"}},
        CodesCase{"other_digits_of_unicode", "\u0661\u0662\u0663\u0664", {"\u0661\u0662\u0663\u0664"}},
        CodesCase{"no_break_space_divides", "123\u00a0456", {"123", "456"}}),
    [](const auto &row) { return row.param.name; });

} // namespace
