// The SQLite library the program calls directly and the one behind Qt's driver: one and the
// same here, and the message that stops the program when they are not, which the stores'
// engine gives at start-up.
#include "catalogo/Catalogo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/sqlite/BibliotecaSqlite.h"

#include <QCoreApplication>
#include <QTest>

class TestBibliotecaSqlite : public QObject {
    Q_OBJECT

private slots:
    void init() { EstablecerIdiomaPrograma(Idioma::Castellano); }
    void cleanup() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    void unaSolaBiblioteca()
    {
        const FuentesSqlite f = LeerFuentesSqlite();
        QVERIFY(!f.propia.isEmpty());
        QCOMPARE(f.delControlador, f.propia);
        QCOMPARE(AvisoBibliotecaSqlite(f), QString());
    }

    // The start-up asks the stores' engine, which for SQLite is this check.
    void elMotorDeLosAlmacenesLoComprueba()
    {
        QCOMPARE(MotorDeLosAlmacenes().Nombre(), QStringLiteral("SQLite"));
        QCOMPARE(AvisoMotorAlmacenes(), AvisoBibliotecaSqlite(LeerFuentesSqlite()));
        QCOMPARE(AvisoMotorAlmacenes(), QString());
    }

    void bibliotecasDistintas()
    {
        const FuentesSqlite f{QStringLiteral("2022-12-28 14:03:47 df5c253c"),
                              QStringLiteral("2023-05-16 12:36:15 831d0fb2")};
        QCOMPARE(AvisoBibliotecaSqlite(f),
                 QStringLiteral("El programa no puede usar su base de datos: la biblioteca SQLite "
                                "que llama (2022-12-28 14:03:47 df5c253c) no es la que usa Qt "
                                "(2023-05-16 12:36:15 831d0fb2). Vuelva a instalar el programa."));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QVERIFY(AvisoBibliotecaSqlite(f).startsWith(QStringLiteral("Programak ezin du")));
    }

    void controladorQueNoAbre()
    {
        const QString aviso = AvisoBibliotecaSqlite({QStringLiteral("3.40.1"), QString()});
        QVERIFY2(aviso.contains(QStringLiteral("(3.40.1)")) && aviso.contains(QStringLiteral("(?)")),
                 qPrintable(aviso));
    }
};

QTEST_GUILESS_MAIN(TestBibliotecaSqlite)
#include "test_biblioteca_sqlite.moc"
