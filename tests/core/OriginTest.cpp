#include "core/Endpoints.h"

#include <gtest/gtest.h>

namespace wrenvale {
namespace {

TEST(Origin, IsSchemeHostAndPort) {
  const struct {
    const char* one;
    const char* other;
    bool isSame;
  } rows[] = {
      {"http://vendor.example/store?a#b", "HTTP://Vendor.Example:80", true},
      {"https://vendor.example:443/", "https://vendor.example", true},
      {"http://vendor.example:8080", "http://vendor.example", false},
      {"http://vendor.example:443", "https://vendor.example", false},
      {"http://vendor.example.evil.example", "http://vendor.example", false},
      {"http://evil.example#http://vendor.example", "http://vendor.example", false},
      {"http://evil.example\\@vendor.example", "http://vendor.example", false},
      {"http://vendor.example@evil.example", "http://vendor.example", false},
      {"http://me@vendor.example", "http://me@vendor.example", false},
      {"file://vendor.example", "file://vendor.example", false},
      {"http:///", "http:///", false},
      {"", "", false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(haveSameOrigin(row.one, row.other), row.isSame) << row.one;
    EXPECT_EQ(haveSameOrigin(row.other, row.one), row.isSame) << row.one;
  }
}

} // namespace
} // namespace wrenvale
