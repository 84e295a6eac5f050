// The catalogue's ids by name: every row of the table has one, the names are unique kId
// identifiers, and each generated constant is the id of the row it names, checked when this
// file compiles and again when it runs (also against the table's own text). The generator
// itself is run on small tables, to see it refuse a row without a name, a repeated or
// malformed name and a row out of order, and leave an unchanged header untouched.
#include "catalogo/Catalogo.h"
#include "catalogo/CatalogoFilas.h"
#include "catalogo/IdsCatalogo.h"
#include "catalogo/NombresIdsCatalogo.h"
#include "plataforma/General.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <iterator>
#include <string_view>

namespace {

constexpr bool EsIdentificadorKId(std::string_view nombre)
{
    if (nombre.size() < 4 || nombre.substr(0, 3) != "kId" || nombre[3] < 'A' || nombre[3] > 'Z')
        return false;
    for (const char c : nombre)
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')))
            return false;
    return true;
}

constexpr bool NombresCorrectos()
{
    constexpr auto n = std::size(Catalogo::kNombresIds);
    for (std::size_t i = 0; i < n; ++i) {
        if (Catalogo::kNombresIds[i].id != static_cast<int>(i) + 1)
            return false;
        if (!EsIdentificadorKId(Catalogo::kNombresIds[i].nombre))
            return false;
        for (std::size_t j = 0; j < i; ++j)
            if (std::string_view(Catalogo::kNombresIds[i].nombre)
                == std::string_view(Catalogo::kNombresIds[j].nombre))
                return false;
    }
    return true;
}

// Checked by the compiler: a name per row, in order, unique and well formed.
static_assert(std::size(Catalogo::kNombresIds) == Catalogo::kUltimoId);
static_assert(NombresCorrectos());
static_assert(kIdErrorClaseFecha == 1);
static_assert(kIdBotonCancelar == 4);
static_assert(kIdMarcadorD1 == 226);
static_assert(kIdOficinaAnterior == Catalogo::kUltimoId);

// A table of three rows as the generator reads them, the second row's first line given.
QByteArray TablaDePrueba(const QByteArray& segundaFila)
{
    return "namespace Catalogo {\n"
           "constexpr FilaCatalogo kFilas[kUltimoId] = {\n"
           "    /*   1 */ {kIdPrimera,\n"
           "              \"Uno; con punto y coma\",\n"
           "              \"Bat\"},\n"
           + segundaFila + "\n"
           "              \"Dos\",\n"
           "              \"Bi\"},\n"
           "    /*   3 */ {kIdTercera,\n"
           "              \"Tres\",\n"
           "              \"Hiru\"},\n"
           "};\n}\n";
}

struct Generacion {
    int estado = -1;
    QString salida;
    QByteArray ids;
    QByteArray nombres;
};

}  // namespace

class TestIdsCatalogo : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    Generacion Generar(const QByteArray& tabla)
    {
        const QString ruta = m_dir.filePath(QStringLiteral("CatalogoFilas.cpp"));
        QFile f(ruta);
        if (!f.open(QIODevice::WriteOnly) || f.write(tabla) != tabla.size())
            return {};
        f.close();
        return Ejecutar(ruta);
    }

    Generacion Ejecutar(const QString& tabla)
    {
        const QString ids = m_dir.filePath(QStringLiteral("IdsCatalogo.h"));
        const QString nombres = m_dir.filePath(QStringLiteral("NombresIdsCatalogo.h"));
        QProcess cmake;
        cmake.setProcessChannelMode(QProcess::MergedChannels);
        cmake.start(QStringLiteral(CMAKE_ORDEN),
                    {QStringLiteral("-DTABLA=") + tabla, QStringLiteral("-DIDS=") + ids,
                     QStringLiteral("-DNOMBRES=") + nombres, QStringLiteral("-P"),
                     QStringLiteral(GENERADOR_IDS)});
        Generacion g;
        if (!cmake.waitForFinished(60000))
            return g;
        g.estado = cmake.exitStatus() == QProcess::NormalExit ? cmake.exitCode() : -1;
        g.salida = QString::fromUtf8(cmake.readAll());
        QFile fi(ids);
        if (fi.open(QIODevice::ReadOnly))
            g.ids = fi.readAll();
        QFile fn(nombres);
        if (fn.open(QIODevice::ReadOnly))
            g.nombres = fn.readAll();
        return g;
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("IdsCatalogo.h")));
        QFile::remove(m_dir.filePath(QStringLiteral("NombresIdsCatalogo.h")));
    }

    void cadaFilaTieneSuNombre()
    {
        QCOMPARE(std::size(Catalogo::kNombresIds), std::size_t(Catalogo::kUltimoId));
        QSet<QString> vistos;
        const QRegularExpression identificador(QStringLiteral("^kId[A-Z][A-Za-z0-9]*$"));
        for (int n = 1; n <= Catalogo::kUltimoId; ++n) {
            const Catalogo::NombreId& nombre = Catalogo::kNombresIds[n - 1];
            const QString texto = QString::fromLatin1(nombre.nombre);
            QVERIFY2(identificador.match(texto).hasMatch(), nombre.nombre);
            QVERIFY2(!vistos.contains(texto), nombre.nombre);
            vistos.insert(texto);
            QCOMPARE(nombre.id, n);
            QCOMPARE(Catalogo::kFilas[n - 1].id, n);
        }
    }

    // The table's text names each row where its number stands: the generated constant of that
    // name is that number.
    void cadaConstanteEsElIdDeSuFila()
    {
        QFile f(QStringLiteral(TABLA_CATALOGO));
        QVERIFY(f.open(QIODevice::ReadOnly | QIODevice::Text));
        QHash<QString, int> constantes;
        for (const Catalogo::NombreId& n : Catalogo::kNombresIds)
            constantes.insert(QString::fromLatin1(n.nombre), n.id);
        const QRegularExpression fila(QStringLiteral(R"(^\s*/\*\s*(\d+)\s*\*/\s*\{(\w*))"),
                                      QRegularExpression::MultilineOption);
        int filas = 0;
        for (const QRegularExpressionMatch& m : fila.globalMatch(QString::fromUtf8(f.readAll()))) {
            ++filas;
            const QString nombre = m.captured(2);
            QVERIFY2(constantes.contains(nombre), qPrintable(m.captured(0)));
            QCOMPARE(constantes.value(nombre), m.captured(1).toInt());
        }
        QCOMPARE(filas, Catalogo::kUltimoId);
    }

    void elNombreLeeSuTexto()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QCOMPARE(Texto(kIdBotonCancelar), QStringLiteral("&Cancelar"));
        QCOMPARE(Texto(kIdDniCifErroneo), QStringLiteral("El campo DNI-CIF es erróneo"));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(Texto(kIdBotonCancelar), QStringLiteral("&Utzi"));
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void generaUnaConstantePorFila()
    {
        const Generacion g = Generar(TablaDePrueba("    /*   2 */ {kIdSegunda,"));
        QCOMPARE(g.estado, 0);
        QVERIFY(g.ids.contains("inline constexpr int kIdPrimera = 1;\n"
                               "inline constexpr int kIdSegunda = 2;\n"
                               "inline constexpr int kIdTercera = 3;\n"));
        QVERIFY(g.nombres.contains("{\"kIdSegunda\", kIdSegunda},"));
    }

    void noReescribeLoQueNoCambia()
    {
        QCOMPARE(Generar(TablaDePrueba("    /*   2 */ {kIdSegunda,")).estado, 0);
        const QString ids = m_dir.filePath(QStringLiteral("IdsCatalogo.h"));
        QFile f(ids);
        QVERIFY(f.open(QIODevice::ReadWrite));
        const QDateTime antigua = QDateTime::currentDateTimeUtc().addDays(-1);
        QVERIFY(f.setFileTime(antigua, QFileDevice::FileModificationTime));
        f.close();
        QCOMPARE(Generar(TablaDePrueba("    /*   2 */ {kIdSegunda,")).estado, 0);
        QCOMPARE(QFileInfo(ids).lastModified().toUTC(), antigua);
        QCOMPARE(Generar(TablaDePrueba("    /*   2 */ {kIdOtra,")).estado, 0);
        QVERIFY(QFileInfo(ids).lastModified().toUTC() > antigua);
    }

    void rechazaUnaTablaMalNombrada_data()
    {
        QTest::addColumn<QByteArray>("fila");
        QTest::addColumn<QString>("motivo");
        QTest::newRow("sin nombre") << QByteArray("    /*   2 */ {\"Dos\",")
                                    << QStringLiteral("la fila 2 no tiene nombre");
        QTest::newRow("repetido") << QByteArray("    /*   2 */ {kIdPrimera,")
                                  << QStringLiteral("kIdPrimera de la fila 2 ya nombra otra fila");
        QTest::newRow("sin kId") << QByteArray("    /*   2 */ {Segunda,")
                                 << QStringLiteral("Segunda de la fila 2 no es kId");
        QTest::newRow("minúscula") << QByteArray("    /*   2 */ {kIdsegunda,")
                                   << QStringLiteral("kIdsegunda de la fila 2 no es kId");
        QTest::newRow("desordenada") << QByteArray("    /*   4 */ {kIdSegunda,")
                                     << QStringLiteral("la fila 4 está donde debería estar la 2");
    }

    void rechazaUnaTablaMalNombrada()
    {
        QFETCH(QByteArray, fila);
        QFETCH(QString, motivo);
        const Generacion g = Generar(TablaDePrueba(fila));
        QVERIFY(g.estado > 0);
        QVERIFY2(g.salida.simplified().contains(motivo), qPrintable(g.salida));
        QVERIFY(g.ids.isEmpty());
    }

    // The real table goes through the generator as the build runs it, with the same result.
    void laTablaDelProgramaDaLaCabeceraDelPrograma()
    {
        const Generacion g = Ejecutar(QStringLiteral(TABLA_CATALOGO));
        QCOMPARE(g.estado, 0);
        QFile compilada(QStringLiteral(CABECERA_IDS));
        QVERIFY(compilada.open(QIODevice::ReadOnly));
        QCOMPARE(g.ids, compilada.readAll());
    }
};

QTEST_GUILESS_MAIN(TestIdsCatalogo)
#include "test_ids_catalogo.moc"
#include "plataforma/Idioma.h"
