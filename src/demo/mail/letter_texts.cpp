#include "letter_texts.h"

namespace orl::demo {

const std::vector<NoteText> &noteTexts() {
    static const std::vector<NoteText> texts{
        {"Maya Okafor", "maya@okafor.example", "Thursday?",
         "Hi,\n\nare we still on for Thursday? The piano is nearly in tune.\n\nBring nothing at all: there "
         "is tea.\n\n-- \nMaya\n"},
        {"Borough Libraries", "desk@libraries.example", "Your book is waiting",
         "Dear reader,\n\n    \"A Field Guide to Small Rivers\"\n\nis kept for you until Saturday at the "
         "desk. Card no. 20417.\n"},
        {"\u062d\u0633\u0646 \u0627\u0644\u0645\u0635\u0631\u064a", "hassan@post.example",
         "\u0645\u0648\u0639\u062f \u0627\u0644\u063a\u062f",
         "\u0645\u0631\u062d\u0628\u0627\u064b\u060c\n\n\u0646\u0644\u062a\u0642\u064a "
         "\u063a\u062f\u0627\u064b \u0641\u064a \u0627\u0644\u0633\u0627\u0639\u0629 "
         "\u0627\u0644\u062e\u0627\u0645\u0633\u0629. \u0631\u0642\u0645 "
         "\u0627\u0644\u062a\u0623\u0643\u064a\u062f 5521.\n"},
        {"\u4f50\u85e4\u3055\u304f\u3089", "sakura@post.example",
         "\u660e\u65e5\u306e\u4e88\u5b9a\u306b\u3064\u3044\u3066",
         "\u3053\u3093\u306b\u3061\u306f\u3002\n\n\u660e\u65e5\u306f\u5348\u5f8c\u4e09\u6642\u306b\u99c5"
         "\u3067\u5f85\u3061\u5408\u308f\u305b\u307e\u3057\u3087\u3046\u3002\n"},
        {"J\u00f6rg M\u00fcller", "joerg@mueller.example", "Schl\u00fcssel liegt unter der Matte",
         "Hallo,\n\nder Schl\u00fcssel liegt unter der Matte. Die Pflanzen brauchen dienstags Wasser & gute "
         "Worte.\n\nGr\u00fc\u00dfe\nJ\u00f6rg\n"},
        {"alerts", "no-reply@status.example", "[RESOLVED] disk 91% on node-7 <check #4471>",
         "node-7: disk usage back to 62%\nchecked every 60 s\nrule: used > 90%\n"},
    };
    return texts;
}

const char *const welcomePage = R"(<div>
<h2>Your inbox is ready</h2>
<p>Mail to <b>@ADDRESS@</b> appears here by itself, usually within ten seconds.</p>
<p>Three things to know:</p>
<ul>
<li>Anybody who knows this address can read its mail. Do not use it for an account that matters to you.</li>
<li>There is no password, and nothing to sign up for.</li>
<li>Old mail goes when new mail needs its room.</li>
</ul>
<p>Read more in the <a href="http://@HOST@/legal/orl/terms-of-service/">terms of service</a>.</p>
</div>
)";

const char *const codePage = R"(<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>@SERVICE@</title>
<style>.code { font: bold 34px monospace; letter-spacing: 6px; padding: 14px 22px; background: #fff; color: #14171c; border-radius: 10px; display: inline-block }</style>
</head><body>
<div>
<p>Hello,</p>
<p>use this code to finish signing in to <b>@SERVICE@</b>. It is good for ten minutes.</p>
<p><span class="code">@CODE@</span></p>
<p>Or <a href="@LINK@">confirm this address</a> with one tap. If it was not you, nothing happens without the code.</p>
</div>
</body></html>
)";

const char *const newsletterPage =
    R"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html xmlns="http://www.w3.org/1999/xhtml"><head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8" />
<style type="text/css">
body { margin: 0; background: #eef0f4; color: #14171c; font-family: sans-serif }
p, div, td { color: #14171c }
img { border: 0; display: block }
@media (max-width: 600px) { .half { display: block !important; width: 100% !important } }
</style></head>
<body bgcolor="#eef0f4"><center>
<span style="display:none;font-size:0">Tea, bicycles and a piano that is nearly in tune.</span>
<table width="100%" cellpadding="0" cellspacing="0" border="0" bgcolor="#eef0f4"><tr><td align="center">
<table width="600" style="max-width:100%" cellpadding="0" cellspacing="0" border="0" bgcolor="#ffffff">
<tr><td><a href="@LINK@"><img src="http://@HOST@/mail/pictures/@NUMBER@-wide.jpg" width="600" style="max-width:100%;height:auto" alt="Hills under a wide sky" /></a></td></tr>
<tr><td style="padding:24px"><h1 style="font-size:26px;margin:0 0 10px">This month at @SERVICE@</h1>
<p style="font-size:16px;line-height:24px">Forty leaves from small gardens, a map that works in the cellar, and three things that we got wrong.</p></td></tr>
<tr><td style="padding:0 24px 24px"><table width="100%" cellpadding="0" cellspacing="0"><tr>
<td class="half" width="50%" valign="top" style="padding-right:12px"><img src="http://@HOST@/mail/pictures/@NUMBER@-icon.jpg" width="128" height="128" alt="A tea house" /><p style="font-size:15px"><b>Tea that waits</b><br />4.90 a box, posted monthly.</p></td>
<td class="half" width="50%" valign="top"><img src="http://@HOST@/mail/pictures/@NUMBER@2-icon.jpg" width="128" height="128" alt="A harbour" /><p style="font-size:15px"><b>Ride the harbour</b><br />The first half hour is on us.</p></td>
</tr></table></td></tr>
<tr><td bgcolor="#4656d6" align="center" style="padding:18px"><a href="@LINK@" style="color:#ffffff;font-size:17px;font-weight:bold;text-decoration:none">Read it all &rarr;</a></td></tr>
<tr><td style="padding:18px 24px;font-size:12px;color:#5a6270">You get this because @ADDRESS@ signed up. <a href="@LINK@&amp;bye=1" style="color:#5a6270">Unsubscribe</a></td></tr>
</table></td></tr></table>
<img src="http://@HOST@/mail/pictures/open-@NUMBER@-icon.jpg" width="1" height="1" alt="" />
</center></body></html>
)";

const char *const receiptPage = R"(<div><h3>Thank you for your order</h3>
<table border="1" cellpadding="8" style="border-collapse:collapse;border-color:#888">
<tr><th align="left">What</th><th>How many</th><th align="right">Price</th></tr>
<tr><td>Small river guide</td><td align="center">1</td><td align="right">18.00</td></tr>
<tr><td>Tea, forty leaves</td><td align="center">2</td><td align="right">9.80</td></tr>
<tr><td>Postage</td><td></td><td align="right">3.20</td></tr>
<tr><td colspan="2"><b>Together</b></td><td align="right"><b>31.00</b></td></tr>
</table>
<p>Order no. @CODE@ leaves us tomorrow. <a href="@LINK@">Where is it?</a></p></div>
)";

const char *const photosPage =
    R"(<div>Here they are!<br><br>The second one is my favourite. The list of everybody's addresses is in there too.<br><br>See you soon</div>
)";

const char *const brokenPage = R"(<html><head><title>Sale<body bgcolor=#222>
<p>Everything must go<div><b>Today <i>only</b> at @SERVICE@</i>
<table><tr><td>Kettles<td>-40%<p>stray words</table></td></div></div>
<ul><li>one<li>two <a href=@LINK@>look<li>three</ul></a>
<p style="color:orange;font-size:19px>an attribute that never ends</p>
<p>and yet it goes on &amp on &copy @NUMBER@ &nosuch; &#x1F600 <!-- nor does this
)";

const char *const latinPage =
    "<html><head><meta charset=utf-8></head><body><p>Votre commande n\xb0 @CODE@ est pr\xeate \xe0 "
    "\xeatre retir\xe9"
    "e au caf\xe9 du coin.</p><p>\xc0 bient\xf4t, l'\xe9quipe</p></body></html>\n";

} // namespace orl::demo
