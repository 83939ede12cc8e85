#include "platform/net/QtURLLoading.h"

#include <algorithm>
#include <exception>

#include <QHostAddress>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>

#include "platform/net/CryptoSetUp.h"
#include "platform/net/ExitGate.h"
#include "platform/net/HTTPExchange.h"
#include "platform/net/HostLookup.h"

namespace wrenvale::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kMostRedirections = 10;
// How long one of several addresses of a host may take to accept a connection.
constexpr std::chrono::seconds kConnectTime(5);

bool isSecure(const QUrl& url) {
  return url.scheme() == QLatin1String("https");
}

bool isLoadable(const QUrl& url) {
  const bool isHTTP = isSecure(url) || url.scheme() == QLatin1String("http");
  return isHTTP && url.isValid() && !url.host().isEmpty();
}

bool isAddress(const QString& host) {
  return !QHostAddress(host).isNull();
}

// A line break would let a value add headers of its own.
bool areLines(const URLRequest& request) {
  const auto isLine = [](const std::string& text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
  };
  return std::all_of(request.headers.begin(), request.headers.end(), [&](const auto& header) {
    return isLine(header.first) && isLine(header.second);
  });
}

QNetworkProxy proxyFor(const QUrl& url) {
  const auto proxies = QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(url));
  const bool isDirect = proxies.isEmpty() || proxies.first().type() == QNetworkProxy::DefaultProxy;
  return isDirect ? QNetworkProxy(QNetworkProxy::NoProxy) : proxies.first();
}

// One download: its redirections, and the addresses of each host on the way. Qt is given addresses
// only: its own look-ups make the end of the process wait for them.
class Download {
public:
  Download(const URLRequest& request, std::stop_token stop, Clock::time_point deadline)
      : request_(request)
      , stop_(std::move(stop))
      , deadline_(deadline) {}

  std::optional<std::string> run() {
    QUrl url(QString::fromStdString(request_.url), QUrl::StrictMode);
    for (int i = 0; i <= kMostRedirections && isLoadable(url); ++i) {
      if (isSecure(url)) setUpCrypto();
      auto answer = ask(url);
      if (answer.redirection.isEmpty()) return std::move(answer.body);
      if (isSecure(url) && !isSecure(answer.redirection)) return std::nullopt;
      url = answer.redirection;
    }
    return std::nullopt;
  }

private:
  // A proxy looks up the host; only its own name is looked up here.
  HTTPAnswer ask(const QUrl& url) const {
    HTTPQuestion question{.url = url,
                          .headers = request_.headers,
                          .deadline = deadline_,
                          .connectDeadline = deadline_,
                          .stop = stop_};
    question.proxy = proxyFor(url);
    const bool isDirect = question.proxy.type() == QNetworkProxy::NoProxy;
    const auto name = isDirect ? url.host(QUrl::FullyEncoded) : question.proxy.hostName();
    return isAddress(name) ? httpGet(question) : askEachAddress(question, name, isDirect);
  }

  HTTPAnswer askEachAddress(HTTPQuestion& question, const QString& name, bool isDirect) const {
    const auto addresses = addressesOfHost(name.toStdString(), stop_, deadline_);
    HTTPAnswer answer;
    for (std::size_t i = 0; i < addresses.size() && mayGoOn(answer); ++i) {
      const bool isLast = i + 1 == addresses.size();
      const auto address = QString::fromStdString(addresses[i]);
      if (isDirect)
        question.address = address;
      else
        question.proxy.setHostName(address);
      question.connectDeadline =
          isLast ? deadline_ : std::min(deadline_, Clock::now() + kConnectTime);
      answer = httpGet(question);
    }
    return answer;
  }

  bool mayGoOn(const HTTPAnswer& answer) const {
    return !answer.wasReached && !stop_.stop_requested() && Clock::now() < deadline_;
  }

  const URLRequest& request_;
  const std::stop_token stop_;
  const Clock::time_point deadline_;
};

} // namespace

std::optional<std::string> QtURLLoading::sendSynchronousRequest(const URLRequest& request) {
  std::stop_source stop;
  const RequestGate::Pass ours(gate_, stop);
  const RequestGate::Pass ofProcess(exitGate(), stop);
  if (!ours.isGranted() || !ofProcess.isGranted()) return std::nullopt;
  if (request.httpMethod != "GET" || !areLines(request)) return std::nullopt;
  const auto deadline = Clock::now() + request.timeoutInterval;
  try {
    if (!armExitGateForQt(stop.get_token(), deadline)) return std::nullopt;
    return Download(request, stop.get_token(), deadline).run();
  } catch (const std::exception&) { // out of memory or threads
    return std::nullopt;
  }
}

} // namespace wrenvale::platform
