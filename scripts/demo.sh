#!/usr/bin/env bash
# Headless demonstration of the main job on a fresh store: a course's scanned sheets are read,
# stored and graded, then the application is opened under a virtual display and its main
# window saved as a picture.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
export ZORTA="$raiz/build/src/zorta"
export ZORTA_DEMO="${ZORTA_DEMO:-$raiz/build/demo}"
rm -rf "$ZORTA_DEMO" && mkdir -p "$ZORTA_DEMO"
export ZORTA_DATOS="$ZORTA_DEMO"

echo "== Prueba de demostración y hojas escaneadas =="
"$ZORTA" demo
echo
echo "== Corrección sin ventanas (zorta corregir) =="
"$ZORTA" corregir --prueba 1 | grep -v '^Hoja '
echo
echo "== Lectura de una hoja (zorta leer) =="
"$ZORTA" hoja -o "$ZORTA_DEMO/ejemplo.bmp" --forma 2 --rut 123456785 --respuestas "A,B,C,D,E,,AC" >/dev/null
"$ZORTA" leer --preguntas 8 "$ZORTA_DEMO/ejemplo.bmp"
echo
echo "== Aplicación de escritorio en una pantalla virtual =="
xvfb-run -a -s "-screen 0 1280x860x24" "$raiz/scripts/captura.sh" "$ZORTA_DEMO/principal.png" 5
echo "Base de datos: $ZORTA_DEMO/BaseNota.db"
echo "Imagen de la ventana principal: $ZORTA_DEMO/principal.png"
