// Subscriptions as the framework encrypts and sends them, taken in by the real server.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <thread>

#include <httplib.h>

#include <wrenvale/HTMLAdditions.h>

#include "core/Codecs.h"
#include "desktop/net/crypto/OpenSSLEncryption.h"
#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitProcess.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/newsletter/Keys.h"

namespace wrenvale::tests {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

std::string developmentKey() {
  return kit::contentsOf(DEVELOPMENT_PUBLIC_KEY).value_or("");
}

std::string base64For(const std::string& pem, const std::string& text) {
  const auto block = platform::OpenSSLEncryption().importPublicKey(pem).encrypt(text);
  return base64Encoded(block.value_or(""));
}

// What a server at `port` answers to data, or to the subscription of a host that was built for it.
httplib::Result sent(int port, const std::string& data) {
  return httplib::Client("127.0.0.1", port).Get("/store/subscribe.php?data=" + urlEncoded(data));
}
httplib::Result subscribed(int port, const std::string& address,
                           const std::string& pem = developmentKey()) {
  return sent(port, base64For(pem, "email=" + address));
}

KitRun listed(const std::string& inbox, const std::string& options = {}) {
  return runKit("inbox --inbox " + inbox + " " + options);
}

TEST(Newsletter, WhatAHostSendsIsInTheInboxOnce) {
  const platform::TemporaryFolder folder;
  const auto inbox = folder.path("/new/folder/inbox.sqlite");
  KitProcess server("serve --port 0 " EXAMPLE_SITE " --inbox " + inbox);
  const int port = server.port();
  EXPECT_EQ(listed(inbox, "--json").text, "[]\n");

  const std::string odd = "a');DROP/**/TABLE/**/subscription;--@b.example";
  const std::pair<std::string, std::string> rows[] = {
      {"ann+news@brenmoor.example", "newsletter: ann+news@brenmoor.example"},
      {odd, "newsletter: " + odd},
      {"Ann+News@Brenmoor.example", "newsletter: Ann+News@Brenmoor.example, for the 2. time"},
  };
  for (const auto& [address, logged] : rows) {
    EXPECT_EQ(subscribed(port, address)->status, 200);
    EXPECT_THAT(server.line(), EndsWith(logged));
    EXPECT_THAT(server.line(), HasSubstr(" 200 GET /store/subscribe.php?data="));
  }

  const auto list = listed(inbox);
  EXPECT_EQ(list.status, 0);
  EXPECT_THAT(list.text, testing::MatchesRegex("20..-..-..T..:..:..Z    2  ann\\+news@[^\n]*\n"
                                               "20..-..-..T..:..:..Z    1  a'[^\n]*\n"));
  EXPECT_THAT(listed(inbox, "--json").text, HasSubstr(R"({"address": ")" + odd + '"'));
  struct stat state {};
  ASSERT_EQ(stat(inbox.c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777U, 0600U);
}

TEST(Newsletter, BadDataIsRefusedAndLeavesNothing) {
  const platform::TemporaryFolder folder;
  const auto inbox = folder.path("/inbox.sqlite");
  const auto theirs = kit::newKeyPair(1024).value();
  KitProcess server("serve --port 0 " EXAMPLE_SITE " --inbox " + inbox);
  const int port = server.port();
  const auto made = [](const std::string& text) { return base64For(developmentKey(), text); };
  const auto good = made("email=ann@brenmoor.example");
  const struct {
    const char* name;
    std::string data;
    const char* fault;
  } rows[] = {
      {"what a host without encryption sends", "(null)", "could not encrypt"},
      {"no base64", "!" + good.substr(1), "no base64"},
      {"base64 with a line break", good.substr(0, 64) + "\n" + good.substr(64), "no base64"},
      {"not encrypted", base64Encoded("email=ann@brenmoor.example"), "encrypted for"},
      {"another key", base64For(theirs.publicKey, "email=ann@brenmoor.example"), "encrypted for"},
      {"two addresses", made("email=ann@a.example,bob@b.example"), "no e-mail address"},
      {"SQL with blanks", made("email='); DROP TABLE x; --@b.example"), "no e-mail address"},
      {"header line", made("email=ann@b.example\r\nBcc:"), "no e-mail address"},
      {"zero byte", made(std::string("email=a\0@b.example", 18)), "no e-mail address"},
      {"too long", std::string(5000, 'A'), "too long"},
  };
  for (const auto& row : rows) {
    const auto result = sent(port, row.data);
    ASSERT_TRUE(result) << row.name;
    EXPECT_EQ(result->status, 400) << row.name;
    EXPECT_THAT(server.line(), HasSubstr(std::string("newsletter: refused, "))) << row.name;
    EXPECT_THAT(result->body, HasSubstr(row.fault)) << row.name;
    EXPECT_THAT(server.line(), HasSubstr(" 400 GET /store/subscribe.php")) << row.name;
  }
  httplib::Client client("127.0.0.1", port);
  EXPECT_EQ(client.Get("/store/subscribe.php")->status, 400);
  EXPECT_EQ(client.Head("/store/subscribe.php?data=" + urlEncoded(good))->status, 404);
  EXPECT_EQ(client.Get("/store/subscribe.php?data=" + std::string(20000, 'A'))->status, 414);
  EXPECT_EQ(listed(inbox).text, "");
}

TEST(Newsletter, ServersShareAnInboxAndUseTheirOwnKeys) {
  const platform::TemporaryFolder folder;
  const auto inbox = folder.path("/inbox.sqlite");
  const auto theirs = kit::newKeyPair(1024).value();
  folder.write("/other.pem", theirs.privateKey);
  const auto options = "serve --port 0 " EXAMPLE_SITE " --inbox " + inbox;
  KitProcess first(options);
  KitProcess second(options + " --key " + folder.path("/other.pem"));
  const auto subscribeMany = [](int port, const std::string& pem) {
    for (int i = 0; i < 10; ++i)
      EXPECT_EQ(subscribed(port, "user" + std::to_string(i) + "@b.example", pem)->status, 200);
  };
  std::thread one(subscribeMany, first.port(), developmentKey());
  subscribeMany(second.port(), theirs.publicKey);
  one.join();
  const auto list = listed(inbox, "--json").text;
  for (int i = 0; i < 10; ++i)
    EXPECT_THAT(list, testing::ContainsRegex("user" + std::to_string(i) + "@[^\n]*\"count\": 2}"));
}

TEST(Newsletter, SaysWhenThereIsNoInboxOrKey) {
  const platform::TemporaryFolder folder;
  folder.write("/text", "neither an inbox nor a key, but long enough to be taken for either one");
  EXPECT_THAT(listed(folder.path("/text")).text, HasSubstr("cannot use the inbox"));
  EXPECT_EQ(listed(folder.path("/text")).status, 1);
  EXPECT_EQ(listed(folder.path("/none"), "more").status, 2);

  KitProcess server("serve --port 0 " EXAMPLE_SITE " --inbox " + folder.path("/text"));
  EXPECT_EQ(subscribed(server.port(), "ann@brenmoor.example")->status, 500);
  EXPECT_THAT(server.line(), HasSubstr("newsletter: lost, cannot use the inbox"));
  for (const char* key : {"/text", "/none"}) {
    const auto keyless = runKit("serve --port 0 " EXAMPLE_SITE " --key " + folder.path(key));
    EXPECT_THAT(keyless.text, HasSubstr("no private RSA key"));
    EXPECT_EQ(keyless.status, 1);
  }
}

} // namespace
} // namespace wrenvale::tests
