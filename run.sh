#!/usr/bin/env bash
# Installs what is missing, builds the programs and starts Lignara among its data files. Without a
# display an example truss is played instead, from the launcher to its report.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

packaging/install-dependencies.sh run
cmake --preset release -DLIGNARA_TESTS=OFF -DLIGNARA_BENCH=OFF
cmake --build --preset release --parallel "$(nproc)"

programs=$PWD/build/release/bin
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  cd data
  exec "$programs/lignara"
fi

example=docs/examples/first_truss.lig
echo "There is no display here: playing $example instead."
# In a copy of the data files, since the example saves its report beside them.
folder=build/example
rm -rf "$folder"
mkdir -p "$folder"
cp data/* "$folder"
"$programs/lignara-script" --data "$folder" "$example"
echo "The report that it saved:"
cat "$folder/report.txt"
