// Another copy of the program saving contributors on an office's database, for the tests of
// several seats at once: `ayudante_oficina CADENA DESDE CUANTOS` saves CUANTOS new contributors
// whose numbers start at DESDE through the seats' connection string CADENA (the password in
// the environment's VELDO_PRUEBA_CLAVE, kept in memory), and writes each one's code on a line.
// Ends with 0 when every save was taken, 1 otherwise.
#include "comun/Entorno.h"
#include "comun/PartesPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/cContribSvr.h"
#include "servicios/postgres/ConexionPostgres.h"

#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4)
        return 2;
    const CarpetaDePrueba carpeta;
    GrabarSeams();
    EstablecerIdiomaPrograma(Idioma::Castellano);
    ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
    mdbmod = args[1];
    ConexionPostgres::RecordarClave(mdbmod, qEnvironmentVariable("VELDO_PRUEBA_CLAVE"));
    const quint32 desde = args[2].toUInt();
    const int cuantos = args[3].toInt();
    QTextStream salida(stdout);
    int codigo = 0;
    try {
        for (int i = 0; i < cuantos; ++i) {
            const Resultado<Contribuyente> r = Almacen<cContribSvr>().GuardarContribuyente(
                ContribuyenteNacional(Dni(desde + quint32(i)), QStringLiteral("PUESTO %1").arg(desde + quint32(i))));
            if (!r) {
                codigo = 1;
                break;
            }
            salida << r->CSCO << '\n';
        }
    } catch (const cFallo& f) {
        std::fprintf(stderr, "%s\n", qPrintable(f.descripcion()));
        codigo = 1;
    }
    salida.flush();
    Conexion::CerrarTodas();
    return codigo;
}
