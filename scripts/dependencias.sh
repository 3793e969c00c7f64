#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the headless demo need; only the
# missing ones, so a second run does nothing. Also makes a comma-decimal locale (es_CL) so the
# tests can show numbers keep their point under it.
set -euo pipefail
paquetes=(cmake ninja-build g++ pkg-config qt6-base-dev libqt6sql6-sqlite libsqlite3-dev qt6-charts-dev libqt6opengl6-dev qt6-translations-l10n
          libxlsxwriter-dev libzip-dev libfreexl-dev libfreeimage-dev libgtest-dev libbenchmark-dev libgl-dev
          xvfb xauth x11-apps xdotool imagemagick openbox fonts-dejavu-core locales
          clang)  # scripts/fuzz.sh: the sanitizer build and the fuzz harnesses
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
faltan=()
for p in "${paquetes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
if [ ${#faltan[@]} -gt 0 ]; then
  echo "Instalando: ${faltan[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${faltan[@]}" >/dev/null
fi
# LibreOffice Calc opens every kind of export in the tests; where it can't be installed, that
# test says so and is skipped.
if ! dpkg-query -W -f='${Status}' libreoffice-calc-nogui 2>/dev/null | grep -q 'install ok installed'; then
  { $sudo apt-get update -qq &&
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends libreoffice-calc-nogui >/dev/null; } ||
    echo "Aviso: no se pudo instalar LibreOffice Calc; la prueba que abre las planillas se omitirá" >&2
fi
if ! locale -a 2>/dev/null | grep -qi '^es_CL\.utf8$'; then
  $sudo sed -i 's/^# *\(es_CL\.UTF-8 UTF-8\)/\1/' /etc/locale.gen
  grep -q '^es_CL.UTF-8 UTF-8' /etc/locale.gen || echo 'es_CL.UTF-8 UTF-8' | $sudo tee -a /etc/locale.gen >/dev/null
  $sudo locale-gen >/dev/null
fi
