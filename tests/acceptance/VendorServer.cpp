#include "tests/acceptance/VendorServer.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

namespace wrenvale::tests {

namespace {

int lockedPort() {
  const auto file = std::filesystem::temp_directory_path() /
                    ("wrenvale-port-" + std::to_string(VENDOR_PORT) + ".lock");
  const int lock = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (lock < 0 || flock(lock, LOCK_EX) != 0)
    throw std::runtime_error("cannot lock " + file.string());
  return lock;
}

} // namespace

VendorServer::VendorServer(Handler handler)
    : lock_(lockedPort()) {
  const auto answer = [this, handler = std::move(handler)](const httplib::Request& request,
                                                           httplib::Response& response) {
    {
      const std::lock_guard guard(mutex_);
      requests_.push_back({request.path, request.get_header_value("User-Agent")});
    }
    handler(request, response);
  };
  server_.set_keep_alive_max_count(1);
  server_.set_keep_alive_timeout(1);
  server_.Get(".*", answer);
  // A port that an ended test's connections linger on may be taken; one that another server has may
  // not.
  server_.set_socket_options([](socket_t socket) {
    const int yes = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  });
  if (!server_.bind_to_port("127.0.0.1", VENDOR_PORT))
    throw std::runtime_error("port " + std::to_string(VENDOR_PORT) + " is taken");
  thread_ = std::thread([this] { server_.listen_after_bind(); });
  while (!server_.is_running())
    std::this_thread::yield();
}

VendorServer::VendorServer(std::string body)
    : VendorServer([body = std::move(body)](const auto&, httplib::Response& response) {
      response.set_content(body, "application/json");
    }) {}

VendorServer::~VendorServer() {
  server_.stop();
  thread_.join();
  close(lock_);
}

std::vector<SeenRequest> VendorServer::requests() const {
  const std::lock_guard guard(mutex_);
  return requests_;
}

} // namespace wrenvale::tests
