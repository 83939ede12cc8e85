# A user of Photo Tool: what is on this user's disk, and what the user does.

readonly home=$demo/home
readonly settings=$home/config/com.example.phototool/defaults.plist
readonly host_log=$demo/photo-tool.log
readonly stand_ins=$demo/stand-ins
readonly opened=$demo/opened.log

new_user() {
  rm -rf "$home"
  mkdir -p "$home"
}

# The settings as sorted "key = value" lines; nothing when there are none.
settings_now() {
  [ -f "$settings" ] || return 0
  plistutil -i "$settings" -f xml | awk '
    function put(text) { value = value (value ~ /(^|[[{ ])$/ ? "" : ", ") text }
    function close_with(bracket) { value = value bracket; --depth }
    { gsub(/^\t+/, "") }
    /^<(plist|[?!])/ { next }
    /^<dict>/ && depth == 0 { depth = 1; next }
    /^<key>/ { gsub(/<[^>]*>/, ""); if (depth == 1) { key = $0; value = "" } else put($0 ": "); next }
    /^<dict>/ { put("{"); ++depth; next }
    /^<array>/ { put("["); ++depth; next }
    /^<\/dict>/ { close_with("}") }
    /^<\/array>/ { close_with("]") }
    /^<dict\/>/ { put("{}") }
    /^<array\/>/ { put("[]") }
    /^<(true|false)\/>/ { gsub(/[<>\/]/, ""); put($0) }
    /^<(string|integer|real|date)>/ { gsub(/<[^>]*>/, ""); put($0) }
    depth == 1 && key != "" { print key " = " value; key = "" }' | sort
}

# What opens addresses on a desktop, and here only notes them.
make_stand_ins() {
  mkdir -p "$stand_ins"
  printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"%s"\n' "$opened" >"$stand_ins/xdg-open"
  chmod +x "$stand_ins/xdg-open"
}

has_display() { [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; }

# The caller's locale when it is of a language other than English.
callers_locale() {
  local locale=${LC_ALL:-${LC_MESSAGES:-${LANG:-}}}
  case ${locale%%.*} in '' | C | POSIX | en*) ;; *) echo "${locale%%.*}" ;; esac
}

# In the locale `speaking`, "en_US" when that is not set.
run_photo_tool() { # build, option...
  local build=$1 surroundings=()
  shift
  has_display || surroundings+=(QT_QPA_PLATFORM=offscreen)
  [ "$(id -u)" -ne 0 ] || surroundings+=(QTWEBENGINE_DISABLE_SANDBOX=1)
  env "${surroundings[@]}" PATH="$stand_ins:$PATH" XDG_CONFIG_HOME="$home/config" \
    LC_ALL="${speaking:-en_US}.UTF-8" LANGUAGE= "$demo/photo-tool-$build/photo-tool" "$@" \
    >"$host_log" 2>&1 || {
    cat "$host_log" >&2
    fail "Photo Tool ended with an error"
  }
}

# A user who does the steps; what Photo Tool calls a picture is kept in build/demo under that name.
user_of() { # build, steps with spaces between them
  local build=$1 step steps=
  local pictures=()
  shift
  for step in $*; do
    case $step in picture=* | picture-menu=*)
      pictures+=("${step#*=}")
      rm -f "$demo/${step#*=}.png"
      step=${step%%=*}=$demo/${step#*=}.png
      ;;
    esac
    steps+=$step,
  done
  : >"$opened"
  run_photo_tool "$build" --do "${steps}quit"
  for step in "${pictures[@]}"; do
    picture "$step"
  done
}

# What Photo Tool printed of its status bar.
status_bar() { grep '^Ratings: ' "$host_log" || true; }

# Without a display Qt opens nothing, and says what it does not open.
expect_opened() { # beginning of the address
  local address
  if has_display; then
    address=$(cat "$opened")
    say "Opened: $address"
  else
    address=$(sed -n "s/^This plugin does not support .*openUrl() for '\(.*\)'\.$/\1/p" "$host_log")
    say "Opened nothing, as there is no display; with one it would be: $address"
  fi
  [[ $address == "$1"* ]] || fail "the address should begin with $1"
}
