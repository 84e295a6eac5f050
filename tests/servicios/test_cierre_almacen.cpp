// At a clean end the stores' connections are closed with their journal written back into the
// file: the store is then one file, whole, that a user can copy as it is.
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

class TestCierreAlmacen : public QObject {
    Q_OBJECT

private slots:
    void elFicheroSoloLlevaLoGuardado()
    {
        AlmacenDePrueba almacen;
        const QString diario = mdbmod + QStringLiteral("-wal");
        for (quint32 n = 1; n <= 20; ++n)
            QVERIFY(NuevoContribuyente(Dni(n), QStringLiteral("CONTRIBUYENTE %1").arg(n)) > 0);
        QVERIFY(QFile(diario).size() > 0);  // the saves are still in the journal

        Conexion::CerrarTodas();
        QVERIFY(!QFile::exists(diario));
        QVERIFY(!QFile::exists(mdbmod + QStringLiteral("-shm")));

        // The file alone, copied elsewhere, holds every save.
        QTemporaryDir otra;
        const QString copia = otra.filePath(QStringLiteral("solo.mdb"));
        QVERIFY(QFile::copy(mdbmod, copia));
        ConexionPropia conexion(copia, ConexionPropia::Modo::Lectura);
        QVERIFY(conexion.abierta());
        QSqlQuery q(conexion.db());
        QVERIFY(q.exec(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")) && q.next());
        QCOMPARE(q.value(0).toInt(), 20);
    }

    void otraCopiaAbiertaSigueIgual()
    {
        // Another running copy keeps the store open: the end of this one neither waits for it
        // nor takes anything from it; the journal stays for the other copy to use and close.
        AlmacenDePrueba almacen;
        for (quint32 n = 1; n <= 5; ++n)
            QVERIFY(NuevoContribuyente(Dni(n), QStringLiteral("CONTRIBUYENTE %1").arg(n)) > 0);
        ConexionPropia otra(mdbmod, ConexionPropia::Modo::Escritura);
        QVERIFY(otra.abierta());
        QSqlQuery lectura(otra.db());
        QVERIFY(lectura.exec(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")) && lectura.next());
        QCOMPARE(lectura.value(0).toInt(), 5);
        lectura.finish();

        Conexion::CerrarTodas();
        QSqlQuery q(otra.db());
        QVERIFY(q.exec(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")) && q.next());
        QCOMPARE(q.value(0).toInt(), 5);
        q.finish();
        QVERIFY(q.exec(QStringLiteral("PRAGMA integrity_check")) && q.next());
        QCOMPARE(q.value(0).toString(), QStringLiteral("ok"));
    }
};

QTEST_GUILESS_MAIN(TestCierreAlmacen)
#include "test_cierre_almacen.moc"
