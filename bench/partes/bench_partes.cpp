// Figures of the contributors' store with a large file: a prefix search and the whole list
// with 100 000 contributors (and declarations that name them), and 32 767 contributors saved
// one call at a time, as the import does. Prints the times and the peak memory.
#include "comun/Entorno.h"

#include "plataforma/General.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "servicios/Conexion.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/cContribSvr.h"
#include "servicios/cTraspaso.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSqlError>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

namespace {

const QString kOrigen = QStringLiteral("bench");

QString Dni(quint32 n)
{
    return QStringLiteral("%1").arg(n, 8, 10, QLatin1Char('0')) + LetraDni(n);
}

const QStringList kApellidos = {
    "GARCIA", "FERNANDEZ", "GONZALEZ", "RODRIGUEZ", "LOPEZ", "MARTINEZ", "SANCHEZ", "PEREZ",
    "GOMEZ", "MARTIN", "JIMENEZ", "RUIZ", "HERNANDEZ", "DIAZ", "MORENO", "ALVAREZ", "MUÑOZ",
    "ROMERO", "ALONSO", "GUTIERREZ", "NAVARRO", "TORRES", "DOMINGUEZ", "VAZQUEZ", "RAMOS",
    "GIL", "RAMIREZ", "SERRANO", "BLANCO", "SUAREZ", "MOLINA", "MORALES", "ORTEGA", "DELGADO",
    "CASTRO", "ORTIZ", "RUBIO", "MARIN", "SANZ", "IGLESIAS", "ETXEBERRIA", "AGIRRE", "URIARTE",
    "ZABALA", "ARANA", "GOIKOETXEA", "BILBAO", "LARRAÑAGA", "ELORZA", "OTXOA"};
const QStringList kNombres = {"ANA", "JUAN", "MARIA", "JOSE", "CARMEN", "ANTONIO", "LAURA",
                              "DAVID", "ELENA", "JAVIER", "ITZIAR", "IKER", "AINHOA", "MIKEL",
                              "LUCIA", "PABLO", "SARA", "JON", "NEREA", "UNAI"};

Contribuyente ContribuyenteAzar(quint32 i, QRandomGenerator& azar)
{
    const QString nombre = kApellidos[azar.bounded(kApellidos.size())] + QLatin1Char(' ')
        + kApellidos[azar.bounded(kApellidos.size())] + QLatin1Char(' ')
        + kNombres[azar.bounded(kNombres.size())];
    const bool tesoreria = azar.bounded(4) != 0;
    const int municipio = 1 + azar.bounded(45);
    Contribuyente c;
    c.TIPODNI = QStringLiteral("O");
    c.DNIC = Dni(i);
    c.NOMBREC = nombre.left(40);
    c.VIAC = QStringLiteral("CL");
    c.DOMICILIOC = QStringLiteral("MAYOR");
    c.NUMEROC = int(azar.bounded(200));
    c.PISOC = QString::number(azar.bounded(9));
    c.MANOC = QStringLiteral("DCH");
    c.TIPODOMI = QStringLiteral("N");
    c.CODPROVC = tesoreria ? QStringLiteral("77") : QStringLiteral("48");
    c.CODPOSC = tesoreria ? QStringLiteral("77%1").arg(municipio, 3, 10, QLatin1Char('0'))
                          : QStringLiteral("48001");
    c.CODMUNC = tesoreria ? QStringLiteral("%1").arg(municipio, 3, 10, QLatin1Char('0')) : QString();
    c.NOMMUNC = tesoreria ? QString() : QStringLiteral("BILBAO");
    return c;
}

// The stored columns of a contributor, in the order of the table; a text never null.
QVariantList Columnas(const Contribuyente& c)
{
    const auto t = [](const QString& s) { return QVariant(s.isNull() ? QStringLiteral("") : s); };
    return {t(c.TIPODNI), t(c.DNIC),     t(c.NOMBREC),  t(c.VIAC),     t(c.DOMICILIOC),
            c.NUMEROC,    t(c.LETRAC),   t(c.ESCALERAC), t(c.PISOC),   t(c.MANOC),
            t(c.TIPODOMI), t(c.PAIS),    t(c.CODPROVC), t(c.NOMPROVC), t(c.CODPOSC),
            t(c.CODMUNC), t(c.NOMMUNC)};
}

// Processor time of the process (user and system), in ms: on a machine shared with other
// work the elapsed time says more about the others than about this program.
double TiempoCpu()
{
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return (r.ru_utime.tv_sec + r.ru_stime.tv_sec) * 1e3
        + (r.ru_utime.tv_usec + r.ru_stime.tv_usec) / 1e3;
}

// Peak resident memory of the process, in MiB.
double PicoMemoria()
{
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& linea : f.readAll().split('\n')) {
        if (linea.startsWith("VmHWM:"))
            return linea.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return -1;
}

void CrearAlmacen()
{
    cTraspaso t;
    t.mdbmod = mdbmod;
    t.mdbPath = mdbPath;
    if (t.Traspaso())
        qFatal("No se pudo crear VELDOMOD");
}

// 100 000 contributors and 50 000 declarations naming them, written in one transaction (the
// filling is not what is measured).
void Llenar(int n, int declaraciones)
{
    QRandomGenerator azar(747);
    const QSqlDatabase db = Conexion::Modificable(mdbmod, kOrigen);
    Transaccion tx(db, kOrigen);
    QSqlQuery ins(db);
    ins.prepare(QStringLiteral(
        "INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, VIAC, DOMICILIOC, NUMEROC, LETRAC, "
        "ESCALERAC, PISOC, MANOC, TIPODOMI, PAIS, CODPROVC, NOMPROVC, CODPOSC, CODMUNC, NOMMUNC) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    for (int i = 1; i <= n; ++i) {
        for (const QVariant& v : Columnas(ContribuyenteAzar(quint32(i), azar)))
            ins.addBindValue(v);
        if (!ins.exec())
            qFatal("Llenar: %s", qPrintable(ins.lastError().text()));
    }
    QSqlQuery dec(db);
    dec.prepare(QStringLiteral("INSERT INTO DECLARACIONES (CSSU, CSTRA) VALUES (?, ?)"));
    for (int i = 0; i < declaraciones; ++i) {
        dec.addBindValue(1 + int(azar.bounded(n)));
        dec.addBindValue(1 + int(azar.bounded(n)));
        if (!dec.exec())
            qFatal("Llenar: %s", qPrintable(dec.lastError().text()));
    }
    tx.confirmar();
}

// First and best of `veces` runs, in ms elapsed, and the processor time of the best.
struct Medida {
    double primera = 0;
    double mejor = 1e18;
    double cpuMejor = 0;
};

template <class F>
Medida Medir(int veces, F&& f)
{
    Medida m;
    for (int i = 0; i < veces; ++i) {
        QElapsedTimer t;
        t.start();
        const double cpu0 = TiempoCpu();
        f();
        const double ms = double(t.nsecsElapsed()) / 1e6;
        const double cpu = TiempoCpu() - cpu0;
        if (i == 0)
            m.primera = ms;
        if (ms < m.mejor) {
            m.mejor = ms;
            m.cpuMejor = cpu;
        }
    }
    return m;
}

void Busquedas()
{
    const int n = 100000;
    CarpetaDePrueba carpeta;
    CrearAlmacen();
    QElapsedTimer t;
    t.start();
    Llenar(n, 50000);
    std::printf("Almacén de %d contribuyentes y 50000 declaraciones llenado en %.0f ms\n", n,
                double(t.elapsed()));

    cContribSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    QList<FilaContribuyente> datos;
    QList<Contribuyente> todos;
    int32_t filas = 0;
    constexpr auto kNada = std::nullopt;
    const auto porNombre = OrdenParte::Nombre;

    const auto prefijo = [&](std::optional<QString> nombre, std::optional<QString> dni,
                             const char* que) {
        const Medida m = Medir(5, [&] {
            datos = svr.dameResultadoBusqueda({nombre, dni}, porNombre);
            filas = int32_t(datos.size());
        });
        std::printf("Búsqueda por prefijo %-28s %6d filas: primera %7.2f ms, mejor %7.2f ms "
                    "(%.2f ms de procesador; límite 100 ms)\n",
                    que, filas, m.primera, m.mejor, m.cpuMejor);
    };
    prefijo(QStringLiteral("GARCIA LOPEZ"), kNada, "de nombre 'GARCIA LOPEZ'");
    prefijo(QStringLiteral("ZABALA ZABALA J"), kNada, "de nombre 'ZABALA ZABALA J'");
    prefijo(QStringLiteral("G"), kNada, "de nombre 'G'");
    prefijo(kNada, QStringLiteral("0001234"), "de DNI '0001234'");
    prefijo(QStringLiteral("ALONSO"), QStringLiteral("0000"), "de nombre y DNI");
    // Letters beyond ASCII, in both cases: imported names may be in lower case.
    prefijo(QStringLiteral("MUÑOZ"), kNada, "de nombre 'MUÑOZ'");
    prefijo(QStringLiteral("muñoz"), kNada, "de nombre 'muñoz'");
    prefijo(QStringLiteral("LARRAÑAGA G"), kNada, "de nombre 'LARRAÑAGA G'");
    prefijo(QStringLiteral("larrañaga g"), kNada, "de nombre 'larrañaga g'");

    const double antes = PicoMemoria();
    const auto lista = [&](const char* que, auto&& llamada, const char* limite = "; límite 1000 ms") {
        const Medida m = Medir(3, llamada);
        std::printf("Lista entera %-22s %6d filas: primera %7.2f ms, mejor %7.2f ms (%.2f ms de "
                    "procesador%s)\n",
                    que, filas, m.primera, m.mejor, m.cpuMejor, limite);
    };
    lista("por nombre", [&] {
        datos.clear();  // as a panel holds them: the rows of one answer at a time
        datos = svr.dameResultadoBusqueda({}, porNombre);
        filas = int32_t(datos.size());
    });
    lista("por DNI", [&] {
        datos.clear();
        datos = svr.dameResultadoBusqueda({}, OrdenParte::Dni);
        filas = int32_t(datos.size());
    });
    ConLista().ENTRADA = Navegacion::EntradaLista::Abrir;
    ConLista().IniciarLista();
    lista("de ConLista()", [&] {
        datos.clear();
        datos = ConLista().CargarContribuyentes();
        filas = ConLista().NUMCONTRISEL;
    });
    std::printf("Memoria: pico %.1f MiB antes de la lista entera, %.1f MiB después\n", antes,
                PicoMemoria());
    lista("de 20 columnas", [&] {
        datos.clear();
        todos.clear();
        todos = svr.dameResultadoBusquedaTodo({}, porNombre);
        filas = int32_t(todos.size());
    }, " (la exportación; sin límite)");
    std::printf("Memoria: pico %.1f MiB tras la lista de 20 columnas\n", PicoMemoria());
    datos.clear();
    todos.clear();
}

void Guardados()
{
    const int n = 32767;
    CarpetaDePrueba carpeta;
    CrearAlmacen();
    QRandomGenerator azar(176);
    QList<Contribuyente> valores;
    valores.reserve(n);
    for (int i = 1; i <= n; ++i)
        valores << ContribuyenteAzar(quint32(i), azar);
    QElapsedTimer t;
    t.start();
    const double cpu0 = TiempoCpu();
    int fallos = 0;
    for (const Contribuyente& v : valores) {
        // As the program does: the record takes the value, a store object for each call.
        static_cast<Contribuyente&>(ConDatos()) = v;
        if (!ConDatos().GuardarContribuyente())
            ++fallos;
    }
    const double ms = double(t.nsecsElapsed()) / 1e6;
    const double cpu = TiempoCpu() - cpu0;
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    const auto guardados = int32_t(svr.dameResultadoBusqueda({}, OrdenParte::Nombre).size());
    std::printf("%d contribuyentes guardados de uno en uno: %.0f ms transcurridos (%.1f µs cada "
                "uno, límite 3000 ms), %.0f ms de procesador; en el almacén %d, veredictos "
                "distintos de 0: %d\n",
                n, ms, ms * 1000.0 / n, cpu, guardados, fallos);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    // With an argument, only that part: "busquedas" or "guardados".
    const QString parte = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (parte.isEmpty() || parte == QLatin1String("busquedas"))
        Busquedas();
    if (parte.isEmpty() || parte == QLatin1String("guardados"))
        Guardados();
    if (parte == QLatin1String("perfil")) {
        // Only the whole list, ten times: for a profiler.
        CarpetaDePrueba carpeta;
        CrearAlmacen();
        Llenar(100000, 50000);
        cContribSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        const Medida m = Medir(10, [&] { svr.dameResultadoBusqueda({}, OrdenParte::Nombre); });
        std::printf("perfil: mejor %.1f ms, %.1f ms de procesador\n", m.mejor, m.cpuMejor);
    }
    return 0;
}
