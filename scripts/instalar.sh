#!/usr/bin/env bash
# Installs what building, running and testing Veldoria needs on Debian (as root or with sudo),
# and what builds and checks its Debian package (dpkg-dev, file, lintian, the menu validators).
# PostgreSQL's server programs and Qt's driver for it: the tests of an office's database start
# a server of their own with them.
set -euo pipefail
paquetes=(build-essential cmake qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libsqlite3-dev libgl-dev
          fonts-liberation2 xvfb xauth poppler-utils openbox qt6-translations-l10n
          dpkg-dev file lintian appstream desktop-file-utils
          postgresql libqt6sql6-psql)
# The print server and its admin tool that the printing test runs a queue of its own on; the
# services they recommend (discovery, colour management) are not wanted.
sin_recomendados=(cups-daemon cups-client)
faltan=()
faltan_solos=()
instalado() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }
for p in "${paquetes[@]}"; do instalado "$p" || faltan+=("$p"); done
for p in "${sin_recomendados[@]}"; do instalado "$p" || faltan_solos+=("$p"); done
if [ $((${#faltan[@]} + ${#faltan_solos[@]})) -gt 0 ]; then
  sudo_=""
  [ "$(id -u)" -ne 0 ] && sudo_="sudo"
  $sudo_ apt-get update -qq
  [ ${#faltan[@]} -eq 0 ] || DEBIAN_FRONTEND=noninteractive $sudo_ apt-get install -y -qq "${faltan[@]}"
  [ ${#faltan_solos[@]} -eq 0 ] ||
    DEBIAN_FRONTEND=noninteractive $sudo_ apt-get install -y -qq --no-install-recommends "${faltan_solos[@]}"
fi
