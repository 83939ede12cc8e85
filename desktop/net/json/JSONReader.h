// Reading JSON documents fast and in little memory.

#ifndef WRENVALE_DESKTOP_NET_JSON_JSONREADER_H
#define WRENVALE_DESKTOP_NET_JSON_JSONREADER_H

#include "platform/Net.h"

namespace wrenvale::platform {

/// What the contract leaves open:
///   - Arrays and dictionaries that are not empty may be nested 512 deep. A byte-order mark before
///   the text is skipped.
///   - A number beyond the range of a real makes the text no document.
///   - The values are windows onto the parsed document (JSONWindow.h), which lives as long as any
///     of them. The text is freed before the call returns; the peak is two to three times its size.
/// Stateless: any thread, several at once.
class JSONReader final : public JSONSerialization {
public:
  std::optional<Value> JSONObjectWithData(std::string data) override;
};

} // namespace wrenvale::platform

#endif
