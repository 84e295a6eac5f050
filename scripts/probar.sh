#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite: every test offscreen, then
# the GUI tests once more on a real X server (Xvfb) with a window manager (openbox).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/instalar.sh
scripts/construir.sh
(cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2)
xvfb-run -a -s "-screen 0 1280x1024x24" scripts/probar_x11.sh
