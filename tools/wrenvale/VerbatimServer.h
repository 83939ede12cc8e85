// An HTTP server that hands on what a client says it is, letter by letter.

#ifndef WRENVALE_TOOLS_VERBATIMSERVER_H
#define WRENVALE_TOOLS_VERBATIMSERVER_H

#include <httplib.h>

namespace wrenvale::kit {

/// httplib takes percent-encoding out of every header field, so "Photo%20Tool/1204" could not be
/// told from "Photo Tool/1204". Here "User-Agent" stays as it was sent. One request is answered for
/// each connection, and a connection on which nothing comes for a second is closed.
class VerbatimServer : public httplib::Server {
private:
  bool process_and_close_socket(socket_t socket) override;
};

} // namespace wrenvale::kit

#endif
