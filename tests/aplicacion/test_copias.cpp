// Backup and restore of the read/write database, as the main window's commands run them (the
// application's dialogue over the store's copies and checks): the copy made while the
// database is open and in WAL mode, the question before replacing a backup, the failures that leave everything as it
// was, and the restore of a good file, of files that are not backups of this program, and one
// answered No.
#include "catalogo/IdsCatalogo.h"
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"

#include "paneles/dialogos/DialogoFichero.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"
#include "aplicacion/CopiaSeguridad.h"
#include "servicios/cSaveAsRestore.h"
#include "servicios/cTraspaso.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QThread>
#include <atomic>
#include <thread>

namespace {
constexpr int kPregunta = vb::Question | vb::YesNo | vb::DefaultButton2;
const QString kFiltro = QStringLiteral("archivos mdb (*.mdb;*.mdb)|*.mdb;mdb");

QString carpetaCopias() { return CarpetaPrograma() + QStringLiteral("/backups/"); }
QString copia() { return carpetaCopias() + QStringLiteral("VELDOMod_bak.mdb"); }

CopiaSeguridad paraCopia()
{
    CopiaSeguridad c;
    c.ArchivoOrigen = QStringLiteral("VELDOMOD.mdb");
    c.ArchivoDestino = QStringLiteral("VELDOMod_bak.mdb");
    c.RutaDestino = carpetaCopias();
    c.RutaOrigen = mdbPath;
    c.Filtro = kFiltro;
    c.Idioma = OffsetIdioma();
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}

CopiaSeguridad paraRestaurar()
{
    CopiaSeguridad c;
    c.ArchivoOrigen = QStringLiteral("VELDOMod_bak.mdb");
    c.ArchivoDestino = QStringLiteral("VELDOMOD.mdb");
    c.RutaDestino = mdbPath;
    c.RutaOrigen = carpetaCopias();
    c.Filtro = kFiltro;
    c.Idioma = OffsetIdioma();
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}

cGeneralSvr general(const QString& ruta = mdbmod)
{
    cGeneralSvr g;
    g.mdbmod = ruta;
    return g;
}

int32_t contribuyentes()
{
    cDatosGeneral d;
    d.mdbmod = mdbmod;
    return d.NumeroContribuyentes();
}

bool traspaso()
{
    cTraspaso t;
    t.mdbmod = mdbmod;
    t.mdbPath = mdbPath;
    return t.Traspaso();
}

// Files left in a folder besides the expected ones (temporary copies must not stay).
QStringList restos(const QString& carpeta, const QStringList& esperados)
{
    QStringList otros;
    for (const QString& f : QDir(carpeta).entryList(QDir::Files | QDir::Hidden | QDir::System))
        if (!esperados.contains(f) && !f.endsWith(QLatin1String("-wal"))
            && !f.endsWith(QLatin1String("-shm")))
            otros << f;
    return otros;
}

void escribir(const QString& ruta, const QByteArray& contenido)
{
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(contenido);
}
}  // namespace

class TestCopias : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QCOMPARE(traspaso(), false);
    }
    void cleanup()
    {
        m_carpeta.reset();
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void filtroDelDialogo()
    {
        QCOMPARE(cSaveAsRestore::FiltroDialogo(kFiltro), QStringLiteral("archivos mdb (*.mdb)"));
        QCOMPARE(cSaveAsRestore::FiltroDialogo(QStringLiteral("Texto|*.txt|Todo|*.*")),
                 QStringLiteral("Texto (*.txt);;Todo (*.*)"));
    }

    // The copy is taken while the database is open, in WAL mode, with writes not yet brought
    // into the file and another connection reading: it holds everything committed.
    void copiaConLaBaseAbierta()
    {
        general().CambiarIdioma(QStringLiteral("E"));
        general().GuardarActOnline(1);
        InsertarContribuyentes(mdbmod, 5);
        QVERIFY(QFileInfo(mdbmod + QStringLiteral("-wal")).size() > 0);
        ConexionCruda lector(mdbmod, true);
        lector.ejecutar(QStringLiteral("BEGIN"));
        QCOMPARE(lector.escalar(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 5);

        QVERIFY(!QDir(carpetaCopias()).exists());
        const QString antes = Volcado(mdbmod);
        QCOMPARE(paraCopia().CrearBackup(), true);
        lector.ejecutar(QStringLiteral("COMMIT"));

        QVERIFY(QFile::exists(copia()));
        QCOMPARE(Volcado(copia()), antes);
        QCOMPARE(MarcaDeArchivo(copia()), Esquema::MarcaAplicacion);
        QCOMPARE(VersionDeArchivo(copia()), Esquema::VersionActual());
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(restos(carpetaCopias(), {QStringLiteral("VELDOMod_bak.mdb")}), QStringList());
        // No question when there was no backup; the user is told it is done.
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].icono(), int(vb::Information));
        QCOMPARE(MensajeSeam::registro()[0].titulo, Texto(kIdCopiaSeguridad));
        // The live database goes on working.
        general().CambiarIdioma(QStringLiteral("C"));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("C"));
    }

    // Another instance writing while the copy is taken: the copy is whole either way.
    void copiaMientrasOtraInstanciaEscribe()
    {
        std::atomic<bool> parar{false};
        std::atomic<int> escritas{0};
        const QString ruta = mdbmod;
        std::thread otra([&] {
            while (!parar) {
                InsertarFilas(ruta, QStringLiteral("CONTRIBUYENTES"), 1);
                ++escritas;
            }
        });
        // The copy starts once the other has written, however loaded the machine is; the
        // other thread is joined before any check can end the test.
        const bool escribe = QTest::qWaitFor([&] { return escritas > 0; }, 10000);
        const bool hecha = paraCopia().CrearBackup();
        parar = true;
        otra.join();
        QVERIFY(escribe);
        QVERIFY(hecha);
        ConexionCruda c(copia(), true);
        QCOMPARE(c.escalar(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
        QVERIFY(c.escalar(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt() > 0);
    }

    // A second backup replaces the first after the question of id 337.
    void segundaCopiaTrasLaPregunta()
    {
        QVERIFY(paraCopia().CrearBackup());
        general().CambiarIdioma(QStringLiteral("E"));
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        QVERIFY(paraCopia().CrearBackup());
        QCOMPARE(MensajeSeam::registro().size(), 2);
        const auto& pregunta = MensajeSeam::registro()[0];
        QCOMPARE(pregunta.texto, Texto(kIdCopiaSeguridadExistente));
        QCOMPARE(pregunta.titulo, Texto(kIdCopiaSeguridad));
        QCOMPARE(pregunta.botones, kPregunta);
        QCOMPARE(general(copia()).ObtenerIdioma(), QStringLiteral("E"));
        Conexion::Cerrar(copia());
    }

    void segundaCopiaRespondidaNo()
    {
        QVERIFY(paraCopia().CrearBackup());
        const QByteArray primera = Bytes(copia());
        general().CambiarIdioma(QStringLiteral("E"));
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::No);
        QCOMPARE(paraCopia().CrearBackup(), false);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(Bytes(copia()), primera);
    }

    // No becomes the answer when the user just presses Enter.
    void laPreguntaTieneNoPorDefecto()
    {
        QVERIFY(paraCopia().CrearBackup());
        const QByteArray primera = Bytes(copia());
        MensajeSeam::limpiar();
        QCOMPARE(paraCopia().CrearBackup(), false);
        QCOMPARE(MensajeSeam::registro()[0].respuesta, int(vb::No));
        QCOMPARE(Bytes(copia()), primera);
    }

    void preguntaEnEuskera()
    {
        QVERIFY(paraCopia().CrearBackup());
        MensajeSeam::limpiar();
        CopiaSeguridad c = paraCopia();
        c.Idioma = 10000;
        MensajeSeam::setNextAnswer(vb::No);
        c.CrearBackup();
        QCOMPARE(MensajeSeam::registro()[0].texto, TextoFila(kIdCopiaSeguridadExistente + 10000));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdCopiaSeguridad + 10000));
    }

    // When the backup cannot be written the user gets ids 338 and 339, and nothing changes.
    void copiaFallidaNoTocaNada()
    {
        escribir(CarpetaPrograma() + QStringLiteral("/backups"), "no soy una carpeta");
        const QString antes = Volcado(mdbmod);
        QCOMPARE(paraCopia().CrearBackup(), false);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdErrorCopiaSeguridad));
        QCOMPARE(MensajeSeam::registro()[0].titulo, Texto(kIdCopiaSeguridadFallida));
        QCOMPARE(MensajeSeam::registro()[0].icono(), int(vb::Critical));
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(Bytes(CarpetaPrograma() + QStringLiteral("/backups")), QByteArray("no soy una carpeta"));
    }

    void copiaFallidaConservaLaAnterior()
    {
        QVERIFY(paraCopia().CrearBackup());
        const QByteArray primera = Bytes(copia());
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        CopiaSeguridad c = paraCopia();
        c.ArchivoOrigen = QStringLiteral("NO_EXISTE.mdb");
        QCOMPARE(c.CrearBackup(), false);
        QCOMPARE(MensajeSeam::registro().last().texto, Texto(kIdErrorCopiaSeguridad));
        QCOMPARE(Bytes(copia()), primera);
        QCOMPARE(restos(carpetaCopias(), {QStringLiteral("VELDOMod_bak.mdb")}), QStringList());
    }

    // Restore of a good backup: the live database becomes the backup, in its language.
    void restaurarUnaCopiaBuena()
    {
        general().CambiarIdioma(QStringLiteral("E"));
        InsertarContribuyentes(mdbmod, 2);
        QVERIFY(paraCopia().CrearBackup());
        const QString enLaCopia = Volcado(copia());
        general().CambiarIdioma(QStringLiteral("C"));
        InsertarContribuyentes(mdbmod, 4);
        QCOMPARE(contribuyentes(), 6);

        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(paraRestaurar().CrearRestore(), true);
        const auto& pregunta = MensajeSeam::registro()[0];
        QCOMPARE(pregunta.texto, Texto(kIdPreguntaRestaurar));
        QCOMPARE(pregunta.titulo, Texto(kIdRestaurarBaseDatos));
        QCOMPARE(pregunta.botones, kPregunta);

        QCOMPARE(Volcado(mdbmod), enLaCopia);
        QCOMPARE(restos(m_carpeta->tablas(), {QStringLiteral("VELDOMOD.mdb"), QStringLiteral("VELDOLEC.mdb")}),
                 QStringList());
        // The program then runs the start-up steps again, on the restored file.
        QCOMPARE(traspaso(), false);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(contribuyentes(), 2);
        general().GuardarActOnline(0);
        QCOMPARE(general().ObtenerActOnline(), int16_t(0));
        // The backup itself is untouched.
        QCOMPARE(Volcado(copia()), enLaCopia);
    }

    // A restore answered No leaves data, language and counters as they were.
    void restauracionRespondidaNo()
    {
        QVERIFY(paraCopia().CrearBackup());
        general().CambiarIdioma(QStringLiteral("E"));
        InsertarContribuyentes(mdbmod, 3);
        const QString antes = Volcado(mdbmod);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::No);
        QCOMPARE(paraRestaurar().CrearRestore(), false);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(contribuyentes(), 3);
        QCOMPARE(restos(m_carpeta->tablas(), {QStringLiteral("VELDOMOD.mdb"), QStringLiteral("VELDOLEC.mdb")}),
                 QStringList());
    }

    // A backup whose shape is the program's but whose rows break its rules is found out only
    // while they are carried over, after the question: it is refused then with the message
    // for a file that is not a backup, and the live database is left byte for byte.
    void restaurarUnaCopiaConFilasFueraDeLasReglas()
    {
        InsertarContribuyentes(mdbmod, 2);
        QVERIFY(paraCopia().CrearBackup());
        {
            ConexionCruda c(copia());
            c.ejecutar(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
            c.ejecutar(QStringLiteral("UPDATE CONTRIBUYENTES SET NUMEROC = -1"));
        }
        InsertarContribuyentes(mdbmod, 3);
        Conexion::Cerrar(mdbmod);
        const QByteArray antes = Bytes(mdbmod);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);
        QCOMPARE(paraRestaurar().CrearRestore(), false);
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdRestaurarBaseDatos));
        QVERIFY2(MensajeSeam::registro()[1].texto.contains(
                     QStringLiteral("no es una copia de seguridad de la base de datos de este programa")),
                 qPrintable(MensajeSeam::registro()[1].texto));
        QCOMPARE(Bytes(mdbmod), antes);
        QCOMPARE(contribuyentes(), 5);
    }

    // A file that is not a backup of this program is refused before any question, and the
    // live database is not touched.
    void restaurarUnFicheroMalo_data()
    {
        QTest::addColumn<int>("clase");
        QTest::newRow("texto") << 0;
        QTest::newRow("otro programa") << 1;
        QTest::newRow("otra marca") << 2;
        QTest::newRow("cabecera rota") << 3;
        QTest::newRow("vacio") << 4;
        QTest::newRow("propia pero dañada") << 5;
    }
    void restaurarUnFicheroMalo()
    {
        QFETCH(int, clase);
        QDir().mkpath(carpetaCopias());
        switch (clase) {
        case 0: escribir(copia(), "VELDOMOD\r\nno es una base de datos\r\n"); break;
        case 1: CrearBaseAjena(copia()); break;
        case 2: CrearBaseAjena(copia(), 0x01020304); break;
        case 3: escribir(copia(), QByteArray("SQLite format 3", 16) + QByteArray(8192, '\x5A')); break;
        case 4: escribir(copia(), QByteArray()); break;
        case 5: {
            InsertarContribuyentes(mdbmod, 200);
            QVERIFY(paraCopia().CrearBackup());
            MensajeSeam::limpiar();
            QByteArray danada = Bytes(copia());
            QVERIFY(danada.size() > 3 * 4096);
            for (qsizetype i = 4096; i < danada.size(); ++i)
                danada[i] = char(0x5A ^ (i & 0xFF));
            escribir(copia(), danada);
            QCOMPARE(MarcaDeArchivo(copia()), Esquema::MarcaAplicacion);
            break;
        }
        }
        general().CambiarIdioma(QStringLiteral("E"));
        const QString antes = Volcado(mdbmod);
        const QByteArray bytesAntes = Bytes(mdbmod);
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(paraRestaurar().CrearRestore(), false);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& aviso = MensajeSeam::registro()[0];
        QVERIFY(aviso.texto != Texto(kIdPreguntaRestaurar));
        QVERIFY(aviso.texto.contains(QLatin1String("no es una copia de seguridad")));
        QCOMPARE(aviso.titulo, Texto(kIdRestaurarBaseDatos));
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(Bytes(mdbmod), bytesAntes);
        QCOMPARE(restos(m_carpeta->tablas(), {QStringLiteral("VELDOMOD.mdb"), QStringLiteral("VELDOLEC.mdb")}),
                 QStringList());
    }

    void rechazoEnEuskera()
    {
        escribir(copia(), "ez da datu basea");
        CopiaSeguridad c = paraRestaurar();
        c.Idioma = 10000;
        QCOMPARE(c.CrearRestore(), false);
        QVERIFY(MensajeSeam::registro()[0].texto.contains(QLatin1String("ez da programa honen")));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdRestaurarBaseDatos + 10000));
    }

    // A backup of a newer program cannot be used by this one: refused, with its own reason.
    void restaurarUnaCopiaMasNueva()
    {
        QDir().mkpath(carpetaCopias());
        CrearLayoutPosterior(copia(), Esquema::VersionActual() + 1);
        const QString antes = Volcado(mdbmod);
        QCOMPARE(paraRestaurar().CrearRestore(), false);
        QVERIFY(MensajeSeam::registro()[0].texto.contains(QStringLiteral("más moderna")));
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // A backup of an older layout is restored already brought to the current layout (copies
    // of the program still running go on writing it); the start-up steps find nothing to do.
    void restaurarUnaCopiaAntigua()
    {
        QDir().mkpath(carpetaCopias());
        CrearLayout0(copia(), QStringLiteral("E"), 1);
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(paraRestaurar().CrearRestore(), true);
        QCOMPARE(VersionDeArchivo(mdbmod), Esquema::VersionActual());
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(traspaso(), false);
        QCOMPARE(VersionDeArchivo(mdbmod), Esquema::VersionActual());
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(1));
    }

    // Without a backup in its folder the user may pick one elsewhere, or cancel.
    void sinCopiaSeEligeUnFichero()
    {
        QCOMPARE(paraRestaurar().CrearRestore(), false);  // no answer scripted: Cancel
        QCOMPARE(DialogoFicheroSeam::registro().size(), 1);
        const auto& dialogo = DialogoFicheroSeam::registro()[0];
        QCOMPARE(dialogo.guardar, false);
        QCOMPARE(dialogo.filtro, QStringLiteral("archivos mdb (*.mdb)"));
        QCOMPARE(dialogo.carpeta, carpetaCopias());
        QCOMPARE(dialogo.titulo, Texto(kIdRestaurarCopiaSeguridad));
        QVERIFY(MensajeSeam::registro().isEmpty());

        // A copy kept elsewhere.
        general().CambiarIdioma(QStringLiteral("E"));
        CopiaSeguridad c = paraCopia();
        c.RutaDestino = CarpetaPrograma() + QStringLiteral("/otra/");
        QVERIFY(c.CrearBackup());
        general().CambiarIdioma(QStringLiteral("C"));
        DialogoFicheroSeam::setNextFileName(c.RutaDestino + QStringLiteral("VELDOMod_bak.mdb"));
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(paraRestaurar().CrearRestore(), true);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
    }

    // When the live file cannot be replaced the restore answers false and says so.
    void sustitucionImposible()
    {
        QVERIFY(paraCopia().CrearBackup());
        Conexion::Cerrar(mdbmod);
        QVERIFY(QFile::remove(mdbmod));
        QFile::remove(mdbmod + QStringLiteral("-wal"));
        QFile::remove(mdbmod + QStringLiteral("-shm"));
        QVERIFY(QDir().mkpath(mdbmod + QStringLiteral("/ocupado")));
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(paraRestaurar().CrearRestore(), false);
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QVERIFY(MensajeSeam::registro()[1].texto.contains(QLatin1String("No se ha podido restaurar")));
        QVERIFY(QFileInfo(mdbmod).isDir());
        QVERIFY(QFileInfo::exists(mdbmod + QStringLiteral("/ocupado")));
        QCOMPARE(restos(m_carpeta->tablas(), {QStringLiteral("VELDOLEC.mdb")}), QStringList());
    }
};

QTEST_MAIN(TestCopias)
#include "test_copias.moc"
