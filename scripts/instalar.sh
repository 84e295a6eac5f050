#!/usr/bin/env bash
# Installs what building, running and testing Veldoria needs on Debian (as root or with sudo),
# and what builds and checks its Debian package (dpkg-dev, file, lintian, the menu validators).
set -euo pipefail
paquetes=(build-essential cmake qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libsqlite3-dev libgl-dev
          fonts-liberation2 xvfb xauth poppler-utils openbox qt6-translations-l10n
          dpkg-dev file lintian appstream desktop-file-utils)
faltan=()
for p in "${paquetes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$p")
done
if [ ${#faltan[@]} -gt 0 ]; then
  sudo_=""
  [ "$(id -u)" -ne 0 ] && sudo_="sudo"
  $sudo_ apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_ apt-get install -y -qq "${faltan[@]}"
fi
