#!/usr/bin/env bash
# Keeps what scripts print now as their transcripts: tests/scripts/accept.sh BUILD_FOLDER NAME...
# Read the difference before you commit it: a transcript is worth what its reader saw in it.
set -euo pipefail
build=$(realpath "$1")
shift
cd "$(dirname "$0")"
for name in "$@"; do
  : >>"$name.out"
  cmake -DPROGRAM="$build/bin/lignara-script" -DNAME="$name" -DSCRIPTS="$PWD" -DDATA="$PWD/../../data" \
    -DWORK="$build/accept/$name" -DACCEPT=1 -P play.cmake
done
