// How a seat names an office's server: a service name of pg_service.conf or a connection
// string, the sslmode of the setting added where the place names none, the password kept in
// memory beside the connection and never in its string, and the server's name as messages
// give it. No server is needed.
#include "servicios/postgres/ConexionPostgres.h"

#include <QSqlDatabase>
#include <QTest>

class TestConexionPostgres : public QObject {
    Q_OBJECT

private slots:
    void cleanup()
    {
        ConexionPostgres::FijarSslmode(QString());
    }

    void servicioYCadena()
    {
        QCOMPARE(ConexionPostgres::Cadena(QStringLiteral("oficina")),
                 QStringLiteral("service=oficina sslmode=prefer"));
        QCOMPARE(ConexionPostgres::Cadena(QStringLiteral(" host=srv dbname=veldo user=puesto ")),
                 QStringLiteral("host=srv dbname=veldo user=puesto sslmode=prefer"));
        // The place's own sslmode wins over the setting.
        ConexionPostgres::FijarSslmode(QStringLiteral("require"));
        QCOMPARE(ConexionPostgres::Cadena(QStringLiteral("oficina")),
                 QStringLiteral("service=oficina sslmode=require"));
        QCOMPARE(ConexionPostgres::Cadena(QStringLiteral("host=srv sslmode=verify-full")),
                 QStringLiteral("host=srv sslmode=verify-full"));
    }

    void nombreDelServidor()
    {
        QCOMPARE(ConexionPostgres::NombreServidor(QStringLiteral("oficina")), QStringLiteral("oficina"));
        QCOMPARE(ConexionPostgres::NombreServidor(QStringLiteral("service=gestoria sslmode=prefer")),
                 QStringLiteral("gestoria"));
        QCOMPARE(ConexionPostgres::NombreServidor(
                     QStringLiteral("host=srv.local port=5433 dbname='mi base' user=x password=secreta")),
                 QStringLiteral("srv.local:5433/mi base"));
        QCOMPARE(ConexionPostgres::NombreServidor(QStringLiteral("dbname=veldo")),
                 QStringLiteral("localhost/veldo"));
    }

    void claveEnMemoria()
    {
        const QString lugar = QStringLiteral("host=srv dbname=veldo user=puesto");
        ConexionPostgres::RecordarClave(lugar, QStringLiteral("s3creta"));
        {
            const QSqlDatabase db = ConexionPostgres::Definir(QStringLiteral("prueba-clave"), lugar);
            QCOMPARE(db.password(), QStringLiteral("s3creta"));
            QVERIFY(!db.connectOptions().contains(QLatin1String("s3creta")));
            QCOMPARE(db.connectOptions(), ConexionPostgres::Cadena(lugar));
        }
        ConexionPostgres::RecordarClave(lugar, QString());
        {
            const QSqlDatabase db = ConexionPostgres::Definir(QStringLiteral("prueba-clave"), lugar);
            QVERIFY(db.password().isEmpty());
        }
        QSqlDatabase::removeDatabase(QStringLiteral("prueba-clave"));
    }
};

QTEST_GUILESS_MAIN(TestConexionPostgres)
#include "test_conexion_postgres.moc"
