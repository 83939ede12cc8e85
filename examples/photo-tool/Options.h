// Photo Tool's command line.

#ifndef PHOTO_TOOL_OPTIONS_H
#define PHOTO_TOOL_OPTIONS_H

#include <chrono>
#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

struct Options {
  QString picture;                                    ///< the picture to open; empty for none
  std::optional<std::chrono::milliseconds> quitAfter; ///< when to quit by itself
  QString portrait; ///< where to save a picture of the main window before quitting; empty for none

  QStringList steps; ///< what to do by itself, for Script

  /// The options that the application was started with. Ends the process for --help, and with
  /// status 1 and a message for options that make no sense.
  static Options ofApplication(const QCoreApplication& application);
};

#endif
