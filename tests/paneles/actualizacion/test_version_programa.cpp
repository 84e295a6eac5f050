// The program's version, read from the record embedded in the executable file: from a copy of
// the built program, from a file made here with a known record, and from files without one.
#include "catalogo/IdsCatalogo.h"
#include "comun/Entorno.h"

#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/FormatoRegistroVersion.h"
#include "registros/actualizacion/LectorRegistroVersion.h"
#include "registros/actualizacion/cActOnline.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>
#include <memory>

namespace {

QByteArray relleno(int n, quint32 semilla)
{
    QRandomGenerator azar(semilla);
    QByteArray b(n, '\0');
    for (char& c : b)
        c = static_cast<char>(azar.bounded(256));
    return b;
}

QByteArray bytesDe(const RegistroVersion::Bytes& r)
{
    return QByteArray(reinterpret_cast<const char*>(r.data()), static_cast<qsizetype>(r.size()));
}

}  // namespace

class TestVersionPrograma : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;

    QString programa() const { return m_carpeta->ruta() + QStringLiteral("/Veldo"); }

    void escribirPrograma(const QByteArray& contenido)
    {
        QFile f(programa());
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(f.write(contenido), contenido.size());
    }

    void sinVersion()
    {
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().at(0).texto, Texto(kIdSinInformacionVersion));
        QCOMPARE(MensajeSeam::registro().at(0).botones, int(vb::OKOnly));
        QCOMPARE(VersionPrograma, QString());
        QCOMPARE(ActOnline().ProgVer1, QString());
        QCOMPARE(ActOnline().ProgVer2, QString());
        QCOMPARE(ActOnline().ProgVer3, QString());
        QCOMPARE(ActOnline().ActFile, programa());
    }

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        EstablecerIdiomaPrograma(Idioma::Castellano);
        ActOnline() = cActOnline{};
        VersionPrograma.clear();
    }

    void cleanup() { m_carpeta.reset(); }

    void delProgramaConstruido()
    {
        // The built program, copied into the program's folder; this test runs under its own
        // name, and the version comes from the file "Veldo" all the same.
        QVERIFY(QFile::copy(QStringLiteral(VELDO_CARPETA_CONSTRUIDA "/Veldo"), programa()));
        ObtenerVersionPrograma();
        QVERIFY(MensajeSeam::registro().isEmpty());
        const QString v1 = QString::number(VERSION_1);
        const QString v2 = QString::number(VERSION_2);
        const QString v4 = QString::number(VERSION_4);
        QCOMPARE(VersionPrograma, v1 + QLatin1Char('.') + v2 + QLatin1Char('.') + v4);
        QCOMPARE(ActOnline().ProgVer1, v1);
        QCOMPARE(ActOnline().ProgVer2, v2);
        QCOMPARE(ActOnline().ProgVer3, v4);
        QCOMPARE(ActOnline().ActFile, programa());
    }

    void tercerNumeroSeSalta()
    {
        // A decoy mark with a wrong check sum comes first, as the reader's own copy of the mark
        // does in the program.
        const auto registro = RegistroVersion::Construir({1, 28, 0, 1}, {2, 5, 7, 9});
        QByteArray senuelo = bytesDe(registro);
        senuelo[20] = char(senuelo[20] ^ 0x5A);
        escribirPrograma(relleno(70000, 1) + senuelo + relleno(333, 2) + bytesDe(registro)
                         + relleno(9000, 3));
        ObtenerVersionPrograma();
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(VersionPrograma, QStringLiteral("1.28.1"));
        QCOMPARE(ActOnline().ProgVer1, QStringLiteral("1"));
        QCOMPARE(ActOnline().ProgVer2, QStringLiteral("28"));
        QCOMPARE(ActOnline().ProgVer3, QStringLiteral("1"));
    }

    void numerosGrandes()
    {
        escribirPrograma(bytesDe(RegistroVersion::Construir({65535, 300, 4, 256}, {0, 0, 0, 0})));
        ObtenerVersionPrograma();
        QCOMPARE(VersionPrograma, QStringLiteral("65535.300.256"));
    }

    void ficheroSinRegistro()
    {
        escribirPrograma(relleno(50000, 4));
        ObtenerVersionPrograma();
        sinVersion();
    }

    void registroDanado()
    {
        QByteArray danado = bytesDe(RegistroVersion::Construir({1, 28, 0, 1}, {1, 28, 0, 1}));
        danado[33] = char(danado[33] ^ 1);
        escribirPrograma(relleno(100, 5) + danado + relleno(100, 6));
        ObtenerVersionPrograma();
        sinVersion();
    }

    void registroCortado()
    {
        const QByteArray entero = bytesDe(RegistroVersion::Construir({1, 28, 0, 1}, {1, 28, 0, 1}));
        escribirPrograma(relleno(100, 7) + entero.left(30));
        ObtenerVersionPrograma();
        sinVersion();
    }

    void ficheroVacio()
    {
        escribirPrograma(QByteArray());
        ObtenerVersionPrograma();
        sinVersion();
    }

    void sinFichero()
    {
        ObtenerVersionPrograma();
        sinVersion();
    }

    // The reading answers the verdict of id 342 and shows nothing; start-up shows it.
    void laLecturaNoMuestraNada()
    {
        escribirPrograma(relleno(50000, 8));
        const Veredicto v = LeerVersionPrograma();
        QCOMPARE(v.id, kIdSinInformacionVersion);
        QCOMPARE(v.mensaje, Texto(kIdSinInformacionVersion));
        QCOMPARE(v.botones, int(vb::OKOnly));
        QVERIFY(v.titulo.isEmpty());
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(VersionPrograma, QString());
    }

    void sinVersionSiempreDifiere()
    {
        ObtenerVersionPrograma();
        QFile f(RutaVersionIni());
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[informacion]\ncurrentversion=1.0.0\n");
        f.close();
        QCOMPARE(LeerVersionIni(), 3);
        QCOMPARE(ActOnline().ComVer, int16_t(1));
    }

    void elProgramaGuardaElRegistroUnaVez()
    {
        QFile f(QStringLiteral(VELDO_CARPETA_CONSTRUIDA "/Veldo"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray todo = f.readAll();
        const auto v = BuscarRegistroVersion(todo);
        QVERIFY(v.has_value());
        const QByteArray esperado = bytesDe(RegistroVersion::Construir(v->fichero, v->producto));
        QCOMPARE(todo.count(esperado), qsizetype(1));
    }
};

QTEST_MAIN(TestVersionPrograma)
#include "test_version_programa.moc"
