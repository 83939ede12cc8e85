// A real recommender window with the real web view module, and a small web site on the loopback.

#ifndef WRENVALE_TESTS_DESKTOP_WEBVIEW_WEBVIEWFIXTURE_H
#define WRENVALE_TESTS_DESKTOP_WEBVIEW_WEBVIEWFIXTURE_H

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include "desktop/qt/app/QtWindows.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

/// Turns the event loop until `condition` holds; false when that took too long.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds patience = std::chrono::seconds(20)) {
  QEventLoop loop;
  QTimer poll;
  QElapsedTimer time;
  bool holds = condition();
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    if ((holds = condition()) || time.hasExpired(patience.count())) loop.quit();
  });
  time.start();
  poll.start(5);
  if (!holds) loop.exec();
  return holds;
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

/// Writes down what the window reports; does what a test asks it to.
class PageDelegate : public RecommenderWindowDelegate {
public:
  void didClearWindowObject(std::string_view origin) override {
    calls.push_back("clear " + std::string(origin));
    if (onClear) onClear();
  }
  std::optional<Value> invokeScriptMethod(std::string_view name,
                                          const std::vector<Value>& arguments) override {
    std::string call(name);
    for (const auto& argument : arguments)
      call += "," + text(argument);
    calls.push_back(std::move(call));
    return onInvoke ? onInvoke(name) : Value();
  }
  PolicyDecision decidePolicyForNavigationAction(const NavigationAction& action) override {
    calls.push_back("go " + std::to_string(static_cast<int>(action.type)) + " " + action.url +
                    (action.url == action.mainDocumentURL ? "" : " in " + action.mainDocumentURL));
    return onDecide ? onDecide(action) : PolicyDecision::kUse;
  }
  void didFailProvisionalLoad(const LoadError& error, bool isMainFrame) override {
    calls.push_back(isMainFrame ? "fail" : "fail in a frame");
    EXPECT_FALSE(error.description.empty());
    advice = error.advice;
    if (onFail) onFail();
  }
  void windowWillClose() override { calls.push_back("close"); }

  std::size_t count(std::string_view call) const {
    return static_cast<std::size_t>(std::ranges::count(calls, call));
  }
  bool has(std::string_view call) const { return count(call) > 0; }

  static std::string text(const Value& value) {
    if (const auto* boolean = value.boolean()) return *boolean ? "true" : "false";
    if (const auto* integer = value.integer()) return std::to_string(*integer);
    if (const auto* real = value.real()) return "real " + std::to_string(*real);
    if (const auto* text = value.string())
      return text->size() < 200 ? *text : std::to_string(text->size()) + " bytes";
    return "null";
  }

  std::vector<std::string> calls;
  std::string advice; // of the latest failure
  std::function<void()> onClear, onFail;
  std::function<std::optional<Value>(std::string_view)> onInvoke;
  std::function<PolicyDecision(const NavigationAction&)> onDecide;
};

class WebViewTest : public testing::Test {
protected:
  WebViewTest() {
    delegate_.onClear = [this] { publish(); };
  }
  ~WebViewTest() override {
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// Has a new window load this page of the site's.
  void load(const std::string& path, std::chrono::seconds timeout = std::chrono::seconds(20)) {
    delegate_.calls.clear();
    window_ = windows().makeRecommenderWindow(delegate_);
    window_->loadRequest(
        {.url = site_.url(path), .applicationName = "Photo%20Tool/120 (null)", .timeout = timeout});
  }
  void show() {
    window_->revealWebView();
    window_->makeKeyAndOrderFront();
  }
  void publish() { window_->webView()->setScriptObject("Recommender", methods_); }
  bool hasScriptObject() const {
    auto* page = window_->webView();
    return page && page->callWebScriptMethod("nothing", {});
  }
  /// Has a new window run this script in a page of its own, to its end.
  bool run(const std::string& script) {
    site_.page("/", "<!DOCTYPE html><title>Test</title><body><script>\n"
                    "const tell = (...values) => values.forEach(v => Recommender.log(v));\n"
                    "try {" +
                        script +
                        "\n} catch (error) { tell('' + error); }\n"
                        "</script><script>Recommender.done();</script>");
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
