// A recommended application, as the window that shows it sees it.

#ifndef WRENVALE_CORE_RECOMMENDATION_H
#define WRENVALE_CORE_RECOMMENDATION_H

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/JSONWriter.h"

namespace wrenvale {

/// Any thread. Text that is missing is nothing.
class Recommendation {
public:
  using Text = std::optional<std::string>;
  /// Key and value in the order in which they were filled; the values are strings and integers.
  using Dictionary = JSONObject;

  Recommendation() = default;
  Recommendation(const Recommendation&) = delete;
  Recommendation& operator=(const Recommendation&) = delete;
  virtual ~Recommendation() = default;

  /// What is opened for this application.
  virtual Text link() const = 0;

  /// A one-time alert of the window, the label of its default button and what that one opens.
  virtual Text alertText() const = 0;
  virtual Text alertButtonName() const = 0;
  virtual Text alertLink() const = 0;

  /// What the page gets: "name", "bundleID", "iconURL", "points", "link", "descr", "linkName", in
  /// this order. All seven are always there; text that is absent is "".
  virtual Dictionary dictionaryRepresentation() const = 0;
};

/// Best first.
using RecommendationList = std::vector<std::shared_ptr<const Recommendation>>;

} // namespace wrenvale

#endif
