// The stores on the embedded file and on an office's PostgreSQL server over the loopback, side
// by side in one run with their ratio: one contributor saved, one return saved, the whole list
// of 100 000 contributors, a search by a prefix of the name. The server is the tests' own
// (ServidorPostgres); without it only the embedded figures are printed.
#include "comun/Entorno.h"
#include "comun/PartesPrueba.h"
#include "comun/ServidorPostgres.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cTraspaso.h"
#include "servicios/postgres/ConexionPostgres.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

const QString kOrigen = QStringLiteral("bench");

struct Cifras {
    double guardarContribuyente = 0;  // median ms
    double guardarDeclaracion = 0;
    double listaEntera = 0;           // best ms
    double busqueda = 0;
    int filasLista = 0;
    int filasBusqueda = 0;
};

double mediana(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

double ms(const std::function<void()>& obra)
{
    QElapsedTimer t;
    t.start();
    obra();
    return double(t.nsecsElapsed()) / 1e6;
}

// 100 000 contributors written by one statement both engines read alike, so that both stores
// hold the same rows.
void llenar(int n)
{
    Ejecutar(Conexion::Modificable(mdbmod, kOrigen),
             QStringLiteral("INSERT INTO CONTRIBUYENTES (DNIC, NOMBREC, VERSION) "
                            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                            "SELECT 'B' || CAST(i AS TEXT), "
                            "CASE i % 5 WHEN 0 THEN 'MUÑOZ ' WHEN 1 THEN 'GARCIA ' WHEN 2 THEN 'ZABALA ' "
                            "WHEN 3 THEN 'LARRAÑAGA ' ELSE 'PEREZ ' END || CAST(i * 7919 % %1 AS TEXT), i "
                            "FROM n")
                 .arg(n),
             {}, kOrigen);
}

Cifras medir()
{
    Cifras c;
    cContribSvr contribuyentes = Almacen<cContribSvr>();
    std::vector<double> tiempos;
    for (int i = 0; i < 300; ++i)
        tiempos.push_back(ms([&] {
            contribuyentes.GuardarContribuyente(
                ContribuyenteNacional(Dni(quint32(500000 + i)), QStringLiteral("MEDIDA %1").arg(i)));
        }));
    c.guardarContribuyente = mediana(tiempos);
    tiempos.clear();
    cDeclaSvr declaraciones = Almacen<cDeclaSvr>();
    for (int i = 0; i < 300; ++i) {
        Declaracion d;
        d.REFERENCIA = QStringLiteral("B%1").arg(i);
        d.FECHAD = 20240101;
        d.BASEI = Importe(1234500);
        tiempos.push_back(ms([&] { declaraciones.GuardarDeclaracion(d, ComprobarVersion::No); }));
    }
    c.guardarDeclaracion = mediana(tiempos);
    llenar(100000);
    c.listaEntera = 1e9;
    c.busqueda = 1e9;
    for (int r = 0; r < 3; ++r) {
        c.listaEntera = std::min(c.listaEntera, ms([&] {
            c.filasLista = int(
                contribuyentes.dameResultadoBusqueda(CriteriosParte{}, OrdenParte::Nombre).size());
        }));
        c.busqueda = std::min(c.busqueda, ms([&] {
            const CriteriosParte nombre{QStringLiteral("muñoz 12"), std::nullopt};
            c.filasBusqueda =
                int(contribuyentes.dameResultadoBusqueda(nombre, OrdenParte::Nombre).size());
        }));
    }
    return c;
}

void imprimir(const char* que, double embebido, double servidor, const char* limite)
{
    if (servidor > 0)
        std::printf("%-34s embebido %9.2f ms   servidor %9.2f ms   razón %5.1f   (límite del servidor %s)\n",
                    que, embebido, servidor, servidor / embebido, limite);
    else
        std::printf("%-34s embebido %9.2f ms\n", que, embebido);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    GrabarSeams();
    EstablecerIdiomaPrograma(Idioma::Castellano);

    Cifras embebido;
    {
        const CarpetaDePrueba carpeta;
        Almacen<cTraspaso>().Traspaso();
        embebido = medir();
        Conexion::CerrarTodas();
        Conexion::Cerrar(mdbmod);
    }
    Cifras servidor;
    if (ServidorPostgres* pg = ServidorPostgres::Compartido()) {
        const CarpetaDePrueba carpeta;
        const ServidorPostgres::Base base = pg->NuevaBase();
        ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
        ConexionPostgres::RecordarClave(base.CadenaDuenno(), base.claveDuenno);
        Oficina::CrearEsquema(base.CadenaDuenno());
        ConexionPostgres::RecordarClave(base.CadenaPuesto(), base.clavePuesto);
        mdbmod = base.CadenaPuesto();
        servidor = medir();
        Conexion::CerrarTodas();
        Conexion::Cerrar(mdbmod);
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
    } else {
        std::printf("Sin servidor: %s\n", qPrintable(ServidorPostgres::Motivo()));
    }
    imprimir("Guardar un contribuyente (mediana)", embebido.guardarContribuyente,
             servidor.guardarContribuyente, "5 ms");
    imprimir("Guardar una declaración (mediana)", embebido.guardarDeclaracion,
             servidor.guardarDeclaracion, "5 ms");
    std::printf("Lista entera: %d filas en ambos: %s\n", embebido.filasLista,
                embebido.filasLista == servidor.filasLista || servidor.listaEntera == 0 ? "sí" : "NO");
    imprimir("Lista entera de contribuyentes", embebido.listaEntera, servidor.listaEntera, "1000 ms");
    std::printf("Búsqueda 'muñoz 12': %d filas en el embebido, %d en el servidor\n",
                embebido.filasBusqueda, servidor.filasBusqueda);
    imprimir("Búsqueda por prefijo del nombre", embebido.busqueda, servidor.busqueda, "50 ms");
    return 0;
}
