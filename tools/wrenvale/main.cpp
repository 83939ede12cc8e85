// wrenvale: the command-line kit of a maker whose applications link Wrenvale.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
#include <string>

#include "tools/wrenvale/Commands.h"

namespace {

using namespace wrenvale::kit;

constexpr Command kCommands[] = {
    {"check", "check reset and recommender documents", check},
    {"inbox", "list who subscribed to the newsletter", inbox},
    {"keygen", "make a key pair for newsletter subscriptions", keygen},
    {"preview", "show what a host would recommend, and why", preview},
    {"serve", "serve a folder as the maker's web server, for development", serve},
    {"state", "show or change what is on record for a user of a host", state},
};

void printUsage(std::FILE* out) {
  std::fputs("Usage: wrenvale COMMAND [ARGUMENT]...\n"
             "The kit of a maker whose applications link Wrenvale.\n\nCommands:\n",
             out);
  for (const auto& command : kCommands)
    std::fprintf(out, "  %-10s %s\n", command.name, command.summary);
  std::fputs("\n'wrenvale COMMAND --help' says more about one of them.\n", out);
}

int run(const Command& command, int argc, char** argv) {
  std::string name = "wrenvale " + std::string(command.name);
  argv[0] = name.data();
  try {
    return command.run(argc, argv);
  } catch (const std::exception& exception) { // out of memory, a folder that cannot be listed
    std::fprintf(stderr, "%s: %s\n", name.c_str(), exception.what());
    return kFailed;
  }
}

} // namespace

int main(int argc, char** argv) {
  const std::string name = argc > 1 ? argv[1] : "--help";
  if (name == "--help" || name == "-h") {
    printUsage(stdout);
    return kDone;
  }
  const auto command = std::ranges::find(kCommands, name, &Command::name);
  if (command != std::end(kCommands)) return run(*command, argc - 1, argv + 1);
  std::fprintf(stderr, "wrenvale: no such command: %s\n", name.c_str());
  printUsage(stderr);
  return kUsage;
}
