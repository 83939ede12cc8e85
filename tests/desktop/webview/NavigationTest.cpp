// Why pages go somewhere, and what comes of it.

#include <regex>

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

class NavigationTest : public WebViewTest {
protected:
  /// The navigations that were asked about since the page began, with 127.0.0.1 left out.
  std::vector<std::string> asked() const {
    static const std::regex site("http://(127\\.0\\.0\\.1|(localhost)):[0-9]+");
    std::vector<std::string> result;
    for (const auto& call : delegate_.calls)
      if (call.starts_with("go ")) result.push_back(std::regex_replace(call, site, "$2"));
    return result;
  }
};

constexpr const char* kPage = R"(<!DOCTYPE html><title>Test</title>
<a id=link href="/linked">link</a> <a id=blank target=_blank href="/linked">link</a>
<a id=inside href="#inside">link</a> <a id=mail href="mailto:a@b.example">link</a>
<a id=file href="file:///etc/hostname">link</a>
<a id=handled href="/linked" onclick="return false">link</a>
<a id=script href="/linked" onclick="location = href; return false">link</a>
<form id=form action="/sent"></form>
<iframe id=frame name=frame src="/framed"></iframe><iframe id=foreign></iframe>
<script>const $ = id => document.getElementById(id);
function link(href) { const a = this.document.createElement('a');
  a.append(this.document.createElement('b')); a.href = href; return a }
$('foreign').src = location.origin.replace('127.0.0.1', 'localhost') + '/foreign';
onload = () => setTimeout(() => { Recommender.act(); run(); setTimeout(() => Recommender.done(), 150); });
</script>)";

TEST_F(NavigationTest, IsAskedAboutWithItsReason) {
  const std::pair<const char*, std::vector<std::string>> rows[] = {
      {"location = '/other'", {"go 5 /other"}},
      {"location = '/redirected'", {"go 5 /redirected", "go 5 /other"}},
      {"location.reload()", {"go 3 /"}},
      {"$('link').click()", {"go 0 /linked"}},
      {"$('inside').click()", {"go 0 /#inside"}},
      {"link('/linked').click()", {"go 0 /linked"}},
      {"link('/linked').dispatchEvent(new MouseEvent('click'))", {"go 0 /linked"}},
      {"link('/linked').firstChild.click()", {"go 0 /linked"}},
      {"link('#inside').click()", {"go 0 /#inside"}},
      {"$('frame').contentWindow.eval('parent.link.call(this, \"/linked\")').click()",
       {"go 0 /linked in /"}},
      {"location.hash = 'inside'", {}},
      {"$('inside').onclick = () => { location.hash = 'inside'; return false }; "
       "$('inside').click()",
       {}},
      {"$('handled').click(); location = '/linked'", {"go 5 /linked"}},
      {"$('script').click()", {"go 5 /linked"}},
      {"$('link').click(); setTimeout(() => location = '/linked', 50)",
       {"go 0 /linked", "go 5 /linked"}},
      {"$('mail').click()", {"go 0 mailto:a@b.example"}},
      {"location = 'mailto:a@b.example'", {}},
      {"$('file').click()", {}},
      {"$('form').submit()", {"go 1 /sent?"}},
      {"$('blank').click()", {"go 0 /linked"}},
      {"window.open('/other')", {"go 5 /other"}},
      {"frame.location = '/other'", {"go 5 /other in /"}},
      {"$('frame').contentDocument.querySelector('a').click()", {"go 0 /linked in /"}},
      {"$('foreign').contentWindow.postMessage('', '*')", {"go 0 localhost/linked in /"}},
  };
  site_.page("/framed", "<a href='/linked'>l</a>");
  site_.page("/foreign", "<a href='/linked'>l</a><script>onmessage = () =>"
                         " document.querySelector('a').click()</script>");
  site_.answer("/redirected", answerWith("", "302 Found", "Location: /other\r\n"));
  for (const auto& [script, expected] : rows) {
    site_.page("/", std::string(kPage) + "<script>function run() {" + script + "}</script>");
    bool began = false;
    onCall([&](const std::string& call) {
      if (call == "act") began = true, delegate_.calls.clear();
      const bool isAsked = began && !call.ends_with("/redirected");
      delegate_.decision = isAsked ? PolicyDecision::kIgnore : PolicyDecision::kUse;
    });
    load("/");
    EXPECT_TRUE(waitFor("done")) << script;
    EXPECT_EQ(asked(), expected) << script;
    EXPECT_FALSE(delegate_.has("fail")) << script;
  }
}

TEST_F(NavigationTest, IsAskedAboutThePastToo) {
  site_.page("/", "<script>onload = () => setTimeout(() => location = '/second')</script>");
  site_.page("/second", "<script>onload = () => { history.back();"
                        " setTimeout(() => Recommender.done(), 150) }</script>");
  onCall([&](const std::string& call) {
    if (call.starts_with("go 2")) delegate_.decision = PolicyDecision::kIgnore;
  });
  load("/");
  ASSERT_TRUE(waitFor("done"));
  EXPECT_THAT(asked(), testing::ElementsAre("go 5 /", "go 5 /second", "go 2 /"));
}

// As a person clicks: on the widget that has the page, wherever in it the pointer is.
TEST_F(NavigationTest, ClicksOfAPersonLeave) {
  const struct {
    const char* link;
    const char* asked;
    Qt::KeyboardModifiers keys = {};
    Qt::MouseButton button = Qt::LeftButton;
  } rows[] = {
      {"<a href='/linked'>", "go 0 /linked", Qt::NoModifier, Qt::MiddleButton},
      {"<a href='/linked'>", "go 0 /linked", Qt::AltModifier},
      {"<a href='mailto:a@b.example'>", "go 0 mailto:a@b.example", Qt::AltModifier},
      {"<a href='file:///etc/hostname' onclick='setTimeout(() => location = \"/linked\", 100)'>",
       "go 5 /linked", Qt::AltModifier},
      {"<a href='/linked' download>", "go 0 /linked"},
      {"<div onclick='location = \"/linked\"'>", "go 5 /linked"},
      {"<form target=_blank action=/sent><input type=hidden name=a value=b><button>",
       "go 1 /sent?a=b"},
      {"<form target=_blank action=' /sent ' method=post><input type=hidden name=action><button>",
       "go 1 /sent"},
      {"<form target=_blank><button>", "go 1 /?"},
      {"<form action=/no><button formtarget=_blank formaction='mailto:a@b.example'>",
       "go 1 mailto:a@b.example?"},
      {"<form target=_blank action=/sent onsubmit='submit(); return false'><button formaction=/no>",
       "go 1 /sent?"},
      {"<script>shadow('open', `<style>*{font:inherit}</style>"
       "<form target=_blank action=/sent><button>Link`)</script>",
       "go 1 /sent?"},
      {"<script>shadow('closed', '<a href=/linked>Link')</script>", "go 0 /linked"},
      {"<script>shadow('closed', '<a href=#inside>Link')</script>", "go 0 /#inside"},
      {"<form action=/linked onsubmit='new FormData(this); return false' "
       "onclick='setTimeout(() => window.open(\"/linked\"), 50)'><button>",
       "go 0 /linked"},
  };
  for (const auto& row : rows) {
    delegate_.decision = PolicyDecision::kUse;
    show("<style>* { font-size: 300px }</style><div id=host></div><script>const shadow ="
         " (mode, html) => host.attachShadow({mode}).innerHTML = html</script>" +
         std::string(row.link) + "Link");
    delegate_.decision = PolicyDecision::kIgnore;
    const auto clicked = [&] {
      QTest::mouseClick(&view(), row.button, row.keys, {100, 150});
      return waitUntil([&] { return asked().size() > 1; }, std::chrono::milliseconds(500));
    };
    EXPECT_TRUE(clicked() || clicked()) << row.link; // the first may come before there is a frame
    EXPECT_EQ(asked().back(), row.asked) << row.link;
  }
}

} // namespace
} // namespace wrenvale::platform
