// The menu with which Photo Tool shows the ways of asking for a rating.

#ifndef PHOTO_TOOL_RATINGMENU_H
#define PHOTO_TOOL_RATINGMENU_H

#include <functional>

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>

class QLabel;

/// A host asks at moments of its own; here each entry is such a moment. What came of it is told at
/// the right of the window's status bar, in the label "ratingStatus".
class RatingMenu : public QMenu {
  Q_DECLARE_TR_FUNCTIONS(RatingMenu)

public:
  /// Belongs to the window, and asks over it.
  explicit RatingMenu(QMainWindow& window);

private:
  void fill(QMainWindow& window);
  /// Adds an entry that calls `ask`, which is true when the user was asked.
  void add(const QString& text, const char* name, std::function<bool()> ask);
  /// To be called when the user is done with the rate window.
  std::function<void()> handler();
  void tell();

  QLabel* status_;
  QString last_; // what came of the last entry chosen
  int handled_ = 0;
};

#endif
