#include "screens/copy_view_model.h"
#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

struct CopyTest : ScreensTest {
    CopyViewModel copy{*process};
};

TEST_F(CopyTest, SaysForTwoSecondsThatItCopied) {
    copy.copy(QStringLiteral("1234"));
    EXPECT_EQ(pasteboard.text, QStringLiteral("1234"));
    EXPECT_EQ(haptics.impacts, std::vector{Impact::Soft});
    phone.advance(1999ms);
    EXPECT_TRUE(copy.copied());
    phone.advance(1ms);
    EXPECT_FALSE(copy.copied());
}

TEST_F(CopyTest, SecondCopyDoesNotRestartTheTime) {
    copy.copy(QStringLiteral("1"));
    phone.advance(1500ms);
    copy.copy(QStringLiteral("2"));
    phone.advance(500ms);
    EXPECT_FALSE(copy.copied());
}

TEST_F(CopyTest, EmptyTextIsCopiedAndAnnounced) {
    copy.copy({});
    EXPECT_EQ(pasteboard.text, QString());
    EXPECT_TRUE(copy.copied());
}

} // namespace
