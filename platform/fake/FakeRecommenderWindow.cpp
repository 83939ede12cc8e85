#include "platform/fake/FakeRecommenderWindow.h"

#include <algorithm>

namespace wrenvale::platform {

namespace {

class RecordingWindow final : public RecommenderWindow {
public:
  explicit RecordingWindow(std::shared_ptr<FakeRecommenderWindow> seen)
      : seen_(std::move(seen)) {}
  ~RecordingWindow() override {
    seen_->delegate = nullptr;
    seen_->visible = false;
    seen_->webViewClosed = true;
    seen_->handlers.clear();
  }

  void setTitle(std::string_view title) override { seen_->title = title; }
  void setBackgroundWhite() override { seen_->backgroundWhite = true; }
  void setWebViewHidden(bool hidden) override { seen_->webViewHidden = hidden; }
  void setProgressShown(bool shown) override { seen_->progressShown = shown; }
  void removeAllCachedResponses() override { ++seen_->cachesEmptied; }
  void setApplicationNameForUserAgent(std::string_view name) override {
    seen_->applicationName = name;
  }
  void loadRequest(std::string_view url, std::chrono::seconds timeout) override {
    seen_->requests.emplace_back(url, timeout);
  }
  void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) override {
    seen_->scriptObjects.insert_or_assign(std::string(name), methods);
  }
  bool hasScriptObject() const override {
    return !seen_->scriptObjects.empty() && !seen_->webViewClosed;
  }
  void callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) override {
    seen_->calls.emplace_back(name, arguments);
  }
  bool isVisible() const override { return seen_->visible; }
  Frame frame() const override { return seen_->frame; }
  Frame frameForContentSize(double width, double height) const override {
    return {.x = 0, .y = 0, .width = width, .height = height + seen_->titleBar};
  }
  void setFrame(const Frame& frame, bool animate) override {
    seen_->frame = frame;
    seen_->frames.emplace_back(frame, animate);
  }
  void showWindow() override { makeKeyAndOrderFront(); }
  void makeKeyAndOrderFront() override {
    seen_->visible = true;
    ++seen_->broughtForward;
    if (const auto& happen = seen_->whenShown) happen();
  }
  void beginSheet(const Alert& alert, std::function<void(int)> handler) override {
    seen_->sheets.push_back(alert);
    seen_->handlers.push_back(std::move(handler));
  }
  void close() override { seen_->pressClose(); }
  void closeWebView() override { seen_->webViewClosed = true; }

private:
  const std::shared_ptr<FakeRecommenderWindow> seen_;
};

} // namespace

void FakeRecommenderWindow::startPage(std::string_view origin) {
  scriptObjects.clear();
  if (delegate && !webViewClosed) delegate->didClearWindowObject(origin);
}

std::optional<Value> FakeRecommenderWindow::call(std::string_view name,
                                                 const Arguments& arguments) {
  const auto object = scriptObjects.find("Recommender");
  if (!delegate || webViewClosed || object == scriptObjects.end()) return std::nullopt;
  const auto& methods = object->second;
  const auto method = std::find_if(methods.begin(), methods.end(),
                                   [&](const auto& each) { return each.name == name; });
  if (method == methods.end()) return std::nullopt;
  auto given = arguments;
  given.resize(static_cast<std::size_t>(method->arguments));
  return delegate->invokeScriptMethod(name, given);
}

std::optional<PolicyDecision> FakeRecommenderWindow::navigate(const NavigationAction& action) {
  return delegate ? std::optional(delegate->decidePolicyForNavigationAction(action)) : std::nullopt;
}

std::optional<PolicyDecision> FakeRecommenderWindow::openWindow(const NavigationAction& action) {
  return delegate ? std::optional(delegate->decidePolicyForNewWindowAction(action)) : std::nullopt;
}

void FakeRecommenderWindow::fail(bool isMainFrame) {
  const LoadError error{.description = "The page did not load.", .url = "http://vendor.example"};
  if (delegate) delegate->didFailProvisionalLoad(error, isMainFrame);
}

void FakeRecommenderWindow::pressClose() {
  visible = false;
  if (auto* told = std::exchange(delegate, nullptr)) told->windowWillClose();
}

bool FakeRecommenderWindow::answerSheet(int answer) {
  if (handlers.empty()) return false;
  const auto handler = std::move(handlers.front());
  handlers.erase(handlers.begin());
  handler(answer);
  return true;
}

std::unique_ptr<RecommenderWindow>
FakeRecommenderWindows::makeRecommenderWindow(RecommenderWindowDelegate& delegate) {
  if (!hasScreen) return nullptr;
  windows.push_back(std::make_shared<FakeRecommenderWindow>());
  window().delegate = &delegate;
  return std::make_unique<RecordingWindow>(windows.back());
}

} // namespace wrenvale::platform
