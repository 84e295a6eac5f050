#!/usr/bin/env bash
# Configures and builds the program folder build/Veldoria (Veldo, Tablas/, Ayuda/) and the tests.
# Warnings are not errors unless asked: its arguments go to the configuration after the
# defaults (probar.sh passes -DVELDO_AVISOS_COMO_ERRORES=ON).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELDO_AVISOS_COMO_ERRORES=OFF "$@" >/dev/null
cmake --build build -j2
