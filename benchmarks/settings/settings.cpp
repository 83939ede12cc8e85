// The settings' file: opening it beside libplist, a durable write beside the same bytes written by
// hand, and many changes in a row.
//
// usage: benchmark-settings FOLDER   (on the disk that is to be measured; removed by the caller)

#include <fcntl.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <plist/plist.h>

#include "benchmarks/Figures.h"
#include "desktop/linux/settings/LinuxUserDefaults.h"

namespace {

using namespace wrenvale;
using namespace wrenvale::benchmark;
using platform::LinuxUserDefaults;

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// As after months of use: ratings and counters of many builds, some texts of the host's own.
void fill(LinuxUserDefaults& defaults, std::size_t bytes) {
  Value::Dictionary counters, texts;
  for (std::size_t i = 0; i < bytes / 80; ++i) {
    counters["1." + std::to_string(i)] = static_cast<std::int64_t>(i);
    texts["setting " + std::to_string(i)] = "what the user chose for setting " + std::to_string(i);
  }
  defaults.setObject(counters, "Version Counters");
  defaults.setObject(texts, "Host");
  defaults.synchronize();
}

void openByReference(const std::string& path) {
  const std::string bytes = contentOf(path);
  plist_t root = nullptr;
  plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
  if (!root || !plist_dict_get_item(root, "Version Counters")) std::exit(1);
  plist_free(root);
}

// What any durable replacement needs.
void writeByHand(const std::string& folder, const std::string& bytes) {
  const std::string path = folder + "/by-hand";
  const int file = open((path + ".new").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::exit(1);
  fsync(file);
  close(file);
  std::rename((path + ".new").c_str(), path.c_str());
  const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  fsync(directory);
  close(directory);
}

void measure(const std::string& folder, std::size_t bytes) {
  const std::string path = folder + "/" + std::to_string(bytes) + ".plist";
  LinuxUserDefaults defaults(path);
  fill(defaults, bytes);
  const auto open = [&] {
    if (LinuxUserDefaults(path).objectForKey("Version Counters") == Value()) std::exit(1);
  };
  say("settings.open", bytes, timesInTurns(200, open, [&] { openByReference(path); }));

  const std::string content = contentOf(path);
  std::int64_t number = 0;
  const auto write = [&] {
    defaults.setObject(++number, "number");
    if (!defaults.synchronize()) std::exit(1);
  };
  say("settings.write", bytes, timesInTurns(100, write, [&] { writeByHand(folder, content); }));
}

// Counts how often a file took another one's place in the folder.
class Replacements {
public:
  explicit Replacements(const std::string& folder) {
    inotify_add_watch(fd_, folder.c_str(), IN_MOVED_TO);
  }
  ~Replacements() { close(fd_); }

  int count() const {
    alignas(inotify_event) char events[16 * 1024];
    const auto length = read(fd_, events, sizeof events);
    int count = 0;
    for (ssize_t at = 0; at < length; ++count)
      at += sizeof(inotify_event) + reinterpret_cast<inotify_event*>(events + at)->len;
    return count;
  }

private:
  const int fd_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

void changeManyTimes(const std::string& folder) {
  LinuxUserDefaults defaults(folder + "/many.plist");
  fill(defaults, 2000);
  const Replacements replacements(folder);
  for (std::int64_t i = 0; i < 1000; ++i)
    defaults.setObject(i, "number");
  defaults.synchronize();
  say("settings.writes", 1000, {static_cast<double>(replacements.count()), 1});
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  for (const std::size_t bytes : {2'000, 20'000, 200'000})
    measure(argv[1], bytes);
  changeManyTimes(argv[1]);
}
