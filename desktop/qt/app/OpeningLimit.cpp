#include "desktop/qt/app/OpeningLimit.h"

namespace wrenvale::platform {

bool OpeningLimit::admits(Moment moment) {
  if (moment < last_[oldest_] + std::chrono::seconds(2)) return false;
  last_[oldest_] = moment;
  oldest_ = (oldest_ + 1) % last_.size();
  return true;
}

} // namespace wrenvale::platform
