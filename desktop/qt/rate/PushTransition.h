// How one view pushes another out of a container.

#ifndef WRENVALE_DESKTOP_QT_RATE_PUSHTRANSITION_H
#define WRENVALE_DESKTOP_QT_RATE_PUSHTRANSITION_H

#include <QPointer>
#include <QVariantAnimation>

class QStackedWidget;
class QWidget;

namespace wrenvale::platform {

/// The new view comes in from where a line of text ends: from the right, or from the left where
/// text runs that way. It is the container's current widget from the beginning; the old one leaves
/// beside it and is hidden at the end. Owned by the container's window, and stops with it.
class PushTransition : public QVariantAnimation {
public:
  explicit PushTransition(QStackedWidget& container);

  /// Begins at once and takes animationDuration(). A push under way is completed first.
  void push(QWidget& view);
  bool isUnderWay() const { return state() == Running; }

private:
  void place(qreal progress);
  void finish();

  QStackedWidget& container_;
  QPointer<QWidget> leaving_;
};

} // namespace wrenvale::platform

#endif
