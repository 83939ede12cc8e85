// How much a property list may still hold while it is walked. A few bytes of a file can stand for
// gigabytes, since one object may be referred to any number of times.

#ifndef WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLISTBUDGET_H
#define WRENVALE_DESKTOP_LINUX_PLIST_PROPERTYLISTBUDGET_H

#include "desktop/linux/plist/PropertyList.h"

namespace wrenvale::platform {

class PropertyListBudget {
public:
  /// Takes off one value or key with so many bytes of text or data; false once too much was spent.
  bool spend(std::size_t bytes) {
    if (nodes_ == 0 || bytes > bytes_) return false;
    --nodes_;
    bytes_ -= bytes;
    return true;
  }

private:
  std::size_t nodes_ = kMaxPropertyListNodes;
  std::size_t bytes_ = kMaxPropertyListSize;
};

} // namespace wrenvale::platform

#endif
