#include "screens/full_swipe_pop_helper.h"
#include "screens_phone.h"

using namespace orl;

namespace {

struct SwipeTest : ScreensTest {
    SwipeTest() {
        makeContent();
        swipe = std::make_unique<FullSwipePopHelper>(request());
        swipe->setWidth(400);
        swipe->setShow(true);
    }

    std::unique_ptr<FullSwipePopHelper> swipe;
};

struct DragCase {
    const char *name;
    double translation;
    double covering, covered; ///< where the screens stand while the finger is down
    bool staysOpen;
};

class Drag : public SwipeTest, public testing::WithParamInterface<DragCase> {};

TEST_P(Drag, MovesBothScreensAndClosesBeyondTheThreshold) {
    const DragCase &row = GetParam();
    EXPECT_EQ(swipe->coveringOffset(), 0);
    EXPECT_EQ(swipe->coveredOffset(), -80);
    swipe->drag(row.translation);
    EXPECT_EQ(swipe->coveringOffset(), row.covering);
    EXPECT_DOUBLE_EQ(swipe->coveredOffset(), row.covered);
    EXPECT_TRUE(swipe->show());
    swipe->endDrag();
    EXPECT_EQ(swipe->show(), row.staysOpen);
    EXPECT_EQ(swipe->coveringOffset(), 0);
    EXPECT_EQ(swipe->coveredOffset(), row.staysOpen ? -80 : 0);
}

INSTANTIATE_TEST_SUITE_P(Table, Drag,
                         testing::Values(DragCase{"against_the_direction", -200, 0, -80, true},
                                         DragCase{"a_quarter", 100, 100, -57.5, true},
                                         DragCase{"exactly_the_threshold", 160, 160, -44, true},
                                         DragCase{"just_beyond_it", 160.5, 160.5, -43.8875, false},
                                         DragCase{"nearly_all_of_it", 360, 360, 0, false},
                                         DragCase{"farther_than_the_screen", 500, 500, 0, false}),
                         [](const auto &row) { return row.param.name; });

TEST_F(SwipeTest, FollowsTheConversationBothWays) {
    EXPECT_TRUE(request().conversation_isPresented());
    swipe->drag(100);
    request().setConversation_isPresented(false);
    EXPECT_FALSE(swipe->show());
    EXPECT_EQ(swipe->coveredOffset(), 0);
    swipe->drag(300); // the finger is still down
    EXPECT_EQ(swipe->coveringOffset(), 0);
    request().setConversation_isPresented(true);
    EXPECT_EQ(swipe->coveringOffset(), 0);
}

} // namespace
