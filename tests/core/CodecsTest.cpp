#include <wrenvale/Base32.h>
#include <wrenvale/HTMLAdditions.h>

#include <gtest/gtest.h>

#include "core/Codecs.h"
#include "tests/core/ServiceFixture.h"

namespace wrenvale {
namespace {

TEST(URLEncoded, KeepsOnlyUnreservedCharacters) {
  EXPECT_EQ(urlEncoded("AZaz09-._~"), "AZaz09-._~");
  EXPECT_EQ(urlEncoded("a b/`\xC3\xA9"), "a%20b%2F%60%C3%A9");
  EXPECT_EQ(urlEncoded(std::string_view("\0:@[{", 5)), "%00%3A%40%5B%7B");
  EXPECT_EQ(urlEncoded(std::optional<std::string>()), std::nullopt);
}

TEST(Base32, DecodesExactEncodingsOnly) {
  const std::pair<std::string_view, std::optional<std::string_view>> rows[] = {
      {"", ""},
      {"MY", "f"},
      {"MZXQ", "fo"},
      {"mzxw6", "foo"},
      {"MZXW6YTBOI", "foobar"},
      {"aAzZ2277", std::string_view("\0\x33\x9D\x6B\xFF", 5)},
      {"MZ", {}}, // left-over bits
      {"MZXW6YR", {}},
      {"M", {}}, // lengths that no bytes encode to
      {"MZX", {}},
      {"MZXW6Y", {}},
  };
  for (const auto& [text, bytes] : rows) {
    const auto decoded = dataWithBase32String(text);
    ASSERT_EQ(decoded.has_value(), bytes.has_value()) << text;
    if (!bytes) continue;
    EXPECT_EQ(std::string_view(reinterpret_cast<const char*>(decoded->data()), decoded->size()),
              *bytes);
  }
  for (const char c : std::string_view("=018@[`{\xC3"))
    EXPECT_FALSE(dataWithBase32String(std::string("MZXW6YT") + c)) << c;
}

TEST(Base64, PadsTheLastGroup) {
  EXPECT_EQ(base64Encoded(""), "");
  EXPECT_EQ(base64Encoded("f"), "Zg==");
  EXPECT_EQ(base64Encoded("fo"), "Zm8=");
  EXPECT_EQ(base64Encoded("\xFB\xFF\xBF"), "+/+/");
}

using EncryptString = ServiceTest;

TEST_F(EncryptString, GivesTheBase64OfTheCiphertext) {
  EXPECT_EQ(start().encryptString("email=a@b.cd"), base64Encoded("[email=a@b.cd]"));
  EXPECT_EQ(fake.encryption.importedPEM, "the key");
  EXPECT_FALSE(service->encryptString(std::string(118, 'x'))) << "more than the key can take";
  fake.encryption.moduleMissing = true;
  EXPECT_FALSE(service->encryptString("x"));
}

} // namespace
} // namespace wrenvale
