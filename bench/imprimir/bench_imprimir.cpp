// Printing a stored return to PDF: one full sheet, and the four copies. Each figure is the
// median of 21 runs after one warm-up run (the first one loads the fonts and builds the
// pictures). Targets: one sheet under 50 ms, the four copies under 200 ms.
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "paneles/imprimir/cSuperficiePdf.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/cImOf.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {
constexpr int kVeces = 21;

double mediana(const std::function<void(cSuperficiePdf&)>& dibujar)
{
    std::vector<double> ms;
    for (int i = 0; i <= kVeces; ++i) {
        QBuffer destino;
        destino.open(QIODevice::WriteOnly);
        QElapsedTimer reloj;
        reloj.start();
        {
            cSuperficiePdf pdf(&destino);
            dibujar(pdf);
            pdf.Terminar();
        }
        if (i > 0)
            ms.push_back(reloj.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    AlmacenDePrueba almacen;
    DeclaracionLlena();
    ImOf().TIPOIMP = QStringLiteral("O");
    ImOf().COPIAINF = ImOf().COPIAINT = ImOf().COPIAADM = ImOf().COPIABAN = QStringLiteral("X");
    const double hoja = mediana([](cSuperficiePdf& p) { ImprimirEjemplar(p, true); });
    const double copias = mediana([](cSuperficiePdf& p) { ImprimirCopias(p, true); });
    std::printf("one full sheet to PDF:   %7.2f ms (target 50 ms)\n", hoja);
    std::printf("four copies to PDF:      %7.2f ms (target 200 ms)\n", copias);
    return 0;
}
