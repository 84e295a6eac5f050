#pragma once
// The office's server from the command line:
//   Veldo --crear-oficina SERVICIO   the program's layout made on the office's empty database at
//                                    SERVICIO (a service name of pg_service.conf or a connection
//                                    string); a second run changes nothing and says so
//   Veldo --oficina SERVICIO ...     this run's store is that server (for any other option, or
//                                    for the program's window)
// The password comes from the client library's own sources (~/.pgpass, PGPASSFILE): the
// program never writes one.
//
// Exit status of --crear-oficina: 0 when the layout is there (made now or already), told on
// stdout; 2 when it is not (another program's tables, a later version, the server not reached,
// a refused password, a wrong line), the reason on stderr.
class QCommandLineParser;

namespace LineaDeOrdenes {
struct Llamada;
}

namespace OrdenesOficina {

int CrearOficina(const LineaDeOrdenes::Llamada& llamada);

// The office named by --oficina becomes the stores' engine for this run; nothing when the line
// does not name one.
void ElegirDeLaLinea(const QCommandLineParser& linea);

}  // namespace OrdenesOficina
