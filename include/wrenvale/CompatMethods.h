// Helpers around message boxes and colours, for hosts that use Qt Widgets. Main thread only.

#ifndef WRENVALE_COMPATMETHODS_H
#define WRENVALE_COMPATMETHODS_H

#include <functional>

#include <wrenvale/Export.h>
#include <wrenvale/HostWindow.h>

class QColor;
class QMessageBox;

namespace wrenvale {

/// Shows `alert` as a sheet: modal to `window` alone, above it, without waiting for the answer. The
/// caller keeps owning both and keeps `alert` alive until it is answered.
///
/// `completionHandler` is called exactly once, with the number that QMessageBox::finished() tells:
/// a QMessageBox::StandardButton, or Qt's own number for a button of the caller's. The number is 0
/// when the alert goes unanswered: destroyed, or taken along by a window that is hidden, closed or
/// deleted meanwhile or by a host that quits. The handler may destroy the window, but not the alert
/// other than by deleteLater(). What it throws is dropped. Without a window the alert is modal to
/// the whole application.
WRENVALE_EXPORT void compatibleBeginSheetModalForWindow(QMessageBox& alert, HostWindow* window,
                                                        std::function<void(int)> completionHandler);

/// A colour as numbers: sRGB components from 0 to 1, not premultiplied.
struct CGColor {
  float red = 0;
  float green = 0;
  float blue = 0;
  float alpha = 0;
};

/// The components of a colour given in any model; transparent black for an invalid one.
WRENVALE_EXPORT CGColor compatibleCGColor(const QColor& color);

} // namespace wrenvale

#endif
