// The web view, as Qt WebEngine has it.

#ifndef WRENVALE_DESKTOP_WEBVIEW_QTWEBVIEW_H
#define WRENVALE_DESKTOP_WEBVIEW_QTWEBVIEW_H

#include <QPointer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "desktop/webview/Page.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

/// Each view has a profile of its own, off the record, that goes with its page.
class QtWebView : public WebView {
public:
  explicit QtWebView(WebViewDelegate& delegate);
  ~QtWebView() override;

  HostWindow* widget() override { return view_; }
  void setApplicationNameForUserAgent(std::string_view name) override;
  void loadRequest(std::string_view url, std::chrono::milliseconds timeout) override;
  void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) override;
  bool hasScriptObject() const override;
  void callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) override;
  void close() override;

private:
  // Each may go before this, with the host's windows or with the application object.
  QPointer<QWebEngineProfile> profile_;
  QPointer<Page> page_;
  QPointer<QWebEngineView> view_;
};

} // namespace wrenvale::platform

#endif
