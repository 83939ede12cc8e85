#include "Script.h"

#include <cstdio>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QTimer>

#include "Screen.h"
#include "Steps.h"

namespace {

constexpr int kTurn = 50; // milliseconds
constexpr int kMostTurnsInVain = 200;

// A file's name may have a "+" in it.
QStringList movesOf(const QString& step) {
  return step.contains('=') ? QStringList(step) : step.split('+');
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
      if (!isStep(move)) return move.isEmpty() ? step + " (empty)" : move;
  return {};
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
