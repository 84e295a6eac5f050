#!/usr/bin/env bash
# The tests of the layers below the panels (tests/valores, catalogo, servicios, registros,
# arquitectura: the CTest label sin_widgets) built with AddressSanitizer and
# UndefinedBehaviorSanitizer in a folder of their own, build-sanitizado/; any finding ends its
# test with a failure. probar.sh calls it after the main suite. Only those tests and what they
# link are built, to keep the time of CI down.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build-sanitizado -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELDO_SANITIZADO=ON \
      -DVELDO_AVISOS_COMO_ERRORES=ON >/dev/null
cmake --build build-sanitizado -j2 --target veldo_pruebas_sin_widgets
(cd build-sanitizado && ctest -L sin_widgets --output-on-failure -j2)
