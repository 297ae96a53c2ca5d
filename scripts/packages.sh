# Sourced by the scripts: says what happens, and installs Debian packages that are missing.
# shellcheck shell=bash

say() { printf '\n== %s\n' "$*"; }

die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    return 1
  fi
}

is_installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# need PACKAGE...: installs those that are missing; asks and downloads nothing when none is.
need() {
  command -v dpkg-query >/dev/null ||
    die "this system has no Debian packages; install the counterparts of these by hand: $*"
  local package missing=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  say "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { as_root apt-get -q update && as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get -q -y --no-install-recommends install "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 5 "$log" >&2
    die "could not install (needs root or sudo, and a package mirror): ${missing[*]}"
  fi
  rm -f "$log"
}

# unpack FOLDER PACKAGE...: packages that cannot be installed beside those that are needed, into a folder
# of their own.
unpack() {
  local folder=$1
  shift
  [ -e "$folder" ] && return
  say "Unpacking $*"
  local work
  work=$(mktemp -d)
  (
    cd "$work"
    apt-get -q download "$@" || { as_root apt-get -q update && apt-get -q download "$@"; }
  ) >"$work/log" 2>&1 || {
    tail -n 5 "$work/log" >&2
    die "could not download (needs a package mirror): $*"
  }
  local package
  for package in "$work"/*.deb; do dpkg -x "$package" "$work/root"; done
  mkdir -p "$(dirname "$folder")"
  mv "$work/root" "$folder"
  rm -rf "$work"
}

# clang with the run time of its sanitizers and of its fuzzer.
need_clang_sanitizers() {
  need clang
  need "libclang-rt-$(clang --version | sed -n '1s/.*version \([0-9]*\).*/\1/p')-dev"
}

# What every build needs, and what the parts need on top.
packages_build=(g++ cmake ninja-build pkg-config libboost-dev)
packages_tools=(libavformat-dev libavcodec-dev libavutil-dev libltc-dev
  libgstreamer-plugins-base1.0-dev libsrt-gnutls-dev libcli11-dev nlohmann-json3-dev ffmpeg)
packages_tests=(libgtest-dev libfmt-dev librapidcheck-dev clang python3-jsonschema fish mandoc zsh)
packages_checks=(git clang-format clang-tidy googletest g++-mingw-w64-x86-64-posix wine64)
packages_docs=(doxygen python3 python3-websocket chromium fonts-dejavu-core)
packages_python=(pybind11-dev python3-dev)
packages_packing=(dpkg-dev fakeroot file gdb lintian unzip g++-mingw-w64-x86-64-posix wine64)

# How the checks of what is handed out build it. Joined sources and little optimisation, to save time: what is
# checked is how it is packed. With debug information, in which folders would show; packages are stripped of it.
# shellcheck disable=SC2034
packing_settings=(-D CMAKE_UNITY_BUILD=ON -D CMAKE_UNITY_BUILD_BATCH_SIZE=16 -D KV_WARNINGS_AS_ERRORS=ON
  -D CMAKE_CXX_FLAGS_RELEASE='-O1 -g -DNDEBUG')
