// The same page in a program that is linked to the web engine and has nothing else to do.
//
// usage: welcome-benchmark-bare <start in ns> <address>

#include <QApplication>
#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "benchmarks/welcome/Moment.h"

int main(int argc, char** argv) {
  using namespace wrenvale::benchmark;
  using namespace std::chrono_literals;
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  QWidget window;
  window.show();

  const auto asked = now();
  QWebEngineProfile profile;
  profile.setHttpCacheType(QWebEngineProfile::NoCache);
  QWebEngineView view;
  QWebEnginePage page(&profile);
  view.setPage(&page);
  view.resize(640, 480);
  QObject::connect(&page, &QWebEnginePage::titleChanged, [&](const QString& title) {
    if (title != "shown") return;
    view.show();
    printShown(asked, argv[1]);
    QCoreApplication::exit();
  });
  page.load(QUrl(argv[2]));
  QTimer::singleShot(30s, qApp, [] { QCoreApplication::exit(1); });
  return QApplication::exec();
}
