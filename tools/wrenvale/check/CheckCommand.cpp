// wrenvale check: whether the maker's documents will do what they say.

#include <getopt.h>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/check/Check.h"
#include "tools/wrenvale/json/JSONText.h"

namespace wrenvale::kit {

namespace {

constexpr const char* kHelp =
    "Usage: wrenvale check [--site FOLDER] [DOCUMENT]...\n"
    "Check reset and recommender documents: whether hosts can read them, whether every\n"
    "key and value is one that they look at, and whether it can ever do something.\n\n"
    "  --site FOLDER  look for the applications' icons in this folder, which a server\n"
    "                 serves; without a DOCUMENT check all of its documents, and that\n"
    "                 nothing is missing that hosts ask for\n"
    "  --help         show this text\n\n"
    "What is wrong is an error; what may be meant as it is, such as an application that\n"
    "no document knows, is a warning. The status is 0 when there is no error, 1 when\n"
    "there is one, 2 for arguments that it does not understand.\n";

struct Arguments {
  bool help = false;
  std::optional<std::filesystem::path> site;
  std::vector<std::filesystem::path> documents;
};

// Nothing, after a complaint, for arguments that make no sense.
std::optional<Arguments> parsed(int argc, char** argv) {
  static constexpr option kOptions[] = {{"site", required_argument, nullptr, 's'},
                                        {"help", no_argument, nullptr, 'h'},
                                        {nullptr, 0, nullptr, 0}};
  Arguments arguments;
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    if (found == '?') return std::nullopt;
    if (found == 's') arguments.site = optarg;
    if (found == 'h') arguments.help = true;
  }
  arguments.documents.assign(argv + optind, argv + argc);
  if (arguments.help || arguments.site || !arguments.documents.empty()) return arguments;
  std::fputs("wrenvale check: a document or --site is needed ('wrenvale check --help' says more)\n",
             stderr);
  return std::nullopt;
}

std::string counted(std::size_t count, const char* noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

int print(const CheckReport& report) {
  const auto errors = report.count(Finding::Weight::Error);
  for (const auto& finding : report.findings)
    std::printf("%s: %s: %s\n", readable(finding.place).c_str(),
                finding.weight == Finding::Weight::Error ? "error" : "warning",
                readable(finding.text).c_str());
  std::printf("%s: %s, %s\n", counted(report.documents, "document").c_str(),
              counted(errors, "error").c_str(),
              counted(report.count(Finding::Weight::Warning), "warning").c_str());
  return errors == 0 && std::fflush(stdout) == 0 ? kDone : kFailed;
}

} // namespace

int check(int argc, char** argv) {
  const auto arguments = parsed(argc, argv);
  if (!arguments) return kUsage;
  if (!arguments->help)
    return print(arguments->documents.empty() ? checkSite(*arguments->site)
                                              : check(arguments->documents, arguments->site));
  std::fputs(kHelp, stdout);
  return kDone;
}

} // namespace wrenvale::kit
