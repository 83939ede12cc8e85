// The least that a library can be which starts by itself.
namespace {
[[maybe_unused]] const bool kLoaded = [] { return true; }();
} // namespace
extern "C" __attribute__((visibility("default"))) void emptyLibrary() {}
