#include "platform/net/HostLookup.h"

#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace wrenvale::platform {

namespace {

using Addresses = std::vector<std::string>;

struct Answer {
  std::mutex mutex;
  std::condition_variable_any given;
  bool isGiven = false;
  Addresses addresses;
};

std::string textOf(const addrinfo& info) {
  char text[NI_MAXHOST] = "";
  getnameinfo(info.ai_addr, info.ai_addrlen, text, sizeof(text), nullptr, 0, NI_NUMERICHOST);
  return text;
}

Addresses askSystem(const std::string& host) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_ADDRCONFIG;
  addrinfo* list = nullptr;
  if (getaddrinfo(host.c_str(), nullptr, &hints, &list) != 0) return {};
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(list, &freeaddrinfo);
  Addresses addresses;
  for (const auto* info = list; info; info = info->ai_next) {
    auto text = textOf(*info);
    const bool isNew = std::find(addresses.begin(), addresses.end(), text) == addresses.end();
    if (!text.empty() && isNew) addresses.push_back(std::move(text));
  }
  return addresses;
}

void giveAnswer(Answer& answer, Addresses addresses) {
  const std::lock_guard lock(answer.mutex);
  answer.isGiven = true;
  answer.addresses = std::move(addresses);
  answer.given.notify_all();
}

} // namespace

std::vector<std::string> addressesOfHost(const std::string& host, const std::stop_token& stop,
                                         std::chrono::steady_clock::time_point deadline) {
  const auto answer = std::make_shared<Answer>();
  std::thread([host, answer]() noexcept { giveAnswer(*answer, askSystem(host)); }).detach();
  std::unique_lock lock(answer->mutex);
  answer->given.wait_until(lock, stop, deadline, [&] { return answer->isGiven; });
  return stop.stop_requested() ? Addresses() : answer->addresses;
}

} // namespace wrenvale::platform
