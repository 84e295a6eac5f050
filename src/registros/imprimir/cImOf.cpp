#include "registros/imprimir/cImOf.h"

cImOf& ImOf()
{
    static cImOf instancia;
    return instancia;
}
