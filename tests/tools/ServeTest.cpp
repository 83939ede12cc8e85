// The real `wrenvale serve`, asked by a real client.

#include <gmock/gmock.h>

#include <filesystem>

#include <httplib.h>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitProcess.h"

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
  folder.write("/site/s/script.js", "js");
  folder.write("/site/s/file.unheard-of", "bytes");
  folder.write("/site/store/newsletter/index_EN.html", "page of no country");
  folder.write("/site-too/secret.json", "secret");
  std::filesystem::create_symlink(outside.path("/secret.json"), folder.path("/site/link.json"));
  std::filesystem::create_symlink("a b.json", folder.path("/site/inside.json"));
  std::filesystem::create_symlink(outside.path(), folder.path("/site/folder"));

  KitProcess server("serve --port 0 " + folder.path("/site"));
  httplib::Client client("127.0.0.1", server.port());
  const struct {
    std::string path;
    int status;
    const char* type;
    const char* body;
  } rows[] = {
      {"/", 200, "text/html; charset=utf-8", "front page"},
      {"/a%20b.json", 200, "application/json", "{}"},
      {"/inside.json", 200, "application/json", "{}"},
      {"/s/script.js?v=2", 200, "text/javascript; charset=utf-8", "js"},
      {"/s/file.unheard-of", 200, "application/octet-stream", "bytes"},
      {"/app_redirect/twitter", 200, "text/html; charset=utf-8", "social feed"},
      {"/store/newsletter/index_BR.html", 200, "text/html; charset=utf-8", "page of no country"},
      {"/store/newsletter/index_a%2f.html", 404, "", ""},
      {"/s/", 404, "", ""}, // no list of the folder
      {"/.hidden", 404, "", ""},
      {"/link.json", 404, "", ""},
      {"/folder/secret.json", 404, "", ""},
      {"/../site-too/secret.json", 404, "", ""},
      {"/%2e%2e/site-too/secret.json", 404, "", ""},
      {"/..%2fsite-too%2fsecret.json", 404, "", ""},
      {"/" + outside.path("/secret.json"), 404, "", ""},
      {"/index.html%00.json", 404, "", ""},
  };
  for (const auto& [path, status, type, body] : rows) {
    const auto result = client.Get(path);
    ASSERT_TRUE(result) << path;
    EXPECT_EQ(result->status, status) << path;
    EXPECT_THAT(server.line(), HasSubstr(std::to_string(status) + " GET " + path));
    EXPECT_THAT(result->body, AllOf(HasSubstr(body), Not(HasSubstr("secret")))) << path;
    EXPECT_TRUE(status != 200 || result->get_header_value("Content-Type") == type) << path;
  }
}

TEST(Serve, TellsOfEveryRequestAndEndsWhenAsked) {
  for (const int signal : {SIGTERM, SIGINT}) {
    KitProcess server("serve --port 0 " EXAMPLE_SITE);
    httplib::Client client("127.0.0.1", server.port());
    const httplib::Headers agent = {{"User-Agent", "Photo%20Tool/1204 \x9b[2J\"x\""}};
    EXPECT_EQ(client.Get("/store/reset_US_en.json?q=%1b", agent)->status, 200);
    EXPECT_THAT(server.line(), EndsWith(" 200 GET /store/reset_US_en.json?q=%1b "
                                        R"("Photo Tool/1204 \x9b[2J\x22x\x22")"));
    EXPECT_EQ(client.Post("/store/reset_US_en.json", "body", "text/plain")->status, 405);
    EXPECT_THAT(server.line(), HasSubstr(" 405 POST /store/reset_US_en.json "));
    server.end(signal);
    EXPECT_EQ(server.rest(), "");
    EXPECT_EQ(server.status(), 0);
  }
}

TEST(Serve, SaysWhyItCannot) {
  KitProcess first("serve --port 0 " EXAMPLE_SITE);
  const auto taken = std::to_string(first.port());
  const struct {
    std::string arguments;
    int status;
    std::string message;
  } rows[] = {
      {EXAMPLE_SITE " --port " + taken, 1, "port " + taken + " of 127.0.0.1 is taken"},
      {EXAMPLE_SITE "/missing --port 0", 1, "no folder"},
      {EXAMPLE_SITE " --port 0 --host 203.0.113.1", 1, "cannot listen on http://203"},
      {EXAMPLE_SITE " --port 65536", 2, "no port: 65536"},
      {EXAMPLE_SITE " another", 2, "one folder"},
      {"--unknown", 2, "unrecognized option"},
  };
  for (const auto& [arguments, status, message] : rows) {
    const auto run = runKit("serve " + arguments);
    EXPECT_THAT(run.text, AllOf(HasSubstr("wrenvale serve: "), HasSubstr(message)));
    EXPECT_EQ(run.status, status) << message;
  }
}

} // namespace
} // namespace wrenvale::tests
