// Who asks for recommendations, and whom the decisions may ask in turn.

#ifndef WRENVALE_RECOMMEND_CONTEXT_H
#define WRENVALE_RECOMMEND_CONTEXT_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace wrenvale {

namespace platform {
class System;
}

namespace recommend {

class Trace;

struct Host {
  std::optional<std::string> bundleID;
  std::int64_t bundleVersion = 0;

  bool is(std::string_view identifier) const { return bundleID && *bundleID == identifier; }
};

/// Whether an application with this identifier is installed. The identifier comes from the document
/// and may be any text at all.
using IsInstalled = std::function<bool(std::string_view identifier)>;

/// Every question is asked anew each time that its answer matters, on the calling thread; nothing
/// is remembered. A question that is missing is answered no.
struct Context {
  std::string iconBase; ///< what an icon's file name is appended to: Endpoints::icon("")
  Host host;
  IsInstalled isInstalled;
  std::function<bool()> purchaseRecord; ///< whether the user bought anything in the host
  std::function<Value()> purchases;     ///< "Purchases": what the host says the user owns
  std::function<std::uint32_t()>
      random; ///< breaks ties: any number, all equally likely; never missing
  platform::System* system = nullptr; ///< for the records; may be missing
  Trace* trace = nullptr;             ///< told of every decision; may be missing
};

} // namespace recommend

} // namespace wrenvale

#endif
