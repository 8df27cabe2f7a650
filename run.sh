#!/usr/bin/env bash
# Installs what is missing, builds the programs and starts Lignara among its data files. Without a
# display an example script is played instead.
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
exec "$programs/lignara-script" --data data "$example"
