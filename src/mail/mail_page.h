#pragma once

#include <QString>

namespace orl {

/// The page that shows a mail's body: white on the dark card behind it, unless the mail's own styles say
/// otherwise. The body goes in as it is, be it a whole document or plain text.
QString mailPage(QString body);

/// The body that a page was made of; its bare div elements have the page's class.
QString mailBody(const QString &page);

/// The words of a page or of a piece of markup, a line per block, without empty lines.
QString mailText(const QString &markup);

/// A mail as it is shown to whoever wants nobody to know that it was read.
struct PrivateMail {
    QString page;
    int pictures = 0; ///< how many there are on the web, shown or not
};

/// The page with nothing in it but what the relaxed whitelist allows, and with pictures only where they are
/// asked for. Without them nothing in it makes a browser fetch anything.
PrivateMail privateMail(const QString &page, bool showPictures);

} // namespace orl
