#include "registros/actualizacion/cActOnline.h"

#include "plataforma/General.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"

void cActOnline::ObtenerURLAct()
{
    cDatosGeneral datos;
    datos.mdblec = mdblec;
    URLAct = datos.URLAct();
}

void cActOnline::GuardarActOnline()
{
    cGeneralSvr general;
    general.mdbmod = mdbmod;
    general.GuardarActOnline(ActOnline);
}

void cActOnline::LeerActOnline()
{
    cGeneralSvr general;
    general.mdbmod = mdbmod;
    ActOnline = general.ObtenerActOnline();
}

cActOnline& ActOnline()
{
    static cActOnline actOnline;
    return actOnline;
}
