// Marks what the shared library offers. Everything else in it is hidden.

#ifndef WRENVALE_EXPORT_H
#define WRENVALE_EXPORT_H

#define WRENVALE_EXPORT __attribute__((visibility("default")))
/// A member of an exported class that is the framework's own and not offered to hosts.
#define WRENVALE_HIDDEN __attribute__((visibility("hidden")))

#endif
