#include "tests/desktop/net/LoopbackServer.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>

namespace wrenvale::platform {

bool LoopbackServer::Connection::send(std::string_view bytes) const {
  const auto sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  return sent == static_cast<ssize_t>(bytes.size());
}

void LoopbackServer::Connection::hang() const {
  for (char byte = 0; recv(socket, &byte, 1, 0) > 0;) {
  }
}

LoopbackServer::LoopbackServer(std::string answer)
    : LoopbackServer([answer = std::move(answer)](Connection& client) { client.send(answer); }) {}

LoopbackServer::LoopbackServer(Script script)
    : script_(std::move(script))
    , listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  socklen_t size = sizeof(address);
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  bind(listener_, generic, size);
  listen(listener_, SOMAXCONN);
  getsockname(listener_, generic, &size);
  port_ = ntohs(address.sin_port);
  acceptor_ = std::jthread([this] {
    for (int socket = 0; (socket = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
      sockets_.push_back(socket);
      threads_.emplace_back([this, socket] { serve(socket); });
    }
  });
}

LoopbackServer::~LoopbackServer() {
  shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  for (const int socket : sockets_)
    shutdown(socket, SHUT_RDWR);
  threads_.clear();
  for (const int socket : sockets_)
    close(socket);
  close(listener_);
}

std::string LoopbackServer::url(std::string_view path, std::string_view host) const {
  return "http://" + std::string(host) + ":" + std::to_string(port_) + std::string(path);
}

std::vector<std::string> LoopbackServer::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

void LoopbackServer::serve(int socket) {
  std::string head;
  char buffer[4096];
  while (head.find("\r\n\r\n") == std::string::npos) {
    const auto count = recv(socket, buffer, sizeof(buffer), 0);
    if (count <= 0) break;
    head.append(buffer, static_cast<std::size_t>(count));
  }
  std::ranges::transform(head, head.begin(), [](unsigned char c) { return std::tolower(c); });
  Connection client{socket, head};
  std::unique_lock lock(mutex_);
  requests_.push_back(head);
  lock.unlock();
  script_(client);
  shutdown(socket, SHUT_WR);
}

std::string answerWith(std::string_view body, std::string_view status, std::string_view headers) {
  const std::string head = "HTTP/1.1 " + std::string(status) + "\r\n" + std::string(headers);
  return head + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + std::string(body);
}

} // namespace wrenvale::platform
