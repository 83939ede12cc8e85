#include "desktop/net/http/CurlURLLoading.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <string_view>

#include <strings.h>

#include <curl/curl.h>
#include <openssl/ssl.h>

#include "base/Log.h"
#include "desktop/net/crypto/OpenSSLEncryption.h"

namespace wrenvale::platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kMostRedirections = 10;
constexpr std::size_t kLongestHead = 256 * 1024;

using Easy = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using Multi = std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)>;
using Headers = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

bool hasScheme(std::string_view url, std::string_view scheme) {
  return url.size() > scheme.size() && strncasecmp(url.data(), scheme.data(), scheme.size()) == 0;
}

bool isSecure(std::string_view url) {
  return hasScheme(url, "https://");
}
bool isLoadable(std::string_view url) {
  return isSecure(url) || hasScheme(url, "http://");
}

// A line break would let a value add headers of its own.
bool isOneLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool isSendable(const URLRequest& request) {
  const auto isHeader = [](const auto& header) {
    return isOneLine(header.first) && isOneLine(header.second);
  };
  return request.httpMethod == "GET" &&
         std::all_of(request.headers.begin(), request.headers.end(), isHeader);
}

Headers headerList(const URLRequest& request) {
  Headers list(nullptr, &curl_slist_free_all);
  for (const auto& [name, value] : request.headers) {
    auto* longer = curl_slist_append(list.get(), (name + ": " + value).c_str());
    if (!longer) throw std::bad_alloc();
    static_cast<void>(list.release()); // a part of the longer one
    list.reset(longer);
  }
  return list;
}

// One request and its answer. Checks the time and `stop` whenever any byte arrives.
class Exchange {
public:
  Exchange(const std::string& url, curl_slist* headers, const std::stop_token& stop,
           Clock::time_point deadline)
      : stop_(stop)
      , deadline_(deadline) {
    if (!easy_ || !multi_) throw std::bad_alloc();
    setRequest(url, headers);
    setTrust();
    setReceivers();
  }

  /// False when the exchange failed, was stopped or came too late.
  bool run() {
    const std::stop_callback wakeUp(stop_, [this] { curl_multi_wakeup(multi_.get()); });
    if (curl_multi_add_handle(multi_.get(), easy_.get()) != CURLM_OK) return false;
    int running = 1;
    while (running != 0 && !mustEnd() && curl_multi_perform(multi_.get(), &running) == CURLM_OK)
      if (running != 0) curl_multi_poll(multi_.get(), nullptr, 0, timeLeft(), nullptr);
    const bool isWhole = running == 0 && succeeded();
    curl_multi_remove_handle(multi_.get(), easy_.get());
    return isWhole && !mustEnd();
  }

  /// What came of it, in words.
  std::string outcome() const {
    if (stop_.stop_requested()) return "given up: the process ends";
    if (Clock::now() >= deadline_) return "timed out";
    if (result_ != CURLE_OK) return curl_easy_strerror(result_);
    long status = 0;
    curl_easy_getinfo(easy_.get(), CURLINFO_RESPONSE_CODE, &status);
    return "status " + std::to_string(status) + ", " + std::to_string(body_.size()) + " bytes";
  }

  /// Where the answer sends the client, as an absolute address; empty for a real answer.
  std::string redirection() const {
    const char* url = nullptr;
    curl_easy_getinfo(easy_.get(), CURLINFO_REDIRECT_URL, &url);
    return url ? url : "";
  }

  std::string takeBody() { return std::move(body_); }

private:
  template <class Value>
  void set(CURLoption option, Value value) {
    curl_easy_setopt(easy_.get(), option, value);
  }

  void setRequest(const std::string& url, curl_slist* headers) {
    set(CURLOPT_URL, url.c_str());
    set(CURLOPT_HTTPHEADER, headers);
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L); // waits for no name server
  }

  // Reads only the certificates that a server needs: the system's file has all of them.
  void setTrust() {
    set(CURLOPT_CAINFO, static_cast<const char*>(nullptr));
    set(CURLOPT_CAPATH, static_cast<const char*>(nullptr));
    set(CURLOPT_SSL_CTX_FUNCTION, &Exchange::trustSystem);
  }

  void setReceivers() {
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_HEADERFUNCTION, &Exchange::headLineArrived);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_WRITEFUNCTION, &Exchange::bodyArrived);
    set(CURLOPT_NOPROGRESS, 0L);
    set(CURLOPT_XFERINFODATA, this);
    set(CURLOPT_XFERINFOFUNCTION, &Exchange::anythingArrived);
  }

  static CURLcode trustSystem(CURL*, void* context, void*) {
    const bool isDone = SSL_CTX_set_default_verify_paths(static_cast<SSL_CTX*>(context)) == 1;
    return isDone ? CURLE_OK : CURLE_SSL_CACERT_BADFILE;
  }

  static std::size_t headLineArrived(char* line, std::size_t, std::size_t size, void* self) {
    return static_cast<Exchange*>(self)->receiveHeadLine({line, size});
  }

  static std::size_t bodyArrived(char* bytes, std::size_t, std::size_t size, void* self) {
    return static_cast<Exchange*>(self)->receiveBody({bytes, size});
  }

  static int anythingArrived(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    return static_cast<Exchange*>(self)->mustEnd() ? 1 : 0;
  }

  // curl ends the exchange when a callback returns another size than it was given.
  std::size_t receiveHeadLine(std::string_view line) {
    headSize_ += line.size();
    isHeadWhole_ = line == "\r\n" || line == "\n";
    return headSize_ > kLongestHead || mustEnd() ? CURL_WRITEFUNC_ERROR : line.size();
  }

  std::size_t receiveBody(std::string_view bytes) {
    if (bytes.size() > kLongestBody - body_.size() || mustEnd()) return CURL_WRITEFUNC_ERROR;
    try {
      body_.append(bytes);
    } catch (const std::exception&) { // out of memory
      return CURL_WRITEFUNC_ERROR;
    }
    return bytes.size();
  }

  bool succeeded() {
    int left = 0;
    const CURLMsg* message = curl_multi_info_read(multi_.get(), &left);
    if (!message || message->msg != CURLMSG_DONE) return false;
    result_ = message->data.result;
    return result_ == CURLE_OK && isHeadWhole_;
  }

  int timeLeft() const {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - Clock::now());
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, 60'000));
  }

  bool mustEnd() const { return stop_.stop_requested() || Clock::now() >= deadline_; }

  const std::stop_token& stop_;
  const Clock::time_point deadline_;
  std::size_t headSize_ = 0;
  bool isHeadWhole_ = false; // libcurl takes one that breaks off for an answer
  std::string body_;
  CURLcode result_ = CURLE_OK;
  const Easy easy_{curl_easy_init(), &curl_easy_cleanup};
  const Multi multi_{curl_multi_init(), &curl_multi_cleanup};
};

bool setUpCurl() {
  setUpCrypto(); // before libcurl does it in its way
  static const bool isSetUp = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
  return isSetUp;
}

std::optional<std::string> download(const URLRequest& request, const std::stop_token& stop) {
  const auto deadline = Clock::now() + request.timeoutInterval;
  const auto headers = headerList(request);
  std::string url = request.url;
  for (int i = 0; i <= kMostRedirections && isLoadable(url); ++i) {
    Exchange exchange(url, headers.get(), stop, deadline);
    const bool isWhole = exchange.run();
    log::say("net", [&] { return url.substr(0, url.find('?')) + ": " + exchange.outcome(); });
    if (!isWhole) return std::nullopt;
    const auto redirection = exchange.redirection();
    if (redirection.empty()) return exchange.takeBody();
    if (isSecure(url) && !isSecure(redirection)) return std::nullopt;
    url = redirection;
  }
  return std::nullopt;
}

} // namespace

std::optional<std::string> CurlURLLoading::sendSynchronousRequest(const URLRequest& request) {
  const auto stop = stop_.get_token();
  if (stop.stop_requested() || !isSendable(request) || !setUpCurl()) return std::nullopt;
  try {
    return download(request, stop);
  } catch (const std::exception&) { // out of memory
    return std::nullopt;
  }
}

} // namespace wrenvale::platform
