#include "Options.h"

#include <cstdio>
#include <cstdlib>

#include <QCommandLineParser>

namespace {

std::chrono::milliseconds milliseconds(const QString& text) {
  bool understood = false;
  const int number = text.toInt(&understood);
  if (understood && number >= 0) return std::chrono::milliseconds(number);
  std::fprintf(stderr, "photo-tool: not a number of milliseconds: %s\n", qUtf8Printable(text));
  std::exit(1);
}

} // namespace

Options Options::ofApplication(const QCoreApplication& application) {
  const QCommandLineOption quitAfter("quit-after", "Quit after <MS> milliseconds.", "MS");
  const QCommandLineOption portrait(
      "picture", "Save a picture of the main window as PNG to <FILE> just before quitting.",
      "FILE");
  QCommandLineParser parser;
  parser.setApplicationDescription("Photo Tool shows a picture.");
  parser.addHelpOption();
  parser.addOptions({quitAfter, portrait});
  parser.addPositionalArgument("picture", "The picture to open.", "[PICTURE]");
  parser.process(application);

  Options options;
  options.picture = parser.positionalArguments().value(0);
  if (parser.isSet(quitAfter)) options.quitAfter = milliseconds(parser.value(quitAfter));
  options.portrait = parser.value(portrait);
  return options;
}
