#!/usr/bin/env bash
# The start script in an installation of its own, with three small data files and a program that
# only prints the folder it is started in: start_script_test.sh SCRIPT. Prints what failed.
set -uo pipefail

umask 022
script=$(realpath "$1")
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
work=$(realpath "$work")
failures=0

# check WHAT COMMAND...: notes a failure under its name.
check() {
  "${@:2}" && return
  echo "FAILED in $case: $1"
  failures=$((failures + 1))
}
is() { [ "$1" = "$2" ] || { printf 'is "%s" instead of "%s"\n' "$1" "$2"; return 1; }; }
holds() { is "$(cat "$1")" "$2"; }
absent() { [ ! -e "$1" ]; }

# begin CASE: a fresh installation of version 1, and a fresh home.
begin() {
  case=$1
  prefix="$work/$case/usr"
  home="$work/$case/home"
  own=$home/.local/share/lignara
  mkdir -p "$prefix/bin" "$prefix/share/lignara" "$home"
  cp "$script" "$prefix/bin/lignara-home"
  printf '#!/bin/sh\npwd\n' >"$prefix/bin/lignara"
  chmod +x "$prefix/bin/"*
  ship A.CSV "a1"
  ship B.CSV "b1"
  ship HELP "h1"
}

# ship NAME TEXT: what the installed version has in a file.
ship() {
  rm -f "$prefix/share/lignara/$1"
  echo "$2" >"$prefix/share/lignara/$1"
  chmod a-w "$prefix/share/lignara/$1"
}

# start [SETTING...]: starts from the menu; the folder that the program found itself in.
start() {
  (cd / && env -u XDG_DATA_HOME HOME="$home" "$@" "$prefix/bin/lignara-home" 2>"$work/complaint")
}

begin "first start"
check "the folder" is "$(start)" "$own"
check "a copy" holds "$own/A.CSV" a1
check "all files" is "$(ls "$own")" "$(ls "$prefix/share/lignara")"
check "copies can be written" test -w "$own/A.CSV"
check "nothing is said" is "$(cat "$work/complaint")" ""
check "nothing half done" is "$(find "$own" -name '*.part')" ""

begin "folder of XDG_DATA_HOME"
check "the folder" is "$(start XDG_DATA_HOME="$home/data")" "$home/data/lignara"
check "a copy" holds "$home/data/lignara/HELP" h1
check "no other folder" absent "$own"

begin "relative XDG_DATA_HOME counts as none"
check "the folder" is "$(start XDG_DATA_HOME=data)" "$own"

begin "blanks in the name"
check "the folder" is "$(start XDG_DATA_HOME="$home/my own data ")" "$home/my own data /lignara"
echo own >"$home/my own data /lignara/A.CSV"
ship A.CSV a2
start XDG_DATA_HOME="$home/my own data " >"$work/where"
check "a touched file" holds "$home/my own data /lignara/A.CSV" own
check "the new one beside it" holds "$home/my own data /lignara/A.CSV.new" a2

begin "second start of the same version"
start >"$work/where"
echo own >"$own/A.CSV"
start >"$work/where"
check "a touched file" holds "$own/A.CSV" own
check "nothing beside it" absent "$own/A.CSV.new"

begin "new version of touched and untouched files"
start >"$work/where"
echo own >"$own/A.CSV"
ship A.CSV a2
ship B.CSV b2
ship NEW.CSV n2
check "the folder" is "$(start)" "$own"
check "a touched file stays" holds "$own/A.CSV" own
check "the new one beside it" holds "$own/A.CSV.new" a2
check "an untouched file is renewed" holds "$own/B.CSV" b2
check "nothing beside an untouched file" absent "$own/B.CSV.new"
check "a file that did not change" holds "$own/HELP" h1
check "a file that is new" holds "$own/NEW.CSV" n2

rm "$own/A.CSV.new"
start >"$work/where"
check "a new one that was thrown away does not come back" absent "$own/A.CSV.new"
ship A.CSV a3
ship B.CSV b3
start >"$work/where"
check "the version after that lies beside it" holds "$own/A.CSV.new" a3
check "an untouched file is renewed again" holds "$own/B.CSV" b3
cp "$own/A.CSV.new" "$own/A.CSV"
start >"$work/where"
check "what the user has taken over lies no longer beside" absent "$own/A.CSV.new"
ship A.CSV a4
start >"$work/where"
check "and is renewed from then on" holds "$own/A.CSV" a4

begin "new version that changes only what the user has changed back"
start >"$work/where"
echo own >"$own/A.CSV"
echo a1 >"$own/A.CSV"
ship A.CSV a2
start >"$work/where"
check "counts as untouched" holds "$own/A.CSV" a2

begin "file that the user has removed"
start >"$work/where"
rm "$own/B.CSV"
start >"$work/where"
check "comes back" holds "$own/B.CSV" b1

begin "files that were there before the first start"
mkdir -p "$own"
echo own >"$own/A.CSV"
echo mine >"$own/REPORT.TXT"
start >"$work/where"
check "are the user's" holds "$own/A.CSV" own
check "with the shipped one beside" holds "$own/A.CSV.new" a1
check "others are left alone" holds "$own/REPORT.TXT" mine

begin "folder that cannot be made"
check "starts among the shipped files" is "$(start XDG_DATA_HOME=/dev/null/data)" "$prefix/share/lignara"
check "and says so" is "$(cat "$work/complaint")" "lignara-home: /dev/null/data/lignara cannot be written"

begin "user without a home"
check "starts among the shipped files" is "$(start env -u HOME)" "$prefix/share/lignara"

# No user can make a file below this name, not even root, who writes where others cannot.
begin "folder that can no longer be written"
start >"$work/where"
echo own >"$own/A.CSV"
mkdir "$own/.shipped.part"
ship A.CSV a2
check "starts among the user's files" is "$(start)" "$own"
check "which stay" holds "$own/A.CSV" own
check "and says so" is "$(cat "$work/complaint")" "lignara-home: $own cannot be written"

begin "read-only folder"
start >"$work/where"
echo own >"$own/A.CSV"
ship B.CSV b2
chmod a-w "$own" "$own"/*
as_user=()
if [ "$(id -u)" -eq 0 ]; then
  # Root writes anywhere: somebody else tries.
  chmod a+rx "$work" && as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups env)
fi
check "starts among the user's files" is "$(start "${as_user[@]}")" "$own"
check "which stay as they are" holds "$own/B.CSV" b1
check "and says so" is "$(cat "$work/complaint")" "lignara-home: $own cannot be written"

begin "read-only folder that is empty"
mkdir -p "$own"
chmod a-w "$own"
check "starts among the shipped files" is "$(start "${as_user[@]}")" "$prefix/share/lignara"

begin "link to the script"
ln -s "$prefix/bin/lignara-home" "$work/link"
check "finds its files" is "$(cd / && HOME=$home XDG_DATA_HOME='' "$work/link")" "$own"

exit $((failures > 0))
