// The real `wrenvale serve`, asked by a real client.

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>

#include <httplib.h>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/ServeProcess.h"

namespace wrenvale::tests {
namespace {

using platform::TemporaryFolder;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;

TEST(Serve, GivesTheFilesOfTheFolderAndNoOthers) {
  const TemporaryFolder outside;
  outside.write("/secret.json", "secret");
  const TemporaryFolder folder;
  folder.write("/site/index.html", "front page");
  folder.write("/site/a b.json", "{}");
  folder.write("/site/.hidden", "secret");
  folder.write("/site/style.css", "css");
  folder.write("/site/s/script.js", "js");
  folder.write("/site/s/icon.svg", "svg");
  folder.write("/site/s/icon.png", "png");
  folder.write("/site/s/file.unheard-of", "bytes");
  folder.write("/site/store/newsletter/index_EN.html", "page of no country");
  folder.write("/site/store/newsletter/index_DE.html", "German page");
  folder.write("/site-too/secret.json", "secret");
  std::filesystem::create_symlink(outside.path("/secret.json"), folder.path("/site/link.json"));
  std::filesystem::create_symlink("a b.json", folder.path("/site/inside.json"));
  std::filesystem::create_symlink(outside.path(), folder.path("/site/folder"));

  ServeProcess server({folder.path("/site"), "--port", "0"});
  httplib::Client client("127.0.0.1", server.port());
  const struct {
    std::string path;
    int status;
    const char* type;
    const char* body;
  } rows[] = {
      {"/", 200, "text/html; charset=utf-8", "front page"},
      {"/index.html", 200, "text/html; charset=utf-8", "front page"},
      {"/a%20b.json", 200, "application/json", "{}"},
      {"/inside.json", 200, "application/json", "{}"},
      {"/style.css?v=2", 200, "text/css; charset=utf-8", "css"},
      {"/s/script.js", 200, "text/javascript; charset=utf-8", "js"},
      {"/s/icon.svg", 200, "image/svg+xml", "svg"},
      {"/s/icon.png", 200, "image/png", "png"},
      {"/s/file.unheard-of", 200, "application/octet-stream", "bytes"},
      {"/app_redirect/twitter", 200, "text/html; charset=utf-8", "social feed"},
      {"/store/newsletter/index_DE.html", 200, "text/html; charset=utf-8", "German page"},
      {"/store/newsletter/index_BR.html", 200, "text/html; charset=utf-8", "page of no country"},
      {"/store/newsletter/index_419.html?x", 200, "text/html; charset=utf-8", "page of no country"},
      {"/store/newsletter/index_.html", 404, "", ""},
      {"/store/newsletter/index_a%2f.html", 404, "", ""},
      {"/store/newsletter/intro_BR.html", 404, "", ""},
      {"/store/newsletter/index_BR.css", 404, "", ""},
      {"/store/index_BR.html", 404, "", ""},
      {"/s/", 404, "", ""}, // no list of the folder
      {"/s", 404, "", ""},
      {"/index.html/", 404, "", ""},
      {"/missing.json", 404, "", ""},
      {"/.hidden", 404, "", ""},
      {"/link.json", 404, "", ""},
      {"/folder/secret.json", 404, "", ""},
      {"/../site-too/secret.json", 404, "", ""},
      {"/s/../../site-too/secret.json", 404, "", ""},
      {"/%2e%2e/site-too/secret.json", 404, "", ""},
      {"/..%2fsite-too%2fsecret.json", 404, "", ""},
      {"/" + outside.path("/secret.json"), 404, "", ""},
      {"/index.html%00.json", 404, "", ""},
      {"/app_redirect/unknown", 404, "", ""},
  };
  for (const auto& row : rows) {
    const auto result = client.Get(row.path);
    ASSERT_TRUE(result) << row.path;
    EXPECT_EQ(result->status, row.status) << row.path;
    EXPECT_THAT(server.line(), HasSubstr(std::to_string(row.status) + " GET " + row.path));
    EXPECT_THAT(result->body, Not(HasSubstr("secret"))) << row.path;
    if (row.status != 200) continue;
    EXPECT_EQ(result->get_header_value("Content-Type"), row.type) << row.path;
    EXPECT_THAT(result->body, HasSubstr(row.body)) << row.path;
  }
}

TEST(Serve, TellsOfEveryRequestAndEndsWhenAsked) {
  for (const int signal : {SIGTERM, SIGINT}) {
    ServeProcess server({EXAMPLE_SITE, "--port", "0"});
    httplib::Client client("127.0.0.1", server.port());
    const httplib::Headers agent = {{"User-Agent", "Photo%20Tool/1204 \x9b[2J\"x\""}};
    EXPECT_EQ(client.Get("/store/reset_US_en.json?q=%1b", agent)->status, 200);
    EXPECT_THAT(server.line(), EndsWith(" 200 GET /store/reset_US_en.json?q=%1b "
                                        R"("Photo Tool/1204 \x9b[2J\x22x\x22")"));
    EXPECT_EQ(client.Post("/store/reset_US_en.json", "body", "text/plain")->status, 405);
    EXPECT_THAT(server.line(), HasSubstr(" 405 POST /store/reset_US_en.json "));
    EXPECT_EQ(server.end(signal), 0);
    EXPECT_EQ(server.line(), "");
  }
}

TEST(Serve, SaysWhyItCannot) {
  ServeProcess first({EXAMPLE_SITE, "--port", "0"});
  const auto taken = std::to_string(first.port());
  const struct {
    std::vector<std::string> arguments;
    int status;
    std::string message;
  } rows[] = {
      {{EXAMPLE_SITE, "--port", taken}, 1, "port " + taken + " of 127.0.0.1 is taken"},
      {{std::string(EXAMPLE_SITE) + "/missing", "--port", "0"}, 1, "no folder"},
      {{EXAMPLE_SITE, "--port", "0", "--host", "203.0.113.1"}, 1, "cannot listen on http://203"},
      {{EXAMPLE_SITE, "--port", "65536"}, 2, "no port: 65536"},
      {{EXAMPLE_SITE, "--port"}, 2, "requires an argument"},
      {{EXAMPLE_SITE, "another", "--port", "0"}, 2, "one folder"},
      {{}, 2, "one folder"},
      {{"--unknown"}, 2, "unrecognized option"},
  };
  for (const auto& row : rows) {
    ServeProcess server(row.arguments);
    EXPECT_THAT(server.line(), AllOf(HasSubstr("wrenvale serve: "), HasSubstr(row.message)));
    EXPECT_EQ(server.status(), row.status) << row.message;
  }
}

} // namespace
} // namespace wrenvale::tests
