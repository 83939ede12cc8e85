#include "desktop/linux/settings/DefaultsMemory.h"

#include <algorithm>

namespace wrenvale::platform {

Value DefaultsMemory::find(std::string_view key) const {
  const auto change = changes_.find(key);
  return change != changes_.end() ? change->second.value : read_.dictionary.find(key);
}

void DefaultsMemory::set(std::string_view key, Value value) {
  changes_.insert_or_assign(std::string(key), Change{std::move(value), ++revision_, false});
}

DefaultsMemory::Batch DefaultsMemory::unwritten() const {
  Batch batch;
  batch.revision = revision_;
  batch.known = lastKnown_;
  for (const auto& [key, change] : changes_)
    if (!change.isWritten) batch.changes.emplace(key, change.value);
  return batch;
}

void DefaultsMemory::markWritten(const Batch& batch, const DefaultsFile::Merged& merged) {
  const auto& left = merged.tooLarge;
  for (const auto& [key, value] : batch.changes) {
    const auto change = changes_.find(key);
    const bool isLatest = change != changes_.end() && change->second.revision <= batch.revision;
    if (isLatest && std::find(left.begin(), left.end(), key) == left.end())
      change->second.isWritten = true;
  }
  lastKnown_ = merged.content;
}

void DefaultsMemory::markAllWritten() {
  for (auto& [key, change] : changes_)
    change.isWritten = true;
}

void DefaultsMemory::adopt(DefaultsContent content) {
  wasRead_ = true;
  isBlocked_ = content.state == DefaultsContent::State::blocked;
  if (isBlocked_) {
    read_.identity = content.identity;
    return;
  }
  read_ = std::move(content);
  lastKnown_ = read_;
  std::erase_if(changes_, [](const auto& item) { return item.second.isWritten; });
}

} // namespace wrenvale::platform
