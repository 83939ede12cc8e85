// A network, encryption and JSON in memory.

#ifndef WRENVALE_PLATFORM_FAKE_FAKENET_H
#define WRENVALE_PLATFORM_FAKE_FAKENET_H

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Net.h"

namespace wrenvale::platform {

/// A network of answers by address; every other address cannot be reached.
class FakeURLLoading : public URLLoading {
public:
  std::optional<std::string> sendSynchronousRequest(const URLRequest& request) override;

  std::map<std::string, std::string> answers;
  std::vector<URLRequest> requests;   ///< all that were sent, in order
  std::function<void()> whileLoading; ///< called during each request
};

/// "Encrypts" by putting the text between brackets, so that a test can read what was sent.
class FakeEncryption : public Encryption {
public:
  ImportedKey importPublicKey(std::string_view pem) override;

  std::int16_t status = 0;    ///< of every import
  bool moduleMissing = false; ///< no key and no error
  std::size_t longest = 117;  ///< longest text that the key takes, in bytes
  std::string importedPEM;    ///< the last one
};

/// Knows the documents that the test filed under their text; any other text is no document.
class FakeJSON : public JSONSerialization {
public:
  std::optional<Value> JSONObjectWithData(std::string data) override;

  std::map<std::string, Value> documents;
};

} // namespace wrenvale::platform

#endif
