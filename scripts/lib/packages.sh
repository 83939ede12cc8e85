# shellcheck shell=bash
# Debian packages for the scripts that need them. To be sourced by bash.

# What building, testing and the demo need on Debian 12 and 13, which name them alike.
readonly wrenvale_packages=(
  git cmake ninja-build ccache g++ pkg-config binutils file dpkg-dev openssl
  qt6-base-dev qt6-webengine-dev qt6-tools-dev qt6-l10n-tools libgl1-mesa-dev
  libcurl4-openssl-dev libssl-dev libsimdjson-dev libcpp-httplib-dev libre2-dev libsqlite3-dev nlohmann-json3-dev
  libplist-dev libplist-utils libgtest-dev libgmock-dev python3-jsonschema xvfb xauth fonts-vlgothic
)

# wrenvale_install PACKAGE...
#
# Installs those of the packages that this machine lacks and says what it does. Does nothing when there
# is none. Works as root or through sudo. On a system that it does not know it says what is needed
# and leaves the rest to the build, which names the first thing that it does not find.
wrenvale_install() {
  local missing=()
  if ! command -v dpkg-query >/dev/null; then
    wrenvale_name_needs "This is not Debian. Needed is what Debian calls:" "$@"
    return 0
  fi
  mapfile -t missing < <(wrenvale_missing "$@")
  if [ ${#missing[@]} -eq 0 ]; then
    echo "all $# packages are installed"
    return 0
  fi
  case $(wrenvale_debian) in
    12 | 13) wrenvale_apt_install "${missing[@]}" ;;
    *)
      wrenvale_name_needs "Known are Debian 12 and 13; this is another system. It seems to lack:" "${missing[@]}"
      echo "If they exist here: apt-get install ${missing[*]}"
      ;;
  esac
}

wrenvale_missing() { # package...
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || echo "$package"
  done
}

# The release of Debian that this is, such as 12; nothing elsewhere.
wrenvale_debian() (. /etc/os-release && { [ "$ID" != debian ] || echo "${VERSION_ID:-}"; })

# The sanitizers' run-time library has the version of Debian's clang in its name.
wrenvale_sanitizer_packages() {
  case $(wrenvale_debian) in
    12) echo clang libclang-rt-14-dev ;;
    *) echo clang libclang-rt-19-dev ;;
  esac
}

# What counts instructions, and makes a system's worth of fonts.
wrenvale_bench_packages() (echo valgrind fontconfig)

# Whatever any of the project's scripts installs.
wrenvale_every_package() {
  echo "${wrenvale_packages[@]}" $(wrenvale_sanitizer_packages) $(wrenvale_bench_packages)
  [ "$(wrenvale_debian)" != 12 ] || echo clang-format-14
}

wrenvale_name_needs() { # sentence, package...
  printf '%s\n' "$1"
  shift
  printf '  %s\n' "$*"
}

wrenvale_apt_install() { # package...
  local as_root=()
  echo "installing: $*"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "they must be installed as root, or by a user who has sudo: apt-get install $*" >&2
      return 1
    }
    as_root=(sudo)
  fi
  # Everything is downloaded before anything is unpacked, so a missing network leaves nothing half done.
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive bash -c "$(declare -f wrenvale_apt); wrenvale_apt \"\$@\"" - "$@" || {
    echo "not installed: $*" >&2
    echo "apt-get could not get or install them; its message is above. Is there a network?" >&2
    return 1
  }
}

# Waits while another program holds one of apt's locks: ten minutes at the most.
wrenvale_apt() { # package...
  local said deadline=$((SECONDS + 600))
  until said=$(apt-get -qq update 2>&1); do
    case $said in
      *"Could not get lock"* | *"is another process using it"*) ;;
      *) printf '%s\n' "$said" >&2 && return 1 ;;
    esac
    [ $SECONDS -lt $deadline ] || { printf '%s\n' "$said" >&2 && return 1; }
    echo "waiting for another program that holds the package lists"
    sleep 5
  done
  apt-get -qq -y -o DPkg::Lock::Timeout=600 --no-install-recommends install "$@" >/dev/null
}
