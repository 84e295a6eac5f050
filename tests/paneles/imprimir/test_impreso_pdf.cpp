// One full sheet written to a PDF file and read back with pdftotext -bbox: a sample of texts
// stands within 0.3 mm of where the form puts them, the fonts are embedded, and the four
// copies make four pages.
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "paneles/imprimir/cSuperficieImpresora.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/cImOf.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {
constexpr double kMmPorPunto = 25.4 / 72.0;

struct Palabra {
    double x, yMin, yMax;
};

// The words of page 1 with their boxes, in millimetres from the top left corner.
QMultiHash<QString, Palabra> palabras(const QString& pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"),
            {QStringLiteral("-bbox"), QStringLiteral("-f"), QStringLiteral("1"),
             QStringLiteral("-l"), QStringLiteral("1"), pdf, QStringLiteral("-")});
    p.waitForFinished(30000);
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression re(QStringLiteral(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="([\d.]+)">([^<]*)</word>)re"));
    QMultiHash<QString, Palabra> r;
    for (const auto& m : re.globalMatch(html))
        r.insert(m.captured(4), {m.captured(1).toDouble() * kMmPorPunto,
                                 m.captured(2).toDouble() * kMmPorPunto,
                                 m.captured(3).toDouble() * kMmPorPunto});
    return r;
}
}

class TestImpresoPdf : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QTemporaryDir m_dir;

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed: scripts/instalar.sh installs it");
    }
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        DeclaracionLlena();
    }
    void cleanup() { m_almacen.reset(); }

    void textosEnSuSitio()
    {
        // Where the recording surface places them is where the form wants them (its tests);
        // the PDF must put them there too.
        cSuperficieGrabadora g;
        ImprimirEjemplar(g, true);
        const QString fichero = m_dir.filePath(QStringLiteral("hoja.pdf"));
        {
            cSuperficiePdf pdf(fichero);
            ImprimirEjemplar(pdf, true);
            QVERIFY(pdf.Terminar());
            QCOMPARE(pdf.Paginas(), 1);
        }
        const QMultiHash<QString, Palabra> leidas = palabras(fichero);
        QVERIFY(!leidas.isEmpty());
        const QStringList muestra{DecDatos().NOMBRESP, DecDatos().DNITR, QStringLiteral("747"),
                                  QStringLiteral("999,95"), QStringLiteral("1.234,50"),
                                  QStringLiteral("IDENTIFICACIÓN"), QStringLiteral("2010"),
                                  QStringLiteral("ESPACIO"), QStringLiteral("Importe"),
                                  QStringLiteral("P9"), QStringLiteral("GESTORIA")};
        for (const QString& t : muestra) {
            LlamadaPagina l;
            bool hallada = false;
            for (const LlamadaPagina& c : g.Llamadas)
                if (c.tipo == LlamadaPagina::Tipo::Texto &&
                    (c.texto == t || c.texto.startsWith(t + QLatin1Char(' ')))) {
                    l = c;
                    hallada = true;
                    break;
                }
            QVERIFY2(hallada, qPrintable(t));
            QVERIFY2(leidas.contains(t), qPrintable(t));
            const Palabra p = leidas.value(t);
            QVERIFY2(qAbs(p.x - l.x1) < 0.3, qPrintable(QStringLiteral("%1 x %2 / %3")
                                                            .arg(t).arg(p.x).arg(l.x1)));
            // pdftotext boxes a word from its font's ascent to its descent: the top of the
            // line the surface printed at.
            const double alto = AltoDe(l);
            QVERIFY2(qAbs(p.yMin - l.y1) < 0.3 || qAbs((p.yMax - p.yMin) - alto) < 0.3,
                     qPrintable(QStringLiteral("%1 y %2 / %3").arg(t).arg(p.yMin).arg(l.y1)));
            QVERIFY2(qAbs(p.yMin - l.y1) < 0.3,
                     qPrintable(QStringLiteral("%1 y %2 / %3").arg(t).arg(p.yMin).arg(l.y1)));
        }
    }

    void fuentesIncrustadas()
    {
        const QString fichero = m_dir.filePath(QStringLiteral("fuentes.pdf"));
        {
            cSuperficiePdf pdf(fichero);
            ImprimirEjemplar(pdf, true);
        }
        QProcess p;
        p.start(QStringLiteral("pdffonts"), {fichero});
        p.waitForFinished(30000);
        const QString salida = QString::fromUtf8(p.readAllStandardOutput());
        QVERIFY2(salida.contains(QLatin1String("LiberationSerif")), qPrintable(salida));
        QVERIFY2(salida.contains(QLatin1String("LiberationSans")), qPrintable(salida));
        // Every font line says "yes" in the embedded column, the first after the encoding.
        for (const QString& linea : salida.split(QLatin1Char('\n')).mid(2)) {
            const QStringList c = linea.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            if (c.size() >= 7)
                QVERIFY2(c.at(c.size() - 5) == QLatin1String("yes"), qPrintable(linea));
        }
    }

    void impresoraEnviaCadaHojaComoUnTrabajo()
    {
        // A printer whose output is a file: each sheet is a job of its own that replaces the
        // file, so the file holds the last sheet only, on one page.
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFormat(QPrinter::PdfFormat);
        const QString fichero = m_dir.filePath(QStringLiteral("impresora.pdf"));
        impresora.setOutputFileName(fichero);
        cSuperficieImpresora s(impresora);
        ImprimirEjemplar(s, true);
        QVERIFY(s.Bien());
        QCOMPARE(palabras(fichero).values(DecDatos().NOMBRESP).size(), 1);
        ImprimirEjemplarBanco(s);
        QVERIFY(s.Bien());
        const QMultiHash<QString, Palabra> leidas = palabras(fichero);
        QVERIFY(leidas.contains(QStringLiteral("Total")));
        QVERIFY(!leidas.contains(DecDatos().MARCA));
        // The millimetres of the form from the paper's edge on this device too.
        const Palabra p = leidas.value(QStringLiteral("747"));
        QVERIFY2(qAbs(p.x - 169) < 0.5, qPrintable(QString::number(p.x)));
    }

    void cuatroCopiasCuatroPaginas()
    {
        ImOf().TIPOIMP = QStringLiteral("O");
        ImOf().COPIAINF = ImOf().COPIAINT = ImOf().COPIAADM = ImOf().COPIABAN =
            QStringLiteral("X");
        const QString fichero = m_dir.filePath(QStringLiteral("copias.pdf"));
        cSuperficiePdf pdf(fichero);
        QCOMPARE(ImprimirCopias(pdf, true), 4);
        QVERIFY(pdf.Terminar());
        QCOMPARE(pdf.Paginas(), 4);
        QProcess p;
        p.start(QStringLiteral("pdfinfo"), {fichero});
        p.waitForFinished(30000);
        const QString info = QString::fromUtf8(p.readAllStandardOutput());
        QVERIFY2(info.contains(QRegularExpression(QStringLiteral("Pages:\\s+4"))), qPrintable(info));
        QVERIFY2(info.contains(QLatin1String("(A4)")), qPrintable(info));
    }
};

QTEST_MAIN(TestImpresoPdf)
#include "test_impreso_pdf.moc"
