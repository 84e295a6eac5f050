#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/instalar.sh
scripts/construir.sh
exec build/Veldoria/Veldo
