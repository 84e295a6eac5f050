#!/usr/bin/env bash
# Builds the Debian package with CPack and checks its contents, its dependencies (those of the
# libraries it links, and what it loads at run time) and that the stripped program it carries
# still answers its version.
# Arguments: cpack, build folder, output folder, version.
set -euo pipefail
cpack=$1 construido=$2 salida=$3 version=$4
fallo() { echo "FALLO: $*" >&2; exit 1; }

rm -rf "$salida"
"$cpack" -G DEB --config "$construido/CPackConfig.cmake" -B "$salida" >"$salida.log" 2>&1 \
  || { cat "$salida.log" >&2; fallo "cpack no ha hecho el paquete"; }
deb=$(ls "$salida"/veldoria_*.deb)
echo "paquete: $deb"

contenido=$(dpkg-deb --contents "$deb")
for f in ./usr/lib/veldoria/Veldo ./usr/lib/veldoria/Tablas/VELDOLEC.mdb \
         ./usr/lib/veldoria/Ayuda/Ayuda/inicio.html ./usr/bin/veldoria \
         ./usr/share/applications/org.veldoria.Veldoria.desktop \
         ./usr/share/icons/hicolor/scalable/apps/org.veldoria.Veldoria.svg \
         ./usr/share/icons/hicolor/48x48/apps/org.veldoria.Veldoria.png \
         ./usr/share/metainfo/org.veldoria.Veldoria.metainfo.xml \
         ./usr/share/doc/veldoria/copyright ./usr/share/doc/veldoria/changelog.gz \
         ./usr/share/man/man1/veldoria.1.gz; do
  grep -q " $f\( \|$\)" <<<"$contenido" || fallo "el paquete no lleva $f"
done
grep -q "VELDOMOD" <<<"$contenido" && fallo "el paquete lleva una base de datos de usuario"
grep -q " ./usr/bin/veldoria -> ../lib/veldoria/Veldo$" <<<"$contenido" \
  || fallo "usr/bin/veldoria no es un enlace al programa"

[ "$(dpkg-deb --field "$deb" Package)" = veldoria ] || fallo "nombre del paquete"
[ "$(dpkg-deb --field "$deb" Version)" = "$version" ] || fallo "versión del paquete"
depende=$(dpkg-deb --field "$deb" Depends)
echo "Depends: $depende"
# One package name a line, without its version.
nombres=$(tr ',' '\n' <<<"$depende" | sed 's/^ *//; s/ .*//')
for d in fonts-liberation2 libqt6sql6-sqlite qt6-qpa-plugins libqt6widgets6 libqt6sql6 \
         libqt6core6 libqt6network6 libc6 libstdc++6; do
  grep -qxF "$d" <<<"$nombres" || fallo "Depends no nombra $d"
done

extraido=$(mktemp -d)
trap 'rm -rf "$extraido"' EXIT
dpkg-deb -x "$deb" "$extraido"
respuesta=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM LC_ALL=C.UTF-8 \
            "$extraido/usr/bin/veldoria" --version) || fallo "--version del paquete falló"
[ "$respuesta" = "Veldoria $version" ] || fallo "--version del paquete dice '$respuesta'"
