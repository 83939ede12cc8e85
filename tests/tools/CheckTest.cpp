// What `wrenvale check` finds, and the keys that `wrenvale keygen` makes.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <ctime>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitProcess.h"
#include "tools/wrenvale/check/Check.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/json/JSONPlaces.h"

namespace wrenvale::kit {
namespace {

using platform::TemporaryFolder;
using testing::ElementsAreArray;
using testing::HasSubstr;
using tests::runKit;

// "2:14: error: text" for each finding; without a line when there is none.
std::vector<std::string> shown(const CheckReport& report) {
  std::vector<std::string> lines;
  for (const auto& finding : report.findings) {
    const auto colon = finding.place.find(".json:");
    lines.push_back((colon == std::string::npos ? "" : finding.place.substr(colon + 6) + ": ") +
                    (finding.weight == Finding::Weight::Error ? "error: " : "warning: ") +
                    finding.text);
  }
  return lines;
}

std::string app(const std::string& rest, const std::string& id = "com.b") {
  return R"({"options": {"stable_versions": [{"bundle_id": "com.a", "build_number": "12"}]},
"apps": [{"bundle_id": ")" +
         id + R"(", "sp_name": "B", "sp_icon": "b.svg", "link": "https://b/")" + rest + "}]}";
}

TEST(Check, SaysWhatIsWrongAndWhere) {
  const struct {
    const char* file;
    std::string text;
    std::vector<std::string> expected;
  } rows[] = {
      {"/x.json", "\xEF\xBB\xBF[]", {}},
      {"/x.json", app(R"(, "priority_score": "-7", "dependency": [{"bundle_id": "com.a"}])"), {}},
      {"/x.json",
       "{}",
       {"1:1: error: \"options\" is missing", "1:1: error: \"apps\" is missing",
        "1:1: warning: no host may show this document's applications"}},
      {"/reset_US_en.json", "{}", {"1:1: error: the document must be an array"}},
      {"/x.json", app(R"(, "media": "https://)" + std::string(50'000, 'm') + '"'), {}},
      {"/x.json",
       app("},\n{\"bundle_id\": \"com.b\", \"sp_name\": \"\", \"link\": \"https://b/\", \"x\": 1,\n"
           R"("sp_name": "C", "g\u0072oup": 1, "group": "\"}", "brick": null)"),
       {"3:1: error: \"sp_icon\" is missing",
        "3:2: error: com.b stands here twice; both are recommended",
        "3:61: error: there is no key \"x\" here",
        "4:1: error: this key stands here twice; only the last counts",
        "4:34: error: this key stands here twice; only the last counts",
        "4:50: error: \"brick\" must be an address such as \"https://example.com/page\""}},
      {"/x.json",
       app(R"(,
"alert_link": "https://b/", "priority_score": 1.5,
"dependency": [{"bundle_id": "com.b"}, {"bundle_id": "com.q"},
{"bundle_id": "com.b", "in_app_check": true}, {"bundle_id": "com.q", "in_app_check": true}, 3])"),
       {"3:1: error: \"alert_link\" does nothing: \"alert_text\" is missing",
        "3:29: error: \"priority_score\" must be a whole number, or one as text",
        "4:17: warning: never holds: installed, the application is left out",
        "4:41: warning: no document knows com.q",
        "5:2: warning: never holds: installed, the application is left out",
        "5:48: warning: com.q is no host, so \"in_app_check\" never holds",
        "5:93: error: this must be an object"}},
      {"/x.json",
       R"([{"bundle_id": "com.a", "reset_mode": "auto"},
{"bundle_id": "com.a", "reset_number": 3, "min_build_number": 5, "max_build_number": 4},
{"bundle_id": "com.a", "reset_number": 3, "max_build_number": 9},
{"bundle_id": "com.b", "reset_number": 3, "max_build_number": 9},
{"bundle_id": "com.a", "reset_number": 4, "min_build_number": 9, "max_build_number": 9},
{"bundle_id": " com.a", "reset_mode": "sometimes"}, {"bundle_id": "com.a", "reset_number": 1}])",
       {"2:66: error: no build is from 5 to 4",
        "5:66: warning: an earlier entry takes all of these builds",
        "6:2: error: \"bundle_id\" must be a bundle identifier",
        "6:25: error: \"reset_mode\" must be \"auto\", or absent",
        "6:53: error: this must be an update trigger (\"reset_mode\") or a generation "
        "(\"reset_number\" and \"max_build_number\")"}},
  };
  for (const auto& row : rows) {
    const TemporaryFolder folder;
    folder.write(row.file, row.text);
    EXPECT_THAT(shown(check({folder.path(row.file)}, std::nullopt)), ElementsAreArray(row.expected))
        << row.text;
  }
}

std::string times(std::size_t count, const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i)
    result += text;
  return result;
}

TEST(Check, GetsToTheEndOfEverything) {
  const TemporaryFolder folder;
  const std::pair<std::string, const char*> rows[] = {
      {"", ":1:1: error: unexpected end of input"},
      {"1", ":1:1: error: this must be an array or a dictionary"},
      {"\xEF\xBB\xBF{\"a\":\n [}", ":2:3: error: unexpected '}'; expected '[', '{', or a literal"},
      {"{\"a\": \"\xFF\"}", ":1:8: error: invalid string: ill-formed UTF-8 byte"},
      {std::string(3'000'000, '['), ":1:514: error: nested too deeply"},
      {"[" + std::string(3'000'000, '9') + "]", ":1:2: error: a number is too large"},
      {std::string(17'000'000, ' '), "bad.json: error: hosts take no more than 16 MiB"},
  };
  for (const auto& [text, says] : rows) {
    folder.write("/bad.json", text);
    const auto output = runKit("check " + folder.path("/bad.json"));
    EXPECT_EQ(output.status, 1) << says << "\n" << output.text;
    EXPECT_THAT(output.text, HasSubstr(says));
  }
  for (const auto& file : {folder.path(), std::string("/dev/zero")})
    EXPECT_EQ(runKit("check " + file).status, 1) << file;
}

TEST(Check, TakesItsTimeByTheLengthOfTheText) {
  constexpr std::size_t count = 10'000;
  const TemporaryFolder folder;
  const std::pair<const char*, std::string> rows[] = {
      {"/good.json", app(times(count, R"(}, {"bundle_id": "com.b", "link": "https://b/")"))},
      {"/keys.json", app(times(count, R"(, "a": 1, "b": 2)"))},
      {"/reset_US_en.json",
       "[1" + times(count, R"(, {"bundle_id": "com.a", "max_build_number": 3})") + "]"},
  };
  for (const auto& [file, text] : rows) {
    folder.write(file, text);
    const auto begin = std::clock();
    EXPECT_GE(check({folder.path(file)}, std::nullopt).findings.size(), count) << file;
    const auto seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, 0.5) << file;
  }
}

TEST(Check, KnowsWhatASiteLacks) {
  EXPECT_THAT(shown(checkSite(EXAMPLE_SITE)), testing::IsEmpty());

  const TemporaryFolder site;
  site.write("/store/recommender_US_en.json", app(""));
  site.write("/store/recommender_US_en_F.json", app(R"(, "exclude": [])", "com.c"));
  site.write("/store/reset_GB_en.json", "[]");
  site.write("/store/images/b.svg", "");
  site.write("/store/newsletter/index_US.html", "");
  std::filesystem::remove(site.path("/store/images/b.svg"));
  EXPECT_THAT(shown(checkSite(site.path())),
              ElementsAreArray({"2:49: error: there is no file store/images/b.svg",
                                "2:49: error: there is no file store/images/b.svg",
                                "warning: hosts will ask for newsletter/index_EN.html in vain",
                                "warning: hosts will ask for recommender_US_en_U.json in vain",
                                "warning: hosts will ask for reset_US_en.json in vain"}));
}

TEST(Check, AnswersItsCommandLine) {
  const TemporaryFolder folder;
  folder.write("/bad.json", "[1]");
  const struct {
    std::string arguments;
    int status;
    const char* says;
  } rows[] = {
      {"--site " EXAMPLE_SITE, 0, "25 documents: 0 errors, 0 warnings\n"},
      {folder.path("/bad.json"), 1, ":1:2: error: this must be"},
      {folder.path("/none.json"), 1, "none.json: error: cannot be read\n"},
      {"--site " + folder.path(), 1, "/store: error: there are no documents here\n"},
      {"", 2, "a document or --site is needed"},
      {"--siet x", 2, "siet"},
  };
  for (const auto& [arguments, status, says] : rows) {
    const auto run = runKit("check " + arguments);
    EXPECT_EQ(run.status, status) << arguments << "\n" << run.text;
    EXPECT_THAT(run.text, HasSubstr(says));
  }
}

TEST(Keygen, KeepsTheKeyThatIsThere) {
  const TemporaryFolder folder;
  const auto keys = folder.path("/new/keys");
  EXPECT_EQ(runKit("keygen --bits 1024 --out " + keys).status, 0);
  struct stat state {};
  ASSERT_EQ(stat((keys + "/private.pem").c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777U, 0600U);
  const auto key = contentsOf(keys + "/private.pem");
  // As long as the framework's own key of so many bits.
  EXPECT_EQ(contentsOf(keys + "/public.pem").value_or("").size(), 272U);

  EXPECT_THAT(runKit("keygen --out " + keys).text, HasSubstr("private.pem: File exists"));
  EXPECT_EQ(contentsOf(keys + "/private.pem"), key);
  std::filesystem::remove(keys + "/private.pem");
  EXPECT_THAT(runKit("keygen --out " + keys).text, HasSubstr("public.pem: File exists"));
  EXPECT_FALSE(std::filesystem::exists(keys + "/private.pem")) << "a half pair is none";
  for (const char* arguments : {"", "--out x --bits 12", "--out x --bits 2048x", "--out x y"})
    EXPECT_EQ(runKit(std::string("keygen ") + arguments).status, 2) << arguments;
}

} // namespace
} // namespace wrenvale::kit
