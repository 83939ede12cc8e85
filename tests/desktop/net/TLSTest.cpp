// Downloads over TLS.

#include <gtest/gtest.h>

#include <netinet/in.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <future>
#include <memory>
#include <mutex>
#include <thread>

#include "desktop/net/http/CurlURLLoading.h"
#include "tests/desktop/linux/TemporaryFolder.h"
#include "tests/desktop/net/LoopbackServer.h"

namespace wrenvale::platform {

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;

// Signed by itself, for "localhost" alone.
Certificate certificateFor(EVP_PKEY* key) {
  Certificate certificate(X509_new(), &X509_free);
  X509_set_version(certificate.get(), X509_VERSION_3);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -3600);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
  X509_set_pubkey(certificate.get(), key);
  auto* name = X509_get_subject_name(certificate.get());
  X509_NAME_add_entry_by_txt(name, "O", MBSTRING_ASC,
                             reinterpret_cast<const unsigned char*>("Tests"), -1, -1, 0);
  X509_set_issuer_name(certificate.get(), name);
  auto* extension = X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "DNS:localhost");
  X509_add_ext(certificate.get(), extension, -1);
  X509_EXTENSION_free(extension);
  X509_sign(certificate.get(), key, EVP_sha256());
  return certificate;
}

// Gives every client the same answer, over TLS, on a port of 127.0.0.1.
class TLSServer {
public:
  explicit TLSServer(std::string answer)
      : answer_(std::move(answer))
      , key_(EVP_EC_gen("P-256"), &EVP_PKEY_free)
      , certificate_(certificateFor(key_.get()))
      , context_(SSL_CTX_new(TLS_server_method())) {
    std::signal(SIGPIPE, SIG_IGN); // a client that mistrusts the server leaves at once
    SSL_CTX_use_certificate(context_, certificate_.get());
    SSL_CTX_use_PrivateKey(context_, key_.get());
    sockaddr_in address{};
    socklen_t size = sizeof(address);
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
    listen(listener_, SOMAXCONN);
    getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
  }

  ~TLSServer() {
    shutdown(listener_, SHUT_RDWR);
    thread_.join();
    close(listener_);
    SSL_CTX_free(context_);
  }

  std::string url(const std::string& host) const {
    return "https://" + host + ":" + std::to_string(port_) + "/";
  }
  X509* certificate() const { return certificate_.get(); }
  /// The name that the last client asked for.
  std::string serverName() const {
    const std::lock_guard lock(mutex_);
    return serverName_;
  }

private:
  void serve() {
    for (int socket = 0; (socket = accept(listener_, nullptr, nullptr)) >= 0; close(socket)) {
      const std::unique_ptr<SSL, decltype(&SSL_free)> ssl(SSL_new(context_), &SSL_free);
      SSL_set_fd(ssl.get(), socket);
      char head[4096];
      if (SSL_accept(ssl.get()) != 1 || SSL_read(ssl.get(), head, sizeof(head)) <= 0) continue;
      const char* name = SSL_get_servername(ssl.get(), TLSEXT_NAMETYPE_host_name);
      {
        const std::lock_guard lock(mutex_);
        serverName_ = name ? name : "";
      }
      SSL_write(ssl.get(), answer_.data(), static_cast<int>(answer_.size()));
      SSL_shutdown(ssl.get());
    }
  }

  const std::string answer_;
  const Key key_;
  const Certificate certificate_;
  SSL_CTX* const context_;
  const int listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int port_ = 0;
  mutable std::mutex mutex_;
  std::string serverName_;
  std::thread thread_;
};

std::optional<std::string> loaded(const std::string& url) {
  CurlURLLoading loading;
  return std::async(std::launch::async,
                    [&] { return loading.sendSynchronousRequest({.url = url}); })
      .get();
}

// While this lives, the certificate is good for what it says and no other is.
class Trust {
public:
  explicit Trust(X509* certificate) {
    const auto path = folder_.path("trusted.pem");
    auto* file = BIO_new_file(path.c_str(), "w");
    PEM_write_bio_X509(file, certificate);
    BIO_free(file);
    setenv("SSL_CERT_FILE", path.c_str(), 1);
  }
  ~Trust() { unsetenv("SSL_CERT_FILE"); }

private:
  const TemporaryFolder folder_;
};

TEST(TLS, TrustsTheSystemsCertificatesForTheNameThatWasAskedFor) {
  const TLSServer server(answerWith("secret"));
  EXPECT_EQ(loaded(server.url("localhost")), std::nullopt) << "nobody vouches for it yet";
  const Trust trust(server.certificate());
  EXPECT_EQ(loaded(server.url("localhost")), "secret");
  EXPECT_EQ(server.serverName(), "localhost");
  EXPECT_EQ(loaded(server.url("127.0.0.1")), std::nullopt) << "the certificate is for another name";
}

TEST(TLS, IsNotLeftForAPlainConnection) {
  const LoopbackServer plain(answerWith("plain"));
  const TLSServer server(answerWith("", "302 Found", "Location: " + plain.url() + "\r\n"));
  const Trust trust(server.certificate());
  EXPECT_EQ(loaded(server.url("localhost")), std::nullopt);
  EXPECT_TRUE(plain.requests().empty());
  EXPECT_EQ(server.serverName(), "localhost");
}

} // namespace

} // namespace wrenvale::platform
