#include "desktop/qt/app/Toolkit.h"

#include <cstdlib>
#include <vector>

#include <QApplication>
#include <QFontDatabase>
#include <QPointer>
#include <QStyle>
#include <QWidget>

extern "C" {
extern const unsigned char wrenvale_droid_sans[];
extern const unsigned long wrenvale_droid_sans_size;
}

namespace wrenvale::platform {

namespace {

constexpr int kAnimationDuration = 250;

// The windows that wait for their deletion. Never destroyed: the process's end needs them.
std::vector<QPointer<QWidget>>& waiting() {
  static auto& windows = *new std::vector<QPointer<QWidget>>;
  return windows;
}

void keepWaiting() {
  for (const auto& window : waiting())
    if (window) QCoreApplication::removePostedEvents(window, QEvent::DeferredDelete);
}

} // namespace

bool hasWindows() {
  return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

void registerFontWithQt() {
  if (QFontDatabase::hasFamily("Droid Sans")) return;
  QFontDatabase::addApplicationFontFromData(
      QByteArray::fromRawData(reinterpret_cast<const char*>(wrenvale_droid_sans),
                              static_cast<qsizetype>(wrenvale_droid_sans_size)));
}

int animationDuration() {
  const bool wanted = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
  return wanted ? kAnimationDuration : 0;
}

void deleteWindowLater(QWidget& window) {
  [[maybe_unused]] static const int registered = std::atexit(keepWaiting);
  std::erase(waiting(), nullptr);
  waiting().emplace_back(&window);
  window.deleteLater();
}

QString translated(const char* context, const char* text) {
  const QString translation = QCoreApplication::translate(context, text);
  return translation.isEmpty() ? QString::fromUtf8(text) : translation;
}

QString translated(const char* english) {
  return translated("Wrenvale", english);
}

} // namespace wrenvale::platform
