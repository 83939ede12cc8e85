// Small questions to the toolkit that the windows share. Main thread only.

#ifndef WRENVALE_PLATFORM_QT_TOOLKIT_H
#define WRENVALE_PLATFORM_QT_TOOLKIT_H

#include <string_view>

#include <QString>

namespace wrenvale::platform {

/// Whether the host has a QApplication, without which no widget may exist.
bool hasWindows();

/// How long one of the framework's animations takes, in milliseconds; 0 when the desktop's style
/// wants none.
int animationDuration();

/// The host's translation of a text; the text itself when there is none, or an empty one.
QString translated(const char* context, const char* text);
/// A text of the framework's own in the host's translation: context "Wrenvale", source = English.
QString translated(const char* english);
/// The same, as generated layouts call it; they have no use for comments.
inline QString layoutText(const char* english, const char*) {
  return translated(english);
}

/// UTF-8 text; invalid bytes become replacement characters.
QString fromUTF8(std::string_view text);

} // namespace wrenvale::platform

#endif
