#include "platform/qt/QtDesktop.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

namespace wrenvale::platform {

namespace {

// The translation, or the key itself.
std::string translated(std::string_view context, std::string_view key) {
  const std::string contextText(context);
  const std::string keyText(key);
  return QCoreApplication::translate(contextText.c_str(), keyText.c_str()).toStdString();
}

bool mayOpen(const QString& scheme) {
  for (const char* allowed : {"http", "https", "mailto", "macappstore"})
    if (scheme == QLatin1String(allowed)) return true;
  return false;
}

} // namespace

std::optional<std::string> QtLocalization::localizedInfoString(std::string_view key) const {
  auto text = translated("InfoPlist", key);
  return text == key ? std::nullopt : std::optional(std::move(text));
}

std::string QtLocalization::localizedStringForKey(std::string_view key,
                                                  std::string_view table) const {
  return translated(table, key);
}

bool QtWorkspace::openURL(std::string_view url) {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return false;
  const QUrl address(QString::fromUtf8(url.data(), static_cast<qsizetype>(url.size())),
                     QUrl::StrictMode);
  if (!address.isValid() || !mayOpen(address.scheme())) return false;
  return QDesktopServices::openUrl(address);
}

} // namespace wrenvale::platform
