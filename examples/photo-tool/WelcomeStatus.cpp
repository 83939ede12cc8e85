#include "WelcomeStatus.h"

#include <QPointer>

#include <wrenvale/KVXWrenvale.h>

namespace {

constexpr const char* kShowUpdateWindow = "Show Update Window";

} // namespace

WelcomeStatus::WelcomeStatus(QWidget* parent)
    : QLabel(parent) {
  // The change may come on any thread, and outlast this label.
  observer_ =
      UserDefaults::standardUserDefaults().addObserver(kShowUpdateWindow, [label = QPointer(this)] {
        QMetaObject::invokeMethod(qApp, [label] {
          const auto& defaults = UserDefaults::standardUserDefaults();
          if (label && defaults.boolForKey(kShowUpdateWindow)) label->setDue(true);
        });
      });
  setDue(false);
}

WelcomeStatus::~WelcomeStatus() {
  UserDefaults::standardUserDefaults().removeObserver(observer_);
}

void WelcomeStatus::setDue(bool due) {
  const auto& wrenvale = KVXWrenvale::sharedInstance();
  const QString text = due ? tr("%1, build %2  \u00b7  Welcome window: due")
                           : tr("%1, build %2  \u00b7  Welcome window: not due");
  setText(text.arg(QString::fromStdString(wrenvale.appName())).arg(wrenvale.bundleVersion()));
}
