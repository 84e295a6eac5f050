// The installed program run as a user runs it: the command on the PATH, offscreen, on its
// read-only folder, each user with a home of their own. The test ends the program once its
// main window has opened the first run's language chooser.
#include "plataforma/Fallo.h"
#include "comun/Entorno.h"
#include "servicios/cGeneralSvr.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kRaiz = QStringLiteral(VELDO_INSTALADO);
const QString kPrograma = kRaiz + QStringLiteral("/usr/" VELDO_INSTALL_CARPETA);
const QString kOrden = kRaiz + QStringLiteral("/usr/bin/veldoria");

// The update setting leaves the undecided state (-1) when the language chooser opens at the
// main window's first activation: by then the first run has gone all the way.
bool PrimerArranqueHecho(const QString& almacen)
{
    if (!QFile::exists(almacen))
        return false;
    cGeneralSvr ajustes;
    ajustes.mdbmod = almacen;
    try {
        return ajustes.ObtenerActOnline() != -1;
    } catch (const cFallo&) {
        return false;  // the store is still being made
    }
}

}  // namespace

class TestProgramaInstalado : public QObject {
    Q_OBJECT

    // Runs the installed command with `entorno` until the first run is done in `almacen`, then
    // ends it.
    static void primerArranque(const QProcessEnvironment& entorno, const QString& almacen)
    {
        QProcess programa;
        programa.setProcessEnvironment(entorno);
        programa.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        programa.start(kOrden, {});
        QVERIFY2(programa.waitForStarted(), qPrintable(programa.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(PrimerArranqueHecho(almacen)
                                     || programa.state() == QProcess::NotRunning,
                                 30000);
        QCOMPARE(programa.state(), QProcess::Running);
        QVERIFY(PrimerArranqueHecho(almacen));
        programa.terminate();
        if (!programa.waitForFinished(10000)) {
            programa.kill();
            programa.waitForFinished(10000);
        }
    }

    static QProcessEnvironment entornoDe(const QString& casa, const QString& xdg)
    {
        QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
        for (const char* v : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_DATA_HOME"})
            e.remove(QString::fromLatin1(v));
        e.insert(QStringLiteral("HOME"), casa);
        e.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        if (!xdg.isEmpty())
            e.insert(QStringLiteral("XDG_DATA_HOME"), xdg);
        return e;
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(QFileInfo(kOrden).isExecutable(), "run the instalacion_destdir test first");
        // As installed: no one may write in the program's folder.
        QVERIFY(!(QFileInfo(kPrograma).permissions()
                  & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther)));
    }

    void cadaUsuarioSuAlmacen()
    {
        const QStringList antes = Contenido(kPrograma);
        QTemporaryDir ana;
        QTemporaryDir jon;
        const QString almacenAna = ana.path() + "/.local/share/veldoria/Tablas/VELDOMOD.mdb";
        const QString almacenJon = jon.path() + "/datos/veldoria/Tablas/VELDOMOD.mdb";

        // The default data folder, then another user who has XDG_DATA_HOME set.
        primerArranque(entornoDe(ana.path(), {}), almacenAna);
        if (QTest::currentTestFailed())
            return;
        primerArranque(entornoDe(jon.path(), jon.path() + "/datos"), almacenJon);
        if (QTest::currentTestFailed())
            return;

        QVERIFY(QFile::exists(almacenAna));
        QVERIFY(QFile::exists(almacenJon));
        QVERIFY(!QFile::exists(jon.path() + "/.local/share/veldoria"));

        // Printing from the command line finds the user's own store too: it opens it, and
        // refuses a return that is not there.
        QProcess pdf;
        QProcessEnvironment entorno = entornoDe(ana.path(), {});
        entorno.remove(QStringLiteral("QT_QPA_PLATFORM"));
        entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        pdf.setProcessEnvironment(entorno);
        const QString fichero = ana.path() + "/d.pdf";
        pdf.start(kOrden, {QStringLiteral("--pdf"), QStringLiteral("1"), fichero});
        QVERIFY(pdf.waitForFinished(30000));
        QCOMPARE(pdf.exitCode(), 1);
        // Qt may note things of its own before; the program's message is the last line.
        QCOMPARE(QString::fromUtf8(pdf.readAllStandardError()).trimmed().split('\n').last(),
                 QStringLiteral("No existe la declaración 1"));
        QVERIFY(!QFile::exists(fichero));
        QCOMPARE(Contenido(kPrograma), antes);
    }
};

QTEST_MAIN(TestProgramaInstalado)
#include "test_programa_instalado.moc"
