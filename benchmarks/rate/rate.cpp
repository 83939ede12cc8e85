// From the call that opens the first rate window of a process to its first painted frame; or the
// same for a dialog of Qt's own with as many widgets.
//
// usage: benchmark-rate FOLDER framework|dialog   (prints milliseconds)

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "benchmarks/Figures.h"
#include "benchmarks/Framework.h"

namespace {

using namespace wrenvale::benchmark;

// As many as the rate window has; the dialog itself is one more.
constexpr int kLabels = 6, kButtons = 5, kOthers = 5;

QDialog* makeDialog() {
  auto* dialog = new QDialog;
  auto* layout = new QVBoxLayout(dialog);
  for (int i = 0; i < kLabels; ++i)
    layout->addWidget(new QLabel("A text of the dialog's"));
  for (int i = 0; i < kButtons; ++i)
    layout->addWidget(new QPushButton("Press"));
  for (int i = 0; i < kOthers; ++i)
    layout->addWidget(new QWidget);
  return dialog;
}

// Says the time once the turn is over in which the window was painted.
class FirstFrame : public QObject {
public:
  explicit FirstFrame(long long asked)
      : asked_(asked) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() != QEvent::Paint || !widget || widget->objectName() == "host") return false;
    QTimer::singleShot(0, [asked = asked_] {
      std::printf("%.3f\n", static_cast<double>(now() - asked) / 1e6);
      std::fflush(stdout);
      std::_Exit(0);
    });
    qApp->removeEventFilter(this);
    return false;
  }

private:
  const long long asked_;
};

} // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  QApplication application(argc, argv);
  QLabel host("Some text in the window");
  host.setObjectName("host");
  host.show();
  auto& framework = *new Framework(argv[1]);
  const bool isFramework = std::strcmp(argv[2], "framework") == 0;
  QTimer::singleShot(100, qApp, [&] {
    new FirstFrame(now());
    if (isFramework)
      framework.service.rateApp();
    else
      makeDialog()->show();
  });
  return QApplication::exec();
}
