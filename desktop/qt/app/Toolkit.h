// Small things of the toolkit's that the windows share. Main thread only.

#ifndef WRENVALE_DESKTOP_QT_APP_TOOLKIT_H
#define WRENVALE_DESKTOP_QT_APP_TOOLKIT_H

#include <QString>

#include "desktop/QtText.h"

class QWidget;

namespace wrenvale::platform {

/// Whether the host has a QApplication, without which no widget may exist.
bool hasWindows();

/// Registers the framework's font for this process, unless there is one of its name. Qt builds its
/// font database anew then, which takes milliseconds: so this waits for the first window that draws
/// with the font. A failure is ignored; texts are drawn in another font then.
void registerFontWithQt();

/// How long one of the framework's animations takes, in milliseconds; 0 when the desktop's style
/// wants none.
int animationDuration();

/// Deletes the window as deleteLater() does. One that still waits for that when the process exits
/// is never deleted: Qt 6.8 would do it from an exit handler, without what it takes to delete a
/// window.
void deleteWindowLater(QWidget& window);

/// The host's translation of a text; the text itself when there is none, or an empty one.
QString translated(const char* context, const char* text);
/// A text of the framework's own in the host's translation: context "Wrenvale", source = English.
QString translated(const char* english);
/// The same, as generated layouts call it; they have no use for comments.
inline QString layoutText(const char* english, const char*) {
  return translated(english);
}

} // namespace wrenvale::platform

#endif
