// The interfaces between stores, records and panels carry typed values: the real tree has no
// positional array in them, and trees written here with one fail, naming the file and the line.
#include "ComprobarInterfaces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

class Carpeta {
public:
    void escribir(const QString& relativo, const QString& texto)
    {
        const QString ruta = m_dir.filePath(relativo);
        QDir().mkpath(QFileInfo(ruta).path());
        QFile f(ruta);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(texto.toUtf8());
    }
    QString ruta() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

QString listar(const QList<Falta>& faltas)
{
    QStringList lineas;
    for (const Falta& f : faltas)
        lineas.append(f.texto());
    return lineas.join(QLatin1Char('\n'));
}

}  // namespace

class TestInterfaces : public QObject {
    Q_OBJECT

private slots:
    void elProgramaPasaValoresTipados()
    {
        Recuento recuento;
        const QList<Falta> faltas = ComprobarInterfaces(QStringLiteral(VELDO_SRC), &recuento);
        QVERIFY2(faltas.isEmpty(), qPrintable(listar(faltas)));
        QVERIFY(recuento.ficheros > 200);
        QVERIFY(recuento.includes > 5000);
    }

    void arreglosEnLasInterfacesFallan()
    {
        Carpeta src;
        src.escribir("servicios/cContribSvr.h",
                     "#pragma once\n"
                     "// Arreglo in a comment is no fault\n"
                     "int32_t dameResultadoBusqueda(const Arreglo& c, Arreglo2D& d);\n"
                     "QVariant DameOperacion(int32_t fechad) const;\n");
        src.escribir("registros/partes/cConLista.h",
                     "#pragma once\nstruct cConLista {\n    QList<QVariant> filas;\n};\n");
        src.escribir("paneles/partes/PanelLista.cpp",
                     "#include \"servicios/Arreglos.h\"\n#include \"servicios/cContribSvr.h\"\n");
        src.escribir("aplicacion/Ordenes.cpp", "#include \"../servicios/PosicionesImportar.h\"\n");
        src.escribir("valores/Fila.h", "#pragma once\nusing Celdas = QVariantList;\n");
        // The stores' own helpers, the engines' folders and the models of the panels may.
        src.escribir("servicios/SentenciaPreparada.h", "void Ligar(const QVariantList& v);\n");
        src.escribir("servicios/ArreglosPartes.cpp", "#include \"servicios/Arreglos.h\"\n");
        src.escribir("servicios/motor/Motor.h", "int Ejecutar(const QVariantList& valores);\n");
        src.escribir("paneles/controles/Modelo.h",
                     "QVariant data(const QModelIndex& i, int rol) const override;\n");
        const QList<Falta> faltas = ComprobarInterfaces(src.ruta());
        QCOMPARE(faltas.size(), 6);
        QCOMPARE(faltas[0].texto(),
                 QStringLiteral("aplicacion/Ordenes.cpp:1: outside the stores, includes "
                                "../servicios/PosicionesImportar.h"));
        QCOMPARE(faltas[1].fichero, QStringLiteral("paneles/partes/PanelLista.cpp"));
        QCOMPARE(faltas[1].linea, 1);
        QCOMPARE(faltas[2].texto(),
                 QStringLiteral("registros/partes/cConLista.h:3: an interface carries "
                                "QList<QVariant> instead of a typed value"));
        QCOMPARE(faltas[3].fichero, QStringLiteral("servicios/cContribSvr.h"));
        QCOMPARE(faltas[3].linea, 3);
        QVERIFY(faltas[3].motivo.contains(QLatin1String("Arreglo")));
        QCOMPARE(faltas[4].fichero, QStringLiteral("servicios/cContribSvr.h"));
        QCOMPARE(faltas[4].linea, 4);
        QVERIFY(faltas[4].motivo.contains(QLatin1String("QVariant")));
        QCOMPARE(faltas[5].texto(),
                 QStringLiteral("valores/Fila.h:2: an interface carries QVariantList instead of "
                                "a typed value"));
    }
};

QTEST_GUILESS_MAIN(TestInterfaces)
#include "test_interfaces.moc"
