// The program itself, started as a user or a scheduled task starts it, without a display:
// backups and restores from the command line, and a store the program cannot work on told on
// the standard error with status 2, nothing written.
//
// Each test copies the built program into a temporary program folder (with its reference
// database), so that its data folder is that one.
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"

#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/cTraspaso.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <memory>

namespace {

struct Salida {
    int estado = -1;
    QString salida;
    QString errores;
};

int contribuyentes(const QString& ruta)
{
    ConexionCruda c(ruta, true);
    return c.escalar(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt();
}

}  // namespace

class TestOrdenesCopia : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

    QString programa() const { return m_carpeta->ruta() + QStringLiteral("/Veldo"); }
    QString copiaPropia() const
    {
        return m_carpeta->ruta() + QStringLiteral("/backups/VELDOMod_bak.mdb");
    }

    // The program with these arguments, without a display, in Spanish.
    Salida ejecutar(const QStringList& argumentos) const
    {
        QProcess p;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("es_ES.UTF-8"));
        entorno.remove(QStringLiteral("DISPLAY"));
        entorno.remove(QStringLiteral("WAYLAND_DISPLAY"));
        p.setProcessEnvironment(entorno);
        p.start(programa(), argumentos);
        Salida s;
        if (!p.waitForFinished(120000)) {
            p.kill();
            p.waitForFinished();
            return s;
        }
        s.estado = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        s.salida = QString::fromUtf8(p.readAllStandardOutput());
        s.errores = QString::fromUtf8(p.readAllStandardError());
        return s;
    }

    // The store of the program folder, made as start-up makes it, with `n` contributors.
    void almacenCon(int n) const
    {
        cTraspaso t;
        t.mdbmod = mdbmod;
        t.mdbPath = mdbPath;
        QCOMPARE(t.Traspaso(), false);
        Conexion::Cerrar(mdbmod);
        InsertarContribuyentes(mdbmod, n);
    }

    // One leaf page of the contributors' table written over; the file still opens.
    void danarAlmacen() const
    {
        qint64 pagina = 0;
        qint64 tamanno = 0;
        {
            ConexionCruda c(mdbmod);
            c.ejecutar(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
            tamanno = c.escalar(QStringLiteral("PRAGMA page_size")).toLongLong();
            pagina = c.escalar(QStringLiteral("SELECT MAX(pageno) FROM dbstat WHERE name = "
                                              "'CONTRIBUYENTES' AND pagetype = 'leaf'"))
                         .toLongLong();
        }
        QVERIFY(pagina > 1);
        QFile f(mdbmod);
        QVERIFY(f.open(QIODevice::ReadWrite));
        QVERIFY(f.seek((pagina - 1) * tamanno + 8));
        f.write(QByteArray(int(tamanno) - 8, '\x5A'));
    }

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        QVERIFY(QFile::copy(QStringLiteral(VELDO_PROGRAMA),
                            programa()));
    }
    void cleanup()
    {
        Conexion::Cerrar(mdbmod);
        m_carpeta.reset();
    }

    void laAyudaNombraLasOrdenes()
    {
        const Salida s = ejecutar({QStringLiteral("--help")});
        QCOMPARE(s.estado, 0);
        QVERIFY2(s.salida.contains(QLatin1String("--copia-seguridad [FICHERO]")), qPrintable(s.salida));
        QVERIFY2(s.salida.contains(QLatin1String("--restaurar FICHERO")), qPrintable(s.salida));
    }

    // A backup in the program's own file by default, or in the file named.
    void copiaDeSeguridad()
    {
        almacenCon(5);
        Salida s = ejecutar({QStringLiteral("--copia-seguridad")});
        QVERIFY2(s.estado == 0, qPrintable(s.errores));
        QVERIFY2(s.salida.contains(QLatin1String("La copia de seguridad se ha realizado correctamente.")),
                 qPrintable(s.salida));
        QCOMPARE(contribuyentes(copiaPropia()), 5);

        const QString otra = m_carpeta->ruta() + QStringLiteral("/otra copia.mdb");
        s = ejecutar({QStringLiteral("--copia-seguridad"), otra});
        QVERIFY2(s.estado == 0, qPrintable(s.errores));
        QCOMPARE(contribuyentes(otra), 5);
        QCOMPARE(Volcado(otra), Volcado(mdbmod));
    }

    // A restore puts the backup's data back and keeps the store it replaced, dated.
    void restauracion()
    {
        almacenCon(5);
        const QString copia = m_carpeta->ruta() + QStringLiteral("/copia.mdb");
        QCOMPARE(ejecutar({QStringLiteral("--copia-seguridad"), copia}).estado, 0);
        const QString enLaCopia = Volcado(copia);
        InsertarContribuyentes(mdbmod, 7);
        QCOMPARE(contribuyentes(mdbmod), 12);

        const Salida s = ejecutar({QStringLiteral("--restaurar"), copia});
        QVERIFY2(s.estado == 0, qPrintable(s.errores));
        QVERIFY2(s.salida.contains(QLatin1String("La base de datos se ha restaurado correctamente.")),
                 qPrintable(s.salida));
        QCOMPARE(Volcado(mdbmod), enLaCopia);
        const QStringList previas = QDir(m_carpeta->ruta() + QStringLiteral("/backups"))
                                        .entryList({QStringLiteral("VELDOMOD_*.mdb")});
        QCOMPARE(previas.size(), 1);
        QCOMPARE(contribuyentes(m_carpeta->ruta() + QStringLiteral("/backups/") + previas[0]), 12);
    }

    // A file that is not a good backup is refused with the message for a bad backup, status 2,
    // the store unchanged byte for byte.
    void restauracionRechazada_data()
    {
        QTest::addColumn<int>("caso");
        QTest::newRow("no existe") << 0;
        QTest::newRow("texto") << 1;
        QTest::newRow("disparador") << 2;
        QTest::newRow("fila fuera de las reglas") << 3;
    }
    void restauracionRechazada()
    {
        QFETCH(int, caso);
        almacenCon(3);
        const QString copia = m_carpeta->ruta() + QStringLiteral("/copia.mdb");
        if (caso == 1) {
            QFile f(copia);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("no es una copia\n");
        } else if (caso >= 2) {
            QCOMPARE(ejecutar({QStringLiteral("--copia-seguridad"), copia}).estado, 0);
            ConexionCruda c(copia);
            c.ejecutar(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
            c.ejecutar(caso == 2 ? QStringLiteral("CREATE TRIGGER BORRAR AFTER INSERT ON DECLARACIONES "
                                                  "BEGIN DELETE FROM DECLARACIONES; END")
                                 : QStringLiteral("UPDATE CONTRIBUYENTES SET TIPODNI = 'Q'"));
        }
        Conexion::Cerrar(mdbmod);
        const QByteArray antes = Bytes(mdbmod);
        const Salida s = ejecutar({QStringLiteral("--restaurar"), copia});
        QCOMPARE(s.estado, 2);
        QVERIFY2(s.errores.contains(QStringLiteral("no es una copia de seguridad de la base de datos de "
                                                    "este programa, o está dañado")),
                 qPrintable(s.errores));
        QCOMPARE(Bytes(mdbmod), antes);
        QVERIFY(!QFileInfo::exists(m_carpeta->ruta() + QStringLiteral("/backups")));
    }

    // A damaged store: the start-up without a display, a backup, a restore and every other
    // option that opens the store refuse it with the message that names it, and write
    // nothing. The status is 2, or the one each older option gives a store it cannot use.
    void almacenDanadoSeRechaza_data()
    {
        QTest::addColumn<QStringList>("argumentos");
        QTest::addColumn<int>("estado");
        QTest::newRow("arranque") << QStringList{} << 2;
        QTest::newRow("copia de seguridad") << QStringList{QStringLiteral("--copia-seguridad")} << 2;
        QTest::newRow("restaurar") << QStringList{QStringLiteral("--restaurar"), QStringLiteral("@copia.mdb")}
                                   << 2;
        QTest::newRow("pdf") << QStringList{QStringLiteral("--pdf"), QStringLiteral("1"),
                                            QStringLiteral("@salida.pdf")}
                             << 1;
        QTest::newRow("exportar") << QStringList{QStringLiteral("--exportar"),
                                                 QStringLiteral("@salida.txt"),
                                                 QStringLiteral("--todos")}
                                  << 3;
    }
    void almacenDanadoSeRechaza()
    {
        QFETCH(QStringList, argumentos);
        QFETCH(int, estado);
        almacenCon(3000);
        const QString copia = m_carpeta->ruta() + QStringLiteral("/copia.mdb");
        QCOMPARE(ejecutar({QStringLiteral("--copia-seguridad"), copia}).estado, 0);
        Conexion::Cerrar(mdbmod);
        danarAlmacen();
        const QStringList antes = Contenido(m_carpeta->ruta());
        const QByteArray bytes = Bytes(mdbmod);
        // "@name" stands for a file of the program folder, whose content is compared.
        for (QString& a : argumentos)
            if (a.startsWith(QLatin1Char('@')))
                a = m_carpeta->ruta() + QLatin1Char('/') + a.mid(1);

        const Salida s = ejecutar(argumentos);
        QCOMPARE(s.estado, estado);
        QVERIFY2(s.errores.contains(QStringLiteral("La base de datos %1 está dañada")
                                        .arg(QDir::toNativeSeparators(mdbmod))),
                 qPrintable(s.errores));
        QCOMPARE(Contenido(m_carpeta->ruta()), antes);
        QCOMPARE(Bytes(mdbmod), bytes);
    }
};

QTEST_MAIN(TestOrdenesCopia)
#include "test_ordenes_copia.moc"
