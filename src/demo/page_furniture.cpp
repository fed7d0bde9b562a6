#include "page_furniture.h"

namespace orl::demo::furniture {

// The doctype and the encoding come first; the rest is as untidy as pages of this kind are. None of this may
// carry a class that the program looks messages, senders, times or numbers up by.
const char *const head = R"HTML(<!doctype html>
<!--[if lt IE 9]><html class="no-js ie-old" lang="en"><![endif]-->
<!--[if gt IE 8]><!--><html class=no-js lang=en dir='ltr' prefix="og: https://ogp.example/ns#"><!--<![endif]-->
<head>
<META http-equiv=Content-Type content='text/html; charset=utf-8'>
<meta charset="utf-8" />
<meta content="width=device-width, initial-scale=1, shrink-to-fit=no" name=viewport>
<title>@TITLE@ &ndash; @SITE@ &lt;free &amp; online&gt;</title>
<meta name="description" content="@TITLE@: read SMS online, free &amp; without registration. Don&#39;t use it for &quot;important&quot; accounts.">
<meta name='robots' content='index,follow,max-image-preview:large'/>
<meta property=og:title content="@TITLE@"><meta property=og:url content="https://@SITE@.example@PATH@?utm_source=og&amp;utm_medium=share&copy=1">
<link rel=canonical href="https://@SITE@.example@PATH@">
<link rel="alternate" hreflang="x-default" href="https://@SITE@.example@PATH@"><link hreflang=de rel=alternate href=https://@SITE@.example/de/>
<link rel="preload" as=style href="/assets/app.css?v=4&theme=a"><link rel=stylesheet href='/assets/app.css?v=4&amp;theme=a' media="screen and (min-width:1px)" >
<link rel="icon" type=image/svg+xml href='data:image/svg+xml,<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><rect width="16" height="16" rx="4" fill="%231e88e5"/></svg>'>
<noscript><link rel="stylesheet" href="/assets/noscript.css"></noscript>
<!-- build: 4.18.2 -- theme: "harbour" > generated <div class="wrapper"> do not edit </div> -->
<style>
:root{--blue:#1e88e5;--gap:1rem}*,::after,::before{box-sizing:border-box}
body{margin:0;font:16px/1.5 system-ui,"Noto Sans",sans-serif;color:#212529;background:#fff}
a{color:var(--blue)}a:not([href])::after{content:"</a>"}
.container-fluid>.row{display:flex;flex-wrap:wrap}.card::before{content:"<"}
@media (max-width:576px){.navbar>ul>li~li{display:none}.d-sm-none{display:none!important}}
.placeholder{opacity:1}.text-break{word-wrap:break-word}.border-5{border-width:5px!important}
</style>
<script>
  window.dataLayer = window.dataLayer || [];
  function tag(){ dataLayer.push(arguments); }
  if (1 < 2 && 3 > 2) { tag('js', new Date()); }
  var markup = '<div class="toast"><p>Copied</p></div>' + "</div>";
  for (var i = 0; i<3; i++) document.documentElement.className += i<1 ? ' js' : '';
  var nonce = "@NONCE@"; // <!-- not a comment here
</script>
<script async src="/assets/vendor.js?a=1&b=2"></script>
<script type="application/ld+json">
{"@context":"https://schema.example","@type":"WebPage","name":"@TITLE@","url":"https://@SITE@.example@PATH@",
"publisher":{"@type":"Organization","name":"@SITE@","slogan":"SMS <b>online</b>, free & simple"},
"potentialAction":{"@type":"SearchAction","target":"https://@SITE@.example/search?q={q}&lang=en"}}
</script>
</head>
)HTML";

const char *const header =
    R"HTML(<body class="layout layout--wide" data-page='{"path":"@PATH@","flags":["a<b","c&amp;d"]}' onload="if(1<2){ready()}">
<a class=skip href=#content>Skip to content</a>
<div id=top class='navbar navbar-light sticky-top'>
 <nav aria-label="Main"><button type=button class="navbar-toggler" aria-label='Menu'><svg width=24 height=24 viewBox="0 0 24 24" aria-hidden=true><path d="M3 6h18M3 12h18M3 18h18" stroke="currentColor" fill=none /><title>Menu</title></svg></button>
 <a href="/" class=navbar-brand><img src=/assets/logo.svg alt="@SITE@ &mdash; logo" width=120 height="32"><b>@SITE@</b></a>
 <ul class="nav me-auto">
  <li class=nav-item><a class="nav-link active" href="/en">Countries</a>
  <li class=nav-item><a class=nav-link href='/en/numbers'>Numbers</a>
  <li class="nav-item dropdown"><a href=# class="nav-link dropdown-toggle" data-bs-toggle=dropdown>More&nbsp;&#9662;</a>
   <ul class=dropdown-menu><li><a href="/en/faq">F&amp;Q</a><li><a href="/en/about?ref=menu&lang=en">About</a><li><hr></ul>
  <li class=nav-item><a class=nav-link href="/en/blog" title='News & "notes"'>Blog</a></li>
 </ul>
 <form action=/en/search method=get role=search><input type=search name=q placeholder="Number, country &hellip;" autocomplete=off required><input type=hidden name=token value="@NONCE@"/><button>Search</button></form>
 </nav>
</div>
<noscript><p>This page works best with <em>JavaScript</em>.<br>You can go on without it.</noscript>
<div class="alert alert-info small" role=alert><b>Tip: <i>never</b> use a public number</i> for your bank.<button class=btn-close aria-label="Close">&times;</button></div>
)HTML";

const char *const footer = R"HTML(
<table class="table table-sm" border=0 cellpadding=2><caption>Service status</caption>
<tr><th>Part<th align=right>State<th>Since
<tr><td>Gateway<td><span class=ok>up</span><td>09:00
<tr><td>Archive<td><font color=green>up</font><td>09:00 &nbsp;
<tr><td colspan=3>All times are <abbr title="Coordinated Universal Time">UTC</abbr></table>
<dl><dt>Terms<dd><a href=/en/terms>Read</a><dt>Privacy<dd><a href=/en/privacy>Read</a></dl>
<iframe src="about:blank" title="ad" width=1 height=1 hidden></iframe>
<footer class="footer bg-dark text-white"><div class=container>
 <p>&copy; 2019&ndash;2026 @SITE@. Made with &hearts; &amp; &#9749; by people who like <s>spam</s> messages.
 <p><select name=lang><option value=en selected>English<option value=de>Deutsch<option value=fr>Fran&ccedil;ais<option value=ar dir=rtl>&#1575;&#1604;&#1593;&#1585;&#1576;&#1610;&#1577;</select>
 <p class="text-muted small">Numbers, names and messages on this page are made up.</p></p>
</div></footer>
</span></section>
<script>
(function(w,d){var s=d.createElement('script');s.async=1;s.src='/assets/late.js?n=@NONCE@';
var t="<\/script><p class='x'></div>";if(w.innerWidth<400&&d.body){d.body.setAttribute('data-small','1')}
d.head&&d.head.appendChild(s)})(window,document);
</script>
<!-- served by node-3 in 0.018s <!-- nested? -->
</body>
</html>
<!-- cached -->
)HTML";

const std::vector<Question> questions{
    {"What is a virtual phone number?", "A number that is not tied to a SIM card. Messages sent to it are "
                                        "shown here, for <b>everybody</b> to read."},
    {"Is it really free?",
     "Yes &ndash; no account, no card, no tricks. Ads pay for the servers &amp; the coffee."},
    {"How long do messages stay?", "The newest ones push the older ones out. On a busy number that takes "
                                   "<i>minutes</i>, on a quiet one days."},
    {"Why did my message not arrive?", "Some services block public numbers. Try another number or another "
                                       "country, then wait for &asymp;&nbsp;30&nbsp;s."},
    {"May I use it for my bank?", "Please don&#39;t. Anybody can read the code that your bank sends you."},
    {"Can I send messages?", "No. The numbers only <u>receive</u>; replies &amp; calls are dropped."},
    {"Which time zone do you use?", "All times are UTC. Your browser shows how long ago a message arrived."},
    {"Do you log who reads what?",
     "Only counters (< 1 KB a day), no addresses &hellip; see our privacy page."},
};

const std::vector<const char *> siteLanguages{
    "English", "Deutsch", "Français", "Español", "Português", "Русский", "Українська", "Ελληνικά", "العربية",
    "עברית",   "हिन्दी",   "ไทย",      "中文",    "日本語",    "한국어",  "Tiếng Việt", "Türkçe",   "Polski",
};

} // namespace orl::demo::furniture
