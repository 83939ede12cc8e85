// Why a page goes somewhere: what the engine says of a navigation, and what Manners.js remarks just
// before it. The engine alone does not tell a clicked link from a script that sets the address, nor
// a reload from a redirect.

#ifndef WRENVALE_DESKTOP_WEBVIEW_NAVIGATIONREMARKS_H
#define WRENVALE_DESKTOP_WEBVIEW_NAVIGATIONREMARKS_H

#include <optional>

#include <QElapsedTimer>
#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include "desktop/webview/Secret.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

class NavigationRemarks {
public:
  /// What makes the remarks, to be run beside each document.
  QString source() const;
  /// What tells it of some clicks, to be run in each document, before the page's scripts.
  static QString pagesSource();

  /// Takes note when the message is a remark. Answers the address of a clicked link about which the
  /// engine asks nobody: one to another place in its page, or one to save.
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
