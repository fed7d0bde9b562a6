#include "config/app_config_view_model.h"
#include "config/values_in_force.h"
#include "whole_phone.h"

#include <gtest/gtest.h>

namespace orl {
namespace {

using Kind = Fault::Kind;

const QString country = QStringLiteral("Germany");

struct PageFault {
    const char *name;
    Fault fault;
    bool told; ///< a line on the console says what failed; otherwise the page reads as one without content
};

/// How a page may go wrong. What is no page of the website has, to a recipe, nothing on it.
const PageFault pageFaults[] = {
    {"fifty_megabytes", Kind::Huge, true},
    {"cut_off", Kind::CutOff, true},
    {"garbage", Kind::Garbage, true},
    {"invalid_utf8", Kind::InvalidUtf8, true},
    {"gone", Kind::Dead, true},
    {"not_found", Kind::NotFound, false},
    {"empty", Kind::Empty, false},
    {"another_site", Kind::WrongSite, false},
};

class PageFaultTest : public testing::TestWithParam<PageFault> {
protected:
    /// Exactly the lines that begin so: one where the fault is told, none where it is not.
    void expectTold(const char *beginning, qsizetype lines = 1) {
        const QStringList printed = phone.console.take();
        EXPECT_EQ(printed.size(), GetParam().told ? lines : 0) << printed.join(u'\n').toStdString();
        for (const QString &line : printed)
            EXPECT_TRUE(line.startsWith(QLatin1String(beginning))) << line.toStdString();
    }

    WholePhone phone;
};

TEST_P(PageFaultTest, MessagesOfTheFirstWebsiteStayAndComeBack) {
    phone.start();
    phone.choose(country, WebsiteService::SMS24);
    const QStringList shown = phone.contents();
    const auto senders = phone.numbers->senders();
    phone.host.setFault(QStringLiteral("/first/en/numbers"), GetParam().fault);
    EXPECT_EQ(phone.fetchLater(), shown);
    EXPECT_EQ(phone.numbers->senders(), senders);
    expectTold("Failed to fetch messages for this number ");
    phone.host.clearFaults();
    EXPECT_NE(phone.fetchLater(), shown);
    EXPECT_FALSE(phone.contents().isEmpty());
    expectTold("", 0);
}

TEST_P(PageFaultTest, MessagesOfTheSecondWebsiteGoAndComeBack) {
    phone.start();
    phone.choose(country, WebsiteService::T_P_N);
    phone.host.setFault(QStringLiteral("/second"), GetParam().fault);
    EXPECT_EQ(phone.fetchLater(), QStringList());
    expectTold("Failed to fetch TPN messages: ");
    EXPECT_FALSE(phone.numbers->senders().isEmpty()) << "grouping leaves the senders alone";
    phone.host.clearFaults();
    EXPECT_NE(phone.fetchLater(), QStringList());
}

TEST_P(PageFaultTest, TheCountryListFallsBackAndTheNumbersStay) {
    phone.host.setFault(QStringLiteral("/first/en"), GetParam().fault);
    phone.start();
    const QList<Country> local = phone.numbers->localCountries();
    EXPECT_GE(local.size(), 60);
    if (GetParam().told) {
        EXPECT_EQ(phone.numbers->countries(), local);
    } else {
        EXPECT_TRUE(phone.numbers->countries().isEmpty());
    }
    expectTold("Failed to fetch countries from server: ");
    phone.host.clearFaults();
    phone.start();
    EXPECT_GE(phone.numbers->countries().size(), 40);
    phone.choose(country, WebsiteService::SMS24);
    const auto numbers = phone.numbers->currentCountryNumbers();

    phone.host.setFault(QStringLiteral("/first/en/countries"), GetParam().fault);
    phone.host.setFault(QStringLiteral("/second"), GetParam().fault);
    int completions = 0;
    phone.numbers->fetchNumbers(*phone.numbers->currentCountry(),
                                [&](const QList<PhoneNumber> &) { ++completions; });
    phone.settle();
    const QStringList lines = phone.console.take();
    EXPECT_EQ(lines.isEmpty(), !GetParam().told) << lines.join(u'\n').toStdString();
    EXPECT_EQ(phone.numbers->currentNumber()->number.isEmpty(), false);
    phone.host.clearFaults();
    phone.numbers->fetchNumbers(*phone.numbers->currentCountry(), [&](const QList<PhoneNumber> &) {});
    phone.settle();
    EXPECT_EQ(phone.numbers->currentCountryNumbers().size(), numbers.size());
}

INSTANTIATE_TEST_SUITE_P(Pages, PageFaultTest, testing::ValuesIn(pageFaults),
                         [](const auto &row) { return row.param.name; });

struct DocumentFault {
    const char *name;
    Fault fault;
};

class DocumentFaultTest : public testing::TestWithParam<DocumentFault> {
protected:
    WholePhone phone;
};

TEST_P(DocumentFaultTest, WhatIsBuiltInStaysInForce) {
    phone.host.setFault(QStringLiteral("/config"), GetParam().fault);
    phone.start();
    const QStringList catalogues = phone.console.take();
    EXPECT_EQ(catalogues.size(), GetParam().fault.kind == Kind::MissingKey ? 1 : 2)
        << catalogues.join(u'\n').toStdString();
    EXPECT_TRUE(phone.numbers->tpnCountriesList().isEmpty());
    EXPECT_GE(phone.numbers->countries().size(), 40) << "the website itself is there";

    const AppConfigViewModel config(*phone.process);
    phone.settle();
    const bool arrived = GetParam().fault.kind != Kind::Huge && GetParam().fault.kind != Kind::CutOff &&
                         GetParam().fault.kind != Kind::Dead;
    const QStringList documents = phone.console.take();
    EXPECT_EQ(documents.size(), arrived ? 2 : 0) << documents.join(u'\n').toStdString();
    EXPECT_FALSE(config.configuration());
    EXPECT_FALSE(config.scrapingConfig());
    const auto &values = phone.process->shared<ValuesInForce>();
    EXPECT_EQ(*values.currentConfiguration->get(), defaultConfiguration());
    EXPECT_EQ(*values.currentScrapingConfig->get(), ScrapingConfig());

    // The compiled recipe goes on reading messages.
    phone.choose(country, WebsiteService::SMS24);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, DocumentFaultTest,
    testing::Values(DocumentFault{"fifty_megabytes", Kind::Huge}, DocumentFault{"cut_off", Kind::CutOff},
                    DocumentFault{"garbage", Kind::Garbage}, DocumentFault{"invalid_utf8", Kind::InvalidUtf8},
                    DocumentFault{"gone", Kind::Dead}, DocumentFault{"not_found", Kind::NotFound},
                    DocumentFault{"empty", Kind::Empty}, DocumentFault{"another_site", Kind::WrongSite},
                    DocumentFault{"missing_key", Kind::MissingKey},
                    DocumentFault{"wrong_type", Kind::WrongType}),
    [](const auto &row) { return row.param.name; });

TEST(SlowWebsiteTest, WhatComesLateIsAppliedAndWhatNeverComesIsTold) {
    WholePhone phone;
    phone.start(true);
    phone.choose(country, WebsiteService::SMS24);
    const QStringList shown = phone.contents();
    phone.host.setFault(QStringLiteral("/first/en/numbers"), Fault::slow(100));
    const QStringList later = phone.fetchLater();
    EXPECT_NE(later, shown);
    EXPECT_TRUE(phone.console.take().isEmpty());
    phone.host.setFault(QStringLiteral("/first/en/numbers"), Fault::slow(3'600'000));
    EXPECT_EQ(phone.fetchLater(), later);
    const QStringList printed = phone.console.take();
    ASSERT_EQ(printed.size(), 1);
    EXPECT_TRUE(printed[0].startsWith("Failed to fetch messages for this number "))
        << printed[0].toStdString();
}

/// Everything fails at once, in the middle of the program's life: it goes on, and so does what is stored.
TEST(SlowWebsiteTest, TheChoiceOutlivesAWorldThatIsGone) {
    WholePhone phone;
    phone.start();
    phone.choose(country, WebsiteService::SMS24);
    const auto number = phone.numbers->currentNumber();
    phone.host.setFault(QStringLiteral("/"), Kind::Dead);
    phone.start();
    EXPECT_EQ(phone.numbers->currentNumber(), number);
    phone.numbers->loadHistory();
    phone.settle();
    EXPECT_EQ(phone.numbers->historyList().size(), 1);
    EXPECT_EQ(phone.numbers->countries(), phone.numbers->localCountries());
    EXPECT_EQ(phone.fetchLater(), QStringList());
}

} // namespace
} // namespace orl
