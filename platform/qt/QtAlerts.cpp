#include "platform/qt/QtAlerts.h"

#include <memory>

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "platform/qt/Toolkit.h"

namespace wrenvale::platform {

namespace {

constexpr int kIconSize = 64;

int closedAnswer(const Alert& alert) {
  return alert.alternateButton ? kAlertAlternateReturn : kAlertDefaultReturn;
}

// An ampersand in a label is part of the text, not a mark of a shortcut.
QPushButton* addButton(QMessageBox& box, const std::string& label, QMessageBox::ButtonRole role) {
  return box.addButton(QString::fromStdString(label).replace('&', "&&"), role);
}

void fill(QMessageBox& box, const Alert& alert) {
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(alert.messageText));
  box.setInformativeText(QString::fromStdString(alert.informativeText));
  if (const QIcon icon = QApplication::windowIcon(); !icon.isNull())
    box.setIconPixmap(icon.pixmap(QSize(kIconSize, kIconSize), box.devicePixelRatioF()));
  box.setAttribute(Qt::WA_QuitOnClose, false);
}

struct Buttons {
  const QAbstractButton* alternate = nullptr;
  const QAbstractButton* other = nullptr;
  const QAbstractButton* standard = nullptr;
};

Buttons addButtons(QMessageBox& box, const Alert& alert) {
  Buttons buttons;
  QPushButton* standard = addButton(box, alert.defaultButton, QMessageBox::AcceptRole);
  box.setDefaultButton(standard);
  box.setEscapeButton(standard);
  buttons.standard = standard;
  if (alert.otherButton)
    buttons.other = addButton(box, *alert.otherButton, QMessageBox::DestructiveRole);
  if (alert.alternateButton) {
    QPushButton* alternate = addButton(box, *alert.alternateButton, QMessageBox::RejectRole);
    box.setEscapeButton(alternate);
    buttons.alternate = alternate;
  }
  return buttons;
}

} // namespace

int QtAlerts::runModal(const Alert& alert) {
  if (!hasWindows()) return closedAnswer(alert);
  const QPointer<QMessageBox> box = new QMessageBox;
  fill(*box, alert);
  const Buttons buttons = addButtons(*box, alert);
  box->exec();
  if (!box) return closedAnswer(alert);
  const std::unique_ptr<QMessageBox> owned(box);
  const QAbstractButton* clicked = box->clickedButton();
  if (!clicked) return closedAnswer(alert);
  if (clicked == buttons.standard) return kAlertDefaultReturn;
  return clicked == buttons.other ? kAlertOtherReturn : kAlertAlternateReturn;
}

} // namespace wrenvale::platform
