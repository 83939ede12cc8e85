#include "desktop/qt/app/OpeningLimit.h"

#include <gtest/gtest.h>

namespace wrenvale::platform {
namespace {

using std::chrono::milliseconds;

TEST(OpeningLimitTest, AdmitsFiveWithinTwoSeconds) {
  const struct {
    int at; // milliseconds since an arbitrary moment; what is refused does not count
    bool admitted;
  } rows[] = {
      {0, true},    {100, true},   {200, true},    {300, true},   {400, true},
      {400, false}, {1999, false}, {2000, true},   {2000, false}, {2099, false},
      {2100, true}, {2250, true},  {9000, true},   {9000, true},  {9000, true},
      {9000, true}, {9000, true},  {10999, false}, {11000, true},
  };
  OpeningLimit limit;
  for (const auto& row : rows)
    EXPECT_EQ(limit.admits(OpeningLimit::Moment(milliseconds(row.at))), row.admitted) << row.at;
}

} // namespace
} // namespace wrenvale::platform
