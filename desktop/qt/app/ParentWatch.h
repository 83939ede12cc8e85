// Watches a host's window for what concerns a window above it.

#ifndef WRENVALE_DESKTOP_QT_APP_PARENTWATCH_H
#define WRENVALE_DESKTOP_QT_APP_PARENTWATCH_H

#include <functional>

#include <QObject>

class QWidget;

namespace wrenvale::platform {

/// Lives as long as its owner. Main thread only.
class ParentWatch : public QObject {
public:
  using Callback = std::function<void()>;

  /// `moved` is called when the parent's place or size changed. `gone` is called once, from the
  /// event loop and never out of the host's own code, when the parent is hidden, closed or deleted;
  /// a parent that is merely minimised, or shown again at once, stays.
  ParentWatch(QWidget& parent, QObject* owner, Callback moved, Callback gone);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void checkLater();
  void check();

  QObject* parent_;
  Callback moved_;
  Callback gone_;
};

} // namespace wrenvale::platform

#endif
