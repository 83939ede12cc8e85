// What a user of Photo Tool sees, where the mouse can go and what the keyboard does.

#ifndef PHOTO_TOOL_SCREEN_H
#define PHOTO_TOOL_SCREEN_H

#include <QImage>
#include <QPointF>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace screen {

/// The application's windows as they lie above each other, the main window at the bottom.
QImage picture();

/// Whether no modal window keeps the mouse from this one.
bool isWithinReach(const QWidget& window);

/// A place in a window that the mouse can go to.
struct Spot {
  QPointer<QWindow> window; ///< null when the mouse cannot go there
  QPointF position;
};

/// The middle of a visible widget that nothing covers.
Spot spotOf(const QWidget& widget);

/// Moves the mouse there, from elsewhere in the window.
void hover(const Spot& spot);
void click(const Spot& spot);

/// Presses and lets go of a key while `widget` has the keyboard.
void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(QWidget& widget, const QString& text);

} // namespace screen

#endif
