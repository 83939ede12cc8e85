// The least that a library can be which starts by itself.
__attribute__((constructor)) static void start() {}

extern "C" __attribute__((visibility("default"))) void emptyLibrary() {}
