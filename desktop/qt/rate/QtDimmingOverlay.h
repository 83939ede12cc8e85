// The dark layer over a parent window, as a widget.

#ifndef WRENVALE_DESKTOP_QT_RATE_QTDIMMINGOVERLAY_H
#define WRENVALE_DESKTOP_QT_RATE_QTDIMMINGOVERLAY_H

#include <QPointer>
#include <QVariantAnimation>

#include "platform/RateWindow.h"

namespace wrenvale::platform {

/// A child of the parent's window that covers all of it, whatever its size becomes, and lets events
/// through. The parent may delete it with itself.
class QtDimmingOverlay : public DimmingOverlay {
public:
  explicit QtDimmingOverlay(QWidget* parent);
  ~QtDimmingOverlay() override;

  /// A call while an earlier one is under way replaces it; the earlier completion is dropped.
  void animateAlpha(double alpha, std::function<void()> completion) override;

private:
  class Layer;

  void arrive();

  QPointer<Layer> layer_;
  QVariantAnimation animation_;
  double alpha_ = 0;
  std::function<void()> completion_;
};

} // namespace wrenvale::platform

#endif
