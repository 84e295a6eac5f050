#!/usr/bin/env bash
# Runs the GUI tests (those of the panels and of the application) on the X server of $DISPLAY
# with openbox as its window manager: there, as on a desktop, a window loses and gets back the
# activation when a message box comes and goes, which the offscreen platform never shows.
# probar.sh calls it under xvfb-run after the whole suite has run offscreen.
set -uo pipefail
cd "$(dirname "$0")/../build"
openbox >/dev/null 2>&1 &
gestor=$!
trap 'kill "$gestor" 2>/dev/null' EXIT
sleep 1
fallos=0
while IFS= read -r prueba; do
  carpeta=$(dirname "$prueba")
  nombre=$(basename "$prueba")
  if ! (cd "$carpeta" && QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 timeout 600 "./$nombre" \
          >"$nombre.x11.log" 2>&1); then
    echo "FALLA bajo X11: $prueba"
    tail -n 40 "$carpeta/$nombre.x11.log"
    fallos=1
  else
    echo "bien bajo X11: $prueba"
  fi
done < <(find tests/paneles tests/aplicacion -type f -executable -name 'test_*' | sort)
exit "$fallos"
