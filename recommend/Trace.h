// An account of why a list of recommendations came out as it did.

#ifndef WRENVALE_RECOMMEND_TRACE_H
#define WRENVALE_RECOMMEND_TRACE_H

#include <cstdint>

namespace wrenvale {

class KVXAppRecommendation;

namespace recommend {

class Dependency;
class StableVersion;
struct Candidate;
struct Exclusion;
enum class DependencyOutcome;

/// Told of each decision as it falls, in the order in which they fall, on the thread that decides:
/// the gate, politeness, then for each candidate considering(), dependency()... and built(), or
/// leftOut() alone, and at the end groupTaken() for each that another of its group displaced. The
/// arguments live for the call. Implementations override what they want to know.
class Trace {
public:
  virtual ~Trace() = default;

  /// `entry` is the one that counts for the host; null when there is none.
  virtual void gate(const StableVersion* /*entry*/, bool /*passed*/) {}
  virtual void politeness(bool /*polite*/) {}
  virtual void leftOut(const Candidate&, const Exclusion&) {}
  /// Kept; its points start from its priority score.
  virtual void considering(const Candidate&) {}
  /// `earned` is 0 for a dependency that does not hold.
  virtual void dependency(const Dependency&, DependencyOutcome, std::int64_t /*earned*/) {}
  virtual void built(const KVXAppRecommendation&) {}
  virtual void groupTaken(const KVXAppRecommendation& /*dropped*/,
                          const KVXAppRecommendation& /*best*/) {}
};

} // namespace recommend

} // namespace wrenvale

#endif
