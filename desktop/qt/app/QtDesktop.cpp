#include "desktop/qt/app/QtDesktop.h"

#include <algorithm>

#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

namespace {

std::string translation(std::string_view context, std::string_view key) {
  return translated(std::string(context).c_str(), std::string(key).c_str()).toStdString();
}

// Qt would take other characters too, and encode them.
bool isASCII(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < 0x7F; });
}

// Without a host the rest could be read as an address of another kind.
bool mayOpen(const QUrl& address) {
  if (!address.isValid()) return false;
  if (address.scheme() == QLatin1String("mailto")) return true;
  for (const char* scheme : {"http", "https", "macappstore"})
    if (address.scheme() == QLatin1String(scheme)) return !address.host().isEmpty();
  return false;
}

} // namespace

std::optional<std::string> QtLocalization::localizedInfoString(std::string_view key) const {
  auto text = translation("InfoPlist", key);
  return text == key ? std::nullopt : std::optional(std::move(text));
}

std::string QtLocalization::localizedStringForKey(std::string_view key,
                                                  std::string_view table) const {
  return translation(table, key);
}

bool QtWorkspace::openURL(std::string_view url) {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return false;
  const QUrl address(fromUTF8(url), QUrl::StrictMode);
  return isASCII(url) && mayOpen(address) && limit_.admits(std::chrono::steady_clock::now()) &&
         QDesktopServices::openUrl(address);
}

} // namespace wrenvale::platform
