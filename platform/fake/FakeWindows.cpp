#include "platform/fake/FakeWindows.h"

#include <algorithm>

namespace wrenvale::platform {

namespace {

class RecordingRateWindow final : public RateWindow {
public:
  RecordingRateWindow(std::shared_ptr<FakeRateWindow> seen, FakeWindows& windows)
      : seen_(std::move(seen))
      , windows_(windows) {}
  ~RecordingRateWindow() override {
    close();
    seen_->delegate = nullptr;
  }

  void showImage(std::string_view name) override {
    seen_->face = windows_.missingImages.contains(name) ? "" : name;
  }
  void setView(RateView view, bool pushed) override { seen_->views.emplace_back(view, pushed); }
  void attachToParent(HostWindow* parent) override { seen_->parent = parent; }
  void makeKeyAndOrderFront() override {
    seen_->visible = true;
    ++seen_->broughtForward;
  }
  void runModal() override {
    const auto seen = seen_; // the script may destroy this window
    seen->modal = true;
    if (const auto script = std::exchange(windows_.duringModal, nullptr)) script();
    seen->modal = false;
  }
  void close() override { seen_->visible = seen_->modal = false; }

private:
  const std::shared_ptr<FakeRateWindow> seen_;
  FakeWindows& windows_;
};

class RecordingOverlay final : public DimmingOverlay {
public:
  explicit RecordingOverlay(std::shared_ptr<FakeOverlay> seen)
      : seen_(std::move(seen)) {}
  ~RecordingOverlay() override {
    seen_->present = false;
    seen_->completion = nullptr;
  }

  void animateAlpha(double alpha, std::function<void()> completion) override {
    seen_->alphas.push_back(alpha);
    seen_->completion = std::move(completion);
    if (!seen_->parent) seen_->finish();
  }

private:
  const std::shared_ptr<FakeOverlay> seen_;
};

class RecordingWebView final : public WebView {
public:
  explicit RecordingWebView(FakeRecommenderWindow& seen)
      : seen_(seen) {}

  void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) override {
    seen_.scriptObjects.insert_or_assign(std::string(name), methods);
  }
  bool callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) override {
    if (seen_.scriptObjects.empty()) return false;
    seen_.calls.emplace_back(name, arguments);
    return true;
  }

private:
  FakeRecommenderWindow& seen_;
};

class RecordingRecommenderWindow final : public RecommenderWindow {
public:
  explicit RecordingRecommenderWindow(std::shared_ptr<FakeRecommenderWindow> seen)
      : seen_(std::move(seen)) {}
  ~RecordingRecommenderWindow() override {
    seen_->delegate = nullptr;
    close();
    seen_->handlers.clear();
  }

  void setTitle(std::string_view title) override { seen_->title = title; }
  void loadRequest(const PageRequest& request) override {
    seen_->requests.push_back(request);
    webView_ = std::make_unique<RecordingWebView>(*seen_);
  }
  WebView* webView() const override { return seen_->webViewClosed ? nullptr : webView_.get(); }
  void revealWebView() override { seen_->webViewRevealed = true; }
  bool isVisible() const override { return seen_->visible; }
  Frame frame() const override { return seen_->frame; }
  Frame frameForContentSize(double width, double height) const override {
    return {.x = 0, .y = 0, .width = width, .height = height + seen_->titleBar};
  }
  void setFrame(const Frame& frame, bool animate) override {
    seen_->frame = frame;
    seen_->frames.emplace_back(frame, animate);
  }
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

private:
  const std::shared_ptr<FakeRecommenderWindow> seen_;
  std::unique_ptr<WebView> webView_;
};

} // namespace

void FakeRateWindow::press(RateButton button) {
  if (delegate) delegate->buttonAction(button);
}

void FakeRateWindow::hover(RateButton button) {
  if (delegate) delegate->hovered(button, true);
}

void FakeRateWindow::leave(RateButton button) {
  if (delegate) delegate->hovered(button, false);
}

void FakeRateWindow::pressClose() {
  if (delegate && delegate->windowShouldClose()) visible = modal = false;
}

void FakeOverlay::finish() {
  if (const auto done = std::exchange(completion, nullptr)) done();
}

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

void FakeRecommenderWindow::fail(bool isMainFrame) {
  const LoadError error{.description = "The page did not load.", .url = "http://vendor.example"};
  if (delegate) delegate->didFailProvisionalLoad(error, isMainFrame);
}

void FakeRecommenderWindow::pressClose() {
  visible = false;
  if (auto* told = std::exchange(delegate, nullptr)) told->windowWillClose();
  webViewClosed = true;
}

bool FakeRecommenderWindow::answerSheet(int answer) {
  if (handlers.empty()) return false;
  const auto handler = std::move(handlers.front());
  handlers.erase(handlers.begin());
  handler(answer);
  return true;
}

FakeWindows::~FakeWindows() {
  for (const auto& overlay : overlays)
    std::exchange(overlay->completion, nullptr);
}

std::unique_ptr<RateWindow> FakeWindows::makeRateWindow(RateWindowDelegate& delegate,
                                                        std::string_view appName) {
  if (!hasScreen) return nullptr;
  rateWindows.push_back(std::make_shared<FakeRateWindow>());
  rateWindow().delegate = &delegate;
  rateWindow().appName = appName;
  return std::make_unique<RecordingRateWindow>(rateWindows.back(), *this);
}

std::unique_ptr<DimmingOverlay> FakeWindows::makeOverlay(HostWindow* parent) {
  overlays.push_back(std::make_shared<FakeOverlay>());
  overlays.back()->parent = parent;
  return std::make_unique<RecordingOverlay>(overlays.back());
}

std::unique_ptr<RecommenderWindow>
FakeWindows::makeRecommenderWindow(RecommenderWindowDelegate& delegate) {
  if (!hasScreen) return nullptr;
  recommenderWindows.push_back(std::make_shared<FakeRecommenderWindow>());
  recommenderWindow().delegate = &delegate;
  return std::make_unique<RecordingRecommenderWindow>(recommenderWindows.back());
}

std::optional<int> FakeWindows::runModal(const Alert& alert,
                                         const std::function<void()>& willShow) {
  if (!hasScreen) return std::nullopt;
  willShow();
  alerts.push_back(alert);
  if (duringAlert) duringAlert();
  return answer;
}

void FakeWindows::deleteParent(HostWindow* parent) {
  for (const auto& overlay : std::vector(overlays)) {
    if (overlay->parent != parent) continue;
    overlay->parent = nullptr;
    overlay->finish();
  }
  for (const auto& window : std::vector(rateWindows))
    if (window->parent == parent) window->pressClose();
}

} // namespace wrenvale::platform
