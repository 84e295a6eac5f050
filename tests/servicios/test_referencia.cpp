// The generated reference database and the general data read from it: provinces,
// municipalities of Arbelia, street types, date limits, update address, the pickers' SQL
// texts run as the panels pass them, and the names looked up for printing.
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "servicios/Esquema.h"
#include "servicios/cDatosGeneral.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QUrl>

namespace {
const QString kViasCas = QStringLiteral("Select T09_CODIGO, T09_CAS From T09_SIGLASVIA ORDER BY T09_CAS");
const QString kViasEus = QStringLiteral("Select T09_CODIGO, T09_EUS From T09_SIGLASVIA ORDER BY T09_EUS");
const QString kProvCas = QStringLiteral("Select T07_PRO_ID, T07_PRO_CAS From T07_PROVINCIAS ORDER BY T07_PRO_CAS");
const QString kProvEus = QStringLiteral("Select T07_PRO_ID, T07_PRO_EUS From T07_PROVINCIAS ORDER BY T07_PRO_EUS");
const QString kMunicipios = QStringLiteral("Select T08_CODMUN, T08_NOMMUN From T08_MUNICIPIOS ORDER BY T08_NOMMUN");

cDatosGeneral lectura()
{
    cDatosGeneral d;
    d.mdblec = mdblec;
    return d;
}

QString nombreDeCodigo(const Arreglo2D& a, const QString& codigo)
{
    const qsizetype i = a[0].indexOf(codigo);
    return i < 0 ? QString() : a[1][i].toString();
}
}  // namespace

class TestReferencia : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init() { m_carpeta = std::make_unique<CarpetaDePrueba>(); }
    void cleanup() { m_carpeta.reset(); }

    void provinciasDeEspanaYArbelia()
    {
        Arreglo2D a;
        lectura().CargarProvincias(kProvCas, a);
        QCOMPARE(a.size(), 2);
        QCOMPARE(a[0].size(), 53);
        QCOMPARE(a[1].size(), 53);
        QSet<QString> codigos;
        for (const QVariant& v : a[0])
            codigos << v.toString();
        for (int i = 1; i <= 52; ++i)
            QVERIFY2(codigos.contains(QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'))),
                     qPrintable(QString::number(i)));
        QVERIFY(codigos.contains(QStringLiteral("77")));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("77")), QStringLiteral("Arbelia"));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("48")), QStringLiteral("Vizcaya"));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("01")), QStringLiteral("Álava"));
        for (const QVariant& v : a[1]) {
            QVERIFY(!v.toString().trimmed().isEmpty());
            QVERIFY2(v.toString().size() <= 20, qPrintable(v.toString()));
        }

        Arreglo2D e;
        lectura().CargarProvincias(kProvEus, e);
        QCOMPARE(e[0].size(), 53);
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("48")), QStringLiteral("Bizkaia"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("01")), QStringLiteral("Araba"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("77")), QStringLiteral("Arbelia"));
        for (const QVariant& v : e[1])
            QVERIFY2(v.toString().size() <= 20, qPrintable(v.toString()));
    }

    // Names come in the order of the alphabet, accents aside: Álava first, Ávila among the A.
    void ordenAlfabeticoEspanol()
    {
        Arreglo2D a;
        lectura().CargarProvincias(kProvCas, a);
        QCOMPARE(a[1].first().toString(), QStringLiteral("Álava"));
        QCOMPARE(a[1][1].toString(), QStringLiteral("Albacete"));
        const qsizetype avila = a[1].indexOf(QStringLiteral("Ávila"));
        QCOMPARE(a[1][avila - 1].toString(), QStringLiteral("Asturias"));
        QCOMPARE(a[1][avila + 1].toString(), QStringLiteral("Badajoz"));
        QCOMPARE(a[1].last().toString(), QStringLiteral("Zaragoza"));

        Arreglo2D e;
        lectura().CargarProvincias(kProvEus, e);
        QCOMPARE(e[1].first().toString(), QStringLiteral("A Coruña"));
        QCOMPARE(e[1].last().toString(), QStringLiteral("Zaragoza"));

        // A statement ordered by the code keeps the order of the codes.
        Arreglo2D c;
        lectura().CargarProvincias(
            QStringLiteral("Select T07_PRO_ID, T07_PRO_CAS From T07_PROVINCIAS ORDER BY T07_PRO_ID"), c);
        QCOMPARE(c[0].first().toString(), QStringLiteral("01"));
        QCOMPARE(c[0].last().toString(), QStringLiteral("77"));
        // And a descending order by name is kept descending.
        Arreglo2D d;
        lectura().CargarProvincias(kProvCas + QStringLiteral(" DESC"), d);
        QCOMPARE(d[1].first().toString(), QStringLiteral("Zaragoza"));
        QCOMPARE(d[1].last().toString(), QStringLiteral("Álava"));
    }

    void municipiosDeArbelia()
    {
        Arreglo2D a;
        lectura().CargarMunicipios(kMunicipios, a);
        QCOMPARE(a.size(), 2);
        QVERIFY(a[0].size() >= 40);
        QCOMPARE(a[0].size(), a[1].size());
        static const QRegularExpression tresCifras(QStringLiteral("^[0-9]{3}$"));
        QSet<QString> codigos;
        for (int i = 0; i < a[0].size(); ++i) {
            const QString codigo = a[0][i].toString();
            const QString nombre = a[1][i].toString();
            QVERIFY2(tresCifras.match(codigo).hasMatch(), qPrintable(codigo));
            QVERIFY(codigo != QLatin1String("000"));  // 000 means "no municipality of Arbelia"
            codigos << codigo;
            QVERIFY(!nombre.isEmpty());
            QCOMPARE(nombre, nombre.toUpper());
            QVERIFY2(nombre.size() <= 25, qPrintable(nombre));
        }
        QCOMPARE(codigos.size(), a[0].size());
        // In alphabetical order, Ñ after N.
        const qsizetype pena = a[1].indexOf(QStringLiteral("PEÑAVELDA"));
        QVERIFY(pena > 0);
        QVERIFY(a[1][pena - 1].toString() < QStringLiteral("PEÑAVELDA"));
    }

    void siglasDeVia()
    {
        Arreglo2D a;
        lectura().CargarVias(kViasCas, a);
        QCOMPARE(a.size(), 2);
        const QList<QPair<QString, QString>> esperadas{
            {QStringLiteral("CL"), QStringLiteral("Calle")},
            {QStringLiteral("AV"), QStringLiteral("Avenida")},
            {QStringLiteral("PZ"), QStringLiteral("Plaza")},
            {QStringLiteral("PS"), QStringLiteral("Paseo")},
            {QStringLiteral("CR"), QStringLiteral("Carretera")},
            {QStringLiteral("CM"), QStringLiteral("Camino")},
            {QStringLiteral("TR"), QStringLiteral("Travesía")},
            {QStringLiteral("RD"), QStringLiteral("Ronda")},
            {QStringLiteral("GL"), QStringLiteral("Glorieta")},
            {QStringLiteral("UR"), QStringLiteral("Urbanización")},
            {QStringLiteral("BO"), QStringLiteral("Barrio")},
            {QStringLiteral("PG"), QStringLiteral("Polígono")},
            {QStringLiteral("AL"), QStringLiteral("Alameda")},
            {QStringLiteral("CU"), QStringLiteral("Cuesta")},
            {QStringLiteral("PJ"), QStringLiteral("Pasaje")},
        };
        for (const auto& [codigo, nombre] : esperadas)
            QCOMPARE(nombreDeCodigo(a, codigo), nombre);
        for (const QVariant& v : a[0])
            QCOMPARE(v.toString().size(), 2);
        QCOMPARE(a[1].first().toString(), QStringLiteral("Alameda"));

        Arreglo2D e;
        lectura().CargarVias(kViasEus, e);
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("CL")), QStringLiteral("Kalea"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("AV")), QStringLiteral("Etorbidea"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("PZ")), QStringLiteral("Plaza"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("PS")), QStringLiteral("Pasealekua"));
        for (const QVariant& v : e[1])
            QVERIFY(!v.toString().isEmpty());
        // The Basque text orders by the Basque name.
        for (int i = 1; i < e[1].size(); ++i)
            QVERIFY(e[1][i - 1].toString().toUpper() <= e[1][i].toString().toUpper());
    }

    // A language change gives another SQL text, and so the other column and order.
    void elTextoDeLaLenguaDecideLaLista()
    {
        Arreglo2D cas;
        Arreglo2D eus;
        lectura().CargarVias(kViasCas, cas);
        lectura().CargarVias(kViasEus, eus);
        QCOMPARE(cas[0].size(), eus[0].size());
        QVERIFY(cas[1] != eus[1]);
        QVERIFY(cas[1].contains(QStringLiteral("Calle")));
        QVERIFY(!eus[1].contains(QStringLiteral("Calle")));
    }

    void limitesDeFecha()
    {
        Arreglo fechas;
        lectura().DameFechaMinimaMaxima(fechas);
        QCOMPARE(fechas.size(), 2);
        QCOMPARE(fechas[0].toInt(), 19930101);
        QCOMPARE(fechas[1].toInt(), 20271231);
    }

    void direccionDeActualizacion()
    {
        const QString direccion = lectura().URLAct();
        const QUrl url(direccion);
        QVERIFY(url.isValid());
        QCOMPARE(url.scheme(), QStringLiteral("http"));
        QVERIFY2(url.host().endsWith(QLatin1String(".example")), qPrintable(direccion));
        QVERIFY(!url.hasQuery());  // the query keys are the client's
        QCOMPARE(direccion, QStringLiteral("http://actualizaciones.veldoria.example/version.php"));
    }

    // The mark of this program's databases, named to the backup through T10_GENERAL.
    void marcaDeCopias()
    {
        ConexionCruda c(mdblec, true);
        QCOMPARE(c.escalar(QStringLiteral("SELECT T10_BACKUP_TVC FROM T10_GENERAL")).toInt(),
                 Esquema::MarcaAplicacion);
    }

    void nombresParaImprimir()
    {
        const cDatosGeneral d = lectura();
        QCOMPARE(d.ObtenNomProvincia(QStringLiteral("77")), QStringLiteral("Arbelia"));
        QCOMPARE(d.ObtenNomProvincia(QStringLiteral("01")), QStringLiteral("Álava"));
        QCOMPARE(d.ObtenNomProvincia(QStringLiteral("1")), QStringLiteral("Álava"));
        QCOMPARE(d.ObtenNomProvincia(QStringLiteral("99")), QString());
        QCOMPARE(d.ObtenNomProvincia(QString()), QString());
        QCOMPARE(d.ObtenNomMunicipio(QStringLiteral("001")), QStringLiteral("ARBELGAIN"));
        QCOMPARE(d.ObtenNomMunicipio(QStringLiteral("1")), QStringLiteral("ARBELGAIN"));
        QCOMPARE(d.ObtenNomMunicipio(QStringLiteral("017")), QStringLiteral("PEÑAVELDA"));
        QCOMPARE(d.ObtenNomMunicipio(QStringLiteral("000")), QString());
        QCOMPARE(d.ObtenNomMunicipio(QStringLiteral("999")), QString());
    }

    // The answer has two columns even when the statement finds nothing.
    void listaVaciaConDosColumnas()
    {
        Arreglo2D a{{QStringLiteral("viejo")}};
        lectura().CargarMunicipios(
            QStringLiteral("Select T08_CODMUN, T08_NOMMUN From T08_MUNICIPIOS WHERE 1 = 0"), a);
        QCOMPARE(a.size(), 2);
        QVERIFY(a[0].isEmpty());
        QVERIFY(a[1].isEmpty());
    }

    void tiposConElMismoFormato()
    {
        Arreglo2D a;
        lectura().CargarTipos(kViasCas, a);
        QCOMPARE(a.size(), 2);
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("CL")), QStringLiteral("Calle"));
    }

    // A missing table, a statement of the wrong shape or a missing file are failures.
    void fallosDelServidor()
    {
        Arreglo2D a;
        try {
            lectura().CargarVias(QStringLiteral("Select X From NO_EXISTE"), a);
            QFAIL("sin fallo");
        } catch (const cFallo& f) {
            QVERIFY(f.origen().contains(QLatin1String("cDatosGeneral")));
        }
        QVERIFY_THROWS_EXCEPTION(
            cFallo, lectura().CargarVias(QStringLiteral("Select T09_CODIGO From T09_SIGLASVIA"), a));
        cDatosGeneral sinArchivo;
        sinArchivo.mdblec = m_carpeta->tablas() + QStringLiteral("NO_ESTA.mdb");
        Arreglo fechas;
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.DameFechaMinimaMaxima(fechas));
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.URLAct());
    }

    // The reference database is only read: a statement that writes is refused.
    void laReferenciaNoSeModifica()
    {
        Arreglo2D a;
        QVERIFY_THROWS_EXCEPTION(
            cFallo, lectura().CargarTipos(QStringLiteral("DELETE FROM T09_SIGLASVIA"), a));
        Arreglo2D v;
        lectura().CargarVias(kViasCas, v);
        QVERIFY(v[0].size() >= 15);
    }
};

QTEST_MAIN(TestReferencia)
#include "test_referencia.moc"
