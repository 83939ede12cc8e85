// wrenvale inbox: who subscribed to the newsletter.

#include <getopt.h>

#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/json/JSONText.h"
#include "tools/wrenvale/newsletter/Inbox.h"

namespace wrenvale::kit {

namespace {

constexpr const char* kHelp =
    "Usage: wrenvale inbox [--inbox FILE] [--json]\n"
    "List the newsletter subscriptions that 'wrenvale serve' has taken in, the first\n"
    "first: when each address came (UTC), how often, and the address.\n\n"
    "  --inbox FILE  the server's inbox; without it that of a server without the option\n"
    "  --json        print one JSON array instead\n"
    "  --help        show this text\n\n"
    "The status is 0, be it that nobody has subscribed, 1 when the inbox cannot be\n"
    "read, 2 for arguments that it does not understand.\n";

struct Arguments {
  bool help = false;
  bool json = false;
  std::filesystem::path inbox = defaultInbox();
};

// Nothing, after a complaint, for arguments that make no sense.
std::optional<Arguments> parsed(int argc, char** argv) {
  static constexpr option kOptions[] = {{"inbox", required_argument, nullptr, 'i'},
                                        {"json", no_argument, nullptr, 'j'},
                                        {"help", no_argument, nullptr, 'h'},
                                        {nullptr, 0, nullptr, 0}};
  Arguments arguments;
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    if (found == '?') return std::nullopt;
    if (found == 'i') arguments.inbox = optarg;
    if (found == 'j') arguments.json = true;
    if (found == 'h') arguments.help = true;
  }
  if (optind == argc) return arguments;
  std::fprintf(stderr, "wrenvale inbox: there is nothing to do with %s\n", argv[optind]);
  return std::nullopt;
}

void printAsText(const std::vector<InboxEntry>& entries) {
  for (const auto& entry : entries)
    std::printf("%s  %3lld  %s\n", entry.firstSeen.c_str(), static_cast<long long>(entry.count),
                readable(entry.address).c_str());
}

void printAsJSON(const std::vector<InboxEntry>& entries) {
  const char* separator = "";
  std::fputs("[", stdout);
  for (const auto& entry : entries) {
    std::printf("%s\n  {\"address\": %s, \"first_seen\": %s, \"count\": %lld}", separator,
                jsonString(entry.address).c_str(), jsonString(entry.firstSeen).c_str(),
                static_cast<long long>(entry.count));
    separator = ",";
  }
  std::fputs(entries.empty() ? "]\n" : "\n]\n", stdout);
}

int list(const Arguments& arguments) {
  try {
    const auto entries = Inbox(arguments.inbox).entries();
    if (arguments.json)
      printAsJSON(entries);
    else
      printAsText(entries);
    if (std::fflush(stdout) == 0) return kDone;
    std::perror("wrenvale inbox");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "wrenvale inbox: %s\n", error.what());
  }
  return kFailed;
}

} // namespace

int inbox(int argc, char** argv) {
  const auto arguments = parsed(argc, argv);
  if (!arguments) return kUsage;
  if (!arguments->help) return list(*arguments);
  std::fputs(kHelp, stdout);
  return kDone;
}

} // namespace wrenvale::kit
