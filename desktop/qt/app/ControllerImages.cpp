// The images that a Help-menu controller keeps for its host.

#include <wrenvale/KVXWrenvaleController.h>

#include <QImage>

namespace wrenvale {

namespace {

QImage copyOf(const std::shared_ptr<const QImage>& image) {
  return image ? *image : QImage();
}

} // namespace

QImage KVXWrenvaleController::twitterIcon() const {
  const std::lock_guard lock(_imagesMutex);
  return copyOf(_twitterIcon);
}

void KVXWrenvaleController::setTwitterIcon(const QImage& twitterIcon) {
  const std::lock_guard lock(_imagesMutex);
  _twitterIcon = std::make_shared<const QImage>(twitterIcon);
}

QImage KVXWrenvaleController::kvxLogo() const {
  const std::lock_guard lock(_imagesMutex);
  return copyOf(_kvxLogo);
}

void KVXWrenvaleController::setKvxLogo(const QImage& kvxLogo) {
  const std::lock_guard lock(_imagesMutex);
  _kvxLogo = std::make_shared<const QImage>(kvxLogo);
}

} // namespace wrenvale
