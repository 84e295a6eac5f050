// Printing a stored return: one full sheet to PDF, the four copies to PDF, and the opening of
// the print panel. Each figure is the median of 21 runs after one warm-up run (the first one
// loads the fonts and builds the pictures). The PDF figures are split into the drawing and the
// finishing of the file, where the PDF writer embeds the fonts used. Targets: one sheet under
// 50 ms, the four copies under 200 ms, the panel under 100 ms.
// With a file name as argument, the four copies measured are also written there, to look at.
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/cImOf.h"
#include "registros/declaracion/cDecDatos.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {
constexpr int kVeces = 21;

double mediana(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

struct Tiempos {
    double total;
    double terminar;  // of which the finishing of the file
};

Tiempos medirPdf(const std::function<void(cSuperficiePdf&)>& dibujar)
{
    std::vector<double> total;
    std::vector<double> terminar;
    for (int i = 0; i <= kVeces; ++i) {
        QBuffer destino;
        destino.open(QIODevice::WriteOnly);
        QElapsedTimer reloj;
        reloj.start();
        qint64 dibujado = 0;
        {
            cSuperficiePdf pdf(&destino);
            dibujar(pdf);
            dibujado = reloj.nsecsElapsed();
            pdf.Terminar();
        }
        if (i > 0) {
            total.push_back(reloj.nsecsElapsed() / 1e6);
            terminar.push_back((reloj.nsecsElapsed() - dibujado) / 1e6);
        }
    }
    return {mediana(total), mediana(terminar)};
}

struct Aperturas {
    double primera;  // the first in the process: styles and fonts of the widgets loaded
    double mediana;
};

// From nothing to the panel on screen with its options, the presenter loaded, and painted.
Aperturas medirPanel()
{
    std::vector<double> ms;
    double primera = 0;
    for (int i = 0; i <= kVeces; ++i) {
        QElapsedTimer reloj;
        reloj.start();
        auto* panel = new FrmImprimir(DecDatos());
        panel->show();
        panel->repaint();
        const double tiempo = reloj.nsecsElapsed() / 1e6;
        if (i > 0)
            ms.push_back(tiempo);
        else
            primera = tiempo;
        delete panel;
        QApplication::processEvents();
    }
    return {primera, mediana(ms)};
}

void escribirHoja(const QString& fichero)
{
    QFile destino(fichero);
    if (!destino.open(QIODevice::WriteOnly))
        return;
    cSuperficiePdf pdf(&destino);
    ImprimirCopias(pdf, true);
    pdf.Terminar();
}
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    AlmacenDePrueba almacen;
    ImOf().CSDE = DeclaracionLlena();
    ImOf().TIPOIMP = QStringLiteral("O");
    ImOf().COPIAINF = ImOf().COPIAINT = ImOf().COPIAADM = ImOf().COPIABAN = QStringLiteral("X");
    const Aperturas panel = medirPanel();
    const Tiempos hoja = medirPdf([](cSuperficiePdf& p) { ImprimirEjemplar(p, true); });
    const Tiempos copias = medirPdf([](cSuperficiePdf& p) { ImprimirCopias(p, true); });
    std::printf("one full sheet to PDF:   %7.2f ms (target 50 ms; finishing the file %.2f ms)\n",
                hoja.total, hoja.terminar);
    std::printf("four copies to PDF:      %7.2f ms (target 200 ms; finishing the file %.2f ms)\n",
                copias.total, copias.terminar);
    std::printf("opening FrmImprimir:     %7.2f ms (target 100 ms; the first one %.2f ms)\n",
                panel.mediana, panel.primera);
    if (argc > 1)
        escribirHoja(QString::fromLocal8Bit(argv[1]));
    return 0;
}
