// What a page of the maker's is refused, that one in a browser is not.

#include <QFile>

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

const std::string kTell = "<script>var tell = code => Recommender.log(eval(code))</script>";

class PageRulesTest : public WebViewTest {
protected:
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&view(), Qt::LeftButton, {}, from);
    for (int step = 1; step <= 5; ++step)
      QTest::mouseMove(&view(), from + (to - from) * step / 5);
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, to);
  }
  /// What the user does reaches the page in its own time.
  bool becomes(const char* script, const std::string& answer) {
    return waitUntil([&] { return ask(script) == answer; }, std::chrono::seconds(5));
  }
  std::string ask(const char* script) {
    delegate_.calls.clear();
    window_->webView()->callWebScriptMethod("tell", {Value(script)});
    EXPECT_TRUE(waitUntil([&] { return !told().empty(); }));
    return told().empty() ? "" : told().front();
  }
};

TEST_F(PageRulesTest, RequestsAreRefused) {
  ASSERT_TRUE(QFile::exists(":/qt-project.org/qmessagebox/images/qtlogo-64.png"));
  site_.page("/", R"(<!DOCTYPE html><body><script>
    const picture = 'qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png';
    const image = url => new Promise(yes => {
      const i = new Image; i.onload = () => yes('loaded'); i.onerror = () => yes('no image');
      i.src = url; });
    const frame = url => new Promise(yes => {
      const f = document.createElement('iframe'); f.src = url; document.body.append(f);
      setTimeout(() => yes(f.contentDocument ? f.contentDocument.URL : 'loaded'), 200); });
    Promise.all([
      Notification.requestPermission(),
      new Promise(yes => navigator.geolocation.getCurrentPosition(yes, e => yes(e.code))),
      document.execCommand('paste'), !!document.createElement('canvas').getContext('webgl'),
      fetch('file:///etc/hostname').catch(e => e.name), image(picture), frame(picture),
    ]).then(all => Recommender.log(all.join()));</script>)");
  load("/");
  waitUntil([&] { return !told().empty(); }, std::chrono::seconds(5));
  EXPECT_THAT(told(), testing::ElementsAre("denied,1,false,false,TypeError,no image,about:blank"));
}

// Without a click. The engine drops keys in a page's first half second.
TEST_F(PageRulesTest, AShownPageHasTheKeyboard) {
  show("<input id=field><script>field.focus()</script>" + kTell);
  window_->makeKeyAndOrderFront();
  EXPECT_TRUE(becomes("document.hasFocus()", "true"));
  window_->beginSheet(
      {.title = "", .messageText = "Well?", .informativeText = "", .defaultButton = "Ok"},
      [](int) {});
  EXPECT_TRUE(becomes("document.hasFocus()", "false"));
  ASSERT_TRUE(QApplication::activeModalWidget());
  QApplication::activeModalWidget()->close();
  widget()->activateWindow(); // as a window manager does
  ASSERT_TRUE(becomes("document.hasFocus()", "true"));
  EXPECT_TRUE(waitUntil([&] {
    QTest::keyClick(QApplication::focusWidget(), 'x');
    return ask("field.value").starts_with('x');
  }));
}

TEST_F(PageRulesTest, OnlyWhatIsTypedCanBeSelectedAndNothingIsDragged) {
  show("<style>* { font: 40px monospace }</style>Text to select<br><input id=field value='a field'>"
       "<div id=rich contenteditable>rich text</div><a href='/linked'>A link to be dragged</a>"
       "<script>let drags = 0; ondragstart = ondragover = ondrop = () => ++drags;"
       "let releases = 0; onmouseup = () => ++releases;"
       "const typed = () => field.value.slice(field.selectionStart, field.selectionEnd)</script>" +
       kTell);
  drag({10, 175}, {300, 300});
  drag({10, 20}, {300, 20});
  QTest::mouseClick(&view(), Qt::RightButton, {}, {10, 175});
  QContextMenuEvent menu(QContextMenuEvent::Mouse, {10, 175}, view().mapToGlobal(QPoint(10, 175)));
  QCoreApplication::sendEvent(&view(), &menu);
  EXPECT_TRUE(becomes("releases", "3"));
  EXPECT_EQ(ask("drags + ' ' + getSelection()"), "0 ");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(widget()->findChild<QWidget*>("webView")->acceptDrops());
  drag({6, 75}, {450, 75});
  EXPECT_TRUE(becomes("typed()", "a field"));
  QTest::keyClick(&view(), 'x');
  QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(becomes("typed()", "x"));
  drag({1, 130}, {450, 130});
  EXPECT_TRUE(becomes("'' + getSelection()", "rich text"));
}

} // namespace
} // namespace wrenvale::platform
