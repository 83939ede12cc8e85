#include <gmock/gmock.h>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitProcess.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/json/JSONDocument.h"
#include "tools/wrenvale/json/JSONText.h"
#include "tools/wrenvale/preview/Preview.h"

namespace wrenvale::kit {
namespace {

using testing::HasSubstr;

Value json(const std::string& text) {
  return readJSON(text).value.value_or(Value());
}

PreviewRequest requestOf(std::int64_t build) {
  return {.host = {.bundleID = "com.example.phototool", .bundleVersion = build},
          .installed = {},
          .purchased = {},
          .vendorBase = "http://127.0.0.1:47210"};
}

TEST(Preview, ShowsTheExampleDocumentAsExpected) {
  auto request = requestOf(1204);
  request.installed = {"com.example.phototool", "com.example.scanbench",
                       "com.example.postcardclassic"};
  const auto site = std::string(EXAMPLE_SITE "/store/recommender_US_en");
  const auto expected = std::string(EXPECTED_OUTPUT "/preview_US_en");
  const auto shown = previewOf(json(contentsOf(site + ".json").value()), request);
  EXPECT_EQ(asText(shown), contentsOf(expected + ".txt"));
  EXPECT_EQ(asJSON(shown), contentsOf(expected + ".json"));

  for (const char* variant : {"_F", "_U"}) {
    const auto other = previewOf(json(contentsOf(site + variant + ".json").value()), request);
    EXPECT_TRUE(other.recommendations) << variant;
    EXPECT_EQ(other.polite, variant == std::string("_F"));
  }
}

TEST(Preview, SaysWhyNothingIsShown) {
  const auto document = json(R"({"options": {"stable_versions": [
    {"bundle_id": "com.example.phototool", "build_number": 5, "polite": 0}]},
    "apps": [{"sp_name": "nameless"}]})");
  const auto closed = previewOf(document, requestOf(6));
  EXPECT_THAT(asText(closed), HasSubstr("Gate: closed, the newest stable build is 5."));
  EXPECT_EQ(json(asJSON(closed)),
            json(R"({"gate": false, "polite": true, "recommendations": null, "left_out": []})"));
  EXPECT_EQ(json(asJSON(previewOf(document, requestOf(5)))),
            json(R"({"gate": true, "polite": true, "recommendations": [],
                     "left_out": [{"bundleID": null, "reason": "no-identifier"}]})"));
}

TEST(Preview, WritesTextThatAnyoneMayRead) {
  const std::string nasty("q\"b\\\n\x1B\0\x7F\u009B\u00E4", 12);
  EXPECT_EQ(json("[" + jsonString(nasty) + "]").at(0), Value(nasty));
  EXPECT_EQ(readable(nasty), "q\"b\\\\u000a\\u001b\\u0000\\u007f\\u009b\u00E4");
}

TEST(Preview, AnswersItsCommandLine) {
  const platform::TemporaryFolder folder;
  folder.write("/broken.json", "{\"options\": {},\n \"apps\": [}");
  const auto broken = folder.path("/broken.json");
  const std::string document = EXAMPLE_SITE "/store/recommender_US_en.json";
  const std::string host = " --bundle-id com.example.phototool --build ";
  const struct {
    std::string arguments;
    int status;
    const char* says;
  } rows[] = {
      {document + host + "1204 --json --installed com.example.filmclerk,com.example.spotless", 0,
       R"({"bundleID": "com.example.spotless", "reason": "installed"})"},
      {document + host + "1204 --installed com.example.phototool --purchased a,b", 0,
       "but the user has bought something in it"},
      {broken + host + "1", 1, ":2:11: "},
      {broken + ".missing" + host + "1", 1, "cannot read"},
      {document + host + "12x", 2, "cannot make sense of 12x"},
      {document + " --bundle-id a", 2, "--build is needed"},
      {host + "1", 2, "one document is needed"},
      {document + host + "1 --sneed 2", 2, "sneed"},
  };
  for (const auto& [arguments, status, says] : rows) {
    const auto run = tests::runKit("preview " + arguments);
    EXPECT_EQ(run.status, status) << arguments << "\n" << run.text;
    EXPECT_THAT(run.text, HasSubstr(says));
  }
}

} // namespace
} // namespace wrenvale::kit
