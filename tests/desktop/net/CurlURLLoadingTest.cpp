#include "desktop/net/http/CurlURLLoading.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <semaphore>
#include <tuple>

#include <QByteArray>
#include <httplib.h>

#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

namespace {

using namespace std::chrono_literals;
using namespace testing;
using Body = std::optional<std::string>;
using Client = LoopbackServer::Connection;

std::future<Body> begun(CurlURLLoading& loading, URLRequest request) {
  return std::async(std::launch::async, [&loading, request = std::move(request)] {
    return loading.sendSynchronousRequest(request);
  });
}

Body loaded(std::string url, std::chrono::seconds timeout = 20s) {
  CurlURLLoading loading;
  return begun(loading, {.url = std::move(url), .timeoutInterval = timeout}).get();
}

// In the content coding "deflate", which has no place for the length that Qt puts in front.
std::string deflated(const std::string& text) {
  return qCompress(QByteArray::fromStdString(text)).mid(4).toStdString();
}

std::string redirection(std::string_view location) {
  return answerWith("", "302 Found",
                    "Set-Cookie: id=1; Path=/\r\nLocation: " + std::string(location) + "\r\n");
}

const std::string kChunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

TEST(CurlURLLoading, TakesWholeBodiesOfAnyStatus) {
  const std::string longest(kLongestBody, 'x');
  const auto coding = "Content-Encoding: deflate\r\n";
  const std::tuple<const char*, std::string, Body> rows[] = {
      {"binary", answerWith(std::string_view("\0\xFF\r\n", 4)), std::string("\0\xFF\r\n", 4)},
      {"no content", "HTTP/1.1 204 No Content\r\n\r\n", ""},
      {"not found", answerWith("where?", "404 Not Found"), "where?"},
      {"until the end", "HTTP/1.1 200 OK\r\n\r\nall", "all"},
      {"longest", answerWith(deflated(longest), "200 OK", coding), longest},
      {"too long", answerWith(longest + "x"), {}},
      {"too long when inflated", answerWith(deflated(longest + "x"), "200 OK", coding), {}},
      {"truncated", "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n[1]", {}},
      {"truncated head", "HTTP/1.1 200 OK\r\nContent-Le", {}},
  };
  for (const auto& [name, answer, expected] : rows) {
    const LoopbackServer server(answer);
    EXPECT_TRUE(loaded(server.url()) == expected) << name;
  }
}

TEST(CurlURLLoading, StopsAnEndlessAnswerAtItsBound) {
  const std::pair<std::string, std::string> rows[] = {
      {"HTTP/1.1 200 OK\r\n\r\n", std::string(1 << 16, 'x')},
      {"HTTP/1.1 200 OK\r\n", "X: y\r\n"},
      {"", "HTTP/1.1 100 Continue\r\n\r\n"}};
  for (const auto& row : rows) {
    std::atomic<std::size_t> sent = 0;
    const LoopbackServer server([&](Client& client) {
      client.send(row.first);
      while (client.send(row.second))
        sent += row.second.size();
    });
    EXPECT_EQ(loaded(server.url()), std::nullopt) << row.second;
    EXPECT_LT(sent, 3 * kLongestBody) << "what the sockets hold comes on top of the bound";
  }
}

TEST(CurlURLLoading, TimeOutIsForTheWholeExchange) {
  const LoopbackServer server([](Client& client) {
    const auto isAsked = [&](const char* path) { return client.head().starts_with(path); };
    if (isAsked("get /silent")) return client.hang();
    if (isAsked("get /extending")) client.send(kChunked + "1;");
    while (isAsked("get /extending") && client.send("extension")) {
    }
    std::this_thread::sleep_for(700ms);
    if (isAsked("get /redirecting")) client.send(redirection("/redirecting"));
    client.send("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
    while (client.send("x"))
      std::this_thread::sleep_for(20ms);
  });
  for (const char* path : {"/silent", "/extending", "/dripping", "/redirecting"}) {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(loaded(server.url(path), 1s), std::nullopt) << path;
    const auto taken = std::chrono::steady_clock::now() - begin;
    EXPECT_TRUE(taken >= 1s && taken < 3s) << path;
  }
}

TEST(CurlURLLoading, FollowsRedirectionsWithinBoundsAndNothingButWebAddresses) {
  // "/n" leads to "/n-1" and so on to the body.
  const LoopbackServer countdown([](Client& client) {
    const auto steps = std::stoi(client.head().substr(std::string_view("get /").size()));
    client.send(steps == 0 ? answerWith("there") : redirection("/" + std::to_string(steps - 1)));
  });
  EXPECT_EQ(loaded(countdown.url("/10")), "there");
  EXPECT_EQ(loaded(countdown.url("/11")), std::nullopt);
  EXPECT_THAT(countdown.requests(), AllOf(SizeIs(22), Each(Not(HasSubstr("cookie:")))));

  for (const std::string address :
       {"file:///etc/hostname", "data:text/plain,hello", "ftp://127.0.0.1/", "http://",
        "http://127.0.0.1:99999/", "http://127.0.0.1:1/"}) {
    const LoopbackServer server(redirection(address));
    EXPECT_EQ(loaded(server.url()), std::nullopt) << address;
    EXPECT_EQ(loaded(address), std::nullopt) << address;
  }
}

TEST(CurlURLLoading, SendsTheHeadersAsGivenAndLooksUpTheHostByName) {
  const LoopbackServer server(answerWith("ok"));
  CurlURLLoading loading;
  const std::string agent = "photo%20tool/1204 darwin/14.5.0 (x86_64) (m%2c1)";
  const auto url = server.url("/store/a%2Fb?data=%2B", "localhost");
  EXPECT_EQ(begun(loading, {.url = url, .headers = {{"User-Agent", agent}}}).get(), "ok");
  EXPECT_EQ(begun(loading, {.url = server.url(), .headers = {{"A", "b\r\nInjected: 1"}}}).get(),
            std::nullopt);
  EXPECT_THAT(
      server.requests(),
      ElementsAre(AllOf(HasSubstr("get /store/a%2fb?data=%2b http/1.1\r\n"),
                        HasSubstr("host: " + server.url("", "localhost").substr(7) + "\r\n"),
                        HasSubstr("user-agent: " + agent + "\r\n"))));
}

TEST(CurlURLLoading, UsesTheProxyOfTheEnvironment) {
  const LoopbackServer proxy(answerWith("by proxy"));
  setenv("http_proxy", proxy.url().c_str(), 1);
  EXPECT_EQ(loaded("http://no.such.host.invalid/x"), "by proxy");
  unsetenv("http_proxy");
  EXPECT_THAT(proxy.requests().at(0), HasSubstr("get http://no.such.host.invalid/x http/1.1\r\n"));
}

TEST(CurlURLLoading, CancellationEndsAllRequestsAtOnceAndForEver) {
  std::counting_semaphore arrived(0);
  const LoopbackServer server([&](Client& client) {
    if (client.head().starts_with("get /half")) client.send("HTTP/1.1 200 OK\r\n\r\nhalf");
    arrived.release();
    client.hang();
  });
  CurlURLLoading loading;
  auto half = begun(loading, {.url = server.url("/half")});
  auto silent = begun(loading, {.url = server.url("/silent")});
  arrived.acquire();
  arrived.acquire();
  const auto begin = std::chrono::steady_clock::now();
  loading.cancelAllRequests();
  EXPECT_EQ(half.get(), std::nullopt);
  EXPECT_EQ(silent.get(), std::nullopt);
  EXPECT_EQ(begun(loading, {.url = server.url("/late")}).get(), std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 100ms);
  EXPECT_THAT(server.requests(), SizeIs(2));
}

TEST(CurlURLLoading, TrustsTheSystemsCertificatesForTheirNamesAndDoesNotLeaveThem) {
  const TemporaryFolder folder;
  const auto certificate = folder.path("/certificate.pem"); // signed by itself
  const auto key = folder.path("/key.pem");
  const auto command = "openssl req -x509 -newkey rsa:2048 -nodes -subj /O=Tests -addext "
                       "subjectAltName=DNS:localhost 2>/dev/null -keyout " +
                       key + " -out ";
  ASSERT_EQ(std::system((command + certificate).c_str()), 0);
  const LoopbackServer plain(answerWith("plain"));
  httplib::SSLServer server(certificate.c_str(), key.c_str());
  server.Get("/", [](const auto&, auto& response) { response.body = "secret"; });
  server.Get("/leave", [&](const auto&, auto& response) { response.set_redirect(plain.url()); });
  const auto port = std::to_string(server.bind_to_any_port("127.0.0.1"));
  const std::jthread thread([&] { server.listen_after_bind(); });
  while (!server.is_running())
    std::this_thread::yield();
  EXPECT_EQ(loaded("https://localhost:" + port), std::nullopt) << "nobody vouches for it yet";
  setenv("SSL_CERT_FILE", certificate.c_str(), 1);
  EXPECT_EQ(loaded("https://localhost:" + port), "secret");
  EXPECT_EQ(loaded("https://127.0.0.1:" + port), std::nullopt) << "it is for another name";
  EXPECT_EQ(loaded("https://localhost:" + port + "/leave"), std::nullopt);
  EXPECT_THAT(plain.requests(), IsEmpty());
  unsetenv("SSL_CERT_FILE");
  server.stop();
}

} // namespace

} // namespace wrenvale::platform
