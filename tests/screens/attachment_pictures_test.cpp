#include "screens/mail/attachment_pictures.h"
#include "support/played_platform.h"

#include <QBuffer>
#include <QUrl>

#include <gtest/gtest.h>
#include <memory>

using namespace orl;

namespace {

QByteArray encoded(const QSize &size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// What is kept shows in what is read again.
class AttachmentPicturesTest : public testing::Test {
protected:
    static QString url(const QString &name) { return QStringLiteral("https://mail.example/") + name; }

    /// Shows these in turn, each named by a letter; those that had to be read.
    QString show(const QString &names) {
        QString read;
        for (const QChar name : names) {
            const QString link = url(name);
            const qsizetype before = phone.urls.count(link);
            const std::unique_ptr<QQuickImageResponse> response(
                pictures.requestImageResponse(QString::fromLatin1(QUrl::toPercentEncoding(link)), QSize()));
            phone.settle();
            if (phone.urls.count(link) > before) read += name;
        }
        return read;
    }

    PlayedPlatform phone;
    AttachmentPictures pictures{phone.globalQueue, phone.urls};
};

TEST_F(AttachmentPicturesTest, ThePictureThatWasLookedAtLeastRecentlyGoesFirst) {
    const int side = AttachmentPictures::largestSide;
    const qsizetype bytes = qsizetype(4) * side * side;
    const int fit = int(AttachmentPictures::mostKept / bytes);
    ASSERT_EQ(fit, 3) << "the rows below count on it";
    const QByteArray picture = encoded({side, side});
    for (const QChar name : QStringLiteral("abcd"))
        phone.urls.answer(url(name), picture);
    const struct {
        const char *shown, *read;
    } rows[] = {
        {"abc", "abc"}, {"cab", ""}, // all three are kept
        {"d", "d"},                  // c was looked at before a and b
        {"abd", ""},    {"c", "c"},  // in the place of a
        {"bdc", ""},    {"a", "a"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(show(QLatin1String(row.shown)).toStdString(), row.read) << "after " << row.shown;
}

TEST_F(AttachmentPicturesTest, WhatIsKeptIsMeasuredByItsPixels) {
    const int side = AttachmentPictures::largestSide;
    const QString small = QStringLiteral("abcdefghijklmnop");
    for (const QChar name : small)
        phone.urls.answer(url(name), encoded({side / 8, side / 8}));
    phone.urls.answer(url(QStringLiteral("X")), encoded({2 * side, 2 * side})); // shown at a quarter
    EXPECT_EQ(show(small), small);
    EXPECT_EQ(show(QStringLiteral("X")), QStringLiteral("X"));
    EXPECT_EQ(show(small + u'X'), QString()) << "sixteen small ones beside a large one";
}

TEST_F(AttachmentPicturesTest, NoFailureIsKept) {
    const QString link = url(QStringLiteral("a"));
    for (const PlayedUrls::Answer &failure :
         {PlayedUrls::Answer(Error{}), PlayedUrls::Answer("<html>"),
          PlayedUrls::Answer(UrlResponse{404, encoded({8, 8})}), PlayedUrls::Answer(encoded({20'001, 1}))})
        phone.urls.answerOnce(link, failure);
    EXPECT_EQ(show(QStringLiteral("aaaa")), QStringLiteral("aaaa"));
    phone.urls.answer(link, encoded({8, 8}));
    EXPECT_EQ(show(QStringLiteral("aa")), QStringLiteral("a"));
}

} // namespace
