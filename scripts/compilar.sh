#!/usr/bin/env bash
# Configures and builds everything (application, tests, benchmarks) in build/.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
cmake -S "$raiz" -B "$raiz/build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
ninja -C "$raiz/build" -j"$(nproc)"
