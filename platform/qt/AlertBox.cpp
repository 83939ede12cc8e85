#include "platform/qt/AlertBox.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace wrenvale::platform {

namespace {

constexpr int kIconSize = 64;

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
  // setTextFormat() is about the other text only.
  if (auto* informative = findChild<QLabel*>("qt_msgbox_informativelabel"))
    informative->setTextFormat(Qt::PlainText);
  if (const QIcon icon = QApplication::windowIcon(); !icon.isNull())
    setIconPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
  setAttribute(Qt::WA_QuitOnClose, false);
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

int AlertBox::closedAnswer(const Alert& alert) {
  return alert.alternateButton ? kAlertAlternateReturn : kAlertDefaultReturn;
}

} // namespace wrenvale::platform
