#!/usr/bin/env bash
# Builds the Debian packages and a tarball into build/package and names them.
# Whatever CMake options are given are handed on, such as -DQX_LICENSE=... and -DQX_MAINTAINER=...
# The same sources give the same bytes: dates are those of the newest commit, or SOURCE_DATE_EPOCH's.
set -eu

top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$top"
.ci/setup dpkg-dev file gzip scdoc git

if [ -z "${SOURCE_DATE_EPOCH-}" ]; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)
fi
export SOURCE_DATE_EPOCH LC_ALL=C
umask 022

# The flags that Debian hardens its packages with. CMake does not know of CPPFLAGS.
flags() { # name
    DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"
}
CXXFLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS)"
CFLAGS="$(flags CFLAGS) $(flags CPPFLAGS)"
LDFLAGS=$(flags LDFLAGS)
export CXXFLAGS CFLAGS LDFLAGS

build=build/package
rm -rf "$build" # compilers' flags and the dates are read once
cmake --preset package "$@" >/dev/null
cmake --build "$build"
(cd "$build" && cpack)
ls "$top/$build"/*.deb "$top/$build"/*.tar.gz
