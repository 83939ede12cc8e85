// One page in the engine: reports to the delegate, and keeps the engine from everything else that a
// browser would let a page do.

#ifndef WRENVALE_DESKTOP_WEBVIEW_PAGE_H
#define WRENVALE_DESKTOP_WEBVIEW_PAGE_H

#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>

#include "desktop/webview/NavigationHints.h"
#include "desktop/webview/ScriptObject.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

/// Destroy it with retire(): what it reports comes from within the engine's own calls of it.
class Page final : public QWebEnginePage {
public:
  Page(QWebEngineProfile& profile, WebViewDelegate& delegate);
  ~Page() override;

  /// The page is destroyed once no call of it is under way; the delegate is not called any more.
  void retire();

  void start(const QUrl& url, std::chrono::milliseconds timeout);
  ScriptObject& scriptObject() { return scriptObject_; }

protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& message, const QString& defaultValue,
                        QString* result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                int line, const QString& source) override;
  void javaScriptAlert(const QUrl&, const QString&) override {}
  bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override {
    return {};
  }
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

private:
  class Call;

  void configure();
  void refuseRequests();
  void insertScripts();
  void begin(const QUrl& url);
  bool answerHandshake(const QUrl& origin, QString& result);
  bool perform(const QString& message, QString& result);
  void onLoading(const QWebEngineLoadingInfo& info);
  void onEnd(const QWebEngineLoadingInfo& info);
  void onNewWindow(const QWebEngineNewWindowRequest& request);
  void onLeaving(const QUrl& url);
  PolicyDecision decide(const QUrl& url, platform::NavigationType type, bool isMainFrame);
  void fail(const QUrl& url, const char* reason, const char* advice);

  WebViewDelegate* delegate_; // null once retired
  ScriptObject scriptObject_;
  NavigationHints hints_;
  QTimer timeout_;
  QUrl awaited_;             // what the page last went to
  bool hasDocument_ = false; // since this navigation began
  bool hadDocument_ = false; // ever
  bool hasFailed_ = false;   // since this navigation began, and it has been told
  int calls_ = 0;            // of the delegate that are under way
};

} // namespace wrenvale::platform

#endif
