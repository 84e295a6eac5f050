#!/usr/bin/env bash
# The menu entry and the AppStream metadata of the installed tree, checked by the desktop's own
# validators (AppStream's looks at the tree as a whole: the metadata, the menu entry it launches
# and its icon). Exits 77 (skipped) when neither validator is on the machine.
# Argument: the temporary root that instalar.sh filled.
set -euo pipefail
compartido=$1/usr/share
hecho=0
if command -v appstreamcli >/dev/null; then
  appstreamcli validate-tree --no-net --strict "$1"
  hecho=1
fi
if command -v desktop-file-validate >/dev/null; then
  salida=$(desktop-file-validate "$compartido/applications/org.veldoria.Veldoria.desktop")
  [ -z "$salida" ] || { echo "$salida" >&2; exit 1; }
  hecho=1
fi
entrada="$compartido/applications/org.veldoria.Veldoria.desktop"
for clave in 'Name\[es\]=' 'Name\[eu\]=' 'Comment\[es\]=' 'Comment\[eu\]=' \
             '^Categories=Office;Finance;$' '^Exec=veldoria$' '^Icon=org.veldoria.Veldoria$'; do
  grep -q "$clave" "$entrada" || { echo "la entrada de menú no tiene $clave" >&2; exit 1; }
done
[ "$hecho" = 1 ] || { echo "ni appstreamcli ni desktop-file-validate: sin validar"; exit 77; }
