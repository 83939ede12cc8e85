#include "desktop/qt/recommender/RecommenderWindowWidget.h"

#include <utility>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>

#include <ui_Recommender.h>

namespace wrenvale::platform {

namespace {

const Qt::WindowFlags kFlags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint;

} // namespace

RecommenderWindowWidget::RecommenderWindowWidget(Events events)
    : QWidget(nullptr, kFlags)
    , events_(std::move(events))
    , ui_(std::make_unique<Ui::Recommender>()) {
  ui_->setupUi(this);
  setAttribute(Qt::WA_QuitOnClose, false);
  frame_.centre();
}

RecommenderWindowWidget::~RecommenderWindowWidget() {
  events_.destroyed();
}

void RecommenderWindowWidget::setBackgroundWhite() {
  isWhite_ = true;
  update();
}

// The progress indicator stays above.
void RecommenderWindowWidget::setWebView(QWidget* webView) {
  webView->setObjectName(ui_->webView->objectName());
  webView->setHidden(webViewHidden_);
  delete layout()->replaceWidget(ui_->webView, webView);
  delete std::exchange(ui_->webView, webView);
  webView->lower();
}

void RecommenderWindowWidget::setWebViewHidden(bool hidden) {
  webViewHidden_ = hidden;
  if (auto* webView = findChild<QWidget*>("webView")) webView->setHidden(hidden);
}

void RecommenderWindowWidget::setProgressShown(bool shown) {
  ui_->progressIndicator->setVisible(shown);
}

void RecommenderWindowWidget::bringToFront() {
  if (isMinimized())
    showNormal();
  else
    show();
  raise();
  activateWindow();
  if (auto* webView = findChild<QWidget*>("webView")) webView->setFocus();
}

void RecommenderWindowWidget::closeEvent(QCloseEvent* event) {
  event->accept();
  events_.closed();
}

void RecommenderWindowWidget::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) events_.hidden();
}

void RecommenderWindowWidget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Close))
    close();
  else
    QWidget::keyPressEvent(event);
}

void RecommenderWindowWidget::paintEvent(QPaintEvent*) {
  if (isWhite_) QPainter(this).fillRect(rect(), Qt::white);
}

} // namespace wrenvale::platform
