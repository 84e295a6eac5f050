// The restore of the store seen from outside the restoring program: a second copy of the program
// that keeps the store open while another restores it, and a third that reads the result; the
// backups that must be refused for what they are by themselves (damaged, another layout); the
// dated safety copy kept before every restore; the temporary copies a killed program leaves.
//
// A second copy saving in a loop on a store of 100 000 rows while this one restores it: each
// save it was told was made is in the restored store or in the safety copy. Backups built to
// change the program (a trigger, a view, an extra index, another key or column type) or
// holding rows that break its rules are refused, and the live store stays as it was, byte for
// byte.
//
// The other copies of the program are this very executable started again with "--ayudante".
#include "comun/AlmacenPrueba.h"
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"
#include "comun/PartesPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cSaveAsRestore.h"
#include "servicios/cTraspaso.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSqlQuery>
#include <QRegularExpression>
#include <QTest>
#include <QSqlError>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

cGeneralSvr general(const QString& ruta)
{
    cGeneralSvr g;
    g.mdbmod = ruta;
    return g;
}

int32_t contribuyentes(const QString& ruta)
{
    cDatosGeneral d;
    d.mdbmod = ruta;
    return d.NumeroContribuyentes();
}

// ---- The other copies of the program ---------------------------------------------------------

void decir(const char* linea)
{
    std::cout << linea << std::endl;
}

// Keeps the store open (a read and a save), says "listo", waits for a line, saves again (the
// language and the update setting) and says "hecho".
int ayudanteOcioso(const QString& ruta)
{
    general(ruta).CambiarIdioma(QStringLiteral("C"));
    std::printf("%d\n", contribuyentes(ruta));
    decir("listo");
    std::string linea;
    std::getline(std::cin, linea);
    general(ruta).CambiarIdioma(QStringLiteral("E"));
    general(ruta).GuardarActOnline(1);
    decir("hecho");
    return 0;
}

// Reads the store as a fresh copy of the program does: "idioma actonline contribuyentes".
int ayudanteLector(const QString& ruta)
{
    std::printf("%s %d %d\n", qPrintable(general(ruta).ObtenerIdioma()),
                int(general(ruta).ObtenerActOnline()), contribuyentes(ruta));
    return 0;
}

// Takes the lock of a temporary copy and ends at once without letting it go, as a copy of the
// program killed half-way through a restore does.
int ayudanteMuerto(const QString& temporal)
{
    QFile f(temporal);
    f.open(QIODevice::WriteOnly);
    f.write(QByteArray(4096, 'x'));
    f.close();
    QLockFile cerrojo(temporal + QStringLiteral(".lock"));
    if (!cerrojo.tryLock(0))
        return 2;
    std::fflush(nullptr);
    std::_Exit(0);
}

// Saves contributors in a loop, through the store of contributors, until the file "parar"
// appears in the program folder `carpeta`; writes the number of each save that was made, once
// it was made.
int ayudanteGuardador(const QString& carpeta)
{
    EstablecerCarpetaPrograma(carpeta);
    mdbPath = carpeta + QStringLiteral("/Tablas/");
    mdbmod = mdbPath + QStringLiteral("VELDOMOD.mdb");
    mdblec = mdbPath + QStringLiteral("VELDOLEC.mdb");
    const QString parar = carpeta + QStringLiteral("/parar");
    for (quint32 i = 0; !QFile::exists(parar); ++i) {
        const QString dni = Dni(60000000 + i);
        try {
            if (NuevoContribuyente(dni, QStringLiteral("GUARDADO %1").arg(i)) > 0)
                std::printf("%s\n", qPrintable(dni));
        } catch (const cFallo&) {
            // Not made (the store stayed locked too long): not told.
        }
        std::fflush(stdout);
    }
    decir("fin");
    return 0;
}

int ayudante(const QStringList& argumentos)
{
    const QString modo = argumentos.value(2);
    const QString ruta = argumentos.value(3);
    if (modo == QLatin1String("ocioso"))
        return ayudanteOcioso(ruta);
    if (modo == QLatin1String("lector"))
        return ayudanteLector(ruta);
    if (modo == QLatin1String("muerto"))
        return ayudanteMuerto(ruta);
    if (modo == QLatin1String("guardador"))
        return ayudanteGuardador(ruta);
    return 3;
}

// ---- The test's side -------------------------------------------------------------------------

class Ayudante {
public:
    Ayudante(const QString& modo, const QString& ruta)
    {
        m_proceso.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_proceso.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--ayudante"), modo, ruta});
    }
    ~Ayudante()
    {
        if (m_proceso.state() != QProcess::NotRunning) {
            m_proceso.kill();
            m_proceso.waitForFinished(5000);
        }
    }
    // The next line the helper writes (empty after 30 s).
    QString linea()
    {
        while (!m_proceso.canReadLine())
            if (!m_proceso.waitForReadyRead(30000))
                return {};
        return QString::fromLocal8Bit(m_proceso.readLine()).trimmed();
    }
    void escribir(const QByteArray& datos) { m_proceso.write(datos); }

    bool terminar() { return m_proceso.waitForFinished(30000) && m_proceso.exitCode() == 0; }
    QString todo()
    {
        terminar();
        return QString::fromLocal8Bit(m_proceso.readAllStandardOutput()).trimmed();
    }

private:
    QProcess m_proceso;
};

bool traspaso()
{
    cTraspaso t;
    t.mdbmod = mdbmod;
    t.mdbPath = mdbPath;
    return t.Traspaso();
}

QString carpetaCopias() { return CarpetaPrograma() + QStringLiteral("/backups/"); }

cSaveAsRestore paraCopia()
{
    cSaveAsRestore c;
    c.ArchivoOrigen = QStringLiteral("VELDOMOD.mdb");
    c.ArchivoDestino = QStringLiteral("VELDOMod_bak.mdb");
    c.RutaDestino = carpetaCopias();
    c.RutaOrigen = mdbPath;
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}

cSaveAsRestore paraRestaurar()
{
    cSaveAsRestore c;
    c.ArchivoOrigen = QStringLiteral("VELDOMod_bak.mdb");
    c.ArchivoDestino = QStringLiteral("VELDOMOD.mdb");
    c.RutaDestino = mdbPath;
    c.RutaOrigen = carpetaCopias();
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}

QString copia() { return carpetaCopias() + QStringLiteral("VELDOMod_bak.mdb"); }

bool tieneDni(const QString& ruta, const QString& dni)
{
    ConexionCruda c(ruta, true);
    QSqlQuery q(c.db());
    q.prepare(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES WHERE DNIC = ?"));
    q.addBindValue(dni);
    return q.exec() && q.next() && q.value(0).toInt() == 1;
}

// A backup with two contributors, a presenter and a return naming them all, as the program
// writes it.
void copiaConDatos()
{
    const int32_t uno = NuevoContribuyente(Dni(11111111), QStringLiteral("PRIMERO"));
    const int32_t dos = NuevoContribuyente(Dni(22222222), QStringLiteral("SEGUNDO"));
    const int32_t presentador = NuevoPresentador(Dni(33333333), QStringLiteral("GESTORIA"));
    NuevaDeclaracion(uno, dos, presentador);
    Conexion::Cerrar(mdbmod);
    QVERIFY(paraCopia().Copiar());
}

// Runs statements on a backup as another program would: references, checks and the schema's
// own protection off.
void cambiarCopia(const QStringList& sentencias)
{
    ConexionCruda c(copia());
    c.ejecutar(QStringLiteral("PRAGMA foreign_keys = OFF"));
    c.ejecutar(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
    c.ejecutar(QStringLiteral("PRAGMA writable_schema = ON"));
    for (const QString& sql : sentencias)
        c.ejecutar(sql);
}

QStringList ocultos(const QString& carpeta)
{
    return QDir(carpeta).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
}

}  // namespace

class TestRestauracion : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        QCOMPARE(traspaso(), false);
    }
    void cleanup()
    {
        Conexion::Cerrar(mdbmod);
        m_carpeta.reset();
    }

    // A second copy of the program keeps the store open while this one restores it: its next
    // save lands in the restored store, where a third copy reads it back.
    void otraCopiaAbiertaGuardaEnLaBaseRestaurada()
    {
        InsertarContribuyentes(mdbmod, 2);
        QVERIFY(paraCopia().Copiar());
        InsertarContribuyentes(mdbmod, 5);
        QCOMPARE(contribuyentes(mdbmod), 7);

        Ayudante ocioso(QStringLiteral("ocioso"), mdbmod);
        QCOMPARE(ocioso.linea(), QStringLiteral("7"));
        QCOMPARE(ocioso.linea(), QStringLiteral("listo"));

        QVERIFY(paraRestaurar().Restaurar(copia()).hecha);
        QCOMPARE(contribuyentes(mdbmod), 2);

        ocioso.escribir("sigue\n");
        QCOMPARE(ocioso.linea(), QStringLiteral("hecho"));
        QVERIFY(ocioso.terminar());

        Ayudante lector(QStringLiteral("lector"), mdbmod);
        QCOMPARE(lector.todo(), QStringLiteral("E 1 2"));
        // And this copy sees the same.
        QCOMPARE(general(mdbmod).ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(contribuyentes(mdbmod), 2);
        ConexionCruda c(mdbmod, true);
        QCOMPARE(c.escalar(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    }

    // A backup whose own pages fail the integrity check is refused, although a copy of it
    // would be whole (SQLite rebuilds the indexes while copying).
    void copiaConIndiceDanadoSeRechaza()
    {
        InsertarContribuyentes(mdbmod, 20);
        QVERIFY(paraCopia().Copiar());
        {
            ConexionCruda c(copia());
            c.ejecutar(QStringLiteral("PRAGMA writable_schema = ON"));
            QSqlQuery q(c.db());
            QVERIFY(q.exec(QStringLiteral("UPDATE sqlite_master SET sql = replace(sql, '(NOMBREC)', "
                                          "'(CSCO)') WHERE name = 'CONTRIBUYENTES_NOMBREC'")));
            QCOMPARE(q.numRowsAffected(), 1);
        }
        {
            ConexionCruda c(copia(), true);
            QVERIFY(c.escalar(QStringLiteral("PRAGMA integrity_check")).toString() != QLatin1String("ok"));
        }
        const QString antes = Volcado(mdbmod);
        QCOMPARE(paraRestaurar().Examinar(copia()), cSaveAsRestore::Examen::Ajena);
        QVERIFY(!paraRestaurar().Restaurar(copia()).hecha);
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // A file with the program's mark and current layout number but other tables or columns.
    void copiaConOtraDisposicionSeRechaza_data()
    {
        QTest::addColumn<QString>("cambio");
        QTest::newRow("tabla de menos") << QStringLiteral("DROP TABLE DECLARACIONES");
        QTest::newRow("tabla de mas") << QStringLiteral("CREATE TABLE OTRA (A)");
        QTest::newRow("columna de menos") << QStringLiteral("ALTER TABLE PRESENTADORES DROP COLUMN TELEFONOP");
        QTest::newRow("columna de mas") << QStringLiteral("ALTER TABLE CONFIGURACION ADD COLUMN OTRA TEXT");
    }
    void copiaConOtraDisposicionSeRechaza()
    {
        QFETCH(QString, cambio);
        QVERIFY(paraCopia().Copiar());
        {
            ConexionCruda c(copia());
            c.ejecutar(cambio);
        }
        QCOMPARE(MarcaDeArchivo(copia()), Esquema::MarcaAplicacion);
        QCOMPARE(VersionDeArchivo(copia()), Esquema::VersionActual());
        const QString antes = Volcado(mdbmod);
        QCOMPARE(paraRestaurar().Examinar(copia()), cSaveAsRestore::Examen::Ajena);
        QVERIFY(!paraRestaurar().Restaurar(copia()).hecha);
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // A second copy of the program saves contributors in a loop while this one restores a
    // store of 100 000 rows: every save it was told was made is in the restored store or in
    // the dated safety copy, none lost in between. Smaller stores too, where the safety copy is
    // quick and the second copy is not held up by it.
    void ningunGuardadoSePierdeAlRestaurar_data()
    {
        QTest::addColumn<int>("filas");
        QTest::newRow("100 000 filas") << 100000;
        QTest::newRow("5 000 filas") << 5000;
        QTest::newRow("200 filas") << 200;
    }
    void ningunGuardadoSePierdeAlRestaurar()
    {
        QFETCH(int, filas);
        InsertarContribuyentes(mdbmod, filas);
        QVERIFY(paraCopia().Copiar());
        Conexion::Cerrar(mdbmod);

        Ayudante guardador(QStringLiteral("guardador"), m_carpeta->ruta());
        QStringList hechos;
        while (hechos.size() < 20) {
            const QString l = guardador.linea();
            QVERIFY2(!l.isEmpty(), "el guardador no guarda");
            hechos << l;
        }
        const cSaveAsRestore::Restauracion r = paraRestaurar().Restaurar(copia());
        QVERIFY(r.hecha);
        QVERIFY(QFile::exists(r.copiaPrevia));
        // Saves after the restore too.
        QTRY_VERIFY_WITH_TIMEOUT(contribuyentes(mdbmod) >= filas + 20, 60000);
        QFile(m_carpeta->ruta() + QStringLiteral("/parar")).open(QIODevice::WriteOnly);
        for (QString l = guardador.linea(); l != QLatin1String("fin"); l = guardador.linea()) {
            QVERIFY2(!l.isEmpty(), "el guardador no termina");
            hechos << l;
        }
        QVERIFY(guardador.terminar());

        QStringList perdidos;
        int enRestaurada = 0;
        int enPrevia = 0;
        for (const QString& dni : std::as_const(hechos)) {
            if (tieneDni(mdbmod, dni))
                ++enRestaurada;
            else if (tieneDni(r.copiaPrevia, dni))
                ++enPrevia;
            else
                perdidos << dni;
        }
        QVERIFY2(perdidos.isEmpty(),
                 qPrintable(QStringLiteral("%1 de %2 guardados perdidos (%3 en la restaurada, %4 "
                                           "en la copia previa)")
                                .arg(perdidos.size()).arg(hechos.size()).arg(enRestaurada)
                                .arg(enPrevia)));
        QVERIFY(enPrevia >= 20);
        QVERIFY(enRestaurada >= 20);
        QCOMPARE(contribuyentes(mdbmod), filas + enRestaurada);
    }

    // Backups built to change the program, or holding rows that break its rules: each is
    // refused and the live store stays as it was, byte for byte.
    void copiaHostilSeRechaza_data()
    {
        QTest::addColumn<QStringList>("cambio");
        auto caso = [](const char* nombre, const QStringList& sql) { QTest::newRow(nombre) << sql; };
        caso("disparador", {"CREATE TRIGGER BORRAR AFTER INSERT ON DECLARACIONES "
                            "BEGIN DELETE FROM DECLARACIONES; END"});
        caso("vista", {"CREATE VIEW VISTA AS SELECT * FROM CONTRIBUYENTES"});
        caso("indice de mas", {"CREATE UNIQUE INDEX OTRO ON CONTRIBUYENTES (NOMBREC)"});
        caso("tabla sin clave", {"UPDATE sqlite_master SET sql = replace(sql, "
                                 "'CSCO INTEGER PRIMARY KEY', 'CSCO INTEGER') "
                                 "WHERE name = 'CONTRIBUYENTES'"});
        caso("tipo de columna", {"UPDATE sqlite_master SET sql = replace(sql, "
                                 "'NUMEROP INTEGER', 'NUMEROP TEXT') WHERE name = 'PRESENTADORES'"});
        caso("dni repetido", {"DROP INDEX CONTRIBUYENTES_DNIC",
                              "UPDATE CONTRIBUYENTES SET DNIC = (SELECT MIN(DNIC) FROM CONTRIBUYENTES)",
                              "CREATE INDEX CONTRIBUYENTES_DNIC ON CONTRIBUYENTES (DNIC)",
                              "UPDATE sqlite_master SET sql = replace(sql, 'CREATE INDEX', "
                              "'CREATE UNIQUE INDEX') WHERE name = 'CONTRIBUYENTES_DNIC'"});
        caso("contribuyente inexistente", {"UPDATE DECLARACIONES SET CSSU = 999"});
        caso("presentador inexistente", {"DELETE FROM PRESENTADORES"});
        // Every CHECK of the program's tables, broken once.
        const QList<std::pair<const char*, const char*>> roturas = {
            {"CONTRIBUYENTES", "TIPODNI = 'Q'"},
            {"CONTRIBUYENTES", "DNIC = ''"},
            {"CONTRIBUYENTES", "DNIC = '1234567890'"},
            {"CONTRIBUYENTES", "NOMBREC = ''"},
            {"CONTRIBUYENTES", "NOMBREC = printf('%.300c', 'A')"},
            {"CONTRIBUYENTES", "VIAC = 'CLL'"},
            {"CONTRIBUYENTES", "DOMICILIOC = printf('%.21c', 'A')"},
            {"CONTRIBUYENTES", "NUMEROC = -1"},
            {"CONTRIBUYENTES", "NUMEROC = 100000"},
            {"CONTRIBUYENTES", "LETRAC = 'ABC'"},
            {"CONTRIBUYENTES", "ESCALERAC = 'ABC'"},
            {"CONTRIBUYENTES", "PISOC = 'ABC'"},
            {"CONTRIBUYENTES", "MANOC = 'ABCD'"},
            {"CONTRIBUYENTES", "TIPODOMI = 'X'"},
            {"CONTRIBUYENTES", "PAIS = printf('%.21c', 'A')"},
            {"CONTRIBUYENTES", "CODPROVC = '777'"},
            {"CONTRIBUYENTES", "NOMPROVC = printf('%.21c', 'A')"},
            {"CONTRIBUYENTES", "CODPOSC = '770011'"},
            {"CONTRIBUYENTES", "CODMUNC = '0011'"},
            {"CONTRIBUYENTES", "NOMMUNC = printf('%.26c', 'A')"},
            {"PRESENTADORES", "DNIP = ''"},
            {"PRESENTADORES", "DNIP = '1234567890'"},
            {"PRESENTADORES", "NOMBREP = ''"},
            {"PRESENTADORES", "NOMBREP = printf('%.41c', 'A')"},
            {"PRESENTADORES", "VIAP = 'CLL'"},
            {"PRESENTADORES", "DOMICILIOP = printf('%.21c', 'A')"},
            {"PRESENTADORES", "NUMEROP = -1"},
            {"PRESENTADORES", "NUMEROP = 100000"},
            {"PRESENTADORES", "LETRAP = 'ABC'"},
            {"PRESENTADORES", "ESCALERAP = 'ABC'"},
            {"PRESENTADORES", "PISOP = 'ABC'"},
            {"PRESENTADORES", "MANOP = 'ABCD'"},
            {"PRESENTADORES", "CODPROVP = '777'"},
            {"PRESENTADORES", "CODPOSP = '770011'"},
            {"PRESENTADORES", "CODMUNP = '0011'"},
            {"PRESENTADORES", "NOMMUNP = printf('%.26c', 'A')"},
            {"PRESENTADORES", "TELEFONOP = '1234567890'"},
            {"CONFIGURACION", "ID = 2"},
            {"CONFIGURACION", "ACTONLINE = 7"},
        };
        for (const auto& [tabla, valor] : roturas)
            QTest::newRow(qPrintable(QStringLiteral("check %1 %2").arg(QLatin1String(tabla),
                                                                       QLatin1String(valor))))
                << QStringList{QStringLiteral("UPDATE %1 SET %2 WHERE rowid = (SELECT MIN(rowid) "
                                              "FROM %1)")
                                   .arg(QLatin1String(tabla), QLatin1String(valor))};
    }
    void copiaHostilSeRechaza()
    {
        QFETCH(QStringList, cambio);
        copiaConDatos();
        cambiarCopia(cambio);
        QCOMPARE(MarcaDeArchivo(copia()), Esquema::MarcaAplicacion);
        QCOMPARE(VersionDeArchivo(copia()), Esquema::VersionActual());
        Conexion::Cerrar(mdbmod);
        const QByteArray antes = Bytes(mdbmod);
        const QStringList carpetaAntes = Contenido(m_carpeta->ruta());

        const cSaveAsRestore::Restauracion r = paraRestaurar().Restaurar(copia());
        QVERIFY(!r.hecha);
        QCOMPARE(r.examen, cSaveAsRestore::Examen::Ajena);
        QVERIFY(r.copiaPrevia.isEmpty());
        QCOMPARE(Bytes(mdbmod), antes);
        QCOMPARE(Contenido(m_carpeta->ruta()), carpetaAntes);
    }

    // The same backup untouched goes in whole: the rows, the references, the codes.
    void copiaIntactaSeRestaura()
    {
        copiaConDatos();
        const QString antes = Volcado(mdbmod);
        EjecutarEnAlmacen(QStringLiteral("DELETE FROM DECLARACIONES"));
        EjecutarEnAlmacen(QStringLiteral("DELETE FROM CONTRIBUYENTES"));
        Conexion::Cerrar(mdbmod);
        QVERIFY(paraRestaurar().Restaurar(copia()).hecha);
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // Before any restore the live store is kept, dated, in the folder of the backups; restoring
    // that copy undoes the restore.
    void copiaPreviaFechadaDeshaceLaRestauracion()
    {
        QVERIFY(paraCopia().Copiar());
        general(mdbmod).CambiarIdioma(QStringLiteral("E"));
        InsertarContribuyentes(mdbmod, 3);
        const QString vivaAntes = Volcado(mdbmod);

        const cSaveAsRestore::Restauracion r = paraRestaurar().Restaurar(copia());
        QVERIFY(r.hecha);
        QVERIFY(QFile::exists(r.copiaPrevia));
        QCOMPARE(QFileInfo(r.copiaPrevia).absolutePath(), QFileInfo(carpetaCopias()).absolutePath());
        QVERIFY(QFileInfo(r.copiaPrevia).fileName().contains(QRegularExpression(
            QStringLiteral("^VELDOMOD_\\d{8}_\\d{6}(_\\d+)?\\.mdb$"))));
        QCOMPARE(Volcado(r.copiaPrevia), vivaAntes);
        QCOMPARE(contribuyentes(mdbmod), 0);

        cSaveAsRestore deshacer = paraRestaurar();
        deshacer.ArchivoOrigen = QFileInfo(r.copiaPrevia).fileName();
        const cSaveAsRestore::Restauracion otra = deshacer.Restaurar(deshacer.Origen());
        QVERIFY(otra.hecha);
        QVERIFY(otra.copiaPrevia != r.copiaPrevia);
        QCOMPARE(Volcado(mdbmod), vivaAntes);
        QCOMPARE(general(mdbmod).ObtenerIdioma(), QStringLiteral("E"));
    }

    // A restore killed half-way leaves a hidden temporary copy and its lock: the next restore
    // removes them; those of a copy of the program still running stay.
    void restosDeUnaRestauracionMuertaSeLimpian()
    {
        const QString muerto = m_carpeta->tablas() + QStringLiteral(".VELDOMOD.mdb.0123456789ab.tmp");
        {
            Ayudante a(QStringLiteral("muerto"), muerto);
            QVERIFY(a.terminar());
        }
        QVERIFY(QFile::exists(muerto));
        QVERIFY(QFile::exists(muerto + QStringLiteral(".lock")));
        // An older one, without a lock at all.
        const QString antiguo = m_carpeta->tablas() + QStringLiteral(".VELDOMOD.mdb.ba9876543210.tmp");
        QFile(antiguo).open(QIODevice::WriteOnly);
        // One still in the hands of a running copy.
        const QString vivo = m_carpeta->tablas() + QStringLiteral(".VELDOMOD.mdb.aaaaaaaaaaaa.tmp");
        QFile(vivo).open(QIODevice::WriteOnly);
        QLockFile cerrojo(vivo + QStringLiteral(".lock"));
        QVERIFY(cerrojo.tryLock(0));

        QVERIFY(paraCopia().Copiar());
        QVERIFY(paraRestaurar().Restaurar(copia()).hecha);
        QCOMPARE(ocultos(m_carpeta->tablas()),
                 (QStringList{QStringLiteral(".VELDOMOD.mdb.aaaaaaaaaaaa.tmp"),
                              QStringLiteral(".VELDOMOD.mdb.aaaaaaaaaaaa.tmp.lock")}));
        cerrojo.unlock();
        QCOMPARE(cSaveAsRestore::LimpiarTemporales(m_carpeta->tablas()), 1);
        QVERIFY(ocultos(m_carpeta->tablas()).isEmpty());
    }
};

int main(int argc, char** argv)
{
    if (argc > 1 && std::string(argv[1]) == "--ayudante") {
        QCoreApplication app(argc, argv);
        return ayudante(app.arguments());
    }
    QCoreApplication app(argc, argv);
    TestRestauracion prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_restauracion.moc"
