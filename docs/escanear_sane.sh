#!/bin/sh
# Example scanning program for scaner.ini: scans every sheet in the feeder of a SANE scanner
# and leaves one BMP a sheet in the scan folder given as the first argument.
# Needs scanimage (package sane-utils) and ppmtobmp (package netpbm). Set RESOLUCION so that
# `zorta leer` reports a "distancia" between 850 and 898 for a scanned sheet.
set -e
carpeta="${1:?falta la carpeta de escaneo}"
RESOLUCION="${RESOLUCION:-200}"
lote="$(date +%Y%m%d%H%M%S)"
# The scans are written as .pnm and renamed only when whole: a name holding ".bmp" is read.
scanimage --source ADF --mode Gray --resolution "$RESOLUCION" --format=pnm \
    --batch="$carpeta/$lote-%03d.pnm" || true
for pnm in "$carpeta/$lote"-*.pnm; do
    [ -e "$pnm" ] || continue
    ppmtobmp "$pnm" > "${pnm%.pnm}.tmp"
    mv "${pnm%.pnm}.tmp" "${pnm%.pnm}.bmp"
    rm -f "$pnm"
done
