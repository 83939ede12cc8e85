// Texts that cannot be guessed.

#ifndef WRENVALE_DESKTOP_WEBVIEW_SECRET_H
#define WRENVALE_DESKTOP_WEBVIEW_SECRET_H

#include <array>

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>

namespace wrenvale::platform {

/// 128 random bits from the system, as 32 letters and digits.
inline QString makeSecret() {
  std::array<quint32, 4> bits;
  QRandomGenerator::system()->fillRange(bits.data(), bits.size());
  return QString::fromLatin1(
      QByteArray(reinterpret_cast<const char*>(bits.data()), sizeof(bits)).toHex());
}

} // namespace wrenvale::platform

#endif
