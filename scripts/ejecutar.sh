#!/usr/bin/env bash
# Installs what is missing, builds, and starts Zorta. With a display it opens the desktop
# application; without one it runs the headless demo (scripts/demo.sh).
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
"$raiz/scripts/dependencias.sh"
"$raiz/scripts/compilar.sh"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$raiz/build/src/zorta"
fi
echo "No hay pantalla: se ejecuta la demostración sin pantalla (scripts/demo.sh)."
exec "$raiz/scripts/demo.sh"
