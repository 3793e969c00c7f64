#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
"$raiz/scripts/dependencias.sh"
"$raiz/scripts/compilar.sh"
cd "$raiz/build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
