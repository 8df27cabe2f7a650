#!/usr/bin/env bash
# The whole check of a change: formatting, all tests, those of the Debian package among them, the
# tests of the programs again under a locale with a decimal comma, the tests of core and windows (the
# monkey among them) under the sanitizers, and the coverage of the core. Everything is carried out
# even when something failed before; the last line counts, the exit status tells.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

jobs=$(nproc)
passed=0
failed=0
export QT_QPA_PLATFORM=offscreen
export LC_ALL=C.UTF-8

headline() { printf '\n== %s\n' "$1"; }

# count STATUS: one check that is no ctest.
count() {
  if [ "$1" -eq 0 ]; then passed=$((passed + 1)); else failed=$((failed + 1)); fi
}

# run_tests FOLDER [CTEST ARGUMENTS...]: runs the tests of a build folder, with the settings of the
# array `environment`, and adds up its counts.
environment=()
run_tests() {
  local folder=$1 log total bad
  shift
  log=$folder/ctest.log
  env "${environment[@]}" ctest --test-dir "$folder" --output-on-failure --no-tests=error \
    --parallel "$jobs" "$@" | tee "$log" || true
  bad=$(sed -n 's/.* tests passed, \([0-9]*\) tests\{0,1\} failed out of .*/\1/p' "$log")
  total=$(sed -n 's/.* tests passed, .* failed out of \([0-9]*\)$/\1/p' "$log")
  if [ -z "$total" ]; then
    failed=$((failed + 1))
    return
  fi
  passed=$((passed + total - bad))
  failed=$((failed + bad))
}

# build PRESET [CMAKE ARGUMENTS...]: false when it does not build.
build() {
  local preset=$1
  shift
  cmake --preset "$preset" "$@" >"build/$preset.log" 2>&1 || { cat "build/$preset.log"; return 1; }
  cmake --build --preset "$preset" --parallel "$jobs"
}

headline "Set-up"
packaging/install-dependencies.sh test || count 1
mkdir -p build

headline "Formatting"
status=0
git ls-files -z '*.h' '*.cpp' |
  xargs -0 --no-run-if-empty -P "$jobs" -n 50 clang-format --dry-run -Werror || status=$?
count "$status"

headline "Release build"
if build release -DLIGNARA_TESTS=ON -DLIGNARA_BENCH=ON; then
  headline "Tests"
  run_tests build/release

  headline "Tests under a decimal comma"
  # A private copy of the locale, so that nothing of the system changes.
  mkdir -p build/locale
  [ -d build/locale/de_DE.UTF-8 ] ||
    localedef -i de_DE -f UTF-8 "$PWD/build/locale/de_DE.UTF-8" || true
  environment=(LOCPATH="$PWD/build/locale" LC_ALL=de_DE.UTF-8)
  if [ "$(env "${environment[@]}" locale decimal_point)" = , ]; then
    run_tests build/release --exclude-regex '^package\.'
  else
    echo "The locale de_DE.UTF-8 could not be made."
    count 1
  fi
  environment=()
else
  count 1
fi

# One build serves the sanitizers and the coverage: what the core's own tests execute is counted
# before the tests of the windows add theirs.
headline "Sanitizers"
if build asan; then
  find build/asan -name '*.gcda' -delete
  run_tests build/asan --tests-regex '^core\.'
  headline "Coverage of the core"
  mapfile -t filters < <(sed 's|.*|--filter=&/|' core_folders.txt)
  gcovr -j "$jobs" --root . --object-directory build/asan "${filters[@]}" \
    --print-summary --output build/asan/coverage.txt || count 1
  headline "Windows under the sanitizers"
  run_tests build/asan --tests-regex '^desktop\.'
else
  count 1
fi

printf '\n%d passed, %d failed\n' "$passed" "$failed"
[ "$failed" -eq 0 ]
