#include "desktop/qt/alerts/SheetAlert.h"

#include <utility>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>

#include "desktop/qt/app/ParentWatch.h"

namespace wrenvale::platform {

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
