// Start-up on a read-only database or a read-only folder of databases: the program says what is
// wrong with which file and what the user can do, instead of a raw error of the database, and
// ends with a status that is not 0.
//
// Permissions do not bind the superuser, so when the tests run as root the start-up runs in a
// copy of this executable started as the user "nobody" (setpriv), on a folder it may read.
#include "comun/Entorno.h"

#include "aplicacion/Arranque.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "plataforma/Reloj.h"
#include "servicios/Conexion.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace {

// The start-up on `carpeta` with every seam recording; prints what the user would have seen.
int ayudante(const QString& carpeta)
{
    GrabarSeams();
    RelojSeam::grabar(true);
    EstablecerCarpetaPrograma(carpeta);
    bool sigue = false;
    Proceso::Protegido([&] { sigue = Main(); });
    for (const auto& m : MensajeSeam::registro())
        std::printf("mensaje: %s\n", qPrintable(QString(m.texto).replace(QLatin1Char('\n'), QLatin1Char(' '))));
    for (const auto& a : ProcesoSeam::avisos())
        std::printf("fallo: %s %s\n", qPrintable(a.origen), qPrintable(a.descripcion));
    std::printf("sigue: %d\nfinales: %d\ncodigo: %d\n", int(sigue), ProcesoSeam::finales(),
                ProcesoSeam::ultimoCodigo());
    return 0;
}

void permitir(const QString& ruta, QFileDevice::Permissions permisos)
{
    QVERIFY(QFile::setPermissions(ruta, permisos));
}

const auto kLectura = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
const auto kCarpeta = kLectura | QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
const auto kEscritura = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;

}  // namespace

class TestArranquePermisos : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

    // Runs the start-up in another process, as "nobody" when this one is root.
    QString arrancarAparte()
    {
        QProcess p;
        QStringList argumentos{QStringLiteral("--ayudante"), m_carpeta->ruta()};
        QString programa = QCoreApplication::applicationFilePath();
        if (geteuid() == 0) {
            argumentos.prepend(programa);
            argumentos = QStringList{QStringLiteral("--reuid=65534"), QStringLiteral("--regid=65534"),
                                     QStringLiteral("--clear-groups")} + argumentos;
            programa = QStringLiteral("setpriv");
        }
        // The other user has no access to this session's display; the start-up needs none.
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        p.setProcessEnvironment(entorno);
        p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p.start(programa, argumentos);
        if (!p.waitForFinished(120000))
            return {};
        return QString::fromLocal8Bit(p.readAllStandardOutput());
    }

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        cTraspaso t;
        t.mdbmod = mdbmod;
        t.mdbPath = mdbPath;
        QCOMPARE(t.Traspaso(), false);
        Conexion::Cerrar(mdbmod);
        // Another user must be able to reach the folder and read the reference database.
        permitir(m_carpeta->ruta(), kCarpeta | QFileDevice::WriteOwner);
        permitir(m_carpeta->tablas(), kCarpeta | kEscritura);
        permitir(mdblec, kLectura);
        permitir(mdbmod, kLectura | kEscritura);
    }
    void cleanup()
    {
        QFile::setPermissions(m_carpeta->tablas(), kCarpeta | kEscritura);
        QFile::setPermissions(mdbmod, kLectura | kEscritura);
        m_carpeta.reset();
    }

    // The check itself, on a folder anyone may write: nothing stands in the way.
    void baseEscribibleArranca()
    {
        const QString salida = arrancarAparte();
        QVERIFY2(salida.contains(QLatin1String("sigue: 1")), qPrintable(salida));
        QVERIFY2(!salida.contains(QLatin1String("fallo:")), qPrintable(salida));
    }

    void baseDeSoloLectura()
    {
        permitir(mdbmod, kLectura);
        const QString salida = arrancarAparte();
        QVERIFY2(salida.contains(QLatin1String("sigue: 0")), qPrintable(salida));
        QVERIFY2(salida.contains(QLatin1String("codigo: 2")), qPrintable(salida));
        QVERIFY2(!salida.contains(QLatin1String("fallo:")), qPrintable(salida));
        QVERIFY2(salida.contains(QStringLiteral("La base de datos %1 es de solo lectura")
                                     .arg(QDir::toNativeSeparators(mdbmod))),
                 qPrintable(salida));
        QVERIFY2(salida.contains(QStringLiteral("Dé permiso de escritura sobre ese archivo")), qPrintable(salida));
        QVERIFY2(salida.contains(QLatin1String("irakurtzeko soilik da")), qPrintable(salida));
    }

    void carpetaDeSoloLectura()
    {
        permitir(m_carpeta->tablas(), kCarpeta);
        const QString salida = arrancarAparte();
        QVERIFY2(salida.contains(QLatin1String("sigue: 0")), qPrintable(salida));
        QVERIFY2(salida.contains(QLatin1String("codigo: 2")), qPrintable(salida));
        QVERIFY2(!salida.contains(QLatin1String("fallo:")), qPrintable(salida));
        QVERIFY2(salida.contains(QStringLiteral("La carpeta %1 es de solo lectura")
                                     .arg(QDir::toNativeSeparators(QFileInfo(mdbmod).absolutePath()))),
                 qPrintable(salida));
        QVERIFY2(salida.contains(QStringLiteral("Dé permiso de escritura sobre esa carpeta")), qPrintable(salida));
    }
};

int main(int argc, char** argv)
{
    if (argc > 2 && std::string(argv[1]) == "--ayudante") {
        QApplication app(argc, argv);
        return ayudante(QString::fromLocal8Bit(argv[2]));
    }
    QApplication app(argc, argv);
    TestArranquePermisos prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_arranque_permisos.moc"
