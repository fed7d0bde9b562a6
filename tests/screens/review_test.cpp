#include "screens/review.h"
#include "screens/review_prompt.h"
#include "screens_phone.h"

using namespace orl;

namespace {

struct ReviewTest : ScreensTest {
    const QString key = QStringLiteral("OPENED_TIME");
    Review review{*process};
};

TEST_F(ReviewTest, EveryThirdOpeningAsks) {
    scene.setHasWindow(true);
    const struct {
        int requests;
        qint64 stored;
    } openings[] = {{0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2}, {2, 0}};
    for (const auto &[requests, stored] : openings) {
        review.requestReviewIfNeeded();
        EXPECT_EQ(storeReview.requests, requests);
        EXPECT_EQ(phone.store.integer(key), stored);
    }
}

TEST_F(ReviewTest, WithoutAWindowOpeningsAreCountedOnly) {
    for (int opening = 1; opening <= 5; ++opening) {
        review.requestReviewIfNeeded();
        EXPECT_EQ(phone.store.integer(key), opening);
    }
    EXPECT_EQ(storeReview.requests, 0);
    scene.setHasWindow(true);
    review.requestReviewIfNeeded();
    EXPECT_EQ(storeReview.requests, 1);
}

TEST_F(ReviewTest, PromptOpensTheStoreOnlyWhenTheUserWants) {
    const QUrl link(QStringLiteral("itms-apps://store.example/review"));
    ReviewPrompt prompt(browser, link);
    prompt.requestReview();
    EXPECT_TRUE(prompt.isPresented());
    prompt.dismiss();
    EXPECT_FALSE(prompt.isPresented());
    EXPECT_TRUE(browser.opened.isEmpty());
    prompt.requestReview();
    prompt.rate();
    EXPECT_FALSE(prompt.isPresented());
    EXPECT_EQ(browser.opened, QStringList{link.toString()});
}

} // namespace
