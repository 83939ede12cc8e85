// Marks what the shared library offers. Everything else in it is hidden.

#ifndef WRENVALE_EXPORT_H
#define WRENVALE_EXPORT_H

#define WRENVALE_EXPORT __attribute__((visibility("default")))

#endif
