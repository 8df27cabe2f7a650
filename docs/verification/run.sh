#!/usr/bin/env bash
# The verification manual from real runs: plays the input scripts of all cases, reads what each case
# names, and holds it against the expected value.
#
#   docs/verification/run.sh PROGRAM            compares with the tables of docs/verification.md
#   docs/verification/run.sh PROGRAM --update   writes the tables anew
#
# PROGRAM is lignara-script. Fails where a value differs that should agree, or agrees that is said to
# depart, or where the tables are not those that are kept.
set -euo pipefail
export LC_ALL=C QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

program=$(realpath "$1")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
manual=$here/../verification.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$here/../../data" "$work/data"

cases() { grep -v -e '^#' -e '^[[:space:]]*$' "$1" || true; }

# play SCRIPT CASES: the script, and the reading of each case behind a line "case".
play() {
  {
    cat "$here/$1.lig"
    cases "$2" | awk -F ' *[|] *' -v script="$1" '$1 == script { print "windows"; print $3 }'
  } | "$program" --data "$work/data" | awk '
    /^window / { if (!mark) print "case"; mark = 1; next }
    { mark = 0; print }'
}

# table CASES: a row a case.
table() {
  local script
  printf '| Case | Input | Expected | Lignara | Difference | Worked out by |\n|---|---|--:|--:|--:|---|\n'
  cases "$1" | awk -F ' *[|] *' '!seen[$1]++ { print $1 }' | while read -r script; do
    play "$script" "$1" >"$work/played"
    cases "$1" | awk -F ' *[|] *' -v script="$script" '$1 == script' >"$work/rows"
    awk -F ' *[|] *' -f "$here/table.awk" "$work/played" "$work/rows"
  done
}

# with_table NAME FILE: the manual with a table put between its marks.
with_table() {
  awk -v name="$1" -v table="$2" '
    $0 == "<!-- end of " name " -->" { skip = 0; done = 1 }
    !skip
    $0 == "<!-- " name " -->" { skip = 1; while ((getline line < table) > 0) print line }
    END { if (!done) { print "verification.md has no place for " name > "/dev/stderr"; exit 1 } }
  ' "$3"
}

cp "$manual" "$work/manual"
for file in "$here"/*.cases; do
  name=$(basename "$file" .cases)
  table "$file" >"$work/table"
  with_table "$name" "$work/table" "$work/manual" >"$work/next"
  mv "$work/next" "$work/manual"
done

status=0
grep -e 'WRONG' "$work/manual" >&2 && status=1
if [ "${2:-}" = --update ]; then
  cp "$work/manual" "$manual"
else
  diff -u "$manual" "$work/manual" || status=1
fi
exit $status
