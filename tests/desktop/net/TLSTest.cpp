// Downloads over TLS.

#include <gtest/gtest.h>

#include <cstdlib>
#include <future>

#include <httplib.h>

#include "desktop/net/http/CurlURLLoading.h"
#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

namespace {

// A server on a port of 127.0.0.1, with a certificate that is signed by itself, for "localhost"
// alone.
class TLSServer {
public:
  explicit TLSServer(const httplib::Server::Handler& handler) {
    server_.Get("/", handler);
    port_ = server_.bind_to_any_port("127.0.0.1");
    thread_ = std::jthread([this] { server_.listen_after_bind(); });
    while (!server_.is_running())
      std::this_thread::yield();
  }
  ~TLSServer() {
    server_.stop();
    unsetenv("SSL_CERT_FILE");
  }

  // The certificate is good for what it says from now on, and no other is.
  void trust() const { setenv("SSL_CERT_FILE", certificate_.c_str(), 1); }

  std::optional<std::string> loaded(const std::string& host) const {
    const URLRequest request{.url = "https://" + host + ":" + std::to_string(port_) + "/"};
    CurlURLLoading loading;
    return std::async([&] { return loading.sendSynchronousRequest(request); }).get();
  }

private:
  std::string made(const std::string& name) const {
    const std::string command = "openssl req -x509 -newkey rsa:2048 -nodes -subj /O=Tests "
                                "-addext subjectAltName=DNS:localhost 2>/dev/null -keyout " +
                                folder_.path("/key.pem") + " -out ";
    return std::system((command + folder_.path(name)).c_str()) == 0 ? folder_.path(name) : "";
  }

  const TemporaryFolder folder_;
  const std::string certificate_ = made("/certificate.pem");
  httplib::SSLServer server_{certificate_.c_str(), folder_.path("/key.pem").c_str()};
  int port_ = 0;
  std::jthread thread_;
};

TEST(TLS, TrustsTheSystemsCertificatesForTheNameThatWasAskedFor) {
  const TLSServer server([](const auto&, auto& response) { response.body = "secret"; });
  EXPECT_EQ(server.loaded("localhost"), std::nullopt) << "nobody vouches for it yet";
  server.trust();
  EXPECT_EQ(server.loaded("localhost"), "secret");
  EXPECT_EQ(server.loaded("127.0.0.1"), std::nullopt) << "the certificate is for another name";
}

TEST(TLS, IsNotLeftForAPlainConnection) {
  const LoopbackServer plain(answerWith("plain"));
  std::atomic<int> calls = 0;
  const TLSServer server([&](const auto&, auto& response) {
    ++calls;
    response.set_redirect(plain.url());
  });
  server.trust();
  EXPECT_EQ(server.loaded("localhost"), std::nullopt);
  EXPECT_EQ(calls, 1);
  EXPECT_TRUE(plain.requests().empty());
}

} // namespace

} // namespace wrenvale::platform
