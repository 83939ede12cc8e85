// No exception leaves the framework.

#ifndef WRENVALE_BASE_GUARD_H
#define WRENVALE_BASE_GUARD_H

#include <type_traits>
#include <utility>

namespace wrenvale {

/// Runs `operation`; should it throw (memory, as a rule, or a callback of the host's), gives an
/// empty result instead.
template <class Operation>
std::invoke_result_t<Operation> guarded(Operation&& operation) noexcept {
  try {
    return std::forward<Operation>(operation)();
  } catch (...) {
    return std::invoke_result_t<Operation>();
  }
}

} // namespace wrenvale

#endif
