#include "desktop/qt/app/QtApplication.h"

#include <algorithm>
#include <cstdlib>

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <QWidget>

#include "desktop/qt/app/Toolkit.h"

namespace wrenvale::platform {

namespace {

constexpr std::chrono::seconds kPatienceAtTermination(1);

QWidget* frontWindow() {
  if (auto* active = QApplication::activeWindow()) return active;
  for (auto* window : QApplication::topLevelWidgets())
    if (window->isVisible()) return window;
  return nullptr;
}

bool hasGUI() {
  return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
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

bool OpeningLimit::admits(Moment moment) {
  if (moment < last_[oldest_] + std::chrono::seconds(2)) return false;
  last_[oldest_] = moment;
  oldest_ = (oldest_ + 1) % last_.size();
  return true;
}

void QtApplication::activateIgnoringOtherApps(bool) {
  if (!hasWindows()) return;
  if (auto* window = frontWindow()) {
    window->raise();
    window->activateWindow();
  }
}

void QtApplication::beep() {
  if (hasWindows()) QApplication::beep();
}

bool QtApplication::openURL(std::string_view url) {
  if (!hasGUI()) return false;
  const QUrl address(fromUTF8(url), QUrl::StrictMode);
  return isASCII(url) && mayOpen(address) && limit_.admits(std::chrono::steady_clock::now()) &&
         QDesktopServices::openUrl(address);
}

std::optional<std::string> QtApplication::localizedString(std::string_view key,
                                                          std::string_view table) const {
  auto text = translated(std::string(table).c_str(), std::string(key).c_str()).toStdString();
  return text == key ? std::nullopt : std::optional(std::move(text));
}

bool QtApplication::registerFont(std::string_view resource, std::string_view extension) {
  return resource == "DroidSans-Regular" && extension == "ttf" && hasGUI();
}

// Runs no destructor of the host, which expects them on its main thread, and flushes no stream,
// whose lock that thread may hold. The framework itself writes to standard error only, unbuffered.
void QtApplication::terminate(int status) {
  userDefaults_.synchronize(kPatienceAtTermination);
  std::_Exit(status);
}

} // namespace wrenvale::platform
