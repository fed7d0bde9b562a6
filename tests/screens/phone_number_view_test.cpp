#include "screens/phone_number_view.h"
#include "screens_phone.h"

using namespace orl;

namespace {

using State = PhoneNumberView::State;

struct PhoneNumberTest : ScreensTest {
    PhoneNumberTest() {
        makeContent();
        phone.settle();
    }

    PhoneNumberView &open(std::optional<Country> country = test::country(QStringLiteral("Norway"),
                                                                         QStringLiteral("/en/norway"))) {
        view = std::make_unique<PhoneNumberView>(*process, request(), country, true);
        view->load();
        return *view;
    }

    std::unique_ptr<PhoneNumberView> view;
};

TEST_F(PhoneNumberTest, NumbersAreShownInTheFormatOfTheCountry) {
    EXPECT_EQ(open().state(), State::Fetching);
    phone.settle();
    EXPECT_EQ(view->state(), State::Numbers);
    EXPECT_EQ(test::texts(*view->phones(), "number"),
              (QStringList{QStringLiteral("+1 5550100"), QStringLiteral("+1 5550199")}));
}

TEST_F(PhoneNumberTest, SignalBarsStayWithTheirCardAndInRange) {
    QList<QByteArray> many;
    for (int i = 0; i < 60; ++i)
        many << QByteArray::number(1000 + i);
    phone.urls.answer(norwayUrl, test::numbersPage(many));
    open();
    phone.settle();
    const QVariantList bars = test::column(*view->phones(), "bars");
    for (const QVariant &value : bars) {
        EXPECT_GE(value.toInt(), 2);
        EXPECT_LE(value.toInt(), 5);
    }
    view->load();
    phone.settle();
    EXPECT_EQ(test::column(*view->phones(), "bars"), bars);
}

TEST_F(PhoneNumberTest, EmptyListIsAFailureThatCanBeRetried) {
    phone.urls.answer(norwayUrl, test::numbersPage({}));
    open();
    phone.settle();
    EXPECT_EQ(view->state(), State::Failed);
    phone.urls.answer(norwayUrl, test::numbersPage({"123"}));
    view->load();
    EXPECT_EQ(view->state(), State::Fetching);
    phone.settle();
    EXPECT_EQ(view->state(), State::Numbers);
}

TEST_F(PhoneNumberTest, ListWithoutACountryIsAFailure) {
    EXPECT_EQ(open(std::nullopt).state(), State::Failed);
}

TEST_F(PhoneNumberTest, SilentHostIsAFailureAfterAWhileAndItsLateAnswerStillCounts) {
    phone.urls.hold(norwayUrl);
    open();
    phone.advance(PhoneNumberView::patience - std::chrono::milliseconds(1));
    EXPECT_EQ(view->state(), State::Fetching);
    phone.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(view->state(), State::Failed);
    phone.urls.release(norwayUrl);
    phone.settle();
    EXPECT_EQ(view->state(), State::Numbers);
}

TEST_F(PhoneNumberTest, PatienceOfAnEarlierTryDoesNotEndALaterOne) {
    phone.urls.hold(norwayUrl);
    open();
    phone.advance(PhoneNumberView::patience / 2);
    view->load();
    phone.advance(PhoneNumberView::patience / 2);
    EXPECT_EQ(view->state(), State::Fetching);
}

TEST_F(PhoneNumberTest, AnswerAfterTheScreenIsGoneHarmsNobody) {
    phone.urls.hold(norwayUrl);
    open();
    phone.settle();
    view.reset();
    phone.urls.release(norwayUrl);
    phone.advance(PhoneNumberView::patience);
    SUCCEED();
}

TEST_F(PhoneNumberTest, TapIsFeltAndASecondOneChoosesNothingMore) {
    open();
    phone.settle();
    view->tap(0);
    view->tap(1);
    EXPECT_EQ(haptics.impacts, std::vector{Impact::Soft});
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0100"));
    EXPECT_EQ(view->state(), State::Nothing);
}

} // namespace
