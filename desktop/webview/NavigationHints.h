// Why a page goes somewhere: from what the engine says of a navigation, and from the hint that
// PageRules.js gives just before it. The engine alone does not tell a clicked link from a script
// that sets the address, nor a reload from a redirect.

#ifndef WRENVALE_DESKTOP_WEBVIEW_NAVIGATIONHINTS_H
#define WRENVALE_DESKTOP_WEBVIEW_NAVIGATIONHINTS_H

#include <optional>

#include <QElapsedTimer>
#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include "desktop/webview/Secret.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

class NavigationHints {
public:
  /// The script that gives the hints, to be run beside each document.
  QString source() const;
  /// A script that tells the first one of some clicks, to be run in each document before the page's
  /// own scripts.
  static QString pagesSource();

  /// Keeps the hint if the console message is one. Returns the address of a clicked link about
  /// which the engine asks nobody: one to another place in its page, or one to save.
  std::optional<QUrl> note(const QString& consoleMessage);

  /// The type of a navigation that begins.
  NavigationType typeOf(const QUrl& url, QWebEnginePage::NavigationType engines);
  /// The type of a navigation that wants a window of its own, of which the engine tells only
  /// whether a person asked for it.
  NavigationType typeOfNewWindow(const QUrl& url, bool isUsers);
  /// Whether a link to this address has just been clicked.
  bool isClickedLink(const QUrl& url);

private:
  bool isAbout(const QUrl& url) const;
  bool takeForm(const QUrl& url);

  const QString secret_ = makeSecret();
  NavigationType type_ = NavigationType::kOther;
  QUrl url_;
  QElapsedTimer age_;
  QUrl form_; // where it leads, its data left out; empty when no form is on its way
  QElapsedTimer formAge_;
};

} // namespace wrenvale::platform

#endif
