// An import killed with SIGKILL half-way, in a child process: the store it leaves passes
// SQLite's integrity check, every row in it is whole, and the rows are exactly the lines of the
// file up to some point, which includes every row seen committed before the kill.
#include "ApoyoIntercambio.h"
#include "comun/Entorno.h"

#include "plataforma/General.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cTraspaso.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <QThread>
#include <csignal>

using namespace ApoyoIntercambio;

namespace {

constexpr int kLineas = 32767;
const char* const kHijo = "--importar-en";

QByteArray Nombre(int i)
{
    return "CAIDA " + QByteArray::number(i);
}

// The child: imports the file of the folder given, slowly enough to be caught half-way.
int Hijo(const QString& carpeta)
{
    EstablecerCarpetaPrograma(carpeta);
    mdbPath = carpeta + QStringLiteral("/Tablas/");
    mdbmod = mdbPath + QStringLiteral("VELDOMOD.mdb");
    mdblec = mdbPath + QStringLiteral("VELDOLEC.mdb");
    Importar().Iniciar();
    Importar().AUTOMATICO = QStringLiteral("X");
    cImportar::Interlocutor i;
    i.avance = [](int lineas, double, bool) {
        if (lineas % 64 == 0)
            QThread::usleep(2000);
    };
    Importar().Ejecutar(i);
    return 0;
}

}  // namespace

class TestCaidaImportar : public QObject {
    Q_OBJECT

private slots:
    void muertoAMitad()
    {
        GrabarSeams();
        CarpetaDePrueba carpeta;
        {
            cTraspaso t;
            t.mdbmod = mdbmod;
            t.mdbPath = mdbPath;
            QVERIFY(!t.Traspaso());
        }
        QByteArray f;
        for (int i = 1; i <= kLineas; ++i)
            f += LineaValida(quint32(i), Nombre(i)) + "\r\n";
        Escribir(carpeta.ruta() + QStringLiteral("/CONTRI.txt"), f);

        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("mira"));
        db.setDatabaseName(mdbmod);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
        QVERIFY(db.open());
        const auto filas = [&db] {
            QSqlQuery q(db);
            q.exec(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES"));
            return q.next() ? q.value(0).toInt() : -1;
        };

        QProcess hijo;
        hijo.start(QCoreApplication::applicationFilePath(),
                   {QString::fromLatin1(kHijo), carpeta.ruta()});
        QVERIFY(hijo.waitForStarted());
        // Wait for a committed batch, then kill while the rest is under way.
        int vistas = 0;
        QElapsedTimer reloj;
        reloj.start();
        while ((vistas = filas()) <= 0 && reloj.elapsed() < 60000)
            QThread::msleep(2);
        QVERIFY2(vistas > 0 && vistas < kLineas, qPrintable(QString::number(vistas)));
        ::kill(pid_t(hijo.processId()), SIGKILL);
        QVERIFY(hijo.waitForFinished());
        QCOMPARE(hijo.exitStatus(), QProcess::CrashExit);

        QSqlQuery q(db);
        QVERIFY(q.exec(QStringLiteral("PRAGMA integrity_check")));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toString(), QStringLiteral("ok"));
        const int quedan = filas();
        QVERIFY2(quedan >= vistas && quedan < kLineas,
                 qPrintable(QStringLiteral("%1 %2").arg(vistas).arg(quedan)));
        // Exactly the first lines of the file, each one whole.
        QVERIFY(q.exec(QStringLiteral(
            "SELECT DNIC, NOMBREC, VIAC, DOMICILIOC, NUMEROC, LETRAC, ESCALERAC, PISOC, MANOC, "
            "TIPODOMI, PAIS, CODPROVC, NOMPROVC, CODPOSC, CODMUNC, NOMMUNC, TIPODNI "
            "FROM CONTRIBUYENTES ORDER BY DNIC")));
        int i = 0;
        while (q.next()) {
            ++i;
            const QStringList fila = {q.value(0).toString(),  q.value(1).toString(),
                                      q.value(2).toString(),  q.value(3).toString(),
                                      q.value(4).toString(),  q.value(5).toString(),
                                      q.value(6).toString(),  q.value(7).toString(),
                                      q.value(8).toString(),  q.value(9).toString(),
                                      q.value(10).toString(), q.value(11).toString(),
                                      q.value(12).toString(), q.value(13).toString(),
                                      q.value(14).toString(), q.value(15).toString(),
                                      q.value(16).toString()};
            const QStringList esperada = {QString::fromLatin1(DniDe(quint32(i))),
                                          QString::fromLatin1(Nombre(i)), "CL", "MAYOR", "12",
                                          "B", "1", "3", "IZ", "N", "", "77", "", "77001", "001",
                                          "", "O"};
            QCOMPARE(fila, esperada);
        }
        QCOMPARE(i, quedan);
        q = QSqlQuery();
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("mira"));
    }
};

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], kHijo) == 0) {
        QCoreApplication app(argc, argv);
        return Hijo(QString::fromLocal8Bit(argv[2]));
    }
    QCoreApplication app(argc, argv);
    TestCaidaImportar prueba;
    return QTest::qExec(&prueba, argc, argv);
}
#include "test_caida_importar.moc"
