#include "legal_pages.h"

#include <QString>

#include <array>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

struct LegalPage {
    const char16_t *path;
    const char *title;
    const char *body;
};

constexpr const char *privacy = R"(
<p class="sum">Orl needs no account, and there is no server of ours that learns what you do with it.</p>
<h2>What Orl keeps on your device</h2>
<ul>
<li>the number and the country that you chose last, and the numbers that you chose before, with the time of each choice;</li>
<li>how many numbers you chose since the last rewarded video;</li>
<li>which messages you have seen, by the sender's name and the time of the message;</li>
<li>your settings.</li>
</ul>
<p>All of it is in one file in your data folder, which only your own user account can read. Messages themselves are not
kept: they are read anew from the website each time. Remove the file, and Orl has forgotten you.</p>
<h2>What leaves your device</h2>
<ul>
<li>Orl reads public web pages: the list of countries, the numbers of a country, the messages of a number. The website
sees your internet address and which page was read, as with any browser.</li>
<li>Orl reads a few documents from its configuration host, such as the recipe that tells how to read those pages.</li>
<li>Advertising is loaded from an ad host after you were asked. Orl tells it no name, no number and no message.</li>
</ul>
<h2>Messages are public</h2>
<p><strong>Anyone can read the messages of a public number.</strong> Do not use one for an account that matters to you,
for money, or for anything that you would not say in the open.</p>
<h2>Links and notifications</h2>
<p>A link in a message is opened only when you tap it. A notification shows the sender's name, on your lock screen
too if your desktop shows notifications there; you can switch notifications off in the settings.</p>
)";

constexpr const char *terms = R"(
<p class="sum">Orl shows you what public websites publish. What you do with it is your responsibility.</p>
<h2>What you get</h2>
<p>Orl lists virtual phone numbers by country and shows the messages that arrive there. It is free of charge and paid for
by advertising. After three numbers it may ask you to watch a video before you choose the next one.</p>
<h2>What nobody can promise</h2>
<ul>
<li>Numbers come and go, and messages may be late, incomplete or missing: they belong to the websites, not to Orl.</li>
<li>A service may refuse a public number, or take away an account that was opened with one.</li>
<li>Anyone can read the messages of a public number.</li>
</ul>
<h2>What we ask of you</h2>
<ul>
<li>Use a number only where the service that you sign up for allows it.</li>
<li>Do not use Orl to deceive, to harass, to pay or to get around the law.</li>
<li>A message that is not meant for you is not yours: do not use the codes and links of others.</li>
</ul>
<h2>Changes</h2>
<p>These terms may change with the program. The ones that stand here are in force.</p>
)";

constexpr const char *eula = R"(
<p class="sum">You may use Orl on your own devices, free of charge, as it is.</p>
<h2>Use</h2>
<p>You may install Orl on any number of devices of yours and use it for yourself and at work. You may make copies to
keep them safe.</p>
<h2>Parts made by others</h2>
<p>Orl uses free software made by others. Their licences apply to those parts and give you further rights, which nothing
on this page takes away.</p>
<h2>As it is</h2>
<p>Orl comes without any warranty, as far as the law permits. Whoever gave it to you is not liable for what comes of
using it, in particular of messages that do not arrive, or that others have read.</p>
<h2>End</h2>
<p>You may stop using Orl at any time: uninstall it and delete its data folder. Nothing of it stays anywhere else.</p>
)";

constexpr std::array pages{LegalPage{u"/orl/privacy-policy", "Privacy Policy", privacy},
                           LegalPage{u"/orl/terms-of-service", "Terms of Service", terms},
                           LegalPage{u"/eula", "End User Licence Agreement", eula}};

constexpr const char *frame = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>@TITLE@ - Orl</title>
<style>
body { max-width: 40em; margin: 0 auto; padding: 1.5em 1.2em 3em; font: 1.05em/1.55 sans-serif; }
h1 { font-size: 1.6em; line-height: 1.2; }
h2 { font-size: 1.15em; margin-top: 1.8em; }
.sum { font-size: 1.1em; }
footer { margin-top: 3em; opacity: 0.7; font-size: 0.9em; }
</style>
</head>
<body>
<main>
<h1>@TITLE@</h1>
@BODY@
</main>
<footer>@KeLo</footer>
</body>
</html>
)";

} // namespace

Reply LegalPages::answer(const Request &request) const {
    QString path = request.path;
    if (path.endsWith(u'/')) path.chop(1);
    for (const LegalPage &page : pages) {
        if (path == QStringView(page.path))
            return {200, "text/html; charset=utf-8",
                    QByteArray(frame).replace("@TITLE@", page.title).replace("@BODY@", page.body)};
    }
    return notFoundPage();
}

} // namespace orl::demo
