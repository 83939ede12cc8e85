// Where a window is on its screen, with its decoration, and how it moves elsewhere.

#ifndef WRENVALE_DESKTOP_QT_APP_WINDOWFRAME_H
#define WRENVALE_DESKTOP_QT_APP_WINDOWFRAME_H

#include <QVariantAnimation>
#include <QWidget>

#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

/// The rectangle that comes closest to `wanted`, which may be negative, empty, immense or no
/// numbers at all: with the same centre, not smaller than `smallest`, and within `screen`.
Frame frameOnScreen(const Frame& wanted, QSize smallest, const QRect& screen);

/// Where a window of this frame goes to be wholly on the screen that its middle is on; a window of
/// the host's may have it at an edge. What is larger than the screen begins where the screen does.
QPoint placeOnScreen(const QRect& frame);

/// The frame of a top-level widget, which outlives this. Main thread only.
class WindowFrame {
public:
  explicit WindowFrame(QWidget& window);

  /// The frame that the window has, or is about to have.
  Frame frame() const;
  Frame frameForContentSize(double width, double height) const;
  /// Moves there, as far as frameOnScreen() lets it; at once when the desktop wants no animations.
  void setFrame(const Frame& frame, bool animate);
  /// Moves to the middle of the screen.
  void centre();

private:
  bool isMoving() const;
  QSize decoration() const;
  QRect target() const;
  void apply(const QRect& frame);

  QWidget& window_;
  QVariantAnimation animation_;
  Frame set_;        // by setFrame(), as far as it could be
  QSize decoration_; // as it was when the window last began to move
};

} // namespace wrenvale::platform

#endif
