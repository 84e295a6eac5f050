#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/instalar.sh
scripts/construir.sh
cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2
