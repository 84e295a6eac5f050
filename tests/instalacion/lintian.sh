#!/usr/bin/env bash
# Debian's own check of the package that paquete.sh made: no error allowed. Exits 77 (skipped)
# when lintian is not on the machine.
# Argument: the output folder of paquete.sh.
set -euo pipefail
command -v lintian >/dev/null || { echo "lintian no está instalado: sin revisar"; exit 77; }
informe=$(lintian --fail-on error --display-info "$1"/veldoria_*.deb) || { echo "$informe"; exit 1; }
echo "$informe"
# The command has its manual page.
if grep -q "no-manual-page" <<<"$informe"; then
    echo "lintian echa en falta la página de manual"
    exit 1
fi
