#include "platform/qt/AlertBox.h"

#include <algorithm>

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "platform/qt/LongText.h"

namespace wrenvale::platform {

namespace {

constexpr int kIconSize = 64;

// Of the screen's height; the rest is for the buttons, and for texts that take more lines beside an
// icon than they were measured with.
constexpr double kMessageShare = 0.2;
constexpr double kInformativeShare = 0.4;

// An ampersand in a label is part of the text, not a mark of a shortcut.
QPushButton* labelled(QMessageBox& box, const std::string& label, QMessageBox::ButtonRole role) {
  return box.addButton(QString::fromStdString(label).replace('&', "&&"), role);
}

} // namespace

AlertBox::AlertBox(const Alert& alert)
    : closedAnswer_(closedAnswer(alert))
    , default_(labelled(*this, alert.defaultButton, AcceptRole)) {
  setTextFormat(Qt::PlainText);
  setText(QString::fromStdString(alert.messageText));
  setInformativeText(QString::fromStdString(alert.informativeText));
  auto* informative = findChild<QLabel*>("qt_msgbox_informativelabel");
  // setTextFormat() is about the other text only.
  if (informative) informative->setTextFormat(Qt::PlainText);
  if (const QIcon icon = QApplication::windowIcon(); !icon.isNull())
    setIconPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
  setAttribute(Qt::WA_QuitOnClose, false);
  addButtons(alert);
  if (auto* message = findChild<QLabel*>("qt_msgbox_label"))
    scrollWhenLong(*message, kMessageShare);
  if (informative) scrollWhenLong(*informative, kInformativeShare);
}

void AlertBox::addButtons(const Alert& alert) {
  setDefaultButton(default_);
  setEscapeButton(default_);
  if (alert.otherButton) other_ = labelled(*this, *alert.otherButton, DestructiveRole);
  if (!alert.alternateButton) return;
  alternate_ = labelled(*this, *alert.alternateButton, RejectRole);
  setEscapeButton(alternate_);
}

int AlertBox::answer() const {
  const QAbstractButton* clicked = clickedButton();
  if (!clicked) return closedAnswer_;
  if (clicked == default_) return kAlertDefaultReturn;
  return clicked == other_ ? kAlertOtherReturn : kAlertAlternateReturn;
}

// A sheet is put above its window, which may stand at an edge of the screen.
void AlertBox::showEvent(QShowEvent* event) {
  QMessageBox::showEvent(event);
  const auto* here = QGuiApplication::screenAt(geometry().center());
  const QRect available = (here ? here : screen())->availableGeometry();
  // Its title bar may be unknown until it is on the screen.
  const QSize titled = size() + QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
  const QSize room = available.size() - frameSize().expandedTo(titled);
  const QPoint corner = pos() - available.topLeft();
  const QPoint kept(std::clamp(corner.x(), 0, std::max(0, room.width())),
                    std::clamp(corner.y(), 0, std::max(0, room.height())));
  if (kept != corner) move(available.topLeft() + kept);
}

int AlertBox::closedAnswer(const Alert& alert) {
  return alert.alternateButton ? kAlertAlternateReturn : kAlertDefaultReturn;
}

} // namespace wrenvale::platform
