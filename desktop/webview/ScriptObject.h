// The script object of a page, as the host sees it: who may call, and what a call says.
//
// The page's half is ScriptObject.js. It greets the host when a document of the main frame begins,
// and is introduced: a token for that document, and the methods to publish. Each call carries the
// token; what does not comes from somewhere else, such as a frame in the page, and means nothing.

#ifndef WRENVALE_DESKTOP_WEBVIEW_SCRIPTOBJECT_H
#define WRENVALE_DESKTOP_WEBVIEW_SCRIPTOBJECT_H

#include <optional>
#include <string>
#include <vector>

#include <QString>

#include "desktop/webview/Secret.h"
#include "platform/WebView.h"

namespace wrenvale::platform {

class ScriptObject {
public:
  struct Call {
    std::string name;
    std::vector<Value> arguments;
  };

  /// The page's half, to be run at the beginning of each document of the main frame.
  QString source() const;

  bool isHandshake(const QString& message) const { return message == secret_; }
  /// A document has begun, or the page is gone: ends what was published to the one before.
  void clear();
  void publish(std::string_view name, const std::vector<ScriptMethod>& methods);
  bool isPublished() const { return !token_.isEmpty(); }
  /// The answer to a greeting, once something is published.
  QString introduction() const;

  /// Whether the message comes from the object's methods.
  bool isCall(const QString& message) const;
  /// The call that this message completes. Nothing while it is not complete, and for a text that is
  /// too long or calls no published method.
  std::optional<Call> call(const QString& message);
  /// What the page's half makes a call's result of; it takes an empty text for a call that failed.
  static QString encoded(const Value& result);

private:
  std::optional<QString> assembled(QChar kind, QStringView piece);

  const QString secret_ = makeSecret();
  QString token_; // of the present document; empty when nothing is published to it
  QString name_;
  std::vector<ScriptMethod> methods_;
  QString pieces_; // of a call that is not complete
};

/// A script that calls a global function of the page, if it has one of that name.
QString scriptCalling(std::string_view function, const std::vector<Value>& arguments);

} // namespace wrenvale::platform

#endif
