#include "registros/actualizacion/cActOnline.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "servicios/Almacen.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"

void cActOnline::ObtenerURLAct()
{
    auto datos = Almacen<cDatosGeneral>();
    URLAct = datos.URLAct();
}

void cActOnline::GuardarActOnline()
{
    auto general = Almacen<cGeneralSvr>();
    general.GuardarActOnline(ActOnline);
}

void cActOnline::LeerActOnline()
{
    auto general = Almacen<cGeneralSvr>();
    ActOnline = general.ObtenerActOnline();
}

cActOnline& ActOnline()
{
    return Estado().de<cActOnline>();
}
