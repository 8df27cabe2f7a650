#!/usr/bin/env bash
# Makes the Debian package.
#   packaging/build-deb.sh               installs what is missing, builds, and packs into build/
#   packaging/build-deb.sh BUILD PLACE   packs what is already built in the folder BUILD
# The same sources give the same file, byte for byte: dates are that of the changelog, and the flags
# of Debian keep the path of the sources out of the programs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=${1:-build/package}
place=${2:-build}
if [ $# -eq 0 ]; then
  packaging/install-dependencies.sh package
  export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP='-g -O2'
  CXXFLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)"
  LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
  export CXXFLAGS LDFLAGS
  cmake --preset release -B "$build" -DLIGNARA_TESTS=OFF -DLIGNARA_BENCH=OFF
  cmake --build "$build" --parallel "$(nproc)"
fi

umask 022
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog -S Timestamp)
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
cpack --config "$build/CPackConfig.cmake" -B "$place"
rm -rf "$place/_CPack_Packages"
