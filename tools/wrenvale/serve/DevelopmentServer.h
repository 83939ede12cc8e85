// The HTTP side of `wrenvale serve`.

#ifndef WRENVALE_TOOLS_WRENVALE_SERVE_DEVELOPMENTSERVER_H
#define WRENVALE_TOOLS_WRENVALE_SERVE_DEVELOPMENTSERVER_H

#include <filesystem>
#include <functional>
#include <mutex>
#include <string>

#include <httplib.h>

#include "tools/wrenvale/newsletter/Subscription.h"
#include "tools/wrenvale/serve/ListenAddress.h"

namespace wrenvale::kit {

/// Answers GET and HEAD with the files of a folder, and the addresses of redirects with a page that
/// says where they lead; takes in subscriptions to the newsletter. Nothing may be kept in a cache:
/// the folder is being worked on. One request is answered for each connection.
class DevelopmentServer {
public:
  using Log = std::function<void(const std::string& line)>;

  /// `log` gets one line for each request as soon as it is answered, and before it one for what
  /// came of a subscription; it is called on the server's threads, one call at a time.
  DevelopmentServer(std::filesystem::path folder, Newsletter newsletter, Log log);

  /// Takes the address; port 0 stands for any that is free. The port, or -1 with errno set when it
  /// cannot be had (EADDRINUSE: another server has it).
  int bind(const ListenAddress& address);

  /// Serves on threads of its own until `untilAsked` returns, then closes every connection. False
  /// when the server could not run.
  bool run(const std::function<void()>& untilAsked);

private:
  void answer(const httplib::Request& request, httplib::Response& response);
  void subscribe(const httplib::Request& request, httplib::Response& response);
  void log(const httplib::Request& request, const httplib::Response& response);

  const std::filesystem::path folder_;
  const Newsletter newsletter_;
  const Log log_;
  std::mutex logging_;
  httplib::Server server_;
};

} // namespace wrenvale::kit

#endif
