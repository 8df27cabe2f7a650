#!/usr/bin/env bash
# Installs what a Debian 12 machine lacks to build and start Lignara ("run"), to make its package
# ("package") or to test both ("test").
# What is there already is left alone; only the installation itself asks for root.
set -euo pipefail

purpose=${1:-run}
packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation)
if [ "$purpose" != run ]; then
  packages+=(dpkg-dev)
fi
if [ "$purpose" = test ]; then
  packages+=(git libgtest-dev libgmock-dev libbenchmark-dev clang-format gcovr locales)
  packages+=(lintian desktop-file-utils appstream)
fi

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "Not a Debian system. Needed here: ${packages[*]} (or what your system calls them)." >&2
  exit 0
fi

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  as_root=(sudo)
fi
echo "Installing ${missing[*]}"
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install --yes --no-install-recommends "${missing[@]}"
