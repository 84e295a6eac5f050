// The generated reference database and the general data read from it: provinces,
// municipalities of Arbelia, street types in each language, date limits, update address, and
// the names looked up for printing.
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
cDatosGeneral lectura()
{
    cDatosGeneral d;
    d.mdblec = mdblec;
    return d;
}

QString nombreDeCodigo(const QList<FilaReferencia>& a, const QString& codigo)
{
    for (const FilaReferencia& f : a)
        if (f.codigo == codigo)
            return f.nombre;
    return QString();
}

QStringList Nombres(const QList<FilaReferencia>& a)
{
    QStringList n;
    for (const FilaReferencia& f : a)
        n << f.nombre;
    return n;
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
        const QList<FilaReferencia> a = lectura().CargarProvincias(Idioma::Castellano);
        QCOMPARE(a.size(), 53);
        QSet<QString> codigos;
        for (const FilaReferencia& f : a)
            codigos << f.codigo;
        for (int i = 1; i <= 52; ++i)
            QVERIFY2(codigos.contains(QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'))),
                     qPrintable(QString::number(i)));
        QVERIFY(codigos.contains(QStringLiteral("77")));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("77")), QStringLiteral("Arbelia"));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("48")), QStringLiteral("Vizcaya"));
        QCOMPARE(nombreDeCodigo(a, QStringLiteral("01")), QStringLiteral("Álava"));
        for (const QString& v : Nombres(a)) {
            QVERIFY(!v.trimmed().isEmpty());
            QVERIFY2(v.size() <= 20, qPrintable(v));
        }

        const QList<FilaReferencia> e = lectura().CargarProvincias(Idioma::Euskera);
        QCOMPARE(e.size(), 53);
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("48")), QStringLiteral("Bizkaia"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("01")), QStringLiteral("Araba"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("77")), QStringLiteral("Arbelia"));
        for (const QString& v : Nombres(e))
            QVERIFY2(v.size() <= 20, qPrintable(v));
    }

    // Names come in the order of the alphabet, accents aside: Álava first, Ávila among the A.
    void ordenAlfabeticoEspanol()
    {
        const QStringList a = Nombres(lectura().CargarProvincias(Idioma::Castellano));
        QCOMPARE(a.first(), QStringLiteral("Álava"));
        QCOMPARE(a[1], QStringLiteral("Albacete"));
        const qsizetype avila = a.indexOf(QStringLiteral("Ávila"));
        QCOMPARE(a[avila - 1], QStringLiteral("Asturias"));
        QCOMPARE(a[avila + 1], QStringLiteral("Badajoz"));
        QCOMPARE(a.last(), QStringLiteral("Zaragoza"));

        const QStringList e = Nombres(lectura().CargarProvincias(Idioma::Euskera));
        QCOMPARE(e.first(), QStringLiteral("A Coruña"));
        QCOMPARE(e.last(), QStringLiteral("Zaragoza"));
    }

    void municipiosDeArbelia()
    {
        const QList<FilaReferencia> a = lectura().CargarMunicipios();
        QVERIFY(a.size() >= 40);
        static const QRegularExpression tresCifras(QStringLiteral("^[0-9]{3}$"));
        QSet<QString> codigos;
        for (const auto& [codigo, nombre] : a) {
            QVERIFY2(tresCifras.match(codigo).hasMatch(), qPrintable(codigo));
            QVERIFY(codigo != QLatin1String("000"));  // 000 means "no municipality of Arbelia"
            codigos << codigo;
            QVERIFY(!nombre.isEmpty());
            QCOMPARE(nombre, nombre.toUpper());
            QVERIFY2(nombre.size() <= 25, qPrintable(nombre));
        }
        QCOMPARE(codigos.size(), a.size());
        // In alphabetical order, Ñ after N.
        const QStringList nombres = Nombres(a);
        const qsizetype pena = nombres.indexOf(QStringLiteral("PEÑAVELDA"));
        QVERIFY(pena > 0);
        QVERIFY(nombres[pena - 1] < QStringLiteral("PEÑAVELDA"));
    }

    void siglasDeVia()
    {
        const QList<FilaReferencia> a = lectura().CargarVias(Idioma::Castellano);
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
        for (const FilaReferencia& f : a)
            QCOMPARE(f.codigo.size(), 2);
        QCOMPARE(a.first().nombre, QStringLiteral("Alameda"));

        const QList<FilaReferencia> e = lectura().CargarVias(Idioma::Euskera);
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("CL")), QStringLiteral("Kalea"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("AV")), QStringLiteral("Etorbidea"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("PZ")), QStringLiteral("Plaza"));
        QCOMPARE(nombreDeCodigo(e, QStringLiteral("PS")), QStringLiteral("Pasealekua"));
        for (const FilaReferencia& f : e)
            QVERIFY(!f.nombre.isEmpty());
        // The Basque list orders by the Basque name.
        for (int i = 1; i < e.size(); ++i)
            QVERIFY(e[i - 1].nombre.toUpper() <= e[i].nombre.toUpper());
    }

    // The language decides the column of the names, and so their order.
    void laLenguaDecideLaLista()
    {
        const QList<FilaReferencia> cas = lectura().CargarVias(Idioma::Castellano);
        const QList<FilaReferencia> eus = lectura().CargarVias(Idioma::Euskera);
        QCOMPARE(cas.size(), eus.size());
        QVERIFY(Nombres(cas) != Nombres(eus));
        QVERIFY(Nombres(cas).contains(QStringLiteral("Calle")));
        QVERIFY(!Nombres(eus).contains(QStringLiteral("Calle")));
    }

    void limitesDeFecha()
    {
        const LimitesFechas fechas = lectura().DameFechaMinimaMaxima();
        QCOMPARE(fechas.minima, QDate(1993, 1, 1));
        QCOMPARE(fechas.maxima, QDate(2027, 12, 31));
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

    // A missing file is a failure, with the store as its source.
    void fallosDelServidor()
    {
        cDatosGeneral sinArchivo;
        sinArchivo.mdblec = m_carpeta->tablas() + QStringLiteral("NO_ESTA.mdb");
        try {
            sinArchivo.CargarVias(Idioma::Castellano);
            QFAIL("sin fallo");
        } catch (const cFallo& f) {
            QVERIFY(f.origen().contains(QLatin1String("cDatosGeneral")));
        }
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.CargarProvincias(Idioma::Euskera));
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.CargarMunicipios());
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.DameFechaMinimaMaxima());
        QVERIFY_THROWS_EXCEPTION(cFallo, sinArchivo.URLAct());
    }
};

QTEST_MAIN(TestReferencia)
#include "test_referencia.moc"
