#include "Script.h"

#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include "Screen.h"

namespace {

constexpr int kTurn = 50; // milliseconds
constexpr int kMostTurnsInVain = 200;

using Deed = std::function<void()>;

/// A way of doing something with what is named. The deed is empty while it cannot be done; finding
/// it changes nothing.
using Way = Deed (*)(const QString& named);

template <typename Widget>
Widget* visibleWindow(const char* name = nullptr) {
  for (auto* window : QApplication::topLevelWidgets())
    if (auto* found = qobject_cast<Widget*>(window);
        found && found->isVisible() && (!name || found->objectName() == name))
      return found;
  return nullptr;
}

screen::Spot rateWindowSpot(const QString& name) {
  const auto* window = visibleWindow<QWidget>("Rate Window");
  const auto* widget = window ? window->findChild<QWidget*>(name) : nullptr;
  return widget ? screen::spotOf(*widget) : screen::Spot();
}

Deed choose(const QString& action) {
  auto* window = visibleWindow<QMainWindow>();
  auto* found = window ? window->findChild<QAction*>(action) : nullptr;
  if (!found || !found->isEnabled() || !screen::isWithinReach(*window)) return {};
  return [found] { found->trigger(); };
}

Deed clickOn(const QString& button) {
  const auto spot = rateWindowSpot(button);
  if (!spot.window) return {};
  return [spot] { screen::click(spot); };
}

Deed hoverOver(const QString& button) {
  const auto spot = rateWindowSpot(button);
  if (!spot.window) return {};
  return [spot] { screen::hover(spot); };
}

// A window without a frame has a close button of its own.
Deed closeWindow(const QString& button) {
  if (auto click = clickOn(button)) return click;
  QPointer window = visibleWindow<QWidget>("Rate Window");
  if (!window || !screen::isWithinReach(*window)) return {};
  return [window] {
    if (window) window->close();
  };
}

Deed answer(const QString& label) {
  const auto* alert = visibleWindow<QMessageBox>();
  if (!alert) return {};
  for (const auto* button : alert->buttons())
    if (const auto spot = screen::spotOf(*button); spot.window && button->text() == label)
      return [spot] { screen::click(spot); };
  return {};
}

void save(const QString& file) {
  if (screen::picture().save(file, "PNG")) return;
  std::fprintf(stderr, "photo-tool: cannot save %s\n", qUtf8Printable(file));
  QCoreApplication::exit(1);
}

Deed savePicture(const QString& file) {
  return [file] { save(file); };
}

Deed saveHelpMenuPicture(const QString& file) {
  auto* window = visibleWindow<QMainWindow>();
  auto* menu = window ? window->findChild<QMenu*>("helpMenu") : nullptr;
  if (!menu || !screen::isWithinReach(*window)) return {};
  return [file, window, menu] {
    window->menuBar()->setActiveAction(menu->menuAction());
    save(file);
    menu->close();
  };
}

Deed printStatus(const QString& label) {
  const auto* window = visibleWindow<QMainWindow>();
  QPointer status = window ? window->findChild<QLabel*>(label) : nullptr;
  if (!status) return {};
  return [status] { std::printf("%s\n", qUtf8Printable(status->text())); };
}

Deed quit(const QString&) {
  return [] { QCoreApplication::quit(); };
}

struct Step {
  const char* name; ///< what stands after "=" is the step's own: a file, say
  Way way;
  const char* named;
};

constexpr Step kSteps[] = {
    {"export", choose, "askOnThirdExport"},
    {"ask-over-window", choose, "askOverThisWindow"},
    {"ask", choose, "askForRating"},
    {"ask-with-alert", choose, "askWithAlert"},
    {"rate", choose, "rateApplication"},
    {"hover-like", hoverOver, "likeButton"},
    {"hover-dislike", hoverOver, "dislikeButton"},
    {"like", clickOn, "likeButton"},
    {"dislike", clickOn, "dislikeButton"},
    {"store", clickOn, "appstoreButton"},
    {"contact", clickOn, "contactButton"},
    {"close", closeWindow, "closeButton"},
    {"alert-yes", answer, "Rate Photo Tool on Appstore"},
    {"alert-no", answer, "No thanks"},
    {"help-menu=ITEM", choose, nullptr},
    {"picture=FILE", savePicture, nullptr},
    {"picture-menu=FILE", saveHelpMenuPicture, nullptr},
    {"status", printStatus, "ratingStatus"},
    {"quit", quit, nullptr},
};

const Step* stepNamed(const QString& text) {
  const auto isSame = [&](const QString& name) {
    const auto equals = name.indexOf('=') + 1;
    return equals > 0 ? text.startsWith(name.left(equals)) : text == name;
  };
  for (const auto& step : kSteps)
    if (isSame(step.name)) return &step;
  return nullptr;
}

// A file's name may have a "+" in it.
QStringList movesOf(const QString& step) {
  return step.contains('=') ? QStringList(step) : step.split('+');
}

Deed deedOf(const QString& move) {
  const auto* step = stepNamed(move);
  return step->way(step->named ? step->named : move.mid(move.indexOf('=') + 1));
}

// What each move of a step comes to; empty while one of them cannot be done.
std::vector<Deed> deedsOf(const QString& step) {
  std::vector<Deed> deeds;
  for (const auto& move : movesOf(step)) {
    deeds.push_back(deedOf(move));
    if (!deeds.back()) return {};
  }
  return deeds;
}

} // namespace

Script::Script(const QStringList& steps, QObject* parent)
    : QObject(parent)
    , steps_(steps) {
  waitForTurn();
}

QString Script::unknownAmong(const QStringList& steps) {
  for (const auto& step : steps)
    for (const auto& move : movesOf(step))
      if (!stepNamed(move)) return move.isEmpty() ? step + " (empty)" : move;
  return {};
}

QString Script::help() {
  QStringList names;
  for (const auto& step : kSteps)
    names += step.name;
  return names.join(", ");
}

void Script::waitForTurn() {
  QTimer::singleShot(kTurn, this, [this] { takeTurn(); });
}

bool Script::isStill() {
  const QImage before = std::exchange(seen_, screen::picture());
  return seen_ == before;
}

// A deed may run an event loop of its own, in which the next turn comes.
void Script::takeTurn() {
  if (steps_.isEmpty()) return;
  const auto deeds = isStill() ? deedsOf(steps_.first()) : std::vector<Deed>();
  if (deeds.empty() && ++turnsInVain_ == kMostTurnsInVain) {
    std::fprintf(stderr, "photo-tool: this cannot be done: %s\n", qUtf8Printable(steps_.first()));
    return QCoreApplication::exit(1);
  }
  waitForTurn();
  if (deeds.empty()) return;
  turnsInVain_ = 0;
  steps_.removeFirst();
  for (const auto& deed : deeds)
    deed();
}
