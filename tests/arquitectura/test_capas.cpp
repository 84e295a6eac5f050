// The layers of src/: the real tree passes the include check, and trees written here with an
// upward include, an undeclared sibling, a widget header in the logic, or a dialog included by
// a store fail it, naming the file and the line. The same for the seam of the stores' engine:
// an engine's header above the stores, or SQLite's C interface outside its folder.
#include "ComprobarCapas.h"
#include "ComprobarMotor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The modules of a planted tree, declared as src/CMakeLists.txt declares them.
const char* const kCMakePlantado = R"(
# veldo_modulo(nombre DIR carpeta [QT ...] [DEPENDE ...])
veldo_modulo(plataforma DIR plataforma QT Core)
veldo_modulo(valores DIR valores QT Core DEPENDE veldo_plataforma)
veldo_modulo(servicios DIR servicios QT Core Sql DEPENDE veldo_valores)
veldo_modulo(nucleo DIR registros/nucleo DEPENDE veldo_servicios)
veldo_modulo(partes DIR registros/partes DEPENDE veldo_nucleo)
veldo_modulo(declaracion DIR registros/declaracion
             DEPENDE veldo_nucleo)
veldo_modulo(dialogos DIR paneles/dialogos QT Widgets DEPENDE veldo_valores)
veldo_modulo(controles DIR paneles/controles QT Widgets DEPENDE veldo_dialogos)
veldo_modulo(paneles_partes DIR paneles/partes DEPENDE veldo_controles veldo_partes)
veldo_modulo(paneles_declaracion DIR paneles/declaracion DEPENDE veldo_paneles_partes)
veldo_modulo(imprimir DIR paneles/imprimir DEPENDE veldo_controles)
veldo_modulo(aplicacion DIR aplicacion DEPENDE veldo_paneles_declaracion veldo_imprimir)
)";

CabecerasQt cabecerasQt()
{
    return {QStringLiteral(VELDO_QT_WIDGETS), QStringLiteral(VELDO_QT_GUI)};
}

// A temporary src/ with its CMakeLists.txt and one header in every module's folder.
class Arbol {
public:
    Arbol()
    {
        escribir(QStringLiteral("CMakeLists.txt"), QString::fromUtf8(kCMakePlantado));
        for (const Modulo& m : modulos())
            escribir(m.carpeta + QStringLiteral("/Cabecera.h"), QStringLiteral("#pragma once\n"));
    }

    void escribir(const QString& relativo, const QString& texto)
    {
        const QString ruta = m_dir.filePath(relativo);
        QDir().mkpath(QFileInfo(ruta).path());
        QFile f(ruta);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(texto.toUtf8());
    }

    QList<Modulo> modulos() const { return ModulosDeCMake(m_dir.filePath(QStringLiteral("CMakeLists.txt"))); }
    QList<Falta> comprobar() const { return ComprobarCapas(m_dir.path(), modulos(), cabecerasQt()); }

private:
    QTemporaryDir m_dir;
};

// Files written under a temporary folder, for the engine's check: a src/ and a tests/.
class Carpeta {
public:
    void escribir(const QString& relativo, const QString& texto)
    {
        const QString ruta = m_dir.filePath(relativo);
        QDir().mkpath(QFileInfo(ruta).path());
        QFile f(ruta);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(texto.toUtf8());
    }
    QString ruta() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

QString listar(const QList<Falta>& faltas)
{
    QStringList lineas;
    for (const Falta& f : faltas)
        lineas.append(f.texto());
    return lineas.join(QLatin1Char('\n'));
}

}  // namespace

class TestCapas : public QObject {
    Q_OBJECT

private slots:
    // --- The program ---------------------------------------------------------------------------

    void elProgramaRespetaLasCapas()
    {
        const QList<Modulo> modulos =
            ModulosDeCMake(QStringLiteral(VELDO_SRC "/CMakeLists.txt"));
        QVERIFY(modulos.size() >= 16);
        Recuento recuento;
        const QList<Falta> faltas =
            ComprobarCapas(QStringLiteral(VELDO_SRC), modulos, cabecerasQt(), &recuento);
        QVERIFY2(faltas.isEmpty(), qPrintable(QStringLiteral("\n") + listar(faltas)));
        // The check read the tree, not an empty folder.
        QVERIFY(recuento.ficheros > 150);
        QVERIFY(recuento.includes > 600);
    }

    void cadaModuloEnSuCapa()
    {
        const QList<Modulo> modulos =
            ModulosDeCMake(QStringLiteral(VELDO_SRC "/CMakeLists.txt"));
        for (const Modulo& m : modulos) {
            QVERIFY2(CapaDe(m.carpeta) >= 0, qPrintable(m.carpeta));
            // The layers without widgets link neither Qt Widgets nor Qt Gui themselves.
            if (CapaDe(m.carpeta) <= CapaDe(QStringLiteral("registros")))
                for (const QString& q : m.qt)
                    QVERIFY2(q != QLatin1String("Widgets") && q != QLatin1String("Gui"),
                             qPrintable(m.nombre));
        }
    }

    void losRegistrosNoSeUsanEntreSi()
    {
        const QList<Modulo> modulos =
            ModulosDeCMake(QStringLiteral(VELDO_SRC "/CMakeLists.txt"));
        const QStringList hermanos{QStringLiteral("registros_partes"),
                                   QStringLiteral("registros_declaracion"),
                                   QStringLiteral("registros_actualizacion")};
        for (const QString& a : hermanos)
            for (const QString& b : hermanos)
                QVERIFY2(a == b || !DependeDe(modulos, a, b), qPrintable(a + " -> " + b));
        QVERIFY(DependeDe(modulos, QStringLiteral("registros_declaracion"),
                          QStringLiteral("registros_nucleo")));
    }

    void lasCapasEnOrden()
    {
        const QStringList orden{"plataforma", "catalogo", "valores", "servicios",
                                "registros/nucleo", "registros/partes", "paneles/dialogos",
                                "paneles/controles", "paneles/intercambio", "aplicacion"};
        for (int i = 1; i < orden.size(); ++i)
            QVERIFY2(CapaDe(orden[i - 1]) < CapaDe(orden[i]), qPrintable(orden[i]));
        QCOMPARE(CapaDe(QStringLiteral("registros/declaracion")),
                 CapaDe(QStringLiteral("registros/actualizacion")));
        QCOMPARE(CapaDe(QStringLiteral("fields")), -1);
    }

    // --- Planted trees ----------------------------------------------------------------------------

    void arbolLimpioPasa()
    {
        Arbol arbol;
        arbol.escribir("aplicacion/Ventana.cpp", "#include \"paneles/imprimir/Cabecera.h\"\n"
                                                 "#include \"plataforma/Cabecera.h\"\n"
                                                 "#include <QWidget>\n");
        arbol.escribir("paneles/dialogos/Caja.cpp", "#include \"Cabecera.h\"\n"
                                                    "#include \"valores/Cabecera.h\"\n");
        arbol.escribir("servicios/cAlmacen.cpp", "#include \"valores/Cabecera.h\"\n"
                                                 "#include <QSqlQuery>\n#include <QString>\n");
        const QList<Falta> faltas = arbol.comprobar();
        QVERIFY2(faltas.isEmpty(), qPrintable(listar(faltas)));
    }

    void includeHaciaArribaFalla()
    {
        Arbol arbol;
        arbol.escribir("servicios/cAlmacen.cpp", "#include \"servicios/Cabecera.h\"\n"
                                                 "\n"
                                                 "#include \"paneles/dialogos/Cabecera.h\"\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 1);
        QCOMPARE(faltas[0].fichero, QStringLiteral("servicios/cAlmacen.cpp"));
        QCOMPARE(faltas[0].linea, 3);
        QVERIFY(faltas[0].motivo.contains(QLatin1String("paneles/dialogos/Cabecera.h")));
        QVERIFY(faltas[0].motivo.contains(QLatin1String("above")));
        QVERIFY(faltas[0].texto().startsWith(QLatin1String("servicios/cAlmacen.cpp:3: ")));
    }

    void includeRelativoHaciaArribaFalla()
    {
        Arbol arbol;
        arbol.escribir("registros/nucleo/CEntrada.cpp",
                       "#include \"../partes/Cabecera.h\"\n#include \"../../aplicacion/Cabecera.h\"\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 2);
        QCOMPARE(faltas[0].linea, 1);
        QCOMPARE(faltas[1].linea, 2);
        QVERIFY(faltas[1].motivo.contains(QLatin1String("aplicacion/Cabecera.h")));
    }

    void hermanoNoDeclaradoFalla()
    {
        Arbol arbol;
        arbol.escribir("registros/declaracion/Calculo.cpp",
                       "#include \"registros/nucleo/Cabecera.h\"\n"
                       "#include \"registros/partes/Cabecera.h\"\n");
        arbol.escribir("paneles/imprimir/FrmImprimir.cpp",
                       "#include \"paneles/partes/Cabecera.h\"\n");
        // Declared: the declaration's panels use the parties' panels.
        arbol.escribir("paneles/declaracion/FrmDeclaracion.cpp",
                       "#include \"paneles/partes/Cabecera.h\"\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 2);
        QCOMPARE(faltas[0].fichero, QStringLiteral("paneles/imprimir/FrmImprimir.cpp"));
        QVERIFY(faltas[0].motivo.contains(QLatin1String("veldo_imprimir")));
        QCOMPARE(faltas[1].fichero, QStringLiteral("registros/declaracion/Calculo.cpp"));
        QCOMPARE(faltas[1].linea, 2);
    }

    void widgetsFueraDeLosPanelesFallan()
    {
        Arbol arbol;
        arbol.escribir("registros/declaracion/Validacion.cpp",
                       "#include <QString>\n#include <QGuiApplication>\n#include <QMessageBox>\n"
                       "#include <QtWidgets/QLineEdit>\n");
        arbol.escribir("servicios/cMiscelaneos.cpp", "#include <QDesktopServices>\n");
        arbol.escribir("valores/Formato.cpp", "#include <QWidget>\n");
        arbol.escribir("paneles/partes/FrmConDatos.cpp", "#include <QWidget>\n#include <QCursor>\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 5);
        QCOMPARE(faltas[0].fichero, QStringLiteral("registros/declaracion/Validacion.cpp"));
        QCOMPARE(faltas[0].linea, 2);
        QVERIFY(faltas[0].motivo.contains(QLatin1String("QtGui")));
        QCOMPARE(faltas[1].linea, 3);
        QVERIFY(faltas[1].motivo.contains(QLatin1String("QtWidgets")));
        QCOMPARE(faltas[2].linea, 4);
        QCOMPARE(faltas[3].fichero, QStringLiteral("servicios/cMiscelaneos.cpp"));
        QCOMPARE(faltas[4].fichero, QStringLiteral("valores/Formato.cpp"));
    }

    // No store may include the dialogs any more, the backup and restore store included.
    void ningunAlmacenIncluyeLosDialogos()
    {
        Arbol arbol;
        arbol.escribir("servicios/cSaveAsRestore.cpp", "#include \"paneles/dialogos/Cabecera.h\"\n");
        arbol.escribir("servicios/cSaveAsRestore.h", "#include \"paneles/dialogos/Cabecera.h\"\n");
        arbol.escribir("servicios/cMiscelaneos.cpp", "#include \"paneles/dialogos/Cabecera.h\"\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 3);
        QCOMPARE(faltas[0].fichero, QStringLiteral("servicios/cMiscelaneos.cpp"));
        QCOMPARE(faltas[1].fichero, QStringLiteral("servicios/cSaveAsRestore.cpp"));
        QCOMPARE(faltas[2].fichero, QStringLiteral("servicios/cSaveAsRestore.h"));
    }

    // --- The seam of the stores' engine ----------------------------------------------------------

    // The program and its tests: only the stores reach the engine, and only through its
    // interface; SQLite's C interface is called in its own folder alone.
    void elMotorSoloTrasSuInterfaz()
    {
        Recuento recuento;
        const QList<Falta> faltas =
            ComprobarMotor(QStringLiteral(VELDO_SRC), QStringLiteral(VELDO_TESTS), &recuento);
        QVERIFY2(faltas.isEmpty(), qPrintable(listar(faltas)));
        QVERIFY(recuento.ficheros > 300);
        QVERIFY(recuento.includes > 1000);
    }

    void motorPorEncimaDeLosAlmacenesFalla()
    {
        Carpeta src;
        Carpeta pruebas;
        src.escribir("registros/partes/cConDatos.cpp",
                     "#include \"servicios/cContribSvr.h\"\n"
                     "#include \"servicios/sqlite/ConexionPropia.h\"\n");
        src.escribir("paneles/partes/FrmConDatos.cpp", "#include <QWidget>\n#include <sqlite3.h>\n");
        src.escribir("aplicacion/Arranque.cpp", "#include \"../servicios/motor/Motor.h\"\n");
        src.escribir("aplicacion/Veldo.cpp", "#include \"servicios/MotorAlmacenes.h\"\n");
        pruebas.escribir("registros/partes/test_lista.cpp",
                         "\n#include \"servicios/sqlite/MotorSqlite.h\"\n");
        // The stores' own tests and the check's own may.
        pruebas.escribir("servicios/test_biblioteca.cpp", "#include \"servicios/sqlite/X.h\"\n");
        pruebas.escribir("arquitectura/test_x.cpp", "#include <sqlite3.h>\n");
        const QList<Falta> faltas = ComprobarMotor(src.ruta(), pruebas.ruta());
        QCOMPARE(faltas.size(), 4);
        QCOMPARE(faltas[0].texto(),
                 QStringLiteral("aplicacion/Arranque.cpp:1: above the stores, includes "
                                "../servicios/motor/Motor.h of an engine"));
        QCOMPARE(faltas[1].fichero, QStringLiteral("paneles/partes/FrmConDatos.cpp"));
        QCOMPARE(faltas[1].linea, 2);
        QCOMPARE(faltas[2].fichero, QStringLiteral("registros/partes/cConDatos.cpp"));
        QCOMPARE(faltas[2].linea, 2);
        QCOMPARE(faltas[3].fichero, QStringLiteral("tests/registros/partes/test_lista.cpp"));
        QCOMPARE(faltas[3].linea, 2);
    }

    void sqliteFueraDeSuCarpetaFalla()
    {
        Carpeta src;
        Carpeta pruebas;
        src.escribir("servicios/cContribSvr.cpp", "#include \"servicios/Conexion.h\"\n"
                                                  "#include <sqlite3.h>\n");
        src.escribir("servicios/LoteContribuyentes.cpp",
                     "void f(void* h)\n{\n    sqlite3_exec(h, \"BEGIN\", 0, 0, 0);\n}\n");
        src.escribir("servicios/Conexion.h", "struct sqlite3;\nsqlite3* Manejador();\n");
        // The engine's own folder may; a store may name the engine's interface and choose it.
        src.escribir("servicios/sqlite/SentenciaSqlite.cpp",
                     "#include <sqlite3.h>\nint f(sqlite3_stmt* s) { return sqlite3_step(s); }\n");
        src.escribir("servicios/MotorAlmacenes.cpp", "#include \"servicios/sqlite/MotorSqlite.h\"\n"
                                                     "// SQLite, the embedded engine\n");
        src.escribir("valores/Fecha.cpp", "#include <QDate>\n");
        const QList<Falta> faltas = ComprobarMotor(src.ruta(), pruebas.ruta());
        QCOMPARE(faltas.size(), 3);
        QCOMPARE(faltas[0].texto(),
                 QStringLiteral("servicios/Conexion.h:2: a store outside servicios/sqlite names "
                                "sqlite3* of SQLite's C interface"));
        QCOMPARE(faltas[1].fichero, QStringLiteral("servicios/LoteContribuyentes.cpp"));
        QCOMPARE(faltas[1].linea, 3);
        QVERIFY(faltas[1].motivo.contains(QLatin1String("sqlite3_exec")));
        QCOMPARE(faltas[2].texto(),
                 QStringLiteral("servicios/cContribSvr.cpp:2: a store outside servicios/sqlite "
                                "includes <sqlite3.h>"));
    }

    void dialectoSqliteFueraDeSuCarpetaFalla()
    {
        Carpeta src;
        Carpeta pruebas;
        src.escribir("servicios/Esquema.cpp",
                     "const char* t = \"SELECT name FROM sqlite_master\";\n");
        src.escribir("servicios/CopiaSaneada.cpp",
                     "// the file is attached read-only\nq.exec(\"ATTACH DATABASE ? AS copia\");\n");
        src.escribir("servicios/EsquemaPartes.cpp", "\"CSCO INTEGER PRIMARY KEY AUTOINCREMENT\"\n");
        src.escribir("servicios/cTraspaso.h", "// PRAGMA foreign_keys goes off first\n");
        // The engine's own folder may, and prose that merely attaches or detaches does not count.
        src.escribir("servicios/sqlite/MotorSqlite.cpp", "\"PRAGMA user_version\" NOCASE ATTACH\n");
        src.escribir("servicios/cSaveAsRestore.cpp", "// nothing attached stays; a pragma of old\n");
        const QList<Falta> faltas = ComprobarMotor(src.ruta(), pruebas.ruta());
        QCOMPARE(faltas.size(), 4);
        QCOMPARE(faltas[0].texto(),
                 QStringLiteral("servicios/CopiaSaneada.cpp:2: a store outside servicios/sqlite "
                                "writes ATTACH of SQLite's own dialect"));
        QCOMPARE(faltas[1].fichero, QStringLiteral("servicios/Esquema.cpp"));
        QVERIFY(faltas[1].motivo.contains(QLatin1String("sqlite_master")));
        QCOMPARE(faltas[2].fichero, QStringLiteral("servicios/EsquemaPartes.cpp"));
        QVERIFY(faltas[2].motivo.contains(QLatin1String("AUTOINCREMENT")));
        QCOMPARE(faltas[3].texto(),
                 QStringLiteral("servicios/cTraspaso.h:1: a store outside servicios/sqlite "
                                "writes PRAGMA of SQLite's own dialect"));
    }

    void carpetaSinModuloFalla()
    {
        Arbol arbol;
        arbol.escribir("fields/Val.cpp", "#include \"valores/Cabecera.h\"\n");
        arbol.escribir("valores/Val.cpp", "#include \"fields/Val.h\"\n");
        arbol.escribir("fields/Val.h", "#pragma once\n");
        const QList<Falta> faltas = arbol.comprobar();
        QCOMPARE(faltas.size(), 3);
        QCOMPARE(faltas[0].fichero, QStringLiteral("fields/Val.cpp"));
        QCOMPARE(faltas[2].fichero, QStringLiteral("valores/Val.cpp"));
        QVERIFY(faltas[2].motivo.contains(QLatin1String("no module")));
    }
};

QTEST_GUILESS_MAIN(TestCapas)
#include "test_capas.moc"
