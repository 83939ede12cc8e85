#include "tools/wrenvale/check/Check.h"

#include <algorithm>
#include <set>

#include "recommend/RecommenderDocument.h"
#include "tools/wrenvale/check/JSONSchema.h"
#include "tools/wrenvale/check/SemanticChecks.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/json/JSONDocument.h"
#include "tools/wrenvale/json/JSONPlaces.h"
#include "tools/wrenvale/json/JSONText.h"

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
  return readJSON({reinterpret_cast<const char*>(schema), size}).value.value_or(Value());
}

bool isReset(const Document& document) {
  const std::string name = document.file.filename();
  if (name.starts_with(kReset)) return true;
  return !name.starts_with(kRecommender) && document.value.isArray();
}

std::string shown(const fs::path& file, const TextPlace& place) {
  return file.string() + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

// Nothing, after a finding, for a file that holds no document.
std::optional<Document> read(const fs::path& file, CheckReport& report) {
  ++report.documents;
  const auto text = contentsOf(file, kLongestDocument + 1);
  if (!text || text->size() > kLongestDocument) {
    const char* fault = text ? "hosts take no more than 16 MiB" : "cannot be read";
    report.findings.push_back({file, Error, fault});
    return std::nullopt;
  }
  Document document{.file = file, .text = *text, .value = {}};
  const auto result = readJSON(*text);
  if (result.value) {
    document.value = *result.value;
    return document;
  }
  const auto place = TextPlaces(*text).placeOf(result.errorOffset);
  report.findings.push_back({shown(file, place), Error, result.error});
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
    static const JSONSchema schema(parsed(wrenvale_reset_schema, wrenvale_reset_schema_size));
    auto findings = schema.findingsIn(document.value);
    add(findings, checkResetSemantics(document.value));
    return findings;
  }
  static const JSONSchema schema(
      parsed(wrenvale_recommender_schema, wrenvale_recommender_schema_size));
  auto findings = schema.findingsIn(document.value);
  add(findings, checkRecommenderSemantics(document.value, known));
  if (site) add(findings, missingIcons(document.value, *site));
  return findings;
}

std::vector<std::string> pointersOf(const Findings& findings) {
  std::vector<std::string> pointers;
  for (const auto& finding : findings)
    pointers.push_back(finding.pointer);
  return pointers;
}

void checkDocument(const Document& document, const std::optional<fs::path>& site,
                   const Identifiers& known, CheckReport& report) {
  auto findings = findingsIn(document, site, known);
  const JSONPlaces places(document.text, pointersOf(findings));
  std::vector<std::pair<std::size_t, const Finding*>> placed;
  for (const auto& finding : findings)
    placed.emplace_back(places.offsetOf(finding.pointer), &finding);
  static const Finding repeated{"", Error, "this key stands here twice; only the last counts"};
  for (const auto offset : places.repeated())
    placed.emplace_back(offset, &repeated);
  std::ranges::stable_sort(placed, {}, [](const auto& row) { return row.first; });
  TextPlaces textPlaces(document.text);
  for (const auto& [offset, finding] : placed)
    report.findings.push_back(
        {shown(document.file, textPlaces.placeOf(offset)), finding->weight, finding->text});
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
