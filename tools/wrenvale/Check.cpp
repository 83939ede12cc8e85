#include "tools/wrenvale/Check.h"

#include <algorithm>
#include <set>

#include "platform/net/JSONReader.h"
#include "recommend/RecommenderDocument.h"
#include "tools/wrenvale/DocumentSense.h"
#include "tools/wrenvale/JSONPlaces.h"
#include "tools/wrenvale/JSONSchema.h"
#include "tools/wrenvale/JSONText.h"
#include "tools/wrenvale/SiteFiles.h"

extern "C" {
extern const unsigned char wrenvale_recommender_schema[];
extern const unsigned long wrenvale_recommender_schema_size;
extern const unsigned char wrenvale_reset_schema[];
extern const unsigned long wrenvale_reset_schema_size;
}

namespace wrenvale::kit {

namespace {

namespace fs = std::filesystem;
using enum Finding::Weight;

constexpr std::string_view kReset = "reset_";
constexpr std::string_view kRecommender = "recommender_";
constexpr std::string_view kExtension = ".json";

struct Document {
  fs::path file;
  std::string text;
  Value value;
};

Value parsed(const unsigned char* schema, unsigned long size) {
  return platform::JSONReader()
      .JSONObjectWithData({reinterpret_cast<const char*>(schema), size})
      .object.value_or(Value());
}

bool isReset(const Document& document) {
  const std::string name = document.file.filename();
  if (name.starts_with(kReset)) return true;
  return !name.starts_with(kRecommender) && document.value.isArray();
}

std::string placeIn(const Document& document, std::size_t offset) {
  const auto place = placeOf(document.text, offset);
  return document.file.string() + ':' + std::to_string(place.line) + ':' +
         std::to_string(place.column);
}

// Nothing, after a finding, for a file that holds no document.
std::optional<Document> read(const fs::path& file, CheckReport& report) {
  ++report.documents;
  const auto text = contentsOf(file);
  if (!text) {
    report.findings.push_back({file, Error, "cannot be read"});
    return std::nullopt;
  }
  Document document{.file = file, .text = *text, .value = {}};
  const auto result = platform::JSONReader().JSONObjectWithData(*text);
  if (result.object) {
    document.value = *result.object;
    return document;
  }
  report.findings.push_back({placeIn(document, result.errorOffset), Error, result.error});
  return std::nullopt;
}

void add(Findings& findings, Findings more) {
  findings.insert(findings.end(), more.begin(), more.end());
}

Findings missingIcons(const Value& document, const fs::path& site) {
  Findings findings;
  std::size_t index = 0;
  for (const recommend::Candidate candidate : recommend::RecommenderDocument(document).apps()) {
    const auto pointer = childOf(childOf("/apps", index++), "sp_icon");
    const auto icon = candidate.icon ? "store/images/" + std::string(*candidate.icon) : "";
    if (!icon.empty() && !icon.ends_with('/') && !siteFile(site, '/' + icon))
      findings.push_back({pointer, Error, "there is no file " + icon});
  }
  return findings;
}

Findings findingsIn(const Document& document, const std::optional<fs::path>& site,
                    const Identifiers& known) {
  if (isReset(document)) {
    static const Value schema = parsed(wrenvale_reset_schema, wrenvale_reset_schema_size);
    auto findings = findingsBySchema(document.value, schema);
    add(findings, senseOfReset(document.value));
    return findings;
  }
  static const Value schema = parsed(wrenvale_recommender_schema, wrenvale_recommender_schema_size);
  auto findings = findingsBySchema(document.value, schema);
  add(findings, senseOfRecommender(document.value, known));
  if (site) add(findings, missingIcons(document.value, *site));
  return findings;
}

void checkDocument(const Document& document, const std::optional<fs::path>& site,
                   const Identifiers& known, CheckReport& report) {
  const JSONPlaces places(document.text);
  auto findings = findingsIn(document, site, known);
  for (const auto& pointer : places.repeated())
    findings.push_back({pointer, Error, "this key stands here twice; only the last counts"});
  std::ranges::stable_sort(
      findings, {}, [&](const Finding& finding) { return places.offsetOf(finding.pointer); });
  for (const auto& finding : findings)
    report.findings.push_back(
        {placeIn(document, places.offsetOf(finding.pointer)), finding.weight, finding.text});
}

std::vector<fs::path> documentsIn(const fs::path& folder) {
  std::vector<fs::path> result;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename();
    if (name.ends_with(kExtension) && (name.starts_with(kReset) || name.starts_with(kRecommender)))
      result.push_back(entry.path());
  }
  std::ranges::sort(result);
  return result;
}

// "US_en" of "recommender_US_en_F.json".
std::string localeOf(const std::string& recommenderName) {
  auto locale = recommenderName.substr(kRecommender.size());
  locale.resize(locale.size() - kExtension.size());
  if (locale.ends_with("_F") || locale.ends_with("_U")) locale.resize(locale.size() - 2);
  return locale;
}

void findMissingFiles(const fs::path& store, const std::vector<fs::path>& documents,
                      CheckReport& report) {
  std::set<std::string> wanted = {"newsletter/index_EN.html"};
  for (const auto& document : documents) {
    const std::string name = document.filename();
    if (!name.starts_with(kRecommender)) continue;
    const auto locale = localeOf(name);
    for (const char* variant : {"", "_F", "_U"})
      wanted.insert("recommender_" + locale + variant + ".json");
    wanted.insert("reset_" + locale + ".json");
    wanted.insert("newsletter/index_" + locale.substr(0, locale.find('_')) + ".html");
  }
  std::error_code error;
  for (const auto& name : wanted)
    if (!fs::exists(store / name, error))
      report.findings.push_back({store, Warning, "hosts will ask for " + name + " in vain"});
}

} // namespace

std::size_t CheckReport::count(Finding::Weight weight) const {
  return static_cast<std::size_t>(std::ranges::count(findings, weight, &CheckedPlace::weight));
}

CheckReport check(const std::vector<fs::path>& files, const std::optional<fs::path>& site) {
  CheckReport report;
  std::vector<Document> documents;
  Identifiers known;
  for (const auto& file : files)
    if (auto document = read(file, report)) documents.push_back(std::move(*document));
  for (const auto& document : documents)
    if (!isReset(document)) known.merge(identifiersIn(document.value));
  for (const auto& document : documents)
    checkDocument(document, site, known, report);
  return report;
}

CheckReport checkSite(const fs::path& site) {
  const auto store = site / "store";
  const auto documents = documentsIn(store);
  auto report = check(documents, site);
  if (documents.empty()) report.findings.push_back({store, Error, "there are no documents here"});
  findMissingFiles(store, documents, report);
  return report;
}

} // namespace wrenvale::kit
