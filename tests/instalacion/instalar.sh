#!/usr/bin/env bash
# Installs the build into a temporary root as `cmake --install` installs it for a user, checks
# what lands where, and asks the installed command for its version and its options with no
# display at all. The program's folder is left read-only, as an installation leaves it, for the
# tests that run the program from there.
# Arguments: cmake, build folder, temporary root, program folder (under the prefix), version.
set -euo pipefail
cmake=$1 construido=$2 raiz=$3 carpeta=$4 version=$5
fallo() { echo "FALLO: $*" >&2; exit 1; }

if [ -e "$raiz" ]; then chmod -R u+w "$raiz"; rm -rf "$raiz"; fi
DESTDIR="$raiz" "$cmake" --install "$construido" --prefix /usr >/dev/null
programa="$raiz/usr/$carpeta"
compartido="$raiz/usr/share"

for f in "$programa/Veldo" "$programa/Tablas/VELDOLEC.mdb" \
         "$programa/Ayuda/Ayuda/inicio.html" "$programa/Ayuda/Laguntza" \
         "$compartido/applications/org.veldoria.Veldoria.desktop" \
         "$compartido/icons/hicolor/scalable/apps/org.veldoria.Veldoria.svg" \
         "$compartido/icons/hicolor/48x48/apps/org.veldoria.Veldoria.png" \
         "$compartido/metainfo/org.veldoria.Veldoria.metainfo.xml" \
         "$compartido/doc/veldoria/copyright" "$compartido/doc/veldoria/changelog.gz" \
         "$compartido/man/man1/veldoria.1.gz"; do
  [ -e "$f" ] || fallo "no se ha instalado ${f#"$raiz"}"
done
[ -x "$programa/Veldo" ] || fallo "Veldo no es ejecutable"
# Nothing the program writes is installed: each user's first run makes it.
for f in Tablas/VELDOMOD.mdb version.ini backups; do
  [ ! -e "$programa/$f" ] || fallo "se ha instalado $f"
done
# The command on the PATH is a relative link to the program.
[ -L "$raiz/usr/bin/veldoria" ] || fallo "usr/bin/veldoria no es un enlace"
case "$(readlink "$raiz/usr/bin/veldoria")" in
  /*) fallo "usr/bin/veldoria es un enlace absoluto" ;;
esac
[ "$(readlink -f "$raiz/usr/bin/veldoria")" = "$(readlink -f "$programa/Veldo")" ] \
  || fallo "usr/bin/veldoria no lleva al programa"
if command -v file >/dev/null; then
  file "$compartido/icons/hicolor/48x48/apps/org.veldoria.Veldoria.png" | grep -q "PNG image data, 48 x 48" \
    || fallo "el icono de 48 px no mide 48 x 48"
fi

chmod -R a-w "$programa"

# No display, no platform: the command line does its work without a window.
sin_pantalla=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM LC_ALL=C.UTF-8)
salida=$("${sin_pantalla[@]}" "$raiz/usr/bin/veldoria" --version) || fallo "--version falló"
[ "$salida" = "Veldoria $version" ] || fallo "--version dice '$salida'"
ayuda=$("${sin_pantalla[@]}" "$raiz/usr/bin/veldoria" --help) || fallo "--help falló"
grep -q -- "-v, --version" <<<"$ayuda" || fallo "--help no lista --version: $ayuda"
grep -q -- "-h, --help" <<<"$ayuda" || fallo "--help no lista --help: $ayuda"
estado=0
"${sin_pantalla[@]}" "$raiz/usr/bin/veldoria" --no-existe 2>/dev/null || estado=$?
[ "$estado" = 2 ] || fallo "una opción desconocida acaba con $estado"
echo "instalado en $raiz"
