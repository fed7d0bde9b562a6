#pragma once

namespace orl::test {

/// Each of these makes a browser fetch something from the host spy.example, or tries to.
inline const char *const leaks[] = {
    R"~(<img src="http://spy.example/1">)~",
    R"~(<img srcset="http://spy.example/1 1x, //spy.example/2 2x" sizes="100vw">)~",
    R"~(<picture><source srcset="http://spy.example/1"><img src="data:,"></picture>)~",
    R"~(<video poster="http://spy.example/1" src="http://spy.example/2" autoplay></video>)~",
    R"~(<audio src="http://spy.example/1" preload="auto"></audio>)~",
    R"~(<div style="background:url(http://spy.example/1)">x</div>)~",
    R"~(<div style="background-image:image-set('http://spy.example/1' 1x)">x</div>)~",
    R"~(<div style="b\61 ckground:u\72l(http://spy.example/1)">x</div>)~",
    R"~(<style>@import "http://spy.example/1"; @font-face{font-family:f;src:url(http://spy.example/2)}</style>)~",
    R"~(<style>p{background:url(http://spy.example/1)} li{list-style-image:url(http://spy.example/2)}</style>)~",
    R"~(<link rel="stylesheet" href="http://spy.example/1"><link rel="prefetch" href="http://spy.example/2">)~",
    R"~(<link rel="dns-prefetch" href="//spy.example"><link rel="icon" href="http://spy.example/1">)~",
    R"~(<base href="http://spy.example/"><img src="1">)~",
    R"~(<meta http-equiv="refresh" content="0;url=http://spy.example/1">)~",
    R"~(<iframe src="http://spy.example/1"></iframe><iframe srcdoc="<img src=http://spy.example/2>"></iframe>)~",
    R"~(<object data="http://spy.example/1"></object><embed src="http://spy.example/2">)~",
    R"~(<body background="http://spy.example/1"><table background="http://spy.example/2"><tr><td background="http://spy.example/3">x</table>)~",
    R"~(<svg><image href="http://spy.example/1" xlink:href="http://spy.example/2"/><use href="http://spy.example/3#a"/></svg>)~",
    R"~(<svg><style>@import url(http://spy.example/1)</style></svg>)~",
    R"~(<math><mtext><img src="http://spy.example/1"></mtext></math>)~",
    R"~(<script>fetch("http://spy.example/1")</script><img src=x onerror="fetch('http://spy.example/2')">)~",
    R"~(<input type="image" src="http://spy.example/1"><form action="http://spy.example/2"><button autofocus>x</form>)~",
    "<i\nmg src=http://spy.example/1><img\nsr\nc=http://spy.example/2><img/src=http://spy.example/3>",
    "<img src=\"ht\ntp://spy.example/1\"><img src=\" \thttp://spy.example/2\"><img "
    "src=&#104;ttp://spy.example/3>",
    R"~(<IMG SRC="HTTP://spy.example/1"><img src="//spy.example/2"><img src="\\spy.example\3">)~",
    R"~(<img src='http://spy.example/1' <p title="</p><img src=http://spy.example/2>">)~",
    R"~(<!--[if true]><img src="http://spy.example/1"><![endif]--><!--><img src=http://spy.example/2>-->)~",
    R"~(<noscript><img src="http://spy.example/1"></noscript><template><img src="http://spy.example/2"></template>)~",
    R"~(<a ping="http://spy.example/1" href="http://spy.example/2">x</a>)~",
    R"~(<p><table><img src="http://spy.example/1"><tr><td><xmp><img src="http://spy.example/2"></xmp></table>)~",
};

} // namespace orl::test
