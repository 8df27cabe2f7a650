#!/usr/bin/env bash
# One check of the Debian package: check.sh SUBJECT BUILD WORK. "pack" comes first; it packs what
# the folder BUILD holds, twice, and unpacks it below the folder WORK for the others.
set -euo pipefail

subject=$1
build=$2
work=$3
here=$(dirname "$(realpath "$0")")
file=lignara_6.1-1_amd64.deb
root=$work/root

pack() {
  local time
  rm -rf "$work"
  for time in first second; do
    "$here/../../packaging/build-deb.sh" "$build" "$work/$time"
  done
  dpkg-deb -x "$work/first/$file" "$root"
}

same_twice() { cmp "$work/first/$file" "$work/second/$file"; }

# Warnings count: each is mended, or overridden with its reason.
lintian() { command lintian --allow-root --fail-on error,warning "$work/first/$file"; }

# Mode, owner and name of each file; keep a new list with ACCEPT=1.
file_list() {
  dpkg-deb -c "$work/first/$file" | awk '{ print $1, $2, $6 }' >"$work/files.txt"
  if [ -n "${ACCEPT:-}" ]; then cp "$work/files.txt" "$here/files.txt"; fi
  diff -u "$here/files.txt" "$work/files.txt"
}

# What the formatter says to a page is an error here.
man_pages() {
  local page complaints
  for page in "$root"/usr/share/man/man1/*.gz; do
    complaints=$(MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$complaints" ] || { printf '%s: %s\n' "$page" "$complaints"; return 1; }
  done
}

desktop_entry() { desktop-file-validate "$root/usr/share/applications/lignara.desktop"; }

metainfo() { appstreamcli validate --no-net "$root"/usr/share/metainfo/*.xml; }

# The unpacked programs among their shipped files: the example truss gives the report that is kept.
installed() {
  local examples=$here/../../docs/examples
  rm -rf "$work/data"
  cp -r "$root/usr/share/lignara" "$work/data"
  "$root/usr/bin/lignara-script" --data "$work/data" "$examples/first_truss.lig" >"$work/printed"
  diff -u "$examples/first_truss.out" "$work/printed"
  diff -u "$examples/first_truss.report.txt" "$work/data/report.txt"
}

"$subject"
