#include "platform/fake/FakeNet.h"

namespace wrenvale::platform {

std::optional<std::string> FakeURLLoading::sendSynchronousRequest(const URLRequest& request) {
  requests.push_back(request);
  if (whileLoading) whileLoading();
  const auto found = answers.find(request.url);
  return found == answers.end() ? std::nullopt : std::optional(found->second);
}

ImportedKey FakeEncryption::importPublicKey(std::string_view pem) {
  importedPEM = pem;
  if (status != 0 || moduleMissing) return {.status = status};
  return {.encrypt = [longest = longest](std::string_view text) -> std::optional<std::string> {
    if (text.size() > longest) return std::nullopt;
    return "[" + std::string(text) + "]";
  }};
}

std::optional<Value> FakeJSON::JSONObjectWithData(std::string data) {
  const auto found = documents.find(data);
  if (found == documents.end()) return std::nullopt;
  return found->second;
}

} // namespace wrenvale::platform
