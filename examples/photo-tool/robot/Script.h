// Photo Tool without hands: steps from the command line, done as a user would do them.

#ifndef PHOTO_TOOL_SCRIPT_H
#define PHOTO_TOOL_SCRIPT_H

#include <QImage>
#include <QObject>
#include <QStringList>

/// Does the steps of Steps.h one after the other. Each waits until nothing on the screen moves and
/// it can be done, so that no times need be given; modal windows do not hold it up. One that cannot
/// be done for ten seconds ends the application with status 1 and a message. Steps with "+" between
/// them are done at once.
class Script : public QObject {
public:
  /// Begins once the application's event loop runs. All steps are known.
  Script(const QStringList& steps, QObject* parent);

  /// The first of the steps that is none; empty when all are known.
  static QString unknownAmong(const QStringList& steps);

private:
  void waitForTurn();
  void takeTurn();
  bool isStill();

  QStringList steps_; // what is still to be done
  QImage seen_;       // the screen at the last turn
  int turnsInVain_ = 0;
};

#endif
