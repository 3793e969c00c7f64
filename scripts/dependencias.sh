#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the headless demo need; only the
# missing ones, so a second run does nothing.
set -euo pipefail
paquetes=(cmake ninja-build g++ pkg-config qt6-base-dev libqt6sql6-sqlite qt6-charts-dev
          libxlsxwriter-dev libzip-dev libfreexl-dev libfreeimage-dev libgtest-dev libbenchmark-dev libgl-dev
          xvfb xauth x11-apps imagemagick openbox fonts-dejavu-core)
faltan=()
for p in "${paquetes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
[ ${#faltan[@]} -eq 0 ] && exit 0
echo "Instalando: ${faltan[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${faltan[@]}" >/dev/null
