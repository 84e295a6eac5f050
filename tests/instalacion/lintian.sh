#!/usr/bin/env bash
# Debian's own check of the package that paquete.sh made: no error allowed. Exits 77 (skipped)
# when lintian is not on the machine.
# Argument: the output folder of paquete.sh.
set -euo pipefail
command -v lintian >/dev/null || { echo "lintian no está instalado: sin revisar"; exit 77; }
lintian --fail-on error --display-info "$1"/veldoria_*.deb
