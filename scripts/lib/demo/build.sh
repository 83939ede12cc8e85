# What the demo builds: Wrenvale, installed in a folder of its own, and Photo Tool against it, as a
# maker would.

readonly prefix=$demo/prefix
# Every checkout's demo has a server port of its own, so that several can run at a time.
readonly vendor_base=http://127.0.0.1:$((32000 + $(cksum <<<"$demo" | cut -d' ' -f1) % 700))

# Runs a command whose output is only of interest when it fails.
quietly() { # command...
  "$@" >"$demo/command.log" 2>&1 || {
    cat "$demo/command.log" >&2
    fail "this failed: $*"
  }
}

build_wrenvale() {
  progress "Wrenvale: the library and the maker's kit"
  [ -d "$demo/wrenvale" ] || echo "the first build takes a few minutes"
  quietly cmake --preset dev -B "$demo/wrenvale" -DWRENVALE_BUILD_TESTS=OFF \
    -DWRENVALE_BUILD_BENCHMARKS=OFF -DWRENVALE_BUILD_EXAMPLES=OFF \
    -DWRENVALE_VENDOR_BASE="$vendor_base"
  quietly cmake --build "$demo/wrenvale"
  quietly cmake --install "$demo/wrenvale" --prefix "$prefix"
  echo "installed in ${prefix#"$PWD/"}"
}

build_photo_tool() {
  local build
  progress "Photo Tool, built against the installed package"
  for build in 1204 1205; do
    quietly cmake -G Ninja -S examples/photo-tool -B "$demo/photo-tool-$build" \
      -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
      -DCMAKE_PREFIX_PATH="$prefix" -DPHOTO_TOOL_BUILD=$build
    quietly cmake --build "$demo/photo-tool-$build"
    echo "build $build in build/demo/photo-tool-$build"
  done
}
