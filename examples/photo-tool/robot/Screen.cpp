#include "Screen.h"

#include <algorithm>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>

namespace screen {

namespace {

// The main window is at the bottom, and dialogs are on top.
int layerOf(const QWidget* window) {
  if (qobject_cast<const QMainWindow*>(window)) return 0;
  return qobject_cast<const QDialog*>(window) ? 2 : 1;
}

QWidgetList windows() {
  QWidgetList result = QApplication::topLevelWidgets();
  result.removeIf([](const QWidget* window) { return !window->isVisible(); });
  std::stable_sort(result.begin(), result.end(),
                   [](const QWidget* a, const QWidget* b) { return layerOf(a) < layerOf(b); });
  return result;
}

// Sent to the window and not to a widget, so that it reaches what a user would reach.
void send(const Spot& spot, QEvent::Type type, QPointF position,
          Qt::MouseButton button = Qt::NoButton, Qt::MouseButtons held = Qt::NoButton) {
  if (!spot.window) return;
  QMouseEvent event(type, position, position, spot.window->mapToGlobal(position), button, held,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(spot.window, &event);
}

void strike(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

} // namespace

QImage picture() {
  QRect whole;
  for (const auto* window : windows())
    whole |= window->geometry();
  QImage result(whole.size(), QImage::Format_RGB32);
  result.fill(Qt::white);
  QPainter painter(&result);
  for (auto* window : windows())
    painter.drawPixmap(window->geometry().topLeft() - whole.topLeft(), window->grab());
  return result;
}

bool isWithinReach(const QWidget& window) {
  const QWidget* modal = QApplication::activeModalWidget();
  return !modal || modal == &window;
}

Spot spotOf(const QWidget& widget) {
  const QWidget& window = *widget.window();
  const QPoint middle = widget.mapTo(&window, widget.rect().center());
  if (!widget.isVisible() || !isWithinReach(window) || window.childAt(middle) != &widget) return {};
  return {window.windowHandle(), middle};
}

void hover(const Spot& spot) {
  send(spot, QEvent::MouseMove, {1, 1});
  send(spot, QEvent::MouseMove, spot.position);
}

void click(const Spot& spot) {
  hover(spot);
  send(spot, QEvent::MouseButtonPress, spot.position, Qt::LeftButton, Qt::LeftButton);
  send(spot, QEvent::MouseButtonRelease, spot.position, Qt::LeftButton);
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  strike(widget, key, modifiers,
         key == Qt::Key_Return ? QString("\r") : QString(QChar(key)).toLower());
}

void type(QWidget& widget, const QString& text) {
  for (const QChar character : text)
    strike(widget, character.toUpper().unicode(), Qt::NoModifier, character);
}

} // namespace screen
