#include "aplicacion/Navegacion.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/intercambio/FrmExportar.h"
#include "paneles/intercambio/FrmImportar.h"
#include "paneles/partes/FrmConDatos.h"
#include "paneles/partes/FrmConLista.h"
#include "paneles/partes/FrmPreDatos.h"
#include "paneles/partes/FrmPreLista.h"
#include "plataforma/Proceso.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

namespace {

Navegacion::AbridorDeclaraciones& abridorContribuyente()
{
    static Navegacion::AbridorDeclaraciones abrir;
    return abrir;
}

Navegacion::AbridorDeclaraciones& abridorPresentador()
{
    static Navegacion::AbridorDeclaraciones abrir;
    return abrir;
}

// A panel stands: the main window's commands are off until it closes.
void alAbrir()
{
    if (MDIVeldo* ventana = VentanaMDI())
        ventana->DeshabilitarMenus();
}

// A panel has closed: the records are counted again and the commands come back.
void alCerrar()
{
    if (MDIVeldo* ventana = VentanaMDI())
        ventana->ActualizarMenus();
}

// The routing of a list panel: every request is answered inside the failure guard, since a
// signal's receiver runs outside the panel's own guarded handlers.
template <typename Lista, typename Datos>
void conectarLista(Lista* lista, const std::function<void(const QString& modo)>& prepararDatos,
                   Datos* (*abrirDatos)(), const Navegacion::AbridorDeclaraciones& declaraciones)
{
    QObject::connect(lista, &PanelLista::cerrado, lista, [] { alCerrar(); });
    QObject::connect(lista, &PanelLista::pideDatos, lista, [lista, prepararDatos, abrirDatos](const QString& modo) {
        Proceso::Protegido([&] {
            prepararDatos(modo);
            lista->Cerrar();
            abrirDatos();
        });
    });
    QObject::connect(lista, &PanelLista::pideDeclaraciones, lista,
                     [lista, &declaraciones](const QString& nombre, const QString& dni) {
                         Proceso::Protegido([&] {
                             if (!declaraciones)
                                 return;
                             lista->Cerrar();
                             declaraciones(nombre, dni);
                         });
                     });
}

}  // namespace

namespace Navegacion {

FrmConLista* AbrirConLista(const QString& entrada)
{
    ConLista().ENTRADA = entrada;
    alAbrir();
    FrmConLista* lista = FrmConLista::Abrir();
    conectarLista<FrmConLista, FrmConDatos>(
        lista,
        [](const QString& modo) {
            cConDatos& c = ConDatos();
            c.setMODO(modo);
            c.LISTA = QStringLiteral("S");
            c.CSCO = modo == QLatin1String("A") ? 0 : ConLista().CSCO;
        },
        &AbrirConDatos, abridorContribuyente());
    return lista;
}

FrmPreLista* AbrirPreLista(const QString& entrada)
{
    PreLista().ENTRADA = entrada;
    alAbrir();
    FrmPreLista* lista = FrmPreLista::Abrir();
    conectarLista<FrmPreLista, FrmPreDatos>(
        lista,
        [](const QString& modo) {
            cPreDatos& p = PreDatos();
            p.setMODO(modo);
            p.LISTA = QStringLiteral("S");
            p.CSPR = modo == QLatin1String("A") ? 0 : PreLista().CSPR;
        },
        &AbrirPreDatos, abridorPresentador());
    return lista;
}

FrmConDatos* AbrirConDatos()
{
    alAbrir();
    FrmConDatos* datos = FrmConDatos::Abrir();
    QObject::connect(datos, &PanelDatos::cerrado, datos, [] {
        alCerrar();
        // Back to the list the contributor was opened from.
        if (ConDatos().LISTA == QLatin1String("S"))
            AbrirConLista(QStringLiteral("P"));
    });
    return datos;
}

FrmPreDatos* AbrirPreDatos()
{
    alAbrir();
    FrmPreDatos* datos = FrmPreDatos::Abrir();
    QObject::connect(datos, &PanelDatos::cerrado, datos, [] {
        alCerrar();
        if (PreDatos().LISTA == QLatin1String("S"))
            AbrirPreLista(QStringLiteral("P"));
    });
    return datos;
}

FrmExportar* AbrirExportar()
{
    alAbrir();
    FrmExportar* panel = FrmExportar::Abrir();
    QObject::connect(panel, &FrmExportar::cerrado, panel, [] { alCerrar(); });
    return panel;
}

FrmImportar* AbrirImportar()
{
    alAbrir();
    FrmImportar* panel = FrmImportar::Abrir();
    QObject::connect(panel, &FrmImportar::cerrado, panel, [] { alCerrar(); });
    return panel;
}

FrmConDatos* NuevoContribuyente()
{
    cConDatos& c = ConDatos();
    c.setMODO(QStringLiteral("A"));
    c.LISTA.clear();
    c.CSCO = 0;
    return AbrirConDatos();
}

FrmPreDatos* NuevoPresentador()
{
    cPreDatos& p = PreDatos();
    p.setMODO(QStringLiteral("A"));
    p.LISTA.clear();
    p.CSPR = 0;
    return AbrirPreDatos();
}

void InstalarDeclaracionesContribuyente(AbridorDeclaraciones abrir)
{
    abridorContribuyente() = std::move(abrir);
}

void InstalarDeclaracionesPresentador(AbridorDeclaraciones abrir)
{
    abridorPresentador() = std::move(abrir);
}

}  // namespace Navegacion
