// A message box above one of the host's windows, answered later.

#ifndef WRENVALE_DESKTOP_QT_ALERTS_SHEETALERT_H
#define WRENVALE_DESKTOP_QT_ALERTS_SHEETALERT_H

#include <functional>

class QMessageBox;
class QWidget;

namespace wrenvale::platform {

/// Shows `alert` modal to `window` and returns; the caller keeps owning both. `ended` is called
/// once on the main thread, with the result that QMessageBox::finished() tells; with 0 when the
/// alert goes unanswered: destroyed, or taken along by a window that is hidden, closed or deleted
/// or by a host that quits. Without a window the alert is modal to the whole application. What
/// `ended` throws is dropped. Main thread only.
void beginSheet(QMessageBox& alert, QWidget* window, std::function<void(int)> ended);

} // namespace wrenvale::platform

#endif
