#!/usr/bin/env bash
# The manual page veldoria(1) made by the build: man renders it without a single warning, and
# it names every option that `Veldo --help` lists, since both come from one table.
# Arguments: the page (veldoria.1.gz) and the program.
set -euo pipefail
pagina=$1
programa=$2
command -v man >/dev/null || { echo "man no está instalado: sin revisar"; exit 77; }
avisos=$(mktemp)
texto=$(mktemp)
trap 'rm -f "$avisos" "$texto"' EXIT
LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$pagina" >"$texto" 2>"$avisos"
if [ -s "$avisos" ]; then
    echo "man avisa al mostrar la página:"
    cat "$avisos"
    exit 1
fi
grep -q "veldoria - autoliquidación" "$texto" || { echo "falta el NOMBRE"; exit 1; }
opciones=$(LANG=C.UTF-8 QT_QPA_PLATFORM=offscreen "$programa" --help | grep -oE -- '--[a-z-]+' | sort -u)
[ -n "$opciones" ] || { echo "--help no lista opciones"; exit 1; }
for o in $opciones; do
    grep -qF -- "$o" "$texto" || { echo "la página no nombra $o"; exit 1; }
done
echo "página de manual correcta: $(echo "$opciones" | wc -l) opciones"
