// A host of its own process for tests of the settings. It ends as a program does, without asking
// for anything to be written.
//
//   DefaultsHost <file> write <prefix> <count>   stores prefix0, prefix1, ... synchronizing after
//   every fourth DefaultsHost <file> late <key>               stores the key from a static object's
//   destructor

#include <cstdlib>
#include <string>

#include "desktop/linux/settings/LinuxUserDefaults.h"

namespace {

using wrenvale::platform::LinuxUserDefaults;

struct Late {
  LinuxUserDefaults* defaults = nullptr;
  std::string key;
  ~Late() {
    if (defaults) defaults->setObject(true, key);
  }
};

Late late;

} // namespace

int main(int argc, char** argv) {
  if (argc < 4) return EXIT_FAILURE;
  auto& defaults = *new LinuxUserDefaults(argv[1]);
  if (std::string_view(argv[2]) == "late") {
    late.defaults = &defaults;
    late.key = argv[3];
    return EXIT_SUCCESS;
  }
  const int count = argc > 4 ? std::atoi(argv[4]) : 0;
  for (int i = 0; i < count; ++i) {
    defaults.setObject(i, argv[3] + std::to_string(i));
    const bool isTurn = i % 4 == 0;
    if (isTurn && !defaults.synchronize()) return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
