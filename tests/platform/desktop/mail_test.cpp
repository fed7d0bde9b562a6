#include "platform/qt/desktop_mail_composer.h"
#include "support/played_platform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orl {
namespace {

const QString mailto = QStringLiteral("x-scheme-handler/mailto");

/// Two folders of a desktop: the user's lists, and the installed programs.
struct Desktop {
    QTemporaryDir folder;
    HandlerFolders folders{{folder.filePath("config")}, {folder.filePath("local"), folder.filePath("share")}};

    void write(const QString &path, const QByteArray &text) {
        QFile file(folder.filePath(path));
        QDir(folder.path()).mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
};

TEST(MailHandlerTest, IsAnInstalledProgramThatTheDesktopNames) {
    struct Case {
        const char *name;
        QByteArray list;  ///< the user's
        QByteArray cache; ///< of the installed programs
        bool found;
    };
    const Case cases[] = {
        {"nothing there", "", "", false},
        {"installed", "", "[MIME Cache]\nx-scheme-handler/mailto=gone.desktop;mail.desktop;\n", true},
        {"named but not installed", "", "[MIME Cache]\nx-scheme-handler/mailto=gone.desktop;\n", false},
        {"user's choice", "[Default Applications]\nx-scheme-handler/mailto=mail.desktop\n", "", true},
        {"user's addition", "[Added Associations]\nx-scheme-handler/mailto=mail.desktop;\n", "", true},
        {"removed by the user", "[Removed Associations]\nx-scheme-handler/mailto=mail.desktop;\n",
         "[MIME Cache]\nx-scheme-handler/mailto=mail.desktop;\n", false},
        {"another kind", "",
         "[MIME Cache]\nx-scheme-handler/mailtoo=mail.desktop;\ntext/html=mail.desktop;\n", false},
        {"another group", "[Notes]\nx-scheme-handler/mailto=mail.desktop\n", "", false},
        {"no text file", "\xff\xfe[Default\0Applications]\n=;;=\n[", "[MIME Cache", false},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        Desktop desktop;
        desktop.write(QStringLiteral("share/mail.desktop"), "[Desktop Entry]\n");
        desktop.write(QStringLiteral("config/mimeapps.list"), row.list);
        desktop.write(QStringLiteral("share/mimeinfo.cache"), row.cache);
        EXPECT_EQ(hasHandler(mailto, desktop.folders), row.found);
    }
}

TEST(DesktopMailComposerTest, OpensTheAddressAndNothingButIt) {
    struct Case {
        const char *name;
        QString address;
        QByteArray url; ///< empty: nothing is opened
        bool opens;
        MailResult result;
    };
    const Case cases[] = {
        {"address", "help@orl.example", "mailto:help@orl.example", true, MailResult::Saved},
        {"header slipped in", "a@b.example?bcc=c@d.example", "mailto:a@b.example%3Fbcc=c@d.example", true,
         MailResult::Saved},
        {"no program", "help@orl.example", "mailto:help@orl.example", false, MailResult::Failed},
        {"no address", "", "", true, MailResult::Failed},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        PlayedPlatform phone;
        QByteArray opened;
        DesktopMailComposer composer(phone.mainQueue,
                                     [&](const QUrl &url) {
                                         opened = url.toEncoded();
                                         return row.opens;
                                     },
                                     {});
        std::optional<int> result;
        composer.compose(row.address, [&](int outcome) { result = outcome; });
        EXPECT_FALSE(result) << "the result comes later";
        phone.settle();
        EXPECT_EQ(result, int(row.result));
        EXPECT_EQ(opened, row.url);
        EXPECT_FALSE(composer.canSendMail());
    }
}

} // namespace
} // namespace orl
