// Where the log goes: to standard error, or through Qt's logging categories.

#ifndef WRENVALE_DESKTOP_QT_APP_LOGGING_H
#define WRENVALE_DESKTOP_QT_APP_LOGGING_H

namespace wrenvale::platform {

/// Listens to the log where the user's environment asks for it: with WRENVALE_LOG=1 each line goes
/// to standard error as "wrenvale.<subject>: <line>"; where QT_LOGGING_RULES names "wrenvale", it
/// goes to the Qt category "wrenvale.<subject>" as information, which those rules switch on.
/// Otherwise reads two variables and does nothing.
void listenToLog();

} // namespace wrenvale::platform

#endif
