#include "registros/declaracion/cDecLista.h"

#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/cDeclaSvr.h"

void cDecLista::IniciarLista()
{
    using Navegacion::EntradaLista;
    using Navegacion::ModoLista;
    const EntradaLista entrada = ENTRADA.entrada();
    if (entrada == EntradaLista::Abrir || entrada == EntradaLista::Eliminar) {
        MODO = entrada == EntradaLista::Abrir ? ModoLista::Abrir : ModoLista::Eliminar;
        Reiniciar();
        return;
    }
    MODO = ModoLista::Abrir;
    BUSQUEDA = QStringLiteral("N");
}

QList<FilaDeclaracion> cDecLista::CargarDeclaraciones()
{
    QList<FilaDeclaracion> filas =
        Almacen<cDeclaSvr>().dameResultadoBusqueda(Criterios(), ORDEN, TIPOORDEN, IdiomaPrograma());
    NUMDECLASEL = static_cast<int32_t>(filas.size());
    return filas;
}

cDecLista& DecLista()
{
    return Estado().de<cDecLista>();
}
