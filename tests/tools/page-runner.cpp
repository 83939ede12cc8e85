// page-runner PAGE BEFORE [SCRIPT...] [--until EXPECTATION]
//
// Shows the page (a file) to the engine of the welcome window. Runs the script in the file BEFORE
// in front of the page's own, and the others one after the other once the page is loaded. Then asks
// EXPECTATION, a script whose value says what is still missing, until that is "". The status is 0
// unless a script throws, one of the page's included, or something stays missing for ten seconds.

#include <QFile>
#include <QGuiApplication>
#include <QTimer>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kPatience = 10'000; // milliseconds
constexpr int kInterval = 50;

// At once: an engine that is taken down in the middle of something may crash.
[[noreturn]] void finish(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

[[noreturn]] void fail(const QString& text) {
  std::fprintf(stderr, "page-runner: %s\n", qPrintable(text));
  finish(1);
}

QString contentsOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) fail("cannot read " + path);
  return QString::fromUtf8(file.readAll());
}

class Page final : public QWebEnginePage {
public:
  Page(QWebEngineProfile* profile, QStringList scripts, QString expectation)
      : QWebEnginePage(profile)
      , scripts_(std::move(scripts))
      , expectation_(std::move(expectation)) {
    connect(this, &QWebEnginePage::loadFinished, this, [this](bool well) {
      if (!well) fail("cannot load the page");
      runNext();
    });
    QTimer::singleShot(kPatience, this, [this] {
      fail(missing_.isEmpty() ? "the page does not answer" : missing_);
    });
  }

  void runBefore(const QString& source) {
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setSourceCode(source);
    scripts().insert(script);
  }

private:
  // Of the page's own scripts; those of runNext() are caught there.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int line,
                                const QString& source) override {
    if (!message.startsWith("Uncaught")) return;
    fail(source + ":" + QString::number(line) + ": " + message);
  }

  void runNext() {
    if (scripts_.isEmpty()) return expect();
    const QString path = scripts_.takeFirst();
    const QString guarded = "(() => { try {\n" + contentsOf(path) +
                            "\nreturn ''; } catch (e) { return String(e); } })()";
    runJavaScript(guarded, [this, path](const QVariant& error) {
      if (error.typeId() == QMetaType::QString && error.toString().isEmpty()) return runNext();
      fail(path + ": " + error.toString());
    });
  }

  void expect() {
    if (expectation_.isEmpty()) return finish(0);
    runJavaScript(contentsOf(expectation_), [this](const QVariant& missing) {
      missing_ = missing.typeId() == QMetaType::QString ? missing.toString() : "no answer";
      if (missing_.isEmpty()) return finish(0);
      QTimer::singleShot(kInterval, this, [this] { expect(); });
    });
  }

  QStringList scripts_;
  const QString expectation_;
  QString missing_;
};

} // namespace

int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  const QGuiApplication application(argc, argv);
  QStringList arguments = application.arguments().mid(1);
  const auto option = arguments.indexOf("--until");
  const QString expectation = option < 0 ? QString() : arguments.value(option + 1);
  if (option >= 0) arguments.resize(option);
  if (arguments.size() < 2) fail("a page and a script are needed");

  QWebEngineProfile profile;
  Page page(&profile, arguments.mid(2), expectation);
  page.runBefore(contentsOf(arguments[1]));
  page.load(QUrl::fromLocalFile(arguments[0]));
  return QGuiApplication::exec();
}
