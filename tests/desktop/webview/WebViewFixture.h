// A real recommender window with the real web view module, and a small web site on the loopback.

#ifndef WRENVALE_TESTS_DESKTOP_WEBVIEW_WEBVIEWFIXTURE_H
#define WRENVALE_TESTS_DESKTOP_WEBVIEW_WEBVIEWFIXTURE_H

#include <unistd.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include "desktop/qt/app/QtWindows.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

/// The engine does not run as root otherwise.
inline const bool kHasNoSandbox = geteuid() == 0 && qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

/// Turns the event loop until `condition` holds; false when that took too long.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds patience = std::chrono::seconds(20)) {
  QEventLoop loop;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &loop, &QEventLoop::quit);
  poll.start(5);
  const QDeadlineTimer end(patience);
  while (!condition()) {
    if (end.hasExpired()) return false;
    loop.exec();
  }
  return true;
}

/// Pages by their paths; what is not there is 404 with a page of its own, and /hang never answers.
class Site {
public:
  using Script = LoopbackServer::Script;

  void page(const std::string& path, const std::string& body) {
    answer(path, answerWith(body, "200 OK", kHTML));
  }
  /// Answers with these bytes.
  void answer(const std::string& path, std::string bytes) {
    script(path, [bytes = std::move(bytes)](auto& client) { client.send(bytes); });
  }
  void script(const std::string& path, Script script) {
    const std::lock_guard lock(mutex_);
    scripts_[path] = std::move(script);
  }
  std::string url(std::string_view path = "/", std::string_view host = "127.0.0.1") const {
    return server_.url(path, host);
  }
  /// The heads of the requests for this path, in lower case.
  std::vector<std::string> heads(const std::string& path) const {
    auto heads = server_.requests();
    std::erase_if(heads, [&](auto& head) { return !head.starts_with("get " + path + " "); });
    return heads;
  }

  static constexpr const char* kHTML = "Content-Type: text/html; charset=utf-8\r\n";

private:
  Script scriptFor(const std::string& head) {
    const auto path = head.empty() ? head : head.substr(4, head.find(' ', 4) - 4);
    const std::lock_guard lock(mutex_);
    return scripts_[scripts_.contains(path) ? path : "nothing"];
  }

  std::mutex mutex_;
  std::map<std::string, Script> scripts_ = {
      {"/hang", [](auto& client) { client.hang(); }},
      {"nothing",
       [](auto& client) { client.send(answerWith("<p>Nothing", "404 Not Found", kHTML)); }}};
  LoopbackServer server_{[this](auto& client) { scriptFor(client.head())(client); }};
};

/// Writes down what the window reports, and then does what a test asks it to.
class PageDelegate : public RecommenderWindowDelegate {
public:
  void didClearWindowObject(std::string_view origin) override {
    note("clear " + std::string(origin));
  }
  std::optional<Value> invokeScriptMethod(std::string_view name,
                                          const std::vector<Value>& arguments) override {
    std::string call(name);
    for (const auto& argument : arguments)
      call += "," + text(argument);
    note(call);
    return answer;
  }
  PolicyDecision decidePolicyForNavigationAction(const NavigationAction& action) override {
    note("go " + std::to_string(static_cast<int>(action.type)) + " " + action.url +
         (action.url == action.mainDocumentURL ? "" : " in " + action.mainDocumentURL));
    return decision;
  }
  void didFailProvisionalLoad(const LoadError& error, bool isMainFrame) override {
    EXPECT_FALSE(error.description.empty());
    advice = error.advice;
    note(isMainFrame ? "fail" : "fail in a frame");
  }
  void windowWillClose() override { note("close"); }

  auto count(std::string_view call) const { return std::ranges::count(calls, call); }
  bool has(std::string_view call) const { return count(call) > 0; }

  std::vector<std::string> calls;
  std::string advice; // of the latest failure
  std::optional<Value> answer = Value();
  PolicyDecision decision = PolicyDecision::kUse;
  std::function<void(const std::string& call)> onCall;

private:
  void note(const std::string& call) {
    calls.push_back(call);
    if (onCall) onCall(call);
  }
  static std::string text(const Value& value) {
    if (const auto* boolean = value.boolean()) return *boolean ? "true" : "false";
    if (const auto* integer = value.integer()) return std::to_string(*integer);
    if (const auto* real = value.real()) return "real " + std::to_string(*real);
    const auto text = value.string() ? *value.string() : "null";
    return text.size() < 200 ? text : std::to_string(text.size()) + " bytes";
  }
};

class WebViewTest : public testing::Test {
protected:
  WebViewTest() {
    onCall([](auto&) {});
  }
  ~WebViewTest() override {
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// Has a new window load this page of the site's, or from elsewhere.
  void load(const std::string& path, std::chrono::seconds timeout = std::chrono::seconds(20)) {
    delegate_.calls.clear();
    window_ = windows().makeRecommenderWindow(delegate_);
    window_->loadRequest({.url = path.starts_with('/') ? site_.url(path) : path,
                          .applicationName = "Photo%20Tool/120 (null)",
                          .timeout = timeout});
  }
  /// Has a new window show this page, until there is a frame of it.
  void show(const std::string& body) {
    site_.page("/", "<!DOCTYPE html><body style='margin:0'>" + body +
                        "<script>onload = () => requestAnimationFrame(() => requestAnimationFrame("
                        "() => setTimeout(() => Recommender.done(), 50)))</script>");
    load("/");
    window_->revealWebView();
    window_->makeKeyAndOrderFront();
    ASSERT_TRUE(waitFor("done"));
  }
  static QWidget& view() { return *widget()->findChild<QWidget*>("webView")->focusProxy(); }
  /// Has this done at each call of the delegate's, when the page has got its object.
  void onCall(const std::function<void(const std::string& call)>& act) {
    delegate_.onCall = [this, act](const std::string& call) {
      if (call.starts_with("clear")) publish();
      act(call);
    };
  }
  void publish() { window_->webView()->setScriptObject("Recommender", methods_); }
  bool hasScriptObject() const {
    auto* page = window_->webView();
    return page && page->callWebScriptMethod("nothing", {});
  }
  /// Has a new window run this script in a page of its own, to its end.
  bool run(const std::string& script) {
    site_.page("/", "<script>const tell = value => Recommender.log(value);\ntry {" + script +
                        "} catch (error) { tell('' + error) }\nRecommender.done()</script>");
    load("/");
    return waitFor("done");
  }
  bool waitFor(const char* call) {
    return waitUntil([&] { return delegate_.has(call); });
  }
  /// What the script told with tell().
  std::vector<std::string> told() const {
    std::vector<std::string> result;
    for (const auto& call : delegate_.calls)
      if (call.starts_with("log,")) result.push_back(call.substr(4));
    return result;
  }

  /// One for the process, as in a host: the engine starts once.
  static QtWindows& windows() {
    static auto& windows = *new QtWindows(WRENVALE_WEBVIEW_MODULE);
    return windows;
  }
  static QWidget* widget() {
    for (auto* found : QApplication::topLevelWidgets())
      if (found->objectName() == "Recommender") return found;
    return nullptr;
  }

  Site site_;
  PageDelegate delegate_;
  std::vector<ScriptMethod> methods_ = {
      {"log", 1}, {"pair:", 2}, {"give", 0}, {"done", 0}, {"act", 0}};
  std::unique_ptr<RecommenderWindow> window_;
};

} // namespace wrenvale::platform

#endif
