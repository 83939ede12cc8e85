// A page in the web engine, with nothing of the framework's.

#ifndef WRENVALE_BENCHMARKS_WELCOME_ENGINEPAGE_H
#define WRENVALE_BENCHMARKS_WELCOME_ENGINEPAGE_H

/// Loads the page, shows it when its title becomes "shown", prints how long that took since
/// `asked`, and for how long the main thread was busy in a row meanwhile, and returns the status to
/// exit with. There is a QApplication.
extern "C" int showPage(long long asked, const char* started, const char* address);

#endif
