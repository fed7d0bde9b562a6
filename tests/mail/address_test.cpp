#include "mail/address.h"
#include "mail_phone.h"

namespace orl {
namespace {

TEST(MailAddress, OnlyAWholeAddressIsWellFormed) {
    const std::pair<const char *, bool> cases[] = {
        {"my-name@x.example", true},
        {"A.b_c%d+e-9@sub.x-y.ORG", true},
        {"a@b.co", true},
        {"@x.example", false},
        {"a@x", false},
        {"a@x.c", false},
        {"a b@x.example", false},
        {" a@x.example", false},
        {"a@x.example\n", false},
        {"a@b@x.example", false},
        {"\u00fc@x.example", false},
        {"a@x.e1", false},
        {"a@x.example, b@y.example", false},
        {"", false},
    };
    for (const auto &[address, expected] : cases)
        EXPECT_EQ(isWellFormedAddress(QString::fromUtf8(address)), expected) << address;
    EXPECT_TRUE(isWellFormedAddress("a@x." + QString(64, 'z')));
    EXPECT_FALSE(isWellFormedAddress("a@x." + QString(65, 'z')));
}

TEST(MailAddress, SpacesBecomeHyphensAndCaseStays) {
    EXPECT_EQ(composedAddress("My  name", "x.example"), "My--name@x.example");
    EXPECT_FALSE(isWellFormedAddress(composedAddress("", "x.example")));
}

TEST(MailAddress, TheBuildHasThreeDomainsThatMakeAddresses) {
    ASSERT_EQ(Constants::domains().size(), 3);
    for (const QString &domain : Constants::domains())
        EXPECT_TRUE(isWellFormedAddress(composedAddress("me", domain))) << domain.toStdString();
    EXPECT_EQ(Constants::loginSuggestions().join(' '), "hello admin support help noreply service news test");
}

} // namespace
} // namespace orl
