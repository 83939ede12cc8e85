#include "desktop/qt/alerts/AlertBox.h"

#include <utility>

#include <QApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QWindow>

#include "desktop/qt/app/ParentWatch.h"
#include "desktop/qt/app/WindowFrame.h"

namespace wrenvale::platform {

namespace {

constexpr int kIconSize = 64;
constexpr qsizetype kMostShown = 1'000;
// Qt breaks no line within a word; a word of this length still fits.
constexpr qsizetype kLongestWord = 40;

QString cut(const QString& text, qsizetype length) {
  return text.size() > length ? text.left(qMax(length, 0)) + QChar(0x2026) : text;
}

QString breakable(const QString& text) {
  QString result;
  qsizetype word = 0;
  for (const QChar character : text) {
    word = character.isSpace() ? 0 : word + 1;
    if (word > kLongestWord && !character.isLowSurrogate()) {
      result += QChar(0x200B); // a space of no width
      word = 1;
    }
    result += character;
  }
  return result;
}

// An ampersand in a label is part of the text, not a mark of a shortcut.
QPushButton* labelled(QMessageBox& box, const std::string& label, QMessageBox::ButtonRole role) {
  return box.addButton(QString::fromStdString(label).replace('&', "&&"), role);
}

} // namespace

AlertBox::AlertBox(const Alert& alert)
    : closedAnswer_(closedAnswer(alert))
    , default_(labelled(*this, alert.defaultButton, AcceptRole)) {
  setWindowTitle(QString::fromStdString(alert.title));
  setAttribute(Qt::WA_QuitOnClose, false);
  if (const QIcon icon = QApplication::windowIcon(); !icon.isNull())
    setIconPixmap(icon.pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
  addTexts(alert);
  addButtons(alert);
  if (iconPixmap().isNull()) removeEmptyIndent();
}

void AlertBox::addTexts(const Alert& alert) {
  const QString message = cut(QString::fromStdString(alert.messageText), kMostShown);
  const QString informative = QString::fromStdString(alert.informativeText);
  setTextFormat(Qt::PlainText);
  setText(breakable(message));
  setInformativeText(breakable(cut(informative, kMostShown - message.size())));
  // setTextFormat() does not apply to this one.
  if (auto* label = findChild<QLabel*>("qt_msgbox_informativelabel"))
    label->setTextFormat(Qt::PlainText);
  if (auto* label = findChild<QLabel*>("qt_msgbox_label")) {
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
  }
}

// Without an icon, Qt's layout still begins with an empty column.
void AlertBox::removeEmptyIndent() {
  auto* columns = static_cast<QGridLayout*>(layout());
  for (int i = columns->count(); i-- > 0;)
    if (columns->itemAt(i)->spacerItem()) delete columns->takeAt(i);
  columns->setHorizontalSpacing(0);
  columns->setColumnStretch(1, 1); // that of the texts
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
  // Its title bar may be unknown until it is on the screen.
  const QSize titled = size() + QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
  const QPoint kept = placeOnScreen({pos(), frameSize().expandedTo(titled)});
  if (kept != pos()) move(kept);
}

int AlertBox::closedAnswer(const Alert& alert) {
  return alert.alternateButton ? kAlertAlternateReturn : kAlertDefaultReturn;
}

namespace {

// Lives from the beginning of a sheet to its end.
class Sheet final : public QObject {
public:
  Sheet(QMessageBox& alert, std::function<void(int)> ended)
      : QObject(qApp)
      , alert_(&alert)
      , ended_(std::move(ended)) {
    connect(&alert, &QDialog::finished, this, [this](int result) { end(result); });
    connect(&alert, &QObject::destroyed, this, [this] { end(0); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { dismiss(); });
  }

  void begin(QWidget* window) {
    alert_->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
    alert_->setAttribute(Qt::WA_QuitOnClose, false);
    if (window) putAbove(*window);
    alert_->show();
  }

private:
  void putAbove(QWidget& window) {
    alert_->winId(); // from now on there is a QWindow
    alert_->windowHandle()->setTransientParent(window.windowHandle());
    alert_->adjustSize();
    alert_->move(window.frameGeometry().center() - alert_->rect().center());
    new ParentWatch(
        window, this, [] {}, [this] { dismiss(); });
  }

  void dismiss() {
    if (alert_) alert_->reject();
  }

  void end(int result) {
    deleteLater();
    const auto ended = std::exchange(ended_, nullptr);
    if (!ended) return;
    try {
      ended(result);
    } catch (...) { // no exception reaches the host's event loop through the framework
    }
  }

  const QPointer<QMessageBox> alert_;
  std::function<void(int)> ended_;
};

} // namespace

void beginSheet(QMessageBox& alert, QWidget* window, std::function<void(int)> ended) {
  (new Sheet(alert, std::move(ended)))->begin(window ? window->window() : nullptr);
}

} // namespace wrenvale::platform
