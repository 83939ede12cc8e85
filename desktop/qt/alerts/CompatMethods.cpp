#include <wrenvale/CompatMethods.h>

#include <utility>

#include <QColor>
#include <QMessageBox>

#include "desktop/qt/alerts/AlertBox.h"

namespace wrenvale {

void compatibleBeginSheetModalForWindow(QMessageBox& alert, HostWindow* window,
                                        std::function<void(int)> completionHandler) {
  platform::beginSheet(alert, window, std::move(completionHandler));
}

CGColor compatibleCGColor(const QColor& color) {
  if (!color.isValid()) return {};
  const QColor rgb = color.toRgb();
  return {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()};
}

} // namespace wrenvale
