// Figures of the exchange of contributors, side by side in one run:
//  - the import of 32 767 valid lines in automatic mode, against raw SQLite (its C interface)
//    inserting the same rows, in their stored form, into the same table in one transaction;
//  - the export of 100 000 contributors (the store's answer, the selection of all, the check
//    of their numbers and the writing of the file);
//  - the selection of all of 100 000 contributors in the export panel (CmdSelTodos).
#include "ApoyoIntercambio.h"
#include "comun/AlmacenNuevo.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/General.h"

#include "paneles/intercambio/FrmExportar.h"

#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/LoteContribuyentes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <cstdio>
#include <ctime>
#include <sqlite3.h>
#include <vector>

namespace {

// The processor time of this thread, in ms: what the machine's other work does not change.
double CpuMs()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}
double gCpuImportar = 1e9;
double gCpuCrudo = 1e9;

constexpr int kLineas = 32767;
constexpr int kContribuyentes = 100000;

QByteArray Fichero(int lineas, quint32 base)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(lineas) * 178);
    for (int i = 0; i < lineas; ++i) {
        bytes += ApoyoIntercambio::LineaValida(base + quint32(i),
                                              "CONTRIBUYENTE " + QByteArray::number(i));
        bytes += "\r\n";
    }
    return bytes;
}

double Importacion(const QString& fichero)
{
    Importar().Iniciar();
    Importar().FICHEROAIMPORTAR = fichero;
    Importar().AUTOMATICO = QStringLiteral("X");
    QElapsedTimer t;
    const double cpu = CpuMs();
    t.start();
    const Veredicto aviso = Importar().Ejecutar({});
    const double ms = t.nsecsElapsed() / 1e6;
    gCpuImportar = std::min(gCpuImportar, CpuMs() - cpu);
    if (Importar().NUMEROIMP != kLineas || aviso.id != kIdImportadosCorrectamente)
        qFatal("import: %d of %d", Importar().NUMEROIMP, kLineas);
    return ms;
}

void Sql(sqlite3* db, const char* sql)
{
    char* error = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &error) != SQLITE_OK)
        qFatal("sqlite: %s", error);
}

// The rows of the raw side, as the store keeps them, made before its clock starts: what it
// measures is SQLite inserting them and nothing else.
struct FilaCruda {
    QByteArray dni;
    QByteArray nombre;
};
std::vector<FilaCruda> FilasCrudas()
{
    std::vector<FilaCruda> filas;
    filas.reserve(kLineas);
    for (int i = 0; i < kLineas; ++i)
        filas.push_back({ApoyoIntercambio::DniDe(50000000u + quint32(i)),
                         "CONTRIBUYENTE " + QByteArray::number(i)});
    return filas;
}

// The same rows, as the store keeps them, through SQLite's own interface, into the same table
// with the same indexes and checks, on a connection set up as the store sets up its own (the
// same journal, synchronisation and checkpoint interval), in one transaction.
double SqliteCrudo(const QString& ruta, const std::vector<FilaCruda>& filas)
{
    sqlite3* db = nullptr;
    if (sqlite3_open(ruta.toUtf8().constData(), &db) != SQLITE_OK)
        qFatal("sqlite open");
    Sql(db, "PRAGMA foreign_keys = ON");
    Sql(db, "PRAGMA journal_mode = WAL");
    Sql(db, "PRAGMA synchronous = NORMAL");
    Sql(db, "PRAGMA wal_autocheckpoint = 10000");
    QElapsedTimer t;
    const double cpu = CpuMs();
    t.start();
    Sql(db, "BEGIN IMMEDIATE");
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(db,
                       "INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, VIAC, DOMICILIOC, "
                       "NUMEROC, LETRAC, ESCALERAC, PISOC, MANOC, TIPODOMI, PAIS, CODPROVC, "
                       "NOMPROVC, CODPOSC, CODMUNC, NOMMUNC) VALUES "
                       "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)",
                       -1, &s, nullptr);
    for (const FilaCruda& fila : filas) {
        const char* textos[] = {"O", fila.dni.constData(), fila.nombre.constData(), "CL",
                                "MAYOR"};
        for (int k = 0; k < 5; ++k)
            sqlite3_bind_text(s, k + 1, textos[k], -1, SQLITE_STATIC);
        sqlite3_bind_int(s, 6, 12);
        const char* resto[] = {"B", "1", "3", "IZ", "N", "", "77", "", "77001", "001", ""};
        for (int k = 0; k < 11; ++k)
            sqlite3_bind_text(s, k + 7, resto[k], -1, SQLITE_STATIC);
        if (sqlite3_step(s) != SQLITE_DONE)
            qFatal("sqlite insert: %s", sqlite3_errmsg(db));
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
    Sql(db, "COMMIT");
    const double ms = t.nsecsElapsed() / 1e6;
    gCpuCrudo = std::min(gCpuCrudo, CpuMs() - cpu);
    sqlite3_close(db);
    return ms;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // The import, then raw SQLite, each into a new store of its own; three times, the best of each.
    double importar = 1e9;
    double crudo = 1e9;
    const std::vector<FilaCruda> filas = FilasCrudas();
    const int vueltas = qEnvironmentVariableIsSet("VELDO_BENCH_VUELTAS")
        ? qEnvironmentVariableIntValue("VELDO_BENCH_VUELTAS")
        : 3;
    for (int vuelta = 0; vuelta < vueltas; ++vuelta) {
        {
            auto carpeta = AlmacenNuevo();
            const QString fichero = carpeta->ruta() + QStringLiteral("/CONTRI.txt");
            ApoyoIntercambio::Escribir(fichero, Fichero(kLineas, 50000000u));
            importar = std::min(importar, Importacion(fichero));
        }
        {
            auto carpeta = AlmacenNuevo();
            crudo = std::min(crudo, SqliteCrudo(mdbmod, filas));
        }
    }
    std::printf("import of %d valid lines, automatic mode: %.1f ms\n", kLineas, importar);
    std::printf("raw SQLite, same rows, one transaction:   %.1f ms\n", crudo);
    std::printf("ratio import / raw SQLite:                %.2f (processor time: %.1f ms / %.1f "
                "ms = %.2f)\n",
                importar / crudo, gCpuImportar, gCpuCrudo, gCpuImportar / gCpuCrudo);
    if (app.arguments().contains(QStringLiteral("--solo-importar")))
        return 0;

    // 100 000 contributors in a store, through the import's batches.
    auto carpeta = AlmacenNuevo();
    {
        cLoteContribuyentes lote(mdbmod, mdblec);
        for (int i = 0; i < kContribuyentes; ++i) {
            const QList<QByteArray> c = ApoyoIntercambio::CamposValidos(
                60000000u + quint32(i), "CONTRIBUYENTE " + QByteArray::number(i));
            // The fields in the order of the exchange line.
            const auto t = [&c](int k) { return QString::fromLatin1(c[k]); };
            Contribuyente v;
            v.TIPODNI = t(0);
            v.DNIC = t(1);
            v.NOMBREC = t(2);
            v.VIAC = t(3);
            v.DOMICILIOC = t(4);
            v.NUMEROC = t(5).trimmed().toInt();
            v.LETRAC = t(6);
            v.ESCALERAC = t(7);
            v.PISOC = t(8);
            v.MANOC = t(9);
            v.TIPODOMI = t(10);
            v.PAIS = t(11);
            v.CODPROVC = t(12);
            v.NOMPROVC = t(13);
            v.CODPOSC = t(14);
            v.CODMUNC = t(15);
            v.NOMMUNC = t(16);
            lote.GuardarContribuyente(v, false);
        }
        lote.Confirmar();
    }
    QElapsedTimer t;
    t.start();
    Exportar().Iniciar();
    Exportar().FICHEROAEXPORTAR = carpeta->ruta() + QStringLiteral("/EXPORT.txt");
    Exportar().CargarFlxDeclaraciones();
    const double cargar = t.nsecsElapsed() / 1e6;
    t.restart();
    Exportar().SeleccionarTodos();
    const double seleccionar = t.nsecsElapsed() / 1e6;
    t.restart();
    if (!Exportar().ComprobarIdentidades())
        qFatal("identity check refused");
    const double comprobar = t.nsecsElapsed() / 1e6;
    t.restart();
    if (!Exportar().EscribirFichero())
        qFatal("write failed");
    const double escribir = t.nsecsElapsed() / 1e6;
    std::printf("export of %d: store's answer %.1f ms, select all %.1f ms, check %.1f ms, "
                "write %.1f ms, total %.1f ms\n",
                kContribuyentes, cargar, seleccionar, comprobar, escribir,
                cargar + seleccionar + comprobar + escribir);


    // The panel: open it over 100 000 contributors and press CmdSelTodos.
    t.restart();
    FrmExportar* panel = FrmExportar::Abrir();
    const double abrir = t.nsecsElapsed() / 1e6;
    auto* todos = panel->findChild<QPushButton*>(QStringLiteral("CmdSelTodos"));
    t.restart();
    todos->click();
    const double selTodos = t.nsecsElapsed() / 1e6;
    if (Exportar().NUMCONTRIEXP != kContribuyentes)
        qFatal("select all: %d", Exportar().NUMCONTRIEXP);
    std::printf("export panel over %d: opening %.1f ms, CmdSelTodos (select all and show "
                "both grids) %.1f ms\n",
                kContribuyentes, abrir, selTodos);

    return 0;
}
