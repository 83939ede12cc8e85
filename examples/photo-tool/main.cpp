// Photo Tool: a small application that links Wrenvale.

#include <cstdio>

#include <QApplication>
#include <QPixmap>
#include <QTimer>

#include <wrenvale/KVXWrenvale.h>

#include "MainWindow.h"
#include "Options.h"
#include "SamplePicture.h"
#include "Translations.h"
#include "robot/Script.h"

namespace {

// Prepares the end that the command line asked for.
void quitAsAsked(QApplication& application, MainWindow& window, const Options& options) {
  if (options.quitAfter)
    QTimer::singleShot(*options.quitAfter, &application, &QCoreApplication::quit);
  if (options.portrait.isEmpty()) return;
  QObject::connect(&application, &QCoreApplication::aboutToQuit, &window, [&window, options] {
    if (!window.grab().save(options.portrait, "PNG"))
      std::fprintf(stderr, "photo-tool: cannot save %s\n", qUtf8Printable(options.portrait));
  });
}

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  useTranslations(application);
  const auto options = Options::ofApplication(application);

  QApplication::setWindowIcon(applicationIcon());
  MainWindow window;
  window.show();
  if (!options.picture.isEmpty()) window.open(options.picture);
  quitAsAsked(application, window, options);
  if (!options.steps.isEmpty()) new Script(options.steps, &application);

  window.setWelcomeWindowDue(KVXWrenvale::sharedInstance().triggerWelcomeWindow());
  return application.exec();
}
