// Many returns to PDF from the command line's batch: 500 stored returns, each to a file of its
// own in one folder (the four copies, four pages a file), as `Veldo --pdf 1-500 CARPETA` does;
// then the same into one file (--un-fichero). Each figure is the whole run, checks and files
// included, best of three. Target: 500 returns to a folder under 10 s.
#include "comun/DeclaracionPrueba.h"

#include "aplicacion/OrdenesImprimir.h"
#include "registros/declaracion/cDecDatos.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace {
constexpr int kDeclaraciones = 500;

double medir(const QStringList& argumentos)
{
    double mejor = 1e12;
    for (int vez = 0; vez < 3; ++vez) {
        QElapsedTimer reloj;
        reloj.start();
        const std::optional<int> estado = OrdenesImprimir(argumentos);
        const double ms = reloj.nsecsElapsed() / 1e6;
        if (!estado || *estado != 0) {
            std::printf("the batch failed: %d\n", estado.value_or(-1));
            return -1;
        }
        mejor = std::min(mejor, ms);
    }
    return mejor;
}
}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication aplicacion(argc, argv);
    AlmacenDePrueba almacen;
    int32_t primero = 0;
    int32_t ultimo = 0;
    for (int i = 1; i <= kDeclaraciones; ++i) {
        DeclaracionValida();
        cDecDatos& d = DecDatos();
        d.CSDE = 0;
        d.REFERENCIA = QStringLiteral("REF-%1").arg(i);
        const int32_t codigo = d.GuardarDeclaracion() ? d.CSDE : 0;
        primero = primero ? primero : codigo;
        ultimo = codigo;
    }
    // Progress lines go to stderr; they are part of the work measured.
    QTemporaryDir dir;
    const QString rango = QStringLiteral("%1-%2").arg(primero).arg(ultimo);
    const double carpeta = medir({QStringLiteral("Veldo"), QStringLiteral("--pdf"), rango,
                                  dir.filePath(QStringLiteral("carpeta")), QStringLiteral("--fecha"),
                                  QStringLiteral("15/03/2024")});
    const int ficheros = int(QDir(dir.filePath(QStringLiteral("carpeta"))).entryList(QDir::Files).size());
    const double unico = medir({QStringLiteral("Veldo"), QStringLiteral("--pdf"), rango,
                                QStringLiteral("--un-fichero"), dir.filePath(QStringLiteral("todas.pdf")),
                                QStringLiteral("--fecha"), QStringLiteral("15/03/2024")});
    std::fprintf(stdout, "%d returns to a folder (%d files, four copies each): %.0f ms, %.1f ms a return (target 10 s)\n",
                 kDeclaraciones, ficheros, carpeta, carpeta / kDeclaraciones);
    std::fprintf(stdout, "%d returns to one file (--un-fichero): %.0f ms\n", kDeclaraciones, unico);
    return 0;
}
