#!/usr/bin/env bash
# Inside a virtual display: starts a window manager and Zorta ($ZORTA), waits, saves a picture
# of the whole screen to $1 and ends both. Usage: captura.sh IMAGEN [SEGUNDOS]
set -uo pipefail
openbox >/dev/null 2>&1 &
gestor=$!
sleep 1
"$ZORTA" >/dev/null 2>&1 &
app=$!
sleep "${2:-5}"
# A click on the first test of the list shows its students, when xdotool is at hand.
if command -v xdotool >/dev/null; then
  xdotool mousemove 170 118 click 1
  sleep 1
fi
import -window root "$1"
kill "$app" "$gestor" 2>/dev/null
wait 2>/dev/null
exit 0
