#include "desktop/qt/rate/RateWindowWidget.h"

#include <cmath>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <ui_RateWindow.h>

#include "desktop/qt/app/Toolkit.h"
#include "desktop/qt/app/WindowFrame.h"
#include "desktop/qt/rate/PushTransition.h"

namespace wrenvale::platform {

namespace {

constexpr int kSmallestWidth = 440;
constexpr double kUsualFontSize = 11; // points
constexpr double kLargestScale = 2;
constexpr QRgb kBorder = 0xffc3c9d3;
// A window manager that insists on another place wins in the end.
constexpr int kMostReturns = 20;
constexpr int kReturnDelay = 80; // milliseconds, so that a drag ends first

const Qt::WindowFlags kOrdinaryFlags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
// A hint at a close button would bring the frame back.
const Qt::WindowFlags kAttachedFlags = Qt::Dialog | Qt::FramelessWindowHint;

QString withName(QString text, const QString& name) {
  return text.replace("%1", name);
}

} // namespace

RateWindowWidget::RateWindowWidget(Events events, const QString& appName)
    : QWidget(nullptr, kOrdinaryFlags)
    , events_(std::move(events))
    , appName_(appName)
    , ui_(std::make_unique<Ui::RateWindow>())
    , push_((registerFontWithQt(), ui_->setupUi(this),
             new PushTransition(*ui_->bottomContainerView))) {
  view_ = ui_->bottomContainerView->currentWidget();
  ownRules_ = styleSheet();
  setObjectName("Rate Window");
  setAttribute(Qt::WA_QuitOnClose, false);
  ui_->closeButton->hide();
  connect(ui_->closeButton, &QAbstractButton::clicked, this, [this] { close(); });
  connectButton(*ui_->likeButton, RateButton::kLike);
  connectButton(*ui_->dislikeButton, RateButton::kDislike);
  connectButton(*ui_->appstoreButton, RateButton::kAppstore);
  connectButton(*ui_->contactButton, RateButton::kContact);
  fillInTexts();
  setFontSizes();
  fit();
  setFocus();
}

RateWindowWidget::~RateWindowWidget() {
  events_.destroyed();
}

FaceView& RateWindowWidget::imageView() {
  return *ui_->imageView;
}

void RateWindowWidget::setView(RateView view, bool pushed) {
  QWidget* const views[] = {ui_->rateView, ui_->appstoreView, ui_->contactView};
  view_ = views[static_cast<int>(view)];
  if (pushed && isVisible())
    push_->push(*view_);
  else
    ui_->bottomContainerView->setCurrentWidget(view_);
}

void RateWindowWidget::connectButton(QPushButton& button, RateButton name) {
  connect(&button, &QAbstractButton::clicked, this, [this, &button, name] {
    if (!push_->isUnderWay() && isInPresentView(button)) events_.pressed(name);
  });
  button.installEventFilter(this);
  button.setProperty("rateButton", static_cast<int>(name));
}

bool RateWindowWidget::isInPresentView(const QWidget& widget) const {
  return view_->isAncestorOf(&widget);
}

bool RateWindowWidget::eventFilter(QObject* watched, QEvent* event) {
  auto* button = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::Enter && isInPresentView(*button))
    underPointer_ = button;
  else if (event->type() == QEvent::Leave && underPointer_ == button)
    underPointer_ = nullptr;
  reportHovering();
  return false;
}

// Reports no leaving when the view itself goes away under the pointer.
void RateWindowWidget::reportHovering() {
  if (!isVisible()) return;
  const QWidget* now = isActiveWindow() ? underPointer_ : nullptr;
  const QWidget* before = std::exchange(hovered_, now);
  if (now == before) return;
  for (const QWidget* button : {before, now})
    if (button && isInPresentView(*button))
      events_.hovered(static_cast<RateButton>(button->property("rateButton").toInt()),
                      button == now);
}

// The layout's texts have the application's name as "%1".
void RateWindowWidget::fillInTexts() {
  ui_->retranslateUi(this);
  setWindowTitle(withName(windowTitle(), appName_));
  for (auto* label : findChildren<QLabel*>())
    label->setText(withName(label->text(), appName_));
  for (auto* button : findChildren<QPushButton*>()) {
    button->setText(withName(button->text(), QString(appName_).replace('&', "&&")));
    button->setAccessibleDescription(withName(button->accessibleDescription(), appName_));
  }
}

// The sizes are for the usual font of a desktop; a larger one enlarges all of them in proportion.
void RateWindowWidget::setFontSizes() {
  const double font = QFontInfo(QApplication::font()).pointSizeF();
  const double scale = qBound(1.0, font / kUsualFontSize, kLargestScale);
  auto sized = [scale](double points) { return QString::number(points * scale, 'f', 1) + "pt; }"; };
  setStyleSheet(ownRules_ + "* { font-size: " + sized(11) +
                "QLabel[role=\"headline\"] { font-size: " + sized(17) +
                "#closeButton { font-size: " + sized(18));
}

// The hidden views count too, though layouts hear nothing of what changes in hidden widgets.
void RateWindowWidget::remeasure() {
  for (auto* widget : findChildren<QWidget*>())
    widget->ensurePolished();
  for (auto* view : {ui_->rateView, ui_->appstoreView, ui_->contactView}) {
    view->layout()->invalidate();
    view->layout()->activate();
  }
  ui_->bottomContainerView->updateGeometry();
  layout()->activate();
}

// The height of wrapped texts depends on the width, and a window does not heed that by itself.
void RateWindowWidget::fit() {
  remeasure();
  const int width = qMax(kSmallestWidth, layout()->totalMinimumSize().width());
  setFixedSize(width, layout()->totalHeightForWidth(width));
  if (parent_) place();
}

void RateWindowWidget::follow(QWidget& parent) {
  setWindowFlags(kAttachedFlags);
  ui_->closeButton->show();
  parent_ = &parent;
  fit();
}

QPoint RateWindowWidget::placeOf() const {
  const QRect around = parent_ ? parent_->frameGeometry() : screen()->availableGeometry();
  const QSize outer = frameGeometry().size();
  const QPoint centred = around.topLeft() + QPoint((around.width() - outer.width()) / 2,
                                                   (around.height() - outer.height()) / 2);
  return placeOnScreen({centred, outer});
}

void RateWindowWidget::place() {
  returnsLeft_ = kMostReturns;
  move(placeOf());
}

void RateWindowWidget::moveEvent(QMoveEvent*) {
  if (parent_ && isVisible() && pos() != placeOf())
    QTimer::singleShot(kReturnDelay, this, [this] { returnToPlace(); });
}

void RateWindowWidget::returnToPlace() {
  if (parent_ && pos() != placeOf() && returnsLeft_-- > 0) move(placeOf());
}

bool RateWindowWidget::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  switch (event->type()) {
  case QEvent::LanguageChange:
    fillInTexts();
    fit();
    break;
  case QEvent::ApplicationFontChange:
    setFontSizes();
    fit();
    break;
  case QEvent::StyleChange:
    if (isVisible()) fit();
    break;
  case QEvent::ActivationChange:
    reportHovering();
    break;
  default:
    break;
  }
  return handled;
}

void RateWindowWidget::closeEvent(QCloseEvent* event) {
  event->setAccepted(events_.mayClose());
}

void RateWindowWidget::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) events_.hidden();
}

void RateWindowWidget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close))
    close();
  else
    QWidget::keyPressEvent(event);
}

void RateWindowWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), parent_ ? QColor(kBorder) : Qt::white);
  // Whole pixels of the screen, so that all sides look the same.
  const qreal scale = painter.deviceTransform().m11();
  const qreal border = std::floor(scale) / scale;
  painter.fillRect(QRectF(rect()).adjusted(border, border, -border, -border), Qt::white);
}

} // namespace wrenvale::platform
