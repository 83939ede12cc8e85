#include "platform/qt/Toolkit.h"

#include <QApplication>
#include <QStyle>

namespace wrenvale::platform {

namespace {
constexpr int kAnimationDuration = 250;
}

bool hasWindows() {
  return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

int animationDuration() {
  const bool wanted = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
  return wanted ? kAnimationDuration : 0;
}

QString translated(const char* context, const char* text) {
  const QString translation = QCoreApplication::translate(context, text);
  return translation.isEmpty() ? QString::fromUtf8(text) : translation;
}

QString translated(const char* english) {
  return translated("Wrenvale", english);
}

QString fromUTF8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace wrenvale::platform
