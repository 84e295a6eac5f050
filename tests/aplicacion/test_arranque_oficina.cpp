// The start-up of a seat pointed at an office's server (a real PostgreSQL server of the test's
// own): a server that does not answer, a refused password or a database not made yet stop the
// start with a message that names the server and what to do, before any window and without the
// failure notice, and the program ends with the status of a store it cannot use. Nothing is
// written beside the program in the embedded store's place. Skipped, with the reason, where the
// server cannot run.
#include "comun/Entorno.h"
#include "comun/ServidorPostgres.h"

#include "aplicacion/Arranque.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "plataforma/Proceso.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"

#include <QApplication>
#include <QFile>
#include <QTest>
#include <memory>

namespace {
// The status of a program that ends at start-up because its store cannot be used.
constexpr int kSinAlmacen = 2;
}

class TestArranqueOficina : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    ServidorPostgres::Base m_base;

    // The start-up as the program runs it; the notices before the server's are answered.
    static bool arrancar()
    {
        MensajeSeam::setNextAnswer(vb::OK);
        MensajeSeam::setNextAnswer(vb::OK);
        bool sigue = false;
        Proceso::Protegido([&] { sigue = Main(); });
        QApplication::restoreOverrideCursor();
        return sigue;
    }

    // The start-up ended, before any window, with `texto` as its last word and no failure
    // notice.
    void terminadoCon(const QString& texto)
    {
        QVERIFY(!arrancar());
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QCOMPARE(ProcesoSeam::ultimoCodigo(), kSinAlmacen);
        QVERIFY(!MensajeSeam::registro().isEmpty());
        const QString ultimo = MensajeSeam::registro().constLast().texto;
        QVERIFY2(ultimo.contains(texto), qPrintable(ultimo));
        QVERIFY2(!ultimo.contains(QLatin1String("QPSQL")), qPrintable(ultimo));
        QVERIFY(!QFile::exists(m_carpeta->tablas() + QStringLiteral("VELDOMOD.mdb")));
    }

    QString lugar() const
    {
        return QStringLiteral("127.0.0.1:%1/%2").arg(m_base.puerto).arg(m_base.nombre);
    }

private slots:
    void init()
    {
        ServidorPostgres* servidor = ServidorPostgres::Compartido();
        if (!servidor)
            QSKIP(qPrintable(ServidorPostgres::Motivo()));
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        EstablecerIdiomaPrograma(Idioma::Castellano);
        m_base = servidor->NuevaBase();
        m_base.RecordarClaves();
    }

    void cleanup()
    {
        Conexion::CerrarTodas();
        Conexion::Cerrar(m_base.CadenaPuesto());
        Conexion::Cerrar(mdblec);
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        m_carpeta.reset();
    }

    void servidorInalcanzable()
    {
        ElegirOficina(QStringLiteral("host=127.0.0.1 port=1 dbname=veldo user=nadie connect_timeout=2"));
        terminadoCon(QStringLiteral("No se puede trabajar con el servidor de la oficina "
                                    "127.0.0.1:1/veldo: no responde. Compruebe que está en marcha"));
    }

    void claveEquivocada()
    {
        // The seat's role with a password that is not its own.
        ServidorPostgres::Base otra = m_base;
        otra.clavePuesto = QStringLiteral("otra");
        otra.RecordarClaves();
        ElegirOficina(m_base.CadenaPuesto());
        terminadoCon(QStringLiteral("El servidor de la oficina %1 no acepta el usuario o la "
                                    "contraseña.").arg(lugar()));
    }

    void oficinaSinCrear()
    {
        ElegirOficina(m_base.CadenaPuesto());
        terminadoCon(QStringLiteral("La base de datos de la oficina %1 aún no está creada. El "
                                    "administrador de la oficina la crea con: Veldo "
                                    "--crear-oficina SERVICIO").arg(lugar()));
    }
};

QTEST_MAIN(TestArranqueOficina)
#include "test_arranque_oficina.moc"
