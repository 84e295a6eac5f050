// The lists of parties cross between stores, records and panels as typed rows: no header on
// their way names a positional array (Arreglo, Arreglo2D) or includes their positions, and the
// stores' list operations take criteria and give rows without one.
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

QString Leer(const QString& relativo)
{
    QFile f(QStringLiteral(VELDO_SRC "/") + relativo);
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(f.readAll());
}

// The lines of `texto` that name an array or include a positions header, with their numbers.
QStringList Arreglos(const QString& texto)
{
    static const QRegularExpression arreglo(
        QStringLiteral(R"(\bArreglo(2D)?\b|servicios/Arreglos\.h|servicios/Posiciones\w*\.h)"));
    QStringList lineas;
    const QStringList todas = texto.split(QLatin1Char('\n'));
    for (int i = 0; i < todas.size(); ++i)
        if (arreglo.match(todas[i]).hasMatch())
            lineas << QStringLiteral("%1: %2").arg(i + 1).arg(todas[i].trimmed());
    return lineas;
}

// The declarations of a class's operation `nombre` in a header: from the name to its ";".
QStringList Declaraciones(const QString& texto, const QString& nombre)
{
    QStringList d;
    qsizetype desde = 0;
    while ((desde = texto.indexOf(nombre + QLatin1Char('('), desde)) >= 0) {
        const qsizetype fin = texto.indexOf(QLatin1Char(';'), desde);
        d << texto.mid(desde, fin - desde);
        desde = fin;
    }
    return d;
}

}  // namespace

class TestInterfacesListas : public QObject {
    Q_OBJECT

private slots:
    void cabecerasSinArreglos_data()
    {
        QTest::addColumn<QString>("cabecera");
        for (const char* c :
             {"servicios/cPresenSvr.h", "servicios/ListasPartes.h", "valores/CriteriosParte.h",
              "valores/FilaContribuyente.h", "valores/FilaPresentador.h",
              "registros/partes/cListaParte.h", "registros/partes/cConLista.h",
              "registros/partes/cPreLista.h", "registros/partes/cConSeleccion.h",
              "registros/partes/CriteriosLista.h", "registros/intercambio/cExportar.h",
              "paneles/partes/PanelLista.h", "paneles/partes/FrmConLista.h",
              "paneles/partes/FrmPreLista.h", "paneles/partes/ColumnasContribuyentes.h",
              "paneles/partes/ColumnasPresentadores.h", "paneles/declaracion/FrmSeleccion.h"})
            QTest::newRow(c) << QString::fromLatin1(c);
    }

    void cabecerasSinArreglos()
    {
        QFETCH(QString, cabecera);
        const QString texto = Leer(cabecera);
        QVERIFY2(!texto.isEmpty(), qPrintable(cabecera));
        const QStringList lineas = Arreglos(texto);
        QVERIFY2(lineas.isEmpty(), qPrintable(lineas.join(QLatin1Char('\n'))));
    }

    void listasDeLosAlmacenesTipadas()
    {
        const QString contribuyentes = Leer(QStringLiteral("servicios/cContribSvr.h"));
        const QString presentadores = Leer(QStringLiteral("servicios/cPresenSvr.h"));
        const QStringList d = Declaraciones(contribuyentes, QStringLiteral("dameResultadoBusqueda"))
            + Declaraciones(contribuyentes, QStringLiteral("dameResultadoBusquedaTodo"))
            + Declaraciones(presentadores, QStringLiteral("dameResultadoBusqueda"));
        QCOMPARE(d.size(), 3);
        for (const QString& declaracion : d) {
            QVERIFY2(Arreglos(declaracion).isEmpty(), qPrintable(declaracion));
            QVERIFY2(declaracion.contains(QLatin1String("const CriteriosParte&")),
                     qPrintable(declaracion));
            QVERIFY2(declaracion.contains(QLatin1String("OrdenParte")), qPrintable(declaracion));
        }
    }
};

QTEST_GUILESS_MAIN(TestInterfacesListas)
#include "test_interfaces_listas.moc"
