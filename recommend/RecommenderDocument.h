// The recommender document: which applications the maker recommends, and to which hosts.
//
//   { "options": { "stable_versions": [ StableVersion... ] },
//     "apps": [ Candidate... ] }
//
// Everything that is lenient about reading it is here. The classes are windows: they look into the
// document when asked, one entry at a time, and copy no more than that entry's own text. Unknown
// keys are ignored. What is not of the type that it should be reads as absent: a list that is no
// array is empty, an entry that is no object has no keys. Integers and truth values are read as
// base/Value.h says, text as Text says. Any thread.

#ifndef WRENVALE_RECOMMEND_RECOMMENDERDOCUMENT_H
#define WRENVALE_RECOMMEND_RECOMMENDERDOCUMENT_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "base/Value.h"

namespace wrenvale::recommend {

/// The text that a child of an array or a dictionary stands for: a string as it is, a number in
/// decimal digits. Null, truth values, arrays and objects stand for no text. Used like an optional
/// string. What is a string in the document stays there: the text lives as long as the array or
/// dictionary that it was read from, or one that contains it.
class Text {
public:
  Text() = default;
  Text(const Value& parent, std::size_t index);
  Text(const Value& dictionary, std::string_view key);

  explicit operator bool() const { return present_; }
  std::string_view operator*() const { return {view_ ? view_ : digits_, size_}; }
  operator std::optional<std::string_view>() const;

private:
  template <class Number>
  void write(Number number);

  const char* view_ = nullptr; ///< null for a number
  std::size_t size_ = 0;
  bool present_ = false;
  char digits_[24]; ///< the longest there is: -2.2250738585072014e-308
};

/// The entries of an array, made one by one as a loop goes over them.
template <class Entry>
class Entries {
public:
  class Iterator {
  public:
    Iterator(const Value& array, std::size_t index)
        : array_(array)
        , index_(index) {}
    Entry operator*() const {
      if constexpr (std::is_constructible_v<Entry, const Value&, std::size_t>)
        return Entry(array_, index_);
      else
        return Entry(array_.at(index_));
    }
    Iterator& operator++() { return ++index_, *this; }
    bool operator!=(const Iterator& other) const { return index_ != other.index_; }

  private:
    const Value& array_;
    std::size_t index_;
  };

  Entries() = default;
  explicit Entries(Value array)
      : array_(array.isArray() ? std::move(array) : Value()) {}

  Iterator begin() const { return {array_, 0}; }
  Iterator end() const { return {array_, array_.size()}; }

private:
  Value array_;
};

/// An entry of "stable_versions": a host that may show recommendations.
class StableVersion {
public:
  explicit StableVersion(Value entry)
      : entry_(std::move(entry)) {}

  Text bundleID() const { return Text(entry_, "bundle_id"); }
  /// The newest build that may show them.
  std::int64_t buildNumber() const { return integerValue(entry_.find("build_number")); }
  /// The key is there, whatever its value.
  bool hasPolite() const { return entry_.contains("polite"); }

private:
  Value entry_;
};

/// An entry of "dependency": an application whose presence earns a candidate points.
class Dependency {
public:
  explicit Dependency(Value entry)
      : entry_(std::move(entry)) {}

  Text bundleID() const { return Text(entry_, "bundle_id"); }
  /// Counts only for the host itself, while the user has bought nothing in it.
  bool inAppCheck() const { return truthValue(entry_.find("in_app_check")); }
  /// 100 when the key is absent; a value that is no number is 0.
  std::int64_t score() const;

  /// The replacement for the candidate's own text; nothing when the key is absent. A key whose
  /// value stands for no text replaces the candidate's text by none.
  std::optional<Text> brick() const { return replacement("brick"); }
  std::optional<Text> description() const { return replacement("sp_description"); }
  bool hasLink() const { return entry_.contains("link"); }

private:
  std::optional<Text> replacement(std::string_view key) const;

  Value entry_;
};

/// An entry of "apps": an application that may be recommended.
struct Candidate {
  explicit Candidate(Value entry);

  Value entry;                      ///< as it stands in the document
  Text bundleID;                    ///< "bundle_id"
  Text name;                        ///< "sp_name"
  Text icon;                        ///< "sp_icon", a file name
  Text brick;                       ///< "brick"
  Text media;                       ///< "media"
  Text description;                 ///< "sp_description"
  Text linkName;                    ///< "sp_link_name"
  Text link;                        ///< "link"
  Text group;                       ///< "group"
  Text alertText;                   ///< "alert_text"
  Text alertLink;                   ///< "alert_link"
  Text alertLinkName;               ///< "alert_link_name"
  std::int64_t priorityScore = 0;   ///< "priority_score"
  Entries<Text> exclude;            ///< "exclude": identifiers
  Entries<Dependency> dependencies; ///< "dependency"
};

class RecommenderDocument {
public:
  explicit RecommenderDocument(Value document)
      : document_(std::move(document)) {}

  Entries<StableVersion> stableVersions() const {
    return Entries<StableVersion>(document_.find("options").find("stable_versions"));
  }
  Entries<Candidate> apps() const { return Entries<Candidate>(document_.find("apps")); }

private:
  Value document_;
};

} // namespace wrenvale::recommend

#endif
