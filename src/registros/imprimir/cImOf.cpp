#include "registros/imprimir/cImOf.h"

#include "plataforma/Estado.h"

cImOf& ImOf()
{
    return Estado().de<cImOf>();
}
