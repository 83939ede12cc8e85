// One recommended application of the maker's catalogue.
//
// Built from a candidate of the recommender document (Scoring.h) on a background thread, then only
// read. Each getter and each setter is indivisible, so one thread may read a property while another
// writes it; several properties together are not. Text is what the document says, unchecked, and
// nothing where it says nothing.

#ifndef WRENVALE_RECOMMEND_KVXAPPRECOMMENDATION_H
#define WRENVALE_RECOMMEND_KVXAPPRECOMMENDATION_H

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Value.h"
#include "core/Recommendation.h"
#include "recommend/PackedTexts.h"

namespace wrenvale {

namespace platform {
class System;
}

class KVXAppRecommendation final : public Recommendation {
public:
  using TextView = std::optional<std::string_view>;
  /// A picture in the toolkit's own form. Nothing in the framework fills the two slots.
  using Image = std::shared_ptr<const void>;

  /// Every property absent, 0 points. The system removes the file at mediaPath() when the
  /// record goes; it outlives the record. Without one the file stays.
  explicit KVXAppRecommendation(platform::System* system = nullptr)
      : system_(system) {}
  ~KVXAppRecommendation() override;

  /// The rank: the higher, the earlier in the list.
  std::int64_t points() const { return points_; }
  void setPoints(std::int64_t points) { points_ = points; }

  Text name() const { return text(kName); }
  void setName(TextView name) { setText(kName, name); }

  Text bundleID() const { return text(kBundleID); }
  void setBundleID(TextView bundleID) { setText(kBundleID, bundleID); }

  /// A picture or film for the page.
  Text mediaURL() const { return text(kMediaURL); }
  void setMediaURL(TextView mediaURL) { setText(kMediaURL, mediaURL); }

  Text iconURL() const { return text(kIconURL); }
  void setIconURL(TextView iconURL) { setText(kIconURL, iconURL); }

  /// A wide banner.
  Text brickURL() const { return text(kBrickURL); }
  void setBrickURL(TextView brickURL) { setText(kBrickURL, brickURL); }

  Text descr() const { return text(kDescr); }
  void setDescr(TextView descr) { setText(kDescr, descr); }

  Image brickImage() const { return image(kBrickImage); }
  void setBrickImage(Image brickImage) { setImage(kBrickImage, std::move(brickImage)); }

  Image iconImage() const { return image(kIconImage); }
  void setIconImage(Image iconImage) { setImage(kIconImage, std::move(iconImage)); }

  Text link() const override { return text(kLink); }
  void setLink(TextView link) { setText(kLink, link); }

  /// Of the applications of one group, only the best one is recommended.
  Text group() const { return text(kGroup); }
  void setGroup(TextView group) { setText(kGroup, group); }

  /// A local file that belongs to this record. Nothing in the framework fills it.
  Text mediaPath() const { return text(kMediaPath); }
  void setMediaPath(TextView mediaPath) { setText(kMediaPath, mediaPath); }

  Text linkName() const { return text(kLinkName); }
  void setLinkName(TextView linkName) { setText(kLinkName, linkName); }

  Text alertText() const override { return text(kAlertText); }
  void setAlertText(TextView alertText) { setText(kAlertText, alertText); }

  Text alertButtonName() const override { return text(kAlertButtonName); }
  void setAlertButtonName(TextView name) { setText(kAlertButtonName, name); }

  Text alertLink() const override { return text(kAlertLink); }
  void setAlertLink(TextView alertLink) { setText(kAlertLink, alertLink); }

  /// Makes room at once for this many bytes of text in all.
  void reserveText(std::size_t bytes);

  /// One line for logs: "Alpha/photo(com.example.alpha) - points:150 - alert:(null)".
  std::string description() const;

  Dictionary dictionaryRepresentation() const override;

private:
  enum TextProperty {
    kName,
    kBundleID,
    kMediaURL,
    kIconURL,
    kBrickURL,
    kDescr,
    kLink,
    kGroup,
    kMediaPath,
    kLinkName,
    kAlertText,
    kAlertButtonName,
    kAlertLink,
    kTextProperties
  };
  enum ImageProperty { kBrickImage, kIconImage, kImageProperties };

  Text text(TextProperty property) const;
  void setText(TextProperty property, TextView text);
  Image image(ImageProperty property) const;
  void setImage(ImageProperty property, Image image);

  platform::System* const system_;
  std::atomic<std::int64_t> points_ = 0;
  mutable std::mutex mutex_; ///< guards the texts and the images
  PackedTexts<kTextProperties> texts_;
  std::array<Image, kImageProperties> images_;
};

} // namespace wrenvale

#endif
