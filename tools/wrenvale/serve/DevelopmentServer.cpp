#include "tools/wrenvale/serve/DevelopmentServer.h"

#include <sys/socket.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <thread>

#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/newsletter/Subscription.h"
#include "tools/wrenvale/serve/RedirectPage.h"
#include "tools/wrenvale/serve/RequestLog.h"

namespace wrenvale::kit {

namespace {

using HandlerResponse = httplib::Server::HandlerResponse;

constexpr std::size_t kLongestBody = std::size_t(1) << 20U;
constexpr std::time_t kPatience = 1; // seconds
constexpr const char* kPlainText = "text/plain; charset=utf-8";

std::string localTime() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  char text[32] = "";
  std::strftime(text, sizeof text, "%F %T", localtime_r(&now, &parts));
  return text;
}

// Unlike the library's own choice, lets no second server share the port.
void allowQuickRestart(socket_t socket) {
  const int yes = 1;
  setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

void refuse(httplib::Response& response, int status, const char* text) {
  response.status = status;
  response.set_content(text, kPlainText);
}

} // namespace

DevelopmentServer::DevelopmentServer(std::filesystem::path folder, Newsletter newsletter, Log log)
    : folder_(std::move(folder))
    , newsletter_(std::move(newsletter))
    , log_(std::move(log)) {
  server_.set_socket_options(allowQuickRestart);
  server_.set_keep_alive_max_count(1);
  server_.set_keep_alive_timeout(kPatience);
  server_.set_read_timeout(kPatience);
  server_.set_write_timeout(kPatience);
  server_.set_payload_max_length(kLongestBody);
  server_.set_default_headers({{"Cache-Control", "no-store"}});
  server_.set_pre_routing_handler([this](const auto& request, auto& response) {
    if (request.method != "GET" && request.method != "HEAD") return HandlerResponse::Unhandled;
    answer(request, response);
    return HandlerResponse::Handled;
  });
  server_.set_error_handler([](const httplib::Request& request, httplib::Response& response) {
    if (response.status != 404 || request.method == "GET" || request.method == "HEAD") return;
    response.set_header("Allow", "GET, HEAD");
    refuse(response, 405, "This server only answers GET and HEAD.\n");
  });
  server_.set_logger(
      [this](const auto& request, const auto& response) { this->log(request, response); });
}

int DevelopmentServer::bind(const ListenAddress& address) {
  errno = 0;
  if (address.port == 0) return server_.bind_to_any_port(address.host);
  return server_.bind_to_port(address.host, address.port) ? address.port : -1;
}

bool DevelopmentServer::run(const std::function<void()>& untilAsked) {
  std::atomic<bool> ended = false;
  std::atomic<bool> well = false;
  std::thread listening([&] {
    well = server_.listen_after_bind();
    ended = true;
  });
  // A server cannot be stopped before it has begun.
  while (!server_.is_running() && !ended)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  if (!ended) untilAsked();
  server_.stop();
  listening.join();
  return well;
}

void DevelopmentServer::answer(const httplib::Request& request, httplib::Response& response) {
  if (request.path == kSubscribePath && request.method == "GET")
    return subscribe(request, response);
  if (const auto page = redirectPage(request.path))
    return response.set_content(*page, "text/html; charset=utf-8");
  const auto file = answeringFile(folder_, request.path);
  const auto contents = file ? contentsOf(*file) : std::nullopt;
  if (!contents) return refuse(response, 404, "There is no such file.\n");
  response.set_content(*contents, contentType(*file));
}

void DevelopmentServer::subscribe(const httplib::Request& request, httplib::Response& response) {
  const auto answer = newsletter_.take(request.get_param_value("data"));
  response.status = answer.status;
  response.set_content(answer.text + "\n", kPlainText);
  const std::lock_guard guard(logging_);
  log_(localTime() + " " + answer.text);
}

void DevelopmentServer::log(const httplib::Request& request, const httplib::Response& response) {
  const std::lock_guard guard(logging_);
  log_(logLine({.time = localTime(),
                .status = response.status,
                .method = request.method,
                .target = request.target,
                .userAgent = request.get_header_value("User-Agent")}));
}

} // namespace wrenvale::kit
