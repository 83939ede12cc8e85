#include "desktop/qt/app/ParentWatch.h"

#include <utility>

#include <QEvent>
#include <QWidget>

namespace wrenvale::platform {

ParentWatch::ParentWatch(QWidget& parent, QObject* owner, Callback moved, Callback gone)
    : QObject(owner)
    , parent_(&parent)
    , moved_(std::move(moved))
    , gone_(std::move(gone)) {
  parent.installEventFilter(this);
  connect(&parent, &QObject::destroyed, this, [this] {
    parent_ = nullptr;
    checkLater();
  });
}

bool ParentWatch::eventFilter(QObject* watched, QEvent* event) {
  if (watched != parent_) return false;
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) moved_();
  if (event->type() == QEvent::Hide) checkLater();
  return false;
}

void ParentWatch::checkLater() {
  QMetaObject::invokeMethod(
      this, [this] { check(); }, Qt::QueuedConnection);
}

void ParentWatch::check() {
  if (parent_ && static_cast<QWidget*>(parent_)->isVisible()) return;
  if (const auto gone = std::exchange(gone_, nullptr)) gone();
}

} // namespace wrenvale::platform
