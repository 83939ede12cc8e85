# shellcheck shell=bash
# Debian packages for the scripts that need them. To be sourced by bash.

# wrenvale_install PACKAGE...
#
# Installs those of the packages that the machine lacks and says what it does; touches neither
# package lists nor anything else when there is none. As root, or through sudo.
wrenvale_install() {
  local package missing=() as_root=()
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      missing+=("$package")
  done
  if [ ${#missing[@]} -eq 0 ]; then
    echo "all $# packages are installed"
    return
  fi
  echo "installing: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "they must be installed as root, or by a user who has sudo" >&2
      return 1
    }
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get -qq update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null
}
