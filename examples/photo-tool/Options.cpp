#include "Options.h"

#include <cstdio>
#include <cstdlib>

#include <QCommandLineParser>

#include "robot/Script.h"
#include "robot/Steps.h"

namespace {

std::chrono::milliseconds milliseconds(const QString& text) {
  bool understood = false;
  const int number = text.toInt(&understood);
  if (understood && number >= 0) return std::chrono::milliseconds(number);
  std::fprintf(stderr, "photo-tool: not a number of milliseconds: %s\n", qUtf8Printable(text));
  std::exit(1);
}

QStringList stepsIn(const QString& text) {
  const auto steps = text.split(',');
  const QString unknown = Script::unknownAmong(steps);
  if (unknown.isEmpty()) return steps;
  std::fprintf(stderr, "photo-tool: no such step: %s\n", qUtf8Printable(unknown));
  std::exit(1);
}

} // namespace

Options Options::ofApplication(const QCoreApplication& application) {
  const QCommandLineOption quitAfter("quit-after", "Quit after <MS> milliseconds.", "MS");
  const QCommandLineOption portrait(
      "picture", "Save a picture of the main window as PNG to <FILE> just before quitting.",
      "FILE");
  const QCommandLineOption script(
      "do",
      "Do the <STEPS>, with commas between them, as a user would: " + stepNames().join(", ") +
          ". Each waits until it can be done; steps with \"+\" between them are done at once.",
      "STEPS");
  QCommandLineParser parser;
  parser.setApplicationDescription("Photo Tool shows a picture.");
  parser.addHelpOption();
  parser.addOptions({quitAfter, portrait, script});
  parser.addPositionalArgument("picture", "The picture to open.", "[PICTURE]");
  parser.process(application);

  Options options;
  options.picture = parser.positionalArguments().value(0);
  if (parser.isSet(quitAfter)) options.quitAfter = milliseconds(parser.value(quitAfter));
  options.portrait = parser.value(portrait);
  if (parser.isSet(script)) options.steps = stepsIn(parser.value(script));
  return options;
}
