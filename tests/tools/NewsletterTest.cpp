// Subscriptions that the framework itself encrypts and sends, taken in by the real server.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <thread>

#include <httplib.h>

#include <wrenvale/HTMLAdditions.h>

#include "core/Base64.h"
#include "core/Endpoints.h"
#include "desktop/net/crypto/OpenSSLEncryption.h"
#include "tests/core/ServiceFixture.h"
#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/tools/KitRun.h"
#include "tests/tools/ServeProcess.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/newsletter/KeyPair.h"
#include "welcome/Newsletter.h"

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

class Client final : public platform::URLLoading {
public:
  std::optional<std::string> sendSynchronousRequest(const platform::URLRequest& request) override {
    const auto path = request.url.find('/', request.url.find("//") + 2);
    httplib::Client client(request.url.substr(0, path));
    const auto result = client.Get(request.url.substr(path));
    return result ? std::optional(result->body) : std::nullopt;
  }
};

// Subscribes as a host does that was built for the server at `port`.
void subscribe(int port, const std::string& address, const std::string& pem = developmentKey()) {
  platform::FakePlatform fake;
  platform::OpenSSLEncryption encryption;
  const platform::Platform platform{{fake.info, fake.userDefaults, fake.system, fake.locale,
                                     fake.installedApplications, fake.urlLoading, encryption,
                                     fake.json},
                                    fake.queues.main,
                                    fake.queues.global,
                                    fake.queues.serial,
                                    fake.application,
                                    fake.windows,
                                    fake.menus};
  const BuildConfiguration configuration{.vendorBase = "http://127.0.0.1:" + std::to_string(port),
                                         .storeHost = {},
                                         .publicKey = pem,
                                         .vendorSiteName = {}};
  Client client;
  const Service service(platform, configuration);
  welcome::deliverSubscription(address, service, Endpoints(configuration), client);
}

KitRun listed(const std::string& inbox, const std::string& options = {}) {
  return runKit("inbox --inbox " + inbox + " " + options);
}

TEST(Newsletter, WhatAHostSendsIsInTheInboxOnce) {
  const platform::TemporaryFolder folder;
  const auto inbox = folder.path("/new/folder/inbox.sqlite");
  ServeProcess server({EXAMPLE_SITE, "--port", "0", "--inbox", inbox});
  const int port = server.port();
  EXPECT_EQ(listed(inbox, "--json").text, "[]\n");

  const std::string odd = "a');DROP/**/TABLE/**/subscription;--@b.example";
  const std::pair<std::string, std::string> rows[] = {
      {"ann+news@brenmoor.example", "newsletter: ann+news@brenmoor.example"},
      {odd, "newsletter: " + odd},
      {"Ann+News@Brenmoor.example", "newsletter: Ann+News@Brenmoor.example, for the 2. time"},
  };
  for (const auto& [address, logged] : rows) {
    subscribe(port, address);
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
  ServeProcess server({EXAMPLE_SITE, "--port", "0", "--inbox", inbox});
  httplib::Client client("127.0.0.1", server.port());
  const auto made = [](const std::string& text) { return base64For(developmentKey(), text); };
  const auto good = made("email=ann@brenmoor.example");
  const struct {
    const char* name;
    std::string data;
    const char* fault;
  } rows[] = {
      {"empty", "", "no data"},
      {"what a host without encryption sends", "(null)", "could not encrypt"},
      {"no base64", "!" + good.substr(1), "no base64"},
      {"cut off", good.substr(0, 100), "encrypted for"},
      {"cut within a group", good.substr(0, 102), "no base64"},
      {"base64 with a line break", good.substr(0, 64) + "\n" + good.substr(64), "no base64"},
      {"nothing but padding", "====", "no base64"},
      {"not encrypted", base64Encoded("email=ann@brenmoor.example"), "encrypted for"},
      {"another key", base64For(theirs.publicKey, "email=ann@brenmoor.example"), "encrypted for"},
      {"other text", made("mail=ann@brenmoor.example"), "encrypted for"},
      {"address only", made("ann@brenmoor.example"), "encrypted for"},
      {"no address", made("email="), "no e-mail address"},
      {"no name", made("email=@brenmoor.example"), "no e-mail address"},
      {"no domain", made("email=ann@"), "no e-mail address"},
      {"two addresses", made("email=ann@a.example,bob@b.example"), "no e-mail address"},
      {"SQL with blanks", made("email='); DROP TABLE x; --@b.example"), "no e-mail address"},
      {"header line", made("email=ann@b.example\r\nBcc:"), "no e-mail address"},
      {"zero byte", made(std::string("email=a\0@b.example", 18)), "no e-mail address"},
      {"too long", std::string(5000, 'A'), "too long"},
  };
  for (const auto& row : rows) {
    const auto result = client.Get("/store/subscribe.php?data=" + urlEncoded(row.data));
    ASSERT_TRUE(result) << row.name;
    EXPECT_EQ(result->status, 400) << row.name;
    EXPECT_THAT(server.line(), HasSubstr(std::string("newsletter: refused, "))) << row.name;
    EXPECT_THAT(result->body, HasSubstr(row.fault)) << row.name;
    EXPECT_THAT(server.line(), HasSubstr(" 400 GET /store/subscribe.php")) << row.name;
  }
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
  ServeProcess first({EXAMPLE_SITE, "--port", "0", "--inbox", inbox});
  ServeProcess second(
      {EXAMPLE_SITE, "--port", "0", "--inbox", inbox, "--key", folder.path("/other.pem")});
  const auto subscribeMany = [](int port, const std::string& pem) {
    for (int i = 0; i < 10; ++i)
      subscribe(port, "user" + std::to_string(i) + "@brenmoor.example", pem);
  };
  std::thread one(subscribeMany, first.port(), developmentKey());
  std::thread two(subscribeMany, second.port(), theirs.publicKey);
  one.join();
  two.join();
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

  ServeProcess server({EXAMPLE_SITE, "--port", "0", "--inbox", folder.path("/text")});
  subscribe(server.port(), "ann@brenmoor.example");
  EXPECT_THAT(server.line(), HasSubstr("newsletter: lost, cannot use the inbox"));
  EXPECT_THAT(server.line(), HasSubstr(" 500 GET "));
  for (const char* key : {"/text", "/none"}) {
    ServeProcess keyless({EXAMPLE_SITE, "--port", "0", "--key", folder.path(key)});
    EXPECT_THAT(keyless.line(), HasSubstr("no private RSA key"));
    EXPECT_EQ(keyless.status(), 1);
  }
}

} // namespace
} // namespace wrenvale::tests
