#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors, and runs the whole test suite: every
# test offscreen, then the GUI tests once more on a real X server (Xvfb) with a window manager
# (openbox), then the tests below the panels built with the sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/instalar.sh
scripts/construir.sh -DVELDO_AVISOS_COMO_ERRORES=ON
(cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2)
xvfb-run -a -s "-screen 0 1280x1024x24" scripts/probar_x11.sh
scripts/probar_sanitizado.sh
