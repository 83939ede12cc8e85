#include "benchmarks/welcome/EnginePage.h"

#include <QApplication>
#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include <wrenvale/Export.h>

#include "benchmarks/welcome/Heartbeat.h"
#include "benchmarks/welcome/Moment.h"

WRENVALE_EXPORT int showPage(long long asked, const char* started, const char* address) {
  using namespace std::chrono_literals;
  wrenvale::benchmark::Heartbeat heartbeat(asked);
  QWebEngineProfile profile;
  profile.setHttpCacheType(QWebEngineProfile::NoCache);
  QWebEngineView view;
  QWebEnginePage page(&profile);
  view.setPage(&page);
  view.resize(640, 480);
  QObject::connect(&page, &QWebEnginePage::titleChanged, [&](const QString& title) {
    if (title != "shown") return;
    std::printf("busy %.2f\n", heartbeat.longestPause());
    view.show();
    wrenvale::benchmark::printShown(asked, started);
    QCoreApplication::exit();
  });
  page.load(QUrl(address));
  QTimer::singleShot(30s, qApp, [] { QCoreApplication::exit(1); });
  return QApplication::exec();
}
