// Photo Tool without hands: steps from the command line, done as a user would do them.

#ifndef PHOTO_TOOL_SCRIPT_H
#define PHOTO_TOOL_SCRIPT_H

#include <QImage>
#include <QObject>
#include <QStringList>

/// Chooses menu entries, presses the buttons of whatever window is up, takes pictures. A step waits
/// until nothing on the screen moves and the step can be done, so that no times need be given;
/// modal windows do not hold it up. One that cannot be done for ten seconds ends the application
/// with status 1 and a message. Steps with "+" between them are done at once.
class Script : public QObject {
public:
  /// Begins once the application's event loop runs. All steps are known.
  Script(const QStringList& steps, QObject* parent);

  /// The first of the steps that is none; empty when all are known.
  static QString unknownAmong(const QStringList& steps);
  /// The names of the steps, for a help text.
  static QString help();

private:
  void waitForTurn();
  void takeTurn();
  bool isStill();

  QStringList steps_; // what is still to be done
  QImage seen_;       // the screen at the last turn
  int turnsInVain_ = 0;
};

#endif
