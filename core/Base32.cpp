#include <wrenvale/Base32.h>

namespace wrenvale {

namespace {

// The five bits that a character stands for, or -1.
int decoded(char c) {
  if (c >= 'A' && c <= 'Z') return c - 'A';
  if (c >= 'a' && c <= 'z') return c - 'a';
  if (c >= '2' && c <= '7') return c - '2' + 26;
  return -1;
}

// Whole bytes end a last group of 2, 4, 5 or 7 characters only.
bool isLengthOfSomething(std::size_t length) {
  const std::size_t last = length % 8;
  return last != 1 && last != 3 && last != 6;
}

} // namespace

std::optional<Data> dataWithBase32String(std::string_view text) {
  if (!isLengthOfSomething(text.size())) return std::nullopt;

  Data bytes;
  bytes.reserve(text.size() * 5 / 8);
  unsigned pending = 0; // bits not yet written, the most significant first
  int pendingBits = 0;
  for (const char c : text) {
    const int value = decoded(c);
    if (value < 0) return std::nullopt;
    pending = (pending << 5) | static_cast<unsigned>(value);
    pendingBits += 5;
    if (pendingBits < 8) continue;
    pendingBits -= 8;
    bytes.push_back(static_cast<std::byte>(pending >> pendingBits));
    pending &= (1U << pendingBits) - 1;
  }
  if (pending != 0) return std::nullopt;
  return bytes;
}

} // namespace wrenvale
