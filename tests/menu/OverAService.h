// A Help-menu controller over a service of a test's.

#ifndef WRENVALE_TESTS_MENU_OVERASERVICE_H
#define WRENVALE_TESTS_MENU_OVERASERVICE_H

#include <wrenvale/KVXWrenvaleController.h>

namespace wrenvale {

class OverAService : public KVXWrenvaleController {
public:
  explicit OverAService(Service& service)
      : KVXWrenvaleController(service) {}
};

} // namespace wrenvale

#endif
