#include "benchmarks/recommend/Documents.h"

#include <unordered_set>
#include <vector>

namespace wrenvale::benchmark {

namespace {

constexpr std::size_t kInstalled = 50;
constexpr std::size_t kNamedByDependencies = 500;

std::string identifier(std::size_t number) {
  return "com.example.app" + std::to_string(number);
}

std::string dependency(std::size_t number) {
  return R"({"bundle_id": ")" + identifier(number % kNamedByDependencies) +
         R"(", "dependency_score": )" + std::to_string(number % 40) +
         R"(, "sp_description": "Made for each other"})";
}

std::string candidate(std::size_t i) {
  const std::string number = std::to_string(i);
  const std::string group = i % 8 == 0 ? "group" + std::to_string(i / 128) : "own" + number;
  return R"({"bundle_id": ")" + identifier(i + 20) + R"(", "sp_name": "Application )" + number +
         R"(", "sp_icon": "application-)" + number +
         R"(.png", "brick": "http://vendor.example/bricks/application-)" + number +
         R"(.png", "media": "http://vendor.example/films/application-)" + number +
         R"(.mp4", "sp_description": "Takes your pictures from the camera to the wall, )" + number +
         R"( steps faster.", "sp_link_name": "Learn more", "link": "http://vendor.example/apps/)" +
         number + R"(", "group": ")" + group +
         R"(", "alert_text": "Thank you for using our applications!", "alert_link": ")" +
         R"(http://vendor.example/offers/)" + number +
         R"(", "alert_link_name": "See the offer", "priority_score": )" +
         std::to_string(i * 7919 % 1000) +
         R"(, "exclude": ["com.example.rival"], "dependency": [)" + dependency(i) + ", " +
         dependency(i * 31 + 7) + R"(, {"bundle_id": ")" + kHost +
         R"(", "in_app_check": true, "dependency_score": 5}]})";
}

} // namespace

std::string recommenderDocument(std::size_t candidates) {
  std::string text;
  text.reserve(candidates * 950 + 1000);
  text.append(R"({"options": {"stable_versions": [{"bundle_id": ")").append(kHost);
  text.append(R"(", "build_number": )").append(std::to_string(kBuild)).append("}]}, \"apps\": [");
  for (std::size_t i = 0; i < candidates; ++i)
    text.append(i ? ",\n" : "\n").append(candidate(i));
  text.append("]}");
  return text;
}

bool isInstalled(std::string_view name) {
  static const auto& names = *[] {
    auto* made = new std::vector<std::string>{kHost};
    for (std::size_t i = 0; i < kInstalled; ++i)
      made->push_back(identifier(i * 11));
    return made;
  }();
  static const auto& installed =
      *new std::unordered_set<std::string_view>(names.begin(), names.end());
  return installed.contains(name);
}

} // namespace wrenvale::benchmark
