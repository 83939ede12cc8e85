// wrenvale serve: a folder as the maker's web server, on the address that hosts of this build ask.

#include <getopt.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>

#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/check/SiteFiles.h"
#include "tools/wrenvale/newsletter/Inbox.h"
#include "tools/wrenvale/serve/DevelopmentServer.h"
#include "tools/wrenvale/serve/ListenAddress.h"
#include "tools/wrenvale/serve/Termination.h"

extern "C" {
extern const unsigned char wrenvale_development_private_key[];
extern const unsigned long wrenvale_development_private_key_size;
}

namespace wrenvale::kit {

namespace {

constexpr const char* kVendorBase = WRENVALE_VENDOR_BASE;

constexpr const char* kHelp =
    "Usage: wrenvale serve FOLDER [--port N] [--host ADDR] [--key FILE]\n"
    "                      [--inbox FILE]\n"
    "Serve FOLDER as the maker's web server, for development, and print one line for\n"
    "each request as soon as it is answered: time, status, method, path with query,\n"
    "user agent. Ends at SIGINT (Control-C) or SIGTERM.\n\n"
    "  --port N      listen on this port; 0 takes any that is free\n"
    "  --host ADDR   listen on this address\n"
    "  --key FILE    the private key (PEM) for newsletter subscriptions; without it the\n"
    "                development key, which everybody knows\n"
    "  --inbox FILE  where subscriptions are kept; without it wrenvale/inbox.sqlite in\n"
    "                the user's data folder\n"
    "  --help        show this text\n\n"
    "A path that ends with \"/\" gives the index.html there; folders are not listed, and\n"
    "names that begin with \".\" are not served. An address below /app_redirect/ gives a\n"
    "page that says where a real server would redirect to. Subscriptions are listed by\n"
    "'wrenvale inbox'.\n\n"
    "The status is 0 when it was asked to end, 1 when it could not serve (the port is\n"
    "taken, say, or the key is none), 2 for arguments that it does not understand.\n\n";

struct Arguments {
  bool help = false;
  std::string folder;
  std::optional<std::string> host;
  std::optional<int> port;
  std::optional<std::string> key;
  std::filesystem::path inbox = defaultInbox();
};

void printHelp() {
  std::fputs(kHelp, stdout);
  if (const auto address = loopbackAddress(kVendorBase))
    std::printf("This build's hosts ask %s; without options that is where it listens.\n",
                baseOf(*address).c_str());
  else
    std::printf("This build's hosts ask %s, which is not on this machine, so a port is needed.\n",
                kVendorBase);
}

int complain(const std::string& text, int status) {
  std::fprintf(stderr, "wrenvale serve: %s\n", text.c_str());
  return status;
}

std::optional<Arguments> misunderstood(const std::string& text) {
  complain(text + " ('wrenvale serve --help' says more)", kUsage);
  return std::nullopt;
}

// Nothing, after a complaint, for arguments that make no sense.
std::optional<Arguments> parsed(int argc, char** argv) {
  static constexpr option kOptions[] = {
      {"port", required_argument, nullptr, 'p'}, {"host", required_argument, nullptr, 'a'},
      {"key", required_argument, nullptr, 'k'},  {"inbox", required_argument, nullptr, 'i'},
      {"help", no_argument, nullptr, 'h'},       {nullptr, 0, nullptr, 0}};
  Arguments arguments;
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    switch (found) {
    case 'p':
      arguments.port = portFromText(optarg);
      if (!arguments.port) return misunderstood(std::string("no port: ") + optarg);
      break;
    case 'a':
      arguments.host = optarg;
      break;
    case 'k':
      arguments.key = optarg;
      break;
    case 'i':
      arguments.inbox = optarg;
      break;
    case 'h':
      arguments.help = true;
      break;
    default:
      return std::nullopt;
    }
  }
  if (arguments.help) return arguments;
  if (argc - optind != 1) return misunderstood("one folder is needed");
  arguments.folder = argv[optind];
  return arguments;
}

// Nothing when neither the arguments nor this build's vendor base name a port.
std::optional<ListenAddress> addressFor(const Arguments& arguments) {
  auto address = loopbackAddress(kVendorBase);
  if (!address && !arguments.port) return std::nullopt;
  if (!address) address = {.host = "127.0.0.1", .port = *arguments.port};
  if (arguments.port) address->port = *arguments.port;
  if (arguments.host) address->host = *arguments.host;
  return address;
}

void printAtOnce(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

std::string whyNotBound(const ListenAddress& address, int error) {
  if (error == EADDRINUSE)
    return "port " + std::to_string(address.port) + " of " + address.host +
           " is taken: another server runs there";
  return "cannot listen on " + baseOf(address) + ": " +
         (error ? std::strerror(error) : "no such address");
}

std::optional<PrivateKey> keyFor(const Arguments& arguments) {
  if (!arguments.key)
    return PrivateKey::fromPEM({reinterpret_cast<const char*>(wrenvale_development_private_key),
                                wrenvale_development_private_key_size});
  const auto pem = contentsOf(*arguments.key);
  return pem ? PrivateKey::fromPEM(*pem) : std::nullopt;
}

int serveFolder(const Arguments& arguments, ListenAddress address) {
  const auto& folder = arguments.folder;
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error))
    return complain("there is no folder " + folder, kFailed);
  const auto key = keyFor(arguments);
  if (!key) return complain("there is no private RSA key in " + *arguments.key, kFailed);
  holdTermination();
  DevelopmentServer server(folder, Newsletter(*key, Inbox(arguments.inbox)), printAtOnce);
  const int port = server.bind(address);
  if (port < 0) return complain(whyNotBound(address, errno), kFailed);
  address.port = port;
  printAtOnce("Serving " + folder + " at " + baseOf(address));
  return server.run(awaitTermination) ? kDone : complain("cannot serve", kFailed);
}

} // namespace

int serve(int argc, char** argv) {
  const auto arguments = parsed(argc, argv);
  if (!arguments) return kUsage;
  if (arguments->help) {
    printHelp();
    return kDone;
  }
  const auto address = addressFor(*arguments);
  if (!address)
    return complain(std::string("hosts of this build ask ") + kVendorBase +
                        ", which is not on this machine; say --port",
                    kUsage);
  return serveFolder(*arguments, *address);
}

} // namespace wrenvale::kit
