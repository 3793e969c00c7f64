#!/usr/bin/env bash
# Headless demonstration: starts the application on a fresh store under a virtual display and
# saves a picture of the main window.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
export ZORTA="$raiz/build/src/zorta"
export ZORTA_DEMO="${ZORTA_DEMO:-$raiz/build/demo}"
rm -rf "$ZORTA_DEMO" && mkdir -p "$ZORTA_DEMO"
export ZORTA_DATOS="$ZORTA_DEMO"

echo "== Aplicación de escritorio en una pantalla virtual =="
xvfb-run -a -s "-screen 0 1280x860x24" "$raiz/scripts/captura.sh" "$ZORTA_DEMO/principal.png" 5
echo "Base de datos creada: $ZORTA_DEMO/BaseNota.db"
echo "Imagen de la ventana principal: $ZORTA_DEMO/principal.png"
