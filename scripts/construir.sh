#!/usr/bin/env bash
# Configures and builds the program folder build/Veldoria (Veldo, Tablas/, Ayuda/) and the tests.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2
