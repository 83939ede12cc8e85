// The web view, as Qt WebEngine has it.

#ifndef WRENVALE_DESKTOP_WEBVIEW_QTWEBVIEW_H
#define WRENVALE_DESKTOP_WEBVIEW_QTWEBVIEW_H

#include <QPointer>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "desktop/webview/Page.h"
#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

/// Each view has a profile of its own, off the record, that goes with its page.
class QtWebView final : public WebView {
public:
  QtWebView(WebViewDelegate& delegate, const PageRequest& request);
  /// The view goes with it, whoever owns it.
  ~QtWebView() override;

  QWidget* widget() { return view_; }
  void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) override;
  bool callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) override;

private:
  // Each may go before this, with the host's windows or with the application object.
  QPointer<QWebEngineProfile> profile_;
  QPointer<Page> page_;
  QPointer<QWebEngineView> view_;
};

} // namespace wrenvale::platform

#endif
