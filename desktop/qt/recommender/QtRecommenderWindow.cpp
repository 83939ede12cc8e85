#include "desktop/qt/recommender/QtRecommenderWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <ui_Recommender.h>

#include "desktop/qt/alerts/AlertBox.h"
#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/recommender/WebViewModuleLoader.h"

namespace wrenvale::platform {

namespace {

const Qt::WindowFlags kFlags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint;

} // namespace

QtRecommenderWindow::QtRecommenderWindow(RecommenderWindowDelegate& delegate,
                                         WebViewModuleLoader& loader)
    : delegate_(&delegate)
    , loader_(loader)
    , ui_(std::make_unique<Ui::Recommender>())
    , window_(new QWidget(nullptr, kFlags))
    , frame_((ui_->setupUi(window_), *window_)) {
  window_->setAttribute(Qt::WA_QuitOnClose, false);
  ui_->webView->hide(); // an empty place
  frame_.centre();
  window_->installEventFilter(this);
  connect(window_, &QObject::destroyed, this, [this] { checkLater(); });
  // The window must not be shown under a second application object.
  connect(qApp, &QObject::destroyed, this, [this] { window_ = nullptr; });
}

QtRecommenderWindow::~QtRecommenderWindow() {
  delegate_ = nullptr;
  close();
  if (window_) deleteWindowLater(*window_);
}

void QtRecommenderWindow::setTitle(std::string_view title) {
  if (window_) window_->setWindowTitle(fromUTF8(title));
}

void QtRecommenderWindow::loadRequest(const PageRequest& request) {
  QMetaObject::invokeMethod(
      this, [this, request] { load(request); }, Qt::QueuedConnection);
}

void QtRecommenderWindow::load(const PageRequest& request) {
  if (!delegate_ || !window_) return;
  auto* module = loader_.module();
  auto page = module ? module->makeWebView(*delegate_, request) : LoadedWebView();
  if (page.view) {
    webView_ = std::move(page.view);
    return insertWebView(*page.widget);
  }
  const auto text = translated(QT_TRANSLATE_NOOP("Wrenvale", "Web pages cannot be shown here."));
  delegate_->didFailProvisionalLoad({.description = text.toStdString(), .url = request.url}, true);
}

// Puts the web view where the layout has room for one. The progress indicator stays above.
void QtRecommenderWindow::insertWebView(QWidget& view) {
  view.setObjectName(ui_->webView->objectName());
  view.setVisible(revealed_);
  delete window_->layout()->replaceWidget(ui_->webView, &view);
  delete std::exchange(ui_->webView, &view);
  view.lower();
}

void QtRecommenderWindow::revealWebView() {
  if (!window_) return;
  revealed_ = true;
  ui_->progressIndicator->hide();
  auto* view = window_->findChild<QWidget*>("webView");
  if (view && webView_) view->show();
}

bool QtRecommenderWindow::isVisible() const {
  return window_ && window_->isVisible();
}

Frame QtRecommenderWindow::frame() const {
  return window_ ? frame_.frame() : Frame();
}

Frame QtRecommenderWindow::frameForContentSize(double width, double height) const {
  if (!window_) return {.x = 0, .y = 0, .width = width, .height = height};
  return frame_.frameForContentSize(width, height);
}

void QtRecommenderWindow::setFrame(const Frame& frame, bool animate) {
  if (window_) frame_.setFrame(frame, animate);
}

void QtRecommenderWindow::makeKeyAndOrderFront() {
  if (!window_) return close();
  if (!delegate_) return;
  shown_ = true;
  if (window_->isMinimized())
    window_->showNormal();
  else
    window_->show();
  window_->raise();
  window_->activateWindow();
  if (auto* webView = window_->findChild<QWidget*>("webView")) webView->setFocus();
  for (auto& sheet : std::exchange(waiting_, {}))
    raiseSheet(std::move(sheet));
}

void QtRecommenderWindow::beginSheet(const Alert& alert, std::function<void(int)> handler) {
  if (!window_ || !delegate_) return;
  if (window_->isVisible())
    raiseSheet({alert, std::move(handler)});
  else
    waiting_.emplace_back(alert, std::move(handler));
}

void QtRecommenderWindow::raiseSheet(Sheet sheet) {
  auto* box = new AlertBox(sheet.first);
  // Read the answer while the box is whole: when the sheet ends, it may be half destroyed.
  const auto answer = std::make_shared<int>(AlertBox::closedAnswer(sheet.first));
  connect(box, &QDialog::finished, box, [box, answer] {
    *answer = box->answer();
    deleteWindowLater(*box);
  });
  platform::beginSheet(*box, window_,
                       [self = QPointer(this), answer, handler = std::move(sheet.second)](int) {
                         if (self && self->delegate_) handler(*answer);
                       });
}

// The delegate may let go of the window.
void QtRecommenderWindow::close() {
  auto* delegate = std::exchange(delegate_, nullptr);
  const auto page = std::move(webView_); // ends once the delegate knows
  waiting_.clear();
  if (window_) window_->hide();
  if (delegate) delegate->windowWillClose();
}

// A window that was hidden or destroyed without being closed leaves nothing that the user could
// close.
void QtRecommenderWindow::checkLater() {
  QMetaObject::invokeMethod(
      this, [this] { check(); }, Qt::QueuedConnection);
}

void QtRecommenderWindow::check() {
  if (delegate_ && (!window_ || (shown_ && !window_->isVisible()))) close();
}

bool QtRecommenderWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != window_) return false;
  switch (event->type()) {
  case QEvent::Paint:
    QPainter(window_).fillRect(window_->rect(), Qt::white);
    return false;
  case QEvent::KeyPress:
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Close)) return false;
    window_->close();
    return true;
  case QEvent::Hide:
    if (!event->spontaneous()) checkLater();
    return false;
  case QEvent::Close:
    event->accept();
    close();
    return true;
  default:
    return false;
  }
}

} // namespace wrenvale::platform
