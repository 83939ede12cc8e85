#include <wrenvale/Base32.h>
#include <wrenvale/HTMLAdditions.h>

#include <gtest/gtest.h>

#include "core/Codecs.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

TEST(URLEncoded, KeepsOnlyUnreservedCharacters) {
  EXPECT_EQ(urlEncoded("a b,c/d~e"), "a%20b%2Cc%2Fd~e");
  EXPECT_EQ(urlEncoded("\xC3\xA9"), "%C3%A9");
  EXPECT_EQ(urlEncoded("!*'\"();:@&=+$,/?%#[] "),
            "%21%2A%27%22%28%29%3B%3A%40%26%3D%2B%24%2C%2F%3F%25%23%5B%5D%20");
  EXPECT_EQ(urlEncoded("AZaz09-._~"), "AZaz09-._~");
  EXPECT_EQ(urlEncoded(std::string_view("\0\x7f\xff\n", 4)), "%00%7F%FF%0A");
  EXPECT_EQ(urlEncoded(std::optional<std::string>()), std::nullopt);
}

TEST(Base32, DecodesExactEncodingsOnly) {
  const struct {
    std::string_view text;
    std::optional<std::string_view> bytes;
  } rows[] = {
      {"", ""},
      {"MY", "f"},
      {"my", "f"},
      {"MZXW6YQ", "foob"},
      {"MZXW6YTBOI", "foobar"},
      {"77777777", "\xFF\xFF\xFF\xFF\xFF"},
      {"MZ", std::nullopt}, // left-over bits
      {"MZXW6YR", std::nullopt},
      {"M", std::nullopt}, // lengths that no bytes encode to
      {"MZX", std::nullopt},
      {"MZXW6Y", std::nullopt},
      {"MY======", std::nullopt},
      {"M1", std::nullopt},
      {"M8", std::nullopt},
      {"M[", std::nullopt},
      {"M`", std::nullopt},
      {"M{", std::nullopt},
      {"\xC3\xA9", std::nullopt},
  };
  for (const auto& row : rows) {
    const auto decoded = dataWithBase32String(row.text);
    ASSERT_EQ(decoded.has_value(), row.bytes.has_value()) << row.text;
    if (!decoded) continue;
    const std::string_view bytes(reinterpret_cast<const char*>(decoded->data()), decoded->size());
    EXPECT_EQ(bytes, *row.bytes) << row.text;
  }
}

TEST(Base64, PadsAndNeverBreaksLines) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"", ""}, {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="}, {"\xFB\xFF\xBF", "+/+/"}};
  for (const auto& [bytes, text] : rows)
    EXPECT_EQ(base64Encoded(bytes), text);
  EXPECT_EQ(base64Encoded(std::string(128, 'x')).find('\n'), std::string::npos);
}

using EncryptString = ServiceTest;

TEST_F(EncryptString, GivesTheBase64OfTheCiphertextUnlessAStepFails) {
  EXPECT_EQ(start().encryptString("email=a@b.cd"), base64Encoded("[email=a@b.cd]"));
  EXPECT_EQ(fake.encryption.importedPEM, "the key");
  EXPECT_FALSE(service->encryptString(std::string(118, 'x')));
  fake.encryption.moduleMissing = true;
  EXPECT_FALSE(service->encryptString("x"));
}

} // namespace
} // namespace wrenvale
