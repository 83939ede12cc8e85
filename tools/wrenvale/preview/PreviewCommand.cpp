// wrenvale preview: what a given host would show of a recommender document.

#include <getopt.h>

#include <charconv>
#include <cstdio>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/json/JSONDocument.h"
#include "tools/wrenvale/json/JSONText.h"
#include "tools/wrenvale/preview/Preview.h"

namespace wrenvale::kit {

namespace {

constexpr const char* kHelp =
    "Usage: wrenvale preview DOCUMENT --bundle-id ID --build N [--installed ID,ID...]\n"
    "                        [--purchased ID,ID...] [--seed N] [--json]\n"
    "Show the list that a host would make of the recommender document in the file\n"
    "DOCUMENT, in order, with the reason for every decision.\n\n"
    "  --bundle-id ID  the host's bundle identifier\n"
    "  --build N       the host's build number\n"
    "  --installed     what is installed on the user's machine, and nothing else: name\n"
    "                  the host too if a dependency on it is to hold\n"
    "  --purchased     what the user has bought in the host\n"
    "  --seed N        settle ties the same way each time; without it they are random\n"
    "  --json          print one JSON object instead\n"
    "  --help          show this text\n\n"
    "The status is 0 when there was something to show, be it that nothing would be\n"
    "shown, 1 when the document cannot be read, 2 for arguments that it does not\n"
    "understand.\n";

struct Arguments {
  bool help = false;
  bool json = false;
  bool hasBuild = false;
  std::string document;
  PreviewRequest request;
};

int complain(const std::string& text, int status) {
  std::fprintf(stderr, "wrenvale preview: %s\n", text.c_str());
  return status;
}

std::optional<Arguments> misunderstood(const std::string& text) {
  complain(text + " ('wrenvale preview --help' says more)", kUsage);
  return std::nullopt;
}

template <class Number>
bool readNumber(std::string_view text, Number& number) {
  const auto end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

std::vector<std::string> separated(const std::string& list) {
  std::vector<std::string> items;
  std::istringstream stream(list);
  for (std::string item; std::getline(stream, item, ',');)
    if (!item.empty()) items.push_back(item);
  return items;
}

// False for a value that makes no sense.
bool take(int option, const std::string& value, Arguments& arguments) {
  auto& request = arguments.request;
  switch (option) {
  case 'i':
    request.host.bundleID = value;
    return !value.empty();
  case 'b':
    return arguments.hasBuild = readNumber(value, request.host.bundleVersion);
  case 'I':
    for (auto& item : separated(value))
      request.installed.insert(std::move(item));
    return true;
  case 'P':
    for (auto& item : separated(value))
      request.purchased.push_back(std::move(item));
    return true;
  default:
    return readNumber(value, request.seed);
  }
}

constexpr option kOptions[] = {{"bundle-id", required_argument, nullptr, 'i'},
                               {"build", required_argument, nullptr, 'b'},
                               {"installed", required_argument, nullptr, 'I'},
                               {"purchased", required_argument, nullptr, 'P'},
                               {"seed", required_argument, nullptr, 's'},
                               {"json", no_argument, nullptr, 'j'},
                               {"help", no_argument, nullptr, 'h'},
                               {nullptr, 0, nullptr, 0}};

// Nothing, after a complaint, for arguments that make no sense.
std::optional<Arguments> parsed(int argc, char** argv) {
  Arguments arguments;
  arguments.request.vendorBase = WRENVALE_VENDOR_BASE;
  arguments.request.seed = std::random_device()();
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    if (found == '?') return std::nullopt;
    if (found == 'h') arguments.help = true;
    if (found == 'j') arguments.json = true;
    if (optarg && !take(found, optarg, arguments))
      return misunderstood(std::string("cannot make sense of ") + optarg);
  }
  if (arguments.help) return arguments;
  if (argc - optind != 1) return misunderstood("one document is needed");
  if (!arguments.request.host.bundleID) return misunderstood("--bundle-id is needed");
  if (!arguments.hasBuild) return misunderstood("--build is needed");
  arguments.document = argv[optind];
  return arguments;
}

int printPreview(const Arguments& arguments) {
  const auto text = contentsOf(arguments.document, kLongestDocument + 1);
  if (!text) return complain("cannot read " + arguments.document, kFailed);
  if (text->size() > kLongestDocument)
    return complain(arguments.document + ": hosts take no more than 16 MiB", kFailed);
  const auto parsed = readJSON(*text);
  if (!parsed.value) {
    const auto place = TextPlaces(*text).placeOf(parsed.errorOffset);
    return complain(arguments.document + ":" + std::to_string(place.line) + ":" +
                        std::to_string(place.column) + ": " + parsed.error,
                    kFailed);
  }
  const auto preview = previewOf(*parsed.value, arguments.request);
  std::fputs((arguments.json ? asJSON(preview) : asText(preview)).c_str(), stdout);
  return std::fflush(stdout) == 0 ? kDone : complain("cannot write", kFailed);
}

} // namespace

int preview(int argc, char** argv) {
  const auto arguments = parsed(argc, argv);
  if (!arguments) return kUsage;
  if (!arguments->help) return printPreview(*arguments);
  std::fputs(kHelp, stdout);
  return kDone;
}

} // namespace wrenvale::kit
