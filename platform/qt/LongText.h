// Texts of any length in a box that keeps to the screen.

#ifndef WRENVALE_PLATFORM_QT_LONGTEXT_H
#define WRENVALE_PLATFORM_QT_LONGTEXT_H

class QLabel;

namespace wrenvale::platform {

/// Lets a text that would take more than `share` of the height of any screen, has more than 5,000
/// characters, or a word wider than 400 pixels or half a screen, scroll in the place of `label`,
/// which is hidden and keeps the text; any other label stays as it is. Of a text beyond 50,000
/// characters the beginning is shown. The label has its text, and is part of its parent's layout,
/// by now. Tab comes to the text after what the parent already has. Main thread only; there is a
/// QApplication.
void scrollWhenLong(QLabel& label, double share);

} // namespace wrenvale::platform

#endif
