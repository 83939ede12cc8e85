#include "platform/net/HTTPExchange.h"

#include <algorithm>
#include <memory>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "platform/net/ExitGate.h"

namespace wrenvale::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr qint64 kReadBufferSize = 64 * 1024;
constexpr int kFirstErrorStatus = 400;

std::chrono::milliseconds timeUntil(Clock::time_point moment) {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(moment - Clock::now());
  return std::max(left, std::chrono::milliseconds(0));
}

// What a client that was given the name sends, although it connects to an address.
void setConnection(QNetworkRequest& request, const HTTPQuestion& question) {
  if (question.address.isEmpty()) return;
  QUrl url = question.url;
  const auto host = url.host(QUrl::FullyEncoded);
  const auto port = url.port() < 0 ? QString() : QStringLiteral(":%1").arg(url.port());
  url.setHost(question.address);
  request.setUrl(url);
  request.setRawHeader("Host", (host + port).toLatin1());
  request.setPeerVerifyName(host);
}

QNetworkRequest requestFor(const HTTPQuestion& question) {
  using Request = QNetworkRequest;
  Request request(question.url);
  request.setAttribute(Request::CacheLoadControlAttribute, Request::AlwaysNetwork);
  request.setAttribute(Request::CacheSaveControlAttribute, false);
  request.setAttribute(Request::CookieLoadControlAttribute, Request::Manual);
  request.setAttribute(Request::CookieSaveControlAttribute, Request::Manual);
  request.setAttribute(Request::AuthenticationReuseAttribute, Request::Manual);
  request.setAttribute(Request::RedirectPolicyAttribute, Request::ManualRedirectPolicy);
  request.setAttribute(Request::Http2AllowedAttribute, false);
  // Qt's own check would only stall such an answer; the bound holds after decompression anyway.
  request.setDecompressedSafetyCheckThreshold(-1);
  setConnection(request, question);
  for (const auto& [name, value] : question.headers)
    request.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
  return request;
}

// The objects live on the calling thread and are driven by an event loop inside run().
class Exchange {
public:
  explicit Exchange(const HTTPQuestion& question)
      : question_(question) {
    manager_.setProxy(question.proxy);
    reply_.reset(manager_.get(requestFor(question)));
    reply_->setReadBufferSize(kReadBufferSize);
    connectSignals();
    armExitGate();
  }

  HTTPAnswer run() {
    const auto quit = [this] {
      QMetaObject::invokeMethod(&loop_, &QEventLoop::quit, Qt::QueuedConnection);
    };
    const std::stop_callback stopped(question_.stop, quit);
    QTimer::singleShot(timeUntil(question_.deadline), &loop_, &QEventLoop::quit);
    QTimer::singleShot(timeUntil(question_.connectDeadline), &loop_, [this] {
      if (!answer_.wasReached) loop_.quit();
    });
    loop_.exec();
    if (isWhole()) answer_.body = std::move(body_);
    return std::move(answer_);
  }

private:
  void connectSignals() {
    const auto reached = [this] { answer_.wasReached = true; };
    QObject::connect(reply_.get(), &QNetworkReply::requestSent, &loop_, reached);
    QObject::connect(reply_.get(), &QNetworkReply::metaDataChanged, &loop_, [this] { readHead(); });
    QObject::connect(reply_.get(), &QNetworkReply::readyRead, &loop_, [this] { readBody(); });
    QObject::connect(reply_.get(), &QNetworkReply::finished, &loop_, [this] { finish(); });
  }

  // The body of a redirection is of no interest.
  void readHead() {
    const auto target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isEmpty()) return;
    answer_.redirection = question_.url.resolved(target);
    loop_.quit();
  }

  void readBody() {
    char buffer[16 * 1024];
    while (body_.size() <= kLongestBody) {
      const auto count = reply_->read(buffer, sizeof(buffer));
      if (count <= 0) return;
      body_.append(buffer, static_cast<std::size_t>(count));
    }
    loop_.quit();
  }

  void finish() {
    answer_.wasReached = answer_.wasReached || isAnswered();
    readBody();
    finished_ = true;
    loop_.quit();
  }

  int status() const { return reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

  bool isAnswered() const { return status() != 0; }

  // Qt reports a status of 400 and above as an error, which it is not here; every other error says
  // that the exchange failed.
  bool isErrorOfStatusOnly() const {
    const auto error = reply_->error();
    const bool aboutContent =
        error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError;
    const bool aboutRequest = error == QNetworkReply::ProtocolInvalidOperationError;
    const bool aboutServer =
        error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError;
    return status() >= kFirstErrorStatus && (aboutContent || aboutRequest || aboutServer);
  }

  // Qt itself overlooks now and then that the connection broke off. What it inflated has no length
  // of its own in the head.
  bool isAsLongAsAnnounced() const {
    const auto length = reply_->header(QNetworkRequest::ContentLengthHeader);
    return !length.isValid() || length.toULongLong() == body_.size();
  }

  bool isWhole() const {
    if (!finished_ || !isAnswered() || body_.size() > kLongestBody) return false;
    if (!isAsLongAsAnnounced()) return false;
    if (!answer_.redirection.isEmpty() || question_.stop.stop_requested()) return false;
    return reply_->error() == QNetworkReply::NoError || isErrorOfStatusOnly();
  }

  const HTTPQuestion& question_;
  QEventLoop loop_;
  QNetworkAccessManager manager_;
  std::unique_ptr<QNetworkReply> reply_;
  std::string body_;
  bool finished_ = false;
  HTTPAnswer answer_;
};

} // namespace

HTTPAnswer httpGet(const HTTPQuestion& question) {
  return Exchange(question).run();
}

} // namespace wrenvale::platform
