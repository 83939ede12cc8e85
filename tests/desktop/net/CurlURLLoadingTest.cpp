#include "desktop/net/http/CurlURLLoading.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cstdlib>
#include <future>

#include <QByteArray>

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
  return answerWith("", "302 Found", "Location: " + std::string(location) + "\r\n");
}

TEST(CurlURLLoading, TakesWholeBodiesOfAnyStatus) {
  const std::string longest(kLongestBody, 'x');
  const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  const auto coding = "Content-Encoding: deflate\r\n";
  const auto corrupt = deflated(std::string(1000, 'a')).replace(2, 4, "\xFF\xFF\xFF\xFF");
  const struct {
    const char* name;
    std::string answer;
    Body expected;
  } rows[] = {
      {"binary", answerWith(std::string_view("\0\xFF\r\n", 4)), std::string("\0\xFF\r\n", 4)},
      {"no content", "HTTP/1.1 204 No Content\r\n\r\n", ""},
      {"unusual status", answerWith("short", "418 I'm a teapot"), "short"},
      {"unauthorized", answerWith("who?", "401 No", "WWW-Authenticate: Basic realm=\"r\"\r\n"),
       "who?"},
      {"until the end", "HTTP/1.1 200 OK\r\n\r\nall", "all"},
      {"chunked", chunked + "2\r\nab\r\n1\r\nc\r\n0\r\n\r\n", "abc"},
      {"longest", answerWith(deflated(longest), "200 OK", coding), longest},
      {"too long", answerWith(longest + "x"), {}},
      {"too long when inflated", answerWith(deflated(longest + "x"), "200 OK", coding), {}},
      {"corrupt", answerWith(corrupt, "200 OK", coding), {}},
      {"truncated", "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n[1]", {}},
      {"truncated head", "HTTP/1.1 200 OK\r\nContent-Le", {}},
      {"closed", "", {}},
      {"no HTTP", "220 smtp.example.com ready\r\n", {}},
  };
  for (const auto& row : rows) {
    const LoopbackServer server(row.answer);
    EXPECT_TRUE(loaded(server.url()) == row.expected) << row.name;
  }
}

TEST(CurlURLLoading, StopsAnEndlessAnswerAtItsBound) {
  const struct {
    std::string begin, more;
  } rows[] = {{"\r\n", std::string(1 << 16, 'x')},
              {"", "X: y\r\n"},
              {"", "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\n"}};
  for (const auto& row : rows) {
    std::atomic<std::size_t> sent = 0;
    {
      const LoopbackServer server([&](Client& client) {
        client.send("HTTP/1.1 200 OK\r\n" + row.begin);
        while (client.send(row.more))
          sent += row.more.size();
      });
      EXPECT_EQ(loaded(server.url()), std::nullopt) << row.more;
    }
    EXPECT_LT(sent, 3 * kLongestBody) << "what the sockets hold comes on top of the bound";
  }
}

TEST(CurlURLLoading, TimeOutIsForTheWholeExchange) {
  const LoopbackServer silent([](Client& client) { client.hang(); });
  const LoopbackServer extending([](Client& client) {
    client.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1;");
    while (client.send("extension")) {
    }
  });
  const LoopbackServer dripping([](Client& client) {
    client.send("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
    while (client.send("x"))
      std::this_thread::sleep_for(20ms);
  });
  const LoopbackServer redirecting(
      [&](Client& client) { client.send(redirection(dripping.url())); });
  for (const auto* server : {&silent, &extending, &dripping, &redirecting}) {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(loaded(server->url(), 1s), std::nullopt);
    const auto taken = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(taken, 1s);
    EXPECT_LT(taken, 3s);
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

  for (const std::string address : {"file:///etc/hostname", "data:text/plain,hello",
                                    "ftp://127.0.0.1/", "http://", "http://127.0.0.1:99999/"}) {
    const LoopbackServer server(redirection(address));
    EXPECT_EQ(loaded(server.url(), 5s), std::nullopt) << address;
    EXPECT_EQ(loaded(address, 5s), std::nullopt) << address;
  }
  for (const char* address : {"", "/etc/hostname", "http://127.0.0.1:1/"})
    EXPECT_EQ(loaded(address, 5s), std::nullopt) << address;
}

TEST(CurlURLLoading, SendsTheHeadersAsGivenAndLooksUpTheHostByName) {
  const LoopbackServer server(answerWith("ok"));
  CurlURLLoading loading;
  const std::string agent = "Photo%20Tool/1204 123456789 Darwin/14.5.0 (x86_64) (M%2C1)";
  const auto url = server.url("/store/a%2Fb?data=%2B", "localhost");
  EXPECT_EQ(begun(loading, {.url = url, .headers = {{"User-Agent", agent}}}).get(), "ok");
  EXPECT_EQ(begun(loading, {.url = server.url(), .headers = {{"A", "b\r\nInjected: 1"}}}).get(),
            std::nullopt);
  ASSERT_THAT(server.requests(), SizeIs(1));
  const auto host = "host: localhost:" + std::to_string(server.port()) + "\r\n";
  EXPECT_THAT(server.requests().front(),
              AllOf(HasSubstr("get /store/a%2fb?data=%2b http/1.1\r\n"), HasSubstr(host),
                    HasSubstr("user-agent: photo%20tool/1204 123456789 darwin/14.5.0 (x86_64) "
                              "(m%2c1)\r\n")));
}

TEST(CurlURLLoading, KeepsNeitherCookiesNorCachedAnswers) {
  const auto headers = "Set-Cookie: id=1; Path=/\r\nCache-Control: max-age=3600\r\nETag: \"1\"\r\n"
                       "Last-Modified: Mon, 01 Jan 2024 00:00:00 GMT\r\n";
  const LoopbackServer server([&](Client& client) {
    const bool isFirst = client.head().starts_with("get /first");
    client.send(answerWith("x", isFirst ? "302 Found" : "200 OK",
                           (isFirst ? "Location: /second\r\n" : "") + std::string(headers)));
  });
  CurlURLLoading loading;
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(begun(loading, {.url = server.url("/first")}).get(), "x");
  ASSERT_THAT(server.requests(), SizeIs(4));
  EXPECT_THAT(server.requests(), Each(Not(AnyOf(HasSubstr("cookie:"), HasSubstr("if-mod"),
                                                HasSubstr("if-none-match:")))));
}

TEST(CurlURLLoading, UsesTheProxyOfTheEnvironment) {
  const LoopbackServer proxy(answerWith("by proxy"));
  setenv("http_proxy", proxy.url().c_str(), 1);
  EXPECT_EQ(loaded("http://no.such.host.invalid/x"), "by proxy");
  unsetenv("http_proxy");
  EXPECT_THAT(proxy.requests().at(0), HasSubstr("get http://no.such.host.invalid/x http/1.1\r\n"));
}

TEST(CurlURLLoading, CancellationEndsAllRequestsAtOnceAndForEver) {
  std::promise<void> bothArrived;
  std::atomic<int> arrived = 0;
  const LoopbackServer server([&](Client& client) {
    if (client.head().starts_with("get /half")) client.send("HTTP/1.1 200 OK\r\n\r\nhalf");
    if (++arrived == 2) bothArrived.set_value();
    client.hang();
  });
  CurlURLLoading loading;
  auto half = begun(loading, {.url = server.url("/half")});
  auto silent = begun(loading, {.url = server.url("/silent")});
  bothArrived.get_future().wait();
  const auto begin = std::chrono::steady_clock::now();
  loading.cancelAllRequests();
  EXPECT_EQ(half.get(), std::nullopt);
  EXPECT_EQ(silent.get(), std::nullopt);
  EXPECT_EQ(begun(loading, {.url = server.url("/late")}).get(), std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 100ms);
  EXPECT_THAT(server.requests(), SizeIs(2));
}

} // namespace

} // namespace wrenvale::platform
