#include "recommend/KVXAppRecommendation.h"

#include "base/Guard.h"
#include "platform/System.h"

namespace wrenvale {

KVXAppRecommendation::~KVXAppRecommendation() {
  const TextView path = texts_.get(kMediaPath);
  if (path && system_) guarded([&] { return system_->removeItemAtPath(*path); });
}

KVXAppRecommendation::Text KVXAppRecommendation::text(TextProperty property) const {
  const std::lock_guard lock(mutex_);
  return Text(texts_.get(property));
}

void KVXAppRecommendation::setText(TextProperty property, TextView text) {
  const std::lock_guard lock(mutex_);
  texts_.set(property, text);
}

void KVXAppRecommendation::reserveText(std::size_t bytes) {
  const std::lock_guard lock(mutex_);
  texts_.reserve(bytes);
}

KVXAppRecommendation::Image KVXAppRecommendation::image(ImageProperty property) const {
  const std::lock_guard lock(mutex_);
  return images_[property];
}

// Swaps, so that the old picture is freed outside the lock.
void KVXAppRecommendation::setImage(ImageProperty property, Image image) {
  const std::lock_guard lock(mutex_);
  images_[property].swap(image);
}

std::string KVXAppRecommendation::description() const {
  const Text group = this->group();
  return formatted(name()) + (group ? "/" + *group : "") + "(" + formatted(bundleID()) +
         ") - points:" + std::to_string(points()) + " - alert:" + formatted(alertText());
}

KVXAppRecommendation::Dictionary KVXAppRecommendation::dictionaryRepresentation() const {
  const auto orEmpty = [](Text text) { return Value(std::move(text).value_or("")); };
  return {{"name", orEmpty(name())},        {"bundleID", orEmpty(bundleID())},
          {"iconURL", orEmpty(iconURL())},  {"points", points()},
          {"link", orEmpty(link())},        {"descr", orEmpty(descr())},
          {"linkName", orEmpty(linkName())}};
}

} // namespace wrenvale
