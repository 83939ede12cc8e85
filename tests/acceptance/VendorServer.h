// The maker's server on the address that the library was built for.

#ifndef WRENVALE_TESTS_ACCEPTANCE_VENDORSERVER_H
#define WRENVALE_TESTS_ACCEPTANCE_VENDORSERVER_H

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <httplib.h>

namespace wrenvale::tests {

struct SeenRequest {
  std::string path;
  std::string userAgent; ///< percent-decoded
};

/// Only one process on the machine may have the address: a file lock keeps tests of other build
/// trees waiting, ctest's resource lock those of this one.
class VendorServer {
public:
  using Handler = std::function<void(const httplib::Request&, httplib::Response&)>;

  /// Answers every request with `handler`.
  explicit VendorServer(Handler handler);
  /// Answers every request with this body.
  explicit VendorServer(std::string body);
  ~VendorServer();

  std::vector<SeenRequest> requests() const;

private:
  int lock_;
  mutable std::mutex mutex_;
  std::vector<SeenRequest> requests_;
  httplib::Server server_;
  std::thread thread_;
};

} // namespace wrenvale::tests

#endif
