// The subcommands of the kit, one source file each.
//
// A subcommand gets its own arguments, with the name that its messages begin with in front
// ("wrenvale serve"), and gives the kit's exit status: 0 when it did its work, 1 when it could not,
// 2 when it was not told properly what to do. It answers to --help and writes what went wrong to
// standard error.

#ifndef WRENVALE_TOOLS_COMMANDS_H
#define WRENVALE_TOOLS_COMMANDS_H

namespace wrenvale::kit {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

struct Command {
  const char* name;
  const char* summary; ///< one line, for the list of subcommands
  int (*run)(int argc, char** argv);
};

int check(int argc, char** argv);
int inbox(int argc, char** argv);
int keygen(int argc, char** argv);
int preview(int argc, char** argv);
int serve(int argc, char** argv);
int state(int argc, char** argv);

} // namespace wrenvale::kit

#endif
