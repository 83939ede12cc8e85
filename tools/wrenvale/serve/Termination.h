// A program that runs until it is asked to end.

#ifndef WRENVALE_TOOLS_WRENVALE_SERVE_TERMINATION_H
#define WRENVALE_TOOLS_WRENVALE_SERVE_TERMINATION_H

namespace wrenvale::kit {

/// Keeps SIGINT and SIGTERM from ending the process. Before any thread is started, since threads
/// inherit it.
void holdTermination();

/// Waits until one of the two has come.
void awaitTermination();

} // namespace wrenvale::kit

#endif
