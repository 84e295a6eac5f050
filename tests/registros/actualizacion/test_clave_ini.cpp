// The INI reader of the version file, rule by rule, and the reading of the version file into
// the update state.
#include "comun/Entorno.h"

#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "plataforma/General.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

class TestClaveIni : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;

    QString escribir(const QByteArray& contenido)
    {
        const QString ruta = m_dir->filePath(QStringLiteral("prueba.ini"));
        QFile f(ruta);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            qFatal("no se puede escribir %s", qPrintable(ruta));
        f.write(contenido);
        return ruta;
    }

    QString clave(const QByteArray& contenido, const char* seccion, const char* nombre)
    {
        return LeerClaveIni(QLatin1String(seccion), QLatin1String(nombre), escribir(contenido));
    }

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void valorSencillo()
    {
        QCOMPARE(clave("[informacion]\ncurrentversion=1.28.1\n", "informacion", "currentversion"),
                 QStringLiteral("1.28.1"));
    }

    void sinDistinguirMayusculas()
    {
        const QByteArray ini = "[INFORMACION]\nCurrentVersion=1.2.3\n";
        QCOMPARE(clave(ini, "informacion", "currentversion"), QStringLiteral("1.2.3"));
        QCOMPARE(clave(ini, "Informacion", "CURRENTVERSION"), QStringLiteral("1.2.3"));
    }

    void blancosAlrededorFuera()
    {
        QCOMPARE(clave("  [informacion]  \n \t currentversion \t =   1.2.3  \t \n", "informacion",
                       "currentversion"),
                 QStringLiteral("1.2.3"));
    }

    void blancosDentroSeQuedan()
    {
        QCOMPARE(clave("[i]\ndescripcion= Corrige  la  impresión \n", "i", "descripcion"),
                 QStringLiteral("Corrige  la  impresión"));
    }

    void finDeLineaDeWindows()
    {
        QCOMPARE(clave("[i]\r\na=uno\r\nb=dos\r\n", "i", "a"), QStringLiteral("uno"));
        QCOMPARE(clave("[i]\r\na=uno\r\nb=dos\r\n", "i", "b"), QStringLiteral("dos"));
    }

    void comillasIgualesSeQuitan()
    {
        QCOMPARE(clave("[i]\na=\"1.2.3\"\n", "i", "a"), QStringLiteral("1.2.3"));
        QCOMPARE(clave("[i]\na='http://x.example/'\n", "i", "a"), QStringLiteral("http://x.example/"));
        QCOMPARE(clave("[i]\na=''\n", "i", "a"), QString(QLatin1String("")));
        QCOMPARE(clave("[i]\na= \" dentro \" \n", "i", "a"), QStringLiteral(" dentro "));
    }

    void comillasDistintasSeQuedan()
    {
        QCOMPARE(clave("[i]\na=\"1.2.3'\n", "i", "a"), QStringLiteral("\"1.2.3'"));
        QCOMPARE(clave("[i]\na=\"1.2.3\n", "i", "a"), QStringLiteral("\"1.2.3"));
        QCOMPARE(clave("[i]\na=\"\n", "i", "a"), QStringLiteral("\""));
        QCOMPARE(clave("[i]\na=x\"y\"\n", "i", "a"), QStringLiteral("x\"y\""));
    }

    void faltaDaElValorPorDefecto()
    {
        const QByteArray ini = "[informacion]\ncurrentversion=1.2.3\n";
        QCOMPARE(clave(ini, "informacion", "downloadurl"), QStringLiteral(" "));
        QCOMPARE(clave(ini, "otra", "currentversion"), QStringLiteral(" "));
        QCOMPARE(LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("currentversion"),
                              m_dir->filePath(QStringLiteral("no-existe.ini"))),
                 QStringLiteral(" "));
        QCOMPARE(clave("", "informacion", "currentversion"), QStringLiteral(" "));
    }

    void claveSinIgualDaElValorPorDefecto()
    {
        QCOMPARE(clave("[i]\ncurrentversion\n", "i", "currentversion"), QStringLiteral(" "));
    }

    void valorVacio()
    {
        QCOMPARE(clave("[i]\na=\nb=2\n", "i", "a"), QString(QLatin1String("")));
        QCOMPARE(clave("[i]\na=   \n", "i", "a"), QString(QLatin1String("")));
    }

    void igualDentroDelValor()
    {
        QCOMPARE(clave("[i]\ndownloadurl=http://x.example/d.php?a=1&b=2\n", "i", "downloadurl"),
                 QStringLiteral("http://x.example/d.php?a=1&b=2"));
    }

    void soloLaPrimeraSeccionDelNombre()
    {
        const QByteArray ini = "[i]\na=1\n[otra]\nb=5\n[I]\na=2\nb=3\n";
        QCOMPARE(clave(ini, "i", "a"), QStringLiteral("1"));
        QCOMPARE(clave(ini, "i", "b"), QStringLiteral(" "));
        QCOMPARE(clave(ini, "otra", "b"), QStringLiteral("5"));
    }

    void laPrimeraClaveDelNombre()
    {
        QCOMPARE(clave("[i]\na=1\nA=2\n", "i", "a"), QStringLiteral("1"));
    }

    void clavesDeOtraSeccionNoCuentan()
    {
        QCOMPARE(clave("a=0\n[otra]\na=1\n[i]\nb=2\n", "i", "a"), QStringLiteral(" "));
    }

    void comentarios()
    {
        const QByteArray ini = "; cabecera\n[i]\n;a=1\n  ; otro\na=2\n";
        QCOMPARE(clave(ini, "i", "a"), QStringLiteral("2"));
    }

    void cabeceraConAlgoDetras()
    {
        QCOMPARE(clave("[i] ; la seccion\na=1\n", "i", "a"), QStringLiteral("1"));
        // A line with "[" but no "]" is no section header.
        QCOMPARE(clave("[i]\n[j\na=1\n", "i", "a"), QStringLiteral("1"));
        QCOMPARE(clave("[j\na=1\n", "j", "a"), QStringLiteral(" "));
    }

    void valorHasta1023Caracteres()
    {
        const QByteArray largo(3000, 'x');
        QCOMPARE(clave("[i]\na=" + largo + "\n", "i", "a"), QString(1023, QLatin1Char('x')));
        const QByteArray justo(1023, 'y');
        QCOMPARE(clave("[i]\na=" + justo + "\n", "i", "a"), QString(1023, QLatin1Char('y')));
    }

    void textoEnUtf8OEnLatin1()
    {
        QCOMPARE(clave("[i]\nd=Versión nueva\n", "i", "d"), QStringLiteral("Versión nueva"));
        QCOMPARE(clave("[i]\nd=Versi\xF3n nueva\n", "i", "d"), QStringLiteral("Versión nueva"));
        QCOMPARE(clave("\xEF\xBB\xBF[i]\nd=Bertsio berria\n", "i", "d"), QStringLiteral("Bertsio berria"));
    }

    // Reading the downloaded file into the update state.

    void leerVersionIniRellenaElEstado()
    {
        CarpetaDePrueba carpeta;
        ActOnline() = cActOnline{};
        ActOnline().ProgVer1 = QStringLiteral("1");
        ActOnline().ProgVer2 = QStringLiteral("28");
        ActOnline().ProgVer3 = QStringLiteral("1");
        QFile f(RutaVersionIni());
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[Informacion]\r\nCurrentVersion = ' 1.28.2 '\r\n"
                "DownloadURL=\"http://d.example/v.exe\"\r\nDescripcion=  Arreglos  \r\n");
        f.close();
        QCOMPARE(LeerVersionIni(), 3);
        QCOMPARE(ActOnline().ActVer1, QStringLiteral("1"));
        QCOMPARE(ActOnline().ActVer2, QStringLiteral("28"));
        QCOMPARE(ActOnline().ActVer3, QStringLiteral("2"));
        QCOMPARE(ActOnline().ActDownloadURL, QStringLiteral("http://d.example/v.exe"));
        QCOMPARE(ActOnline().ActDescripcion, QStringLiteral("Arreglos"));
        QCOMPARE(ActOnline().ComVer, int16_t(1));
    }

    void leerVersionIniSinTresPartes()
    {
        CarpetaDePrueba carpeta;
        ActOnline() = cActOnline{};
        for (const QByteArray& version : {QByteArray("2.0"), QByteArray("7"), QByteArray("")}) {
            QFile f(RutaVersionIni());
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write("[informacion]\ncurrentversion=" + version + "\ndownloadurl=http://d.example/\n");
            f.close();
            QCOMPARE(LeerVersionIni(), 4);
            QCOMPARE(ActOnline().ActDownloadURL, QString());
            QCOMPARE(ActOnline().ComVer, int16_t(0));
        }
        QFile::remove(RutaVersionIni());
        QCOMPARE(LeerVersionIni(), 4);
    }

    void partesVaciasSonPartes()
    {
        // "1..1" has three parts, the middle one empty: it reads, and differs from 1.28.1.
        CarpetaDePrueba carpeta;
        ActOnline() = cActOnline{};
        ActOnline().ProgVer1 = QStringLiteral("1");
        ActOnline().ProgVer2 = QStringLiteral("28");
        ActOnline().ProgVer3 = QStringLiteral("1");
        QFile f(RutaVersionIni());
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[informacion]\ncurrentversion=1..1\n");
        f.close();
        QCOMPARE(LeerVersionIni(), 3);
        QCOMPARE(ActOnline().ActVer2, QString(QLatin1String("")));
        QCOMPARE(ActOnline().ComVer, int16_t(1));
    }
};

QTEST_GUILESS_MAIN(TestClaveIni)
#include "test_clave_ini.moc"
