// Text from the core as Qt has it.

#ifndef WRENVALE_DESKTOP_QTTEXT_H
#define WRENVALE_DESKTOP_QTTEXT_H

#include <string_view>

#include <QString>

namespace wrenvale::platform {

/// UTF-8 text; invalid bytes become replacement characters.
inline QString fromUTF8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The same, of a text that was embedded into the program.
inline QString fromUTF8(const unsigned char* text, unsigned long size) {
  return fromUTF8(std::string_view(reinterpret_cast<const char*>(text), size));
}

} // namespace wrenvale::platform

#endif
