#include "desktop/qt/recommender/QtRecommenderWindow.h"

#include <utility>

#include <QApplication>

#include "desktop/qt/alerts/AlertBox.h"
#include "desktop/qt/alerts/SheetAlert.h"
#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/recommender/RecommenderWindowWidget.h"
#include "desktop/qt/recommender/WebViewModuleLoader.h"

namespace wrenvale::platform {

class QtRecommenderWindow::Session final : public WebViewDelegate,
                                           public std::enable_shared_from_this<Session> {
public:
  Session(RecommenderWindowDelegate& delegate, WebViewModuleLoader& loader)
      : delegate_(&delegate)
      , loader_(loader) {}

  void makeWidget();
  RecommenderWindowWidget* widget() const { return widget_; }
  WebView* webView() const { return webView_.get(); }

  void loadLater(std::string_view url, std::chrono::milliseconds timeout);
  void closeWebView();
  void show();
  void beginSheet(const Alert& alert, std::function<void(int)> handler);
  /// Closes the window and ends its page; the delegate is told, once.
  void close();
  /// Closes for good; the delegate is not called any more.
  void end();

  void didClearWindowObject(std::string_view origin) override;
  std::optional<Value> invokeScriptMethod(std::string_view name,
                                          const std::vector<Value>& arguments) override;
  PolicyDecision decidePolicyForNavigationAction(const NavigationAction& action) override;
  PolicyDecision decidePolicyForNewWindowAction(const NavigationAction& action) override;
  void didFailProvisionalLoad(const LoadError& error, bool isMainFrame) override;

  std::string applicationName;

private:
  void load(const std::string& url, std::chrono::milliseconds timeout);
  void raiseSheet(const Alert& alert, std::function<void(int)> handler);
  void checkLater();
  void check();

  RecommenderWindowDelegate* delegate_; // null once the window is closed
  WebViewModuleLoader& loader_;
  RecommenderWindowWidget* widget_ = nullptr; // until it is destroyed, by whomever
  std::unique_ptr<WebView> webView_;
  bool mayLoad_ = true;
  bool shown_ = false;
  std::vector<std::pair<Alert, std::function<void(int)>>> waiting_; // sheets of a hidden window
};

void QtRecommenderWindow::Session::makeWidget() {
  const auto self = shared_from_this();
  widget_ = new RecommenderWindowWidget({
      .closed = [self] { self->close(); },
      .hidden = [self] { self->checkLater(); },
      .destroyed =
          [self] {
            self->widget_ = nullptr;
            self->checkLater();
          },
  });
  // A window of an application object that is gone is of no use in another one's time.
  QObject::connect(qApp, &QObject::destroyed, [weak = weak_from_this()] {
    if (const auto session = weak.lock()) session->widget_ = nullptr;
  });
}

void QtRecommenderWindow::Session::loadLater(std::string_view url,
                                             std::chrono::milliseconds timeout) {
  QMetaObject::invokeMethod(
      qApp,
      [self = shared_from_this(), url = std::string(url), timeout] { self->load(url, timeout); },
      Qt::QueuedConnection);
}

void QtRecommenderWindow::Session::load(const std::string& url, std::chrono::milliseconds timeout) {
  if (!mayLoad_ || !widget_) return;
  auto* module = loader_.module();
  webView_ = module ? module->makeWebView(*this) : nullptr;
  if (!webView_) {
    const auto text = translated(QT_TRANSLATE_NOOP("Wrenvale", "Web pages cannot be shown here."));
    return didFailProvisionalLoad({.description = text.toStdString(), .url = url}, true);
  }
  widget_->setWebView(webView_->widget());
  webView_->setApplicationNameForUserAgent(applicationName);
  webView_->loadRequest(url, timeout);
}

void QtRecommenderWindow::Session::closeWebView() {
  mayLoad_ = false;
  if (webView_) webView_->close();
}

void QtRecommenderWindow::Session::show() {
  if (!widget_) return close();
  if (!delegate_) return;
  shown_ = true;
  widget_->bringToFront();
  for (auto& [alert, handler] : std::exchange(waiting_, {}))
    raiseSheet(alert, std::move(handler));
}

void QtRecommenderWindow::Session::beginSheet(const Alert& alert,
                                              std::function<void(int)> handler) {
  if (!widget_ || !delegate_) return;
  if (widget_->isVisible())
    raiseSheet(alert, std::move(handler));
  else
    waiting_.emplace_back(alert, std::move(handler));
}

void QtRecommenderWindow::Session::raiseSheet(const Alert& alert,
                                              std::function<void(int)> handler) {
  auto* box = new AlertBox(alert);
  // The box tells while it is whole: when the sheet ends, it may be half destroyed.
  const auto answer = std::make_shared<int>(AlertBox::closedAnswer(alert));
  QObject::connect(box, &QDialog::finished, box, [box, answer] {
    *answer = box->answer();
    deleteWindowLater(*box);
  });
  platform::beginSheet(*box, widget_,
                       [self = shared_from_this(), answer, handler = std::move(handler)](int) {
                         if (self->delegate_) handler(*answer);
                       });
}

void QtRecommenderWindow::Session::close() {
  const auto self = shared_from_this();
  auto* delegate = std::exchange(delegate_, nullptr);
  waiting_.clear();
  if (widget_) widget_->hide();
  if (delegate) delegate->windowWillClose();
  closeWebView();
}

void QtRecommenderWindow::Session::end() {
  delegate_ = nullptr;
  close();
  if (widget_) deleteWindowLater(*widget_);
}

// Whatever hid or destroyed the window without closing it left nothing that the user could close.
void QtRecommenderWindow::Session::checkLater() {
  if (!delegate_ || !qApp) return;
  QMetaObject::invokeMethod(
      qApp, [self = shared_from_this()] { self->check(); }, Qt::QueuedConnection);
}

void QtRecommenderWindow::Session::check() {
  if (!widget_ || (shown_ && !widget_->isVisible())) close();
}

void QtRecommenderWindow::Session::didClearWindowObject(std::string_view origin) {
  const auto self = shared_from_this();
  if (delegate_) delegate_->didClearWindowObject(origin);
}

std::optional<Value>
QtRecommenderWindow::Session::invokeScriptMethod(std::string_view name,
                                                 const std::vector<Value>& arguments) {
  const auto self = shared_from_this();
  return delegate_ ? delegate_->invokeScriptMethod(name, arguments) : std::nullopt;
}

PolicyDecision
QtRecommenderWindow::Session::decidePolicyForNavigationAction(const NavigationAction& action) {
  const auto self = shared_from_this();
  return delegate_ ? delegate_->decidePolicyForNavigationAction(action) : PolicyDecision::kIgnore;
}

PolicyDecision
QtRecommenderWindow::Session::decidePolicyForNewWindowAction(const NavigationAction& action) {
  const auto self = shared_from_this();
  return delegate_ ? delegate_->decidePolicyForNewWindowAction(action) : PolicyDecision::kIgnore;
}

void QtRecommenderWindow::Session::didFailProvisionalLoad(const LoadError& error,
                                                          bool isMainFrame) {
  const auto self = shared_from_this();
  if (delegate_) delegate_->didFailProvisionalLoad(error, isMainFrame);
}

QtRecommenderWindow::QtRecommenderWindow(RecommenderWindowDelegate& delegate,
                                         WebViewModuleLoader& loader)
    : session_(std::make_shared<Session>(delegate, loader)) {
  session_->makeWidget();
}

QtRecommenderWindow::~QtRecommenderWindow() {
  session_->end();
}

void QtRecommenderWindow::setTitle(std::string_view title) {
  if (session_->widget()) session_->widget()->setWindowTitle(fromUTF8(title));
}

void QtRecommenderWindow::setBackgroundWhite() {
  if (session_->widget()) session_->widget()->setBackgroundWhite();
}

void QtRecommenderWindow::setWebViewHidden(bool hidden) {
  if (session_->widget()) session_->widget()->setWebViewHidden(hidden);
}

void QtRecommenderWindow::setProgressShown(bool shown) {
  if (session_->widget()) session_->widget()->setProgressShown(shown);
}

void QtRecommenderWindow::setApplicationNameForUserAgent(std::string_view name) {
  session_->applicationName = name;
}

void QtRecommenderWindow::loadRequest(std::string_view url, std::chrono::seconds timeout) {
  session_->loadLater(url, timeout);
}

void QtRecommenderWindow::setScriptObject(std::string_view name,
                                          const std::vector<ScriptMethod>& methods) {
  if (session_->webView()) session_->webView()->setScriptObject(name, methods);
}

bool QtRecommenderWindow::hasScriptObject() const {
  return session_->webView() && session_->webView()->hasScriptObject();
}

void QtRecommenderWindow::callWebScriptMethod(std::string_view name,
                                              const std::vector<Value>& arguments) {
  if (session_->webView()) session_->webView()->callWebScriptMethod(name, arguments);
}

bool QtRecommenderWindow::isVisible() const {
  return session_->widget() && session_->widget()->isVisible();
}

Frame QtRecommenderWindow::frame() const {
  return session_->widget() ? session_->widget()->frame().frame() : Frame();
}

Frame QtRecommenderWindow::frameForContentSize(double width, double height) const {
  if (!session_->widget()) return {.x = 0, .y = 0, .width = width, .height = height};
  return session_->widget()->frame().frameForContentSize(width, height);
}

void QtRecommenderWindow::setFrame(const Frame& frame, bool animate) {
  if (session_->widget()) session_->widget()->frame().setFrame(frame, animate);
}

void QtRecommenderWindow::showWindow() {
  session_->show();
}

void QtRecommenderWindow::makeKeyAndOrderFront() {
  session_->show();
}

void QtRecommenderWindow::beginSheet(const Alert& alert, std::function<void(int)> handler) {
  session_->beginSheet(alert, std::move(handler));
}

void QtRecommenderWindow::close() {
  session_->close();
}

void QtRecommenderWindow::closeWebView() {
  session_->closeWebView();
}

} // namespace wrenvale::platform
