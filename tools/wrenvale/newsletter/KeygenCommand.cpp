// wrenvale keygen: a key pair for newsletter subscriptions.

#include <fcntl.h>
#include <getopt.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>

#include "tools/wrenvale/Commands.h"
#include "tools/wrenvale/newsletter/Keys.h"

namespace wrenvale::kit {

namespace {

namespace fs = std::filesystem;

constexpr const char* kHelp =
    "Usage: wrenvale keygen --out FOLDER [--bits N]\n"
    "Make a key pair for newsletter subscriptions: FOLDER/public.pem, which applications\n"
    "are built with (WRENVALE_PUBLIC_KEY_FILE), and FOLDER/private.pem, which only the\n"
    "maker's server has. Never overwrites a file.\n\n"
    "  --out FOLDER  made when it is missing\n"
    "  --bits N      1024, 2048, 3072 or 4096; 2048 without it\n"
    "  --help        show this text\n\n"
    "The status is 0 when both files are there, 1 when they could not be made, 2 for\n"
    "arguments that it does not understand.\n";

struct Arguments {
  bool help = false;
  fs::path folder;
  unsigned bits = 2048;
};

int complain(const std::string& text, int status) {
  std::fprintf(stderr, "wrenvale keygen: %s\n", text.c_str());
  return status;
}

std::optional<Arguments> misunderstood(const std::string& text) {
  complain(text + " ('wrenvale keygen --help' says more)", kUsage);
  return std::nullopt;
}

bool readBits(const std::string& text, unsigned& bits) {
  for (const unsigned offered : {1024U, 2048U, 3072U, 4096U})
    if (text == std::to_string(offered)) return bits = offered, true;
  return false;
}

// Nothing, after a complaint, for arguments that make no sense.
std::optional<Arguments> parsed(int argc, char** argv) {
  static constexpr option kOptions[] = {{"out", required_argument, nullptr, 'o'},
                                        {"bits", required_argument, nullptr, 'b'},
                                        {"help", no_argument, nullptr, 'h'},
                                        {nullptr, 0, nullptr, 0}};
  Arguments arguments;
  for (int found; (found = getopt_long(argc, argv, "h", kOptions, nullptr)) != -1;) {
    if (found == '?') return std::nullopt;
    if (found == 'o') arguments.folder = optarg;
    if (found == 'h') arguments.help = true;
    if (found == 'b' && !readBits(optarg, arguments.bits))
      return misunderstood(std::string("no number of bits for a key: ") + optarg);
  }
  if (arguments.help) return arguments;
  if (optind < argc)
    return misunderstood(std::string("there is nothing to do with ") + argv[optind]);
  if (arguments.folder.empty()) return misunderstood("--out is needed");
  return arguments;
}

// A new file; false, with errno set and no file left behind, when it could not be written.
bool writeNew(const fs::path& file, const std::string& text, mode_t mode) {
  const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  if (descriptor < 0) return false;
  const bool written =
      write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
      fsync(descriptor) == 0;
  const int error = errno;
  close(descriptor);
  if (!written) unlink(file.c_str());
  errno = error;
  return written;
}

int make(const Arguments& arguments) {
  const auto privateFile = arguments.folder / "private.pem";
  const auto publicFile = arguments.folder / "public.pem";
  std::error_code error;
  fs::create_directories(arguments.folder, error);
  const auto pair = newKeyPair(arguments.bits);
  if (!pair) return complain("the library makes no such key", kFailed);
  const auto failed = [](const fs::path& file) {
    return complain("cannot write " + file.string() + ": " + std::strerror(errno), kFailed);
  };
  if (!writeNew(privateFile, pair->privateKey, S_IRUSR | S_IWUSR)) return failed(privateFile);
  if (!writeNew(publicFile, pair->publicKey, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH)) {
    const int status = failed(publicFile);
    fs::remove(privateFile, error);
    return status;
  }
  std::printf(
      "%s  for -DWRENVALE_PUBLIC_KEY_FILE\n%s  for 'wrenvale serve --key'; keep it secret\n",
      publicFile.c_str(), privateFile.c_str());
  return kDone;
}

} // namespace

int keygen(int argc, char** argv) {
  const auto arguments = parsed(argc, argv);
  if (!arguments) return kUsage;
  if (!arguments->help) return make(*arguments);
  std::fputs(kHelp, stdout);
  return kDone;
}

} // namespace wrenvale::kit
