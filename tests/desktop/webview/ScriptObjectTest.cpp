// The object that a page's scripts get: what they may do with it, and what nobody can do to it.

#include "WebViewFixture.h"

namespace wrenvale::platform {
namespace {

using testing::ElementsAre;
using Told = std::vector<std::string>;

class ScriptObjectTest : public WebViewTest {};

TEST_F(ScriptObjectTest, TakesValuesOverAsTheyAre) {
  const std::pair<std::string, const char*> rows[] = {
      {"true", "true"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"9223372036854775808", "real 9223372036854775808.000000"},
      {"2.5", "real 2.500000"},
      {"1e300 * 1e300", "null"},
      {"'\\u00e4\\u2028\"\\\\\\u{1F600}'", "\xC3\xA4\xE2\x80\xA8\"\\\xF0\x9F\x98\x80"},
      {"'\\ud800'", "?"},
      {"{toJSON: () => 'x', toString: () => 'x', valueOf: () => 1}", "null"},
      {"[1]", "null"},
      {"'x'.repeat(10000000)", "10000000 bytes"},
      {"'\\u00e4'.repeat(9999)", "19998 bytes"},
      // The page's own dialogs do nothing.
      {"prompt('Name?', 'x')", "null"},
      {"confirm('Sure?')", "false"},
      {"alert('Well')", "null"},
  };
  std::string script;
  Told expected;
  for (const auto& [argument, value] : rows) {
    script += "tell(" + argument + ");\n";
    expected.push_back(value);
  }
  ASSERT_TRUE(run(script));
  EXPECT_EQ(told(), expected);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ScriptObjectTest, HasItsMethodsAndNothingElse) {
  const std::optional<Value> results[] = {
      Value(), true, -7, std::string(3'000'000, 'x'), "\xC3\xA4\"\\\xE2\x80\xA8", {}, 2.5};
  onCall([&, next = results](const std::string& call) mutable {
    delegate_.answer = call == "give" ? *next++ : Value();
  });
  ASSERT_TRUE(run(R"(
    const show = v => tell(typeof v + (typeof v == 'string' ? v.length : v));
    for (let i = 0; i < 5; ++i) show(Recommender.give());
    try { Recommender.give() } catch (e) { tell(e.constructor === TypeError) }
    show(Recommender.give());
    tell(Object.getOwnPropertyNames(Recommender).join());
    tell(['toString', '__proto__', 'pair'].some(name => Recommender[name]));
    Recommender['pair:'](1); Recommender['pair:'](1, 2, 3);
    const { done: alone } = Recommender; alone.call(7);)"));
  EXPECT_THAT(told(),
              ElementsAre("objectnull", "booleantrue", "number-7", "string3000000", "string4",
                          "true", "objectnull", "log,pair:,give,done,act", "false"));
  EXPECT_TRUE(delegate_.has("pair:,1,null") && delegate_.has("pair:,1,2"));
}

// A page that is not given one has none, wherever it came from, and no page has what an earlier one
// had. 127.0.0.1 and localhost are two. The engine lets no call through while a page is left, and
// the page's handlers go on.
TEST_F(ScriptObjectTest, IsEachPagesOwn) {
  delegate_.onCall = [&](const std::string& call) {
    if (call == "clear " + site_.url("/")) publish();
  };
  const std::string next = "<script>onload = () => setTimeout(() => location = '";
  site_.page("/", R"(<script>
    let left = ''; for (const kind of ['beforeunload', 'pagehide', 'unload'])
      addEventListener(kind, () => {
        localStorage.left = left += kind + Recommender.log('x'.repeat(20000)) + ' ' })</script>)" +
                      next + site_.url("/second", "localhost") + "')</script>");
  site_.page("/second", next + site_.url("/third-") + "' + typeof Recommender)</script>");
  site_.page("/third-undefined",
             "<script>Recommender.log(localStorage.left); Recommender.done()</script>");
  load("/");
  ASSERT_TRUE(waitFor("done"));
  EXPECT_EQ(told(), Told{"beforeunloadnull pagehidenull unloadnull "});
}

// Whatever a page replaces, calls stay what they are and their secret where it is: also when the
// page opens its document anew.
TEST_F(ScriptObjectTest, CannotBeTamperedWith) {
  std::string script = "let leaks = 0; const leak = () => ++leaks;";
  for (const char* each :
       {"Recommender = {log: leak}; delete window.Recommender; Recommender.log = leak",
        "Recommender.log.x = 1; Recommender.x = 1",
        "Object.defineProperty(window, 'Recommender', {value: {log: leak}})",
        "Object.defineProperty(Recommender, 'log', {value: leak})", "window.prompt = leak",
        "delete window.prompt", "Object.defineProperty(window, 'prompt', {value: leak})",
        "Window.prototype.prompt = leak", "JSON.stringify = JSON.parse = leak",
        "String.prototype.toJSON = Object.prototype.toJSON = Array.prototype.toJSON = leak",
        "String.prototype.slice = String.prototype.startsWith = String.prototype.concat = leak",
        "Array.prototype[0] = 'leak'; Array.prototype[Symbol.iterator] = leak",
        "Function.prototype.call = Function.prototype.apply = Reflect.apply = leak",
        "['token', 'name', 'methods', 'value', 'get', 'arguments'].forEach(key =>"
        " Object.prototype.__defineSetter__(key, leak))"})
    script += "\ntry { " + std::string(each) + " } catch {}";
  site_.page("/", "<script>" + script + R"(
    Recommender.log('x'.repeat(20000)); Recommender['pair:']({}, '');
    Recommender.log('x' in Recommender || 'x' in Recommender.log);
    Recommender.log(/[0-9a-f]{32}/.test('' + Recommender.log));
    setTimeout(() => {
      document.open();
      document.write('<script>Recommender.log(leaks); Recommender.done()<\/script>');
    })</script>)");
  load("/");
  ASSERT_TRUE(waitFor("done"));
  EXPECT_THAT(told(), ElementsAre("20000 bytes", "false", "false", "0"));
  EXPECT_TRUE(delegate_.has("pair:,null,"));
}

// Frames of the page's own origin reach what is the page's; no frame gets an object of its own, and
// none can ask as the page does.
TEST_F(ScriptObjectTest, FramesGetNone) {
  const std::string frame = R"(<script>parent.postMessage(
    typeof Recommender + prompt('x'.repeat(32) + 'w[\x22done\x22]'), '*')</script>)";
  site_.page("/frame", frame);
  site_.page("/", R"(<script>let count = 0;
    onmessage = e => { Recommender.log(e.data); if (++count == 4) Recommender.done() }</script>
    <iframe sandbox='allow-scripts allow-modals' src='/frame'></iframe><iframe src='/frame'></iframe>
    <iframe srcdoc=")" +
                      frame + "\"></iframe><iframe src='" + site_.url("/frame", "localhost") +
                      "'></iframe>");
  load("/");
  ASSERT_TRUE(waitFor("done"));
  EXPECT_EQ(told(), Told(4, "undefinednull"));
}

TEST_F(ScriptObjectTest, CallsThePage) {
  site_.page("/", R"(<script>
    function take(...values) { Recommender.log(values.join('|')) }
    const notAFunction = 1; function fail() { throw new Error }
    Recommender.act();</script>)");
  load("/");
  EXPECT_FALSE(hasScriptObject());
  ASSERT_TRUE(waitFor("act"));
  EXPECT_TRUE(hasScriptObject());
  auto& page = *window_->webView();
  const std::string text = "[\"</script>\\ \xE2\x80\xA8 %1 %2 \xF0\x9F\x98\x80\"]";
  for (const char* missing : {"missing", "notAFunction", "fail", "a\"b", "take()"})
    page.callWebScriptMethod(missing, {Value("x")});
  page.callWebScriptMethod("take", {});
  page.callWebScriptMethod("take", {Value(text), Value(), Value(true), Value(7)});
  page.callWebScriptMethod("take", {Value(std::string(300'000, 'x'))});
  ASSERT_TRUE(waitUntil([&] { return told().size() == 3; }));
  EXPECT_THAT(told(), ElementsAre("", text + "||true|7", "300000 bytes"));
}

} // namespace
} // namespace wrenvale::platform
