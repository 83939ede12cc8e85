#include "platform/fake/FakeRateWindow.h"

namespace wrenvale::platform {

namespace {

class RecordingWindow final : public RateWindow {
public:
  RecordingWindow(std::shared_ptr<FakeRateWindow> seen, FakeRateWindows& factory)
      : seen_(std::move(seen))
      , factory_(factory) {}
  ~RecordingWindow() override {
    close();
    seen_->delegate = nullptr;
  }

  void loadImage(std::int64_t mood, std::string_view name) override {
    if (!factory_.missingImages.contains(name)) seen_->images.insert_or_assign(mood, name);
  }
  void showImage(std::int64_t mood) override { seen_->mood = mood; }
  void addTrackingArea(RateButton button, std::int64_t mode) override {
    seen_->trackingAreas.insert_or_assign(button, mode);
  }
  void setAppName(std::string_view appName) override { seen_->appName = appName; }
  void setView(RateView view, bool pushed) override { seen_->views.emplace_back(view, pushed); }
  void attachToParent(HostWindow* parent) override { seen_->parent = parent; }
  void makeKeyAndOrderFront() override {
    seen_->visible = true;
    ++seen_->broughtForward;
  }
  void close() override { seen_->visible = seen_->modal = false; }
  void runModal() override;
  void abortModal() override { seen_->modal = false; }

private:
  const std::shared_ptr<FakeRateWindow> seen_;
  FakeRateWindows& factory_;
};

void RecordingWindow::runModal() {
  const auto seen = seen_; // the script may destroy this window
  seen->modal = true;
  if (const auto script = std::exchange(factory_.duringModal, nullptr)) script();
  seen->modal = false;
}

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

} // namespace

void FakeRateWindow::press(RateButton button) {
  if (delegate) delegate->buttonAction(button);
}

void FakeRateWindow::hover(RateButton button) {
  if (delegate && trackingAreas.contains(button)) delegate->mouseEntered(trackingAreas.at(button));
}

void FakeRateWindow::leave(RateButton button) {
  if (delegate && trackingAreas.contains(button)) delegate->mouseExited(trackingAreas.at(button));
}

void FakeRateWindow::pressClose() {
  if (delegate && delegate->windowShouldClose()) visible = modal = false;
}

std::string FakeRateWindow::face() const {
  const auto found = images.find(mood);
  return found == images.end() ? std::string() : found->second;
}

void FakeOverlay::finish() {
  if (const auto done = std::exchange(completion, nullptr)) done();
}

FakeRateWindows::~FakeRateWindows() {
  for (const auto& overlay : overlays)
    std::exchange(overlay->completion, nullptr);
}

std::unique_ptr<RateWindow> FakeRateWindows::makeRateWindow(RateWindowDelegate& delegate) {
  if (!hasScreen) return nullptr;
  windows.push_back(std::make_shared<FakeRateWindow>());
  window().delegate = &delegate;
  return std::make_unique<RecordingWindow>(windows.back(), *this);
}

std::unique_ptr<DimmingOverlay> FakeRateWindows::makeOverlay(HostWindow* parent) {
  overlays.push_back(std::make_shared<FakeOverlay>());
  overlays.back()->parent = parent;
  return std::make_unique<RecordingOverlay>(overlays.back());
}

void FakeRateWindows::deleteParent(HostWindow* parent) {
  for (const auto& overlay : std::vector(overlays)) {
    if (overlay->parent != parent) continue;
    overlay->parent = nullptr;
    overlay->finish();
  }
  for (const auto& window : std::vector(windows))
    if (window->parent == parent) window->pressClose();
}

} // namespace wrenvale::platform
