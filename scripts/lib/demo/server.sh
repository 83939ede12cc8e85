# The maker's development server, for as long as the demo runs.

readonly server_log=$demo/serve.log
readonly inbox=$demo/inbox.sqlite

server=
stop_server() {
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  [ -z "$server" ] || wait "$server" 2>/dev/null || true
  server=
}
trap stop_server EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

start_server() {
  progress "The maker's server"
  rm -f "$inbox"
  "$prefix/bin/wrenvale" serve --inbox "$inbox" examples/vendor-site >"$server_log" 2>&1 &
  server=$!
  until grep -q '^Serving ' "$server_log"; do
    kill -0 "$server" 2>/dev/null || fail "the server did not start: $(cat "$server_log")"
    sleep 0.05
  done
  cat "$server_log"
}

mark_log() { seen=$(wc -l <"$server_log"); }
requests_since_mark() { tail -n "+$((seen + 1))" "$server_log"; }
