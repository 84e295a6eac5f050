#include "aplicacion/Navegacion.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/declaracion/FrmConDeclaraciones.h"
#include "paneles/declaracion/FrmDecLista.h"
#include "paneles/declaracion/FrmDeclaracion.h"
#include "paneles/declaracion/FrmSeleccion.h"
#include "paneles/intercambio/FrmExportar.h"
#include "paneles/intercambio/FrmImportar.h"
#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/partes/FrmConDatos.h"
#include "paneles/partes/FrmConLista.h"
#include "paneles/partes/FrmPreDatos.h"
#include "paneles/partes/FrmPreLista.h"
#include "paneles/dialogos/Ventanas.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConDeclaraciones.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cConSeleccion.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"
#include "valores/EstadoNavegacion.h"

#include <memory>
#include <optional>

namespace {

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
using AbridorDeclaraciones = void (*)(const QString& nombre, const QString& dni);

template <typename Lista, typename Datos>
void conectarLista(Lista* lista, const std::function<void(Navegacion::Modo modo)>& prepararDatos,
                   Datos* (*abrirDatos)(), AbridorDeclaraciones declaraciones)
{
    QObject::connect(lista, &PanelLista::cerrado, lista, [] { alCerrar(); });
    QObject::connect(lista, &PanelLista::pideDatos, lista, [lista, prepararDatos, abrirDatos](Navegacion::Modo modo) {
        Proceso::Protegido([&] {
            prepararDatos(modo);
            lista->Cerrar();
            abrirDatos();
        });
    });
    QObject::connect(lista, &PanelLista::pideDeclaraciones, lista,
                     [lista, declaraciones](const QString& nombre, const QString& dni) {
                         Proceso::Protegido([&] {
                             lista->Cerrar();
                             declaraciones(nombre, dni);
                         });
                     });
}

}  // namespace

namespace Navegacion {

FrmConLista* AbrirConLista(EntradaLista entrada)
{
    ConLista().ENTRADA = entrada;
    alAbrir();
    FrmConLista* lista = FrmConLista::Abrir();
    conectarLista<FrmConLista, FrmConDatos>(
        lista,
        [](Modo modo) {
            // Nuevo: a new contributor; Abrir: the one selected in the list.
            cConDatos& c = ConDatos();
            if (modo == Modo::Nuevo)
                c.IniciarNuevo();
            c.CSCO = modo == Modo::Nuevo ? 0 : ConLista().CSCO;
            RutaCon() = {{modo, OrigenParte::Lista}};
        },
        &AbrirConDatos, [](const QString& nombre, const QString& dni) {
            AbrirConDeclaraciones(EntradaLista::Abrir, ConLista().CSCO, nombre, dni);
        });
    return lista;
}

FrmPreLista* AbrirPreLista(EntradaLista entrada)
{
    PreLista().ENTRADA = entrada;
    alAbrir();
    FrmPreLista* lista = FrmPreLista::Abrir();
    conectarLista<FrmPreLista, FrmPreDatos>(
        lista,
        [](Modo modo) {
            cPreDatos& p = PreDatos();
            if (modo == Modo::Nuevo)
                p.IniciarNuevo();
            p.CSPR = modo == Modo::Nuevo ? 0 : PreLista().CSPR;
            RutaPre() = {{modo, OrigenParte::Lista}};
        },
        &AbrirPreDatos, [](const QString& nombre, const QString& dni) {
            AbrirPreDeclaraciones(EntradaLista::Abrir, PreLista().CSPR, nombre, dni);
        });
    return lista;
}

FrmConDatos* AbrirConDatos()
{
    alAbrir();
    FrmConDatos* datos = FrmConDatos::Abrir(RutaCon());
    QObject::connect(datos, &PanelDatos::cerrado, datos, [] {
        alCerrar();
        // Back to the list the contributor was opened from.
        if (RutaCon().origen == OrigenParte::Lista)
            AbrirConLista(EntradaLista::Vuelta);
    });
    return datos;
}

FrmPreDatos* AbrirPreDatos()
{
    alAbrir();
    FrmPreDatos* datos = FrmPreDatos::Abrir(RutaPre());
    QObject::connect(datos, &PanelDatos::cerrado, datos, [] {
        alCerrar();
        if (RutaPre().origen == OrigenParte::Lista)
            AbrirPreLista(EntradaLista::Vuelta);
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
    c.IniciarNuevo();
    c.CSCO = 0;
    RutaCon() = {{Modo::Nuevo, OrigenParte::Menu}};
    return AbrirConDatos();
}

FrmPreDatos* NuevoPresentador()
{
    cPreDatos& p = PreDatos();
    p.IniciarNuevo();
    p.CSPR = 0;
    RutaPre() = {{Modo::Nuevo, OrigenParte::Menu}};
    return AbrirPreDatos();
}

// The form entered afresh from `origen` on a return: a new one, the stored `csde`, or its copy.
static void prepararDeclaracion(Modo modo, Origen origen, int32_t csde)
{
    cDecDatos& d = DecDatos();
    RutaDeclaracion& ruta = RutaDec();
    ruta.entrada = Entrada::Inicio;
    ruta.modo = modo;
    ruta.lista = ListaOrigen(origen);
    if (modo == Modo::Nuevo)
        d.IniciarNuevo();
    else
        d.CSDE = csde;
}

// A list to choose a party for the return being edited, a side trip of the form. On closing,
// either way, the form comes back: `vuelta` tells how it is entered again.
static void abrirSeleccion(PanelLista* seleccion, std::function<Entrada()> vuelta)
{
    alAbrir();
    AbrirPanel(seleccion);
    QObject::connect(seleccion, &PanelLista::cerrado, seleccion, [vuelta] {
        alCerrar();
        RutaDeclaracion& ruta = RutaDec();
        ruta.entrada = vuelta();
        ruta.lista.volverDeViaje();
        AbrirDeclaracion();
    });
    seleccion->Iniciar();
}

// The list the form came from is drawn again from the store when it next opens.
static void marcarListaDeOrigen(Origen origen)
{
    switch (origen) {
    case Origen::ListaDeclaraciones:
        DecLista().ENTRADA = EntradaLista::Vuelta;
        break;
    case Origen::DeclaracionesContribuyente:
        ConDeclaraciones().ENTRADA = EntradaLista::Vuelta;
        break;
    case Origen::DeclaracionesPresentador:
        PreDeclaraciones().ENTRADA = EntradaLista::Vuelta;
        break;
    case Origen::Menu:
        break;
    }
}

FrmDecLista* AbrirDecLista(EntradaLista entrada)
{
    DecLista().ENTRADA = entrada;
    alAbrir();
    auto* lista = new FrmDecLista;
    AbrirPanel(lista);
    QObject::connect(lista, &PanelDeclaraciones::cerrado, lista, [] { alCerrar(); });
    QObject::connect(lista, &PanelDeclaraciones::pideDeclaracion, lista, [lista](Modo modo) {
        Proceso::Protegido([&] {
            prepararDeclaracion(modo, Origen::ListaDeclaraciones, DecLista().CSDE);
            lista->Cerrar();
            AbrirDeclaracion();
        });
    });
    QObject::connect(lista, &PanelDeclaraciones::pideImpresion, lista, [lista](int32_t csde) {
        Proceso::Protegido([&] {
            cDecDatos& d = DecDatos();
            d.CSDE = csde;
            d.CargarDeclaracion();
            d.ObtenerDatosOperacion(false);
            lista->Cerrar();
            AbrirImprimir(csde, OrigenImpresion::ListaDeclaraciones);
        });
    });
    lista->Iniciar();
    return lista;
}

FrmDeclaracion* AbrirDeclaracion()
{
    alAbrir();
    FrmDeclaracion* form = FrmDeclaracion::Abrir(RutaDec());
    QObject::connect(form, &FrmDeclaracion::cerrado, form, [] {
        alCerrar();
        const ListaOrigen& lista = RutaDec().lista;
        marcarListaDeOrigen(lista.origen());
        // During a side trip (a selection panel, the print) the trip's own panel takes over;
        // from the menu there is no list to go back to.
        const std::optional<Origen> vuelta = lista.listaDeVuelta();
        if (vuelta == Origen::ListaDeclaraciones)
            AbrirDecLista(EntradaLista::Vuelta);
        else if (vuelta == Origen::DeclaracionesContribuyente)
            AbrirConDeclaraciones(EntradaLista::Vuelta);
        else if (vuelta == Origen::DeclaracionesPresentador)
            AbrirPreDeclaraciones(EntradaLista::Vuelta);
    });
    QObject::connect(form, &FrmDeclaracion::pideEleccion, form, [form](EleccionParte parte) {
        Proceso::Protegido([&] {
            RutaDeclaracion& ruta = RutaDec();
            ruta.lista.salirDeViaje(Viaje::Seleccion);
            if (parte == EleccionParte::Presentador) {
                form->Cerrar();
                // The presenter chosen is written by the list itself: nothing to load.
                abrirSeleccion(new FrmPreSeleccion(DecDatos()), [] { return Entrada::Vuelta; });
                return;
            }
            // The contributor's list chooses for the subject or the transmitter, and keeps its
            // criteria for the next visit while the form's route says so.
            cConSeleccion& s = ConSeleccion();
            s.ENTRADA = parte == EleccionParte::Sujeto ? Entrada::Sujeto : Entrada::Transmitente;
            s.CRITERIO = ruta.criterio;
            form->Cerrar();
            auto* seleccion = new FrmConSeleccion(DecDatos());
            abrirSeleccion(seleccion, [seleccion] {
                RutaDec().criterio = ConSeleccion().CRITERIO;
                return seleccion->SeleccionHecha() ? ConSeleccion().ENTRADA : Entrada::Vuelta;
            });
        });
    });
    QObject::connect(form, &FrmDeclaracion::pideImpresion, form, [form](int32_t csde) {
        Proceso::Protegido([&] {
            RutaDec().lista.salirDeViaje(Viaje::Impresion);
            form->Cerrar();
            AbrirImprimir(csde, OrigenImpresion::Declaracion);
        });
    });
    return form;
}

FrmDeclaracion* NuevaDeclaracion()
{
    prepararDeclaracion(Modo::Nuevo, Origen::Menu, 0);
    return AbrirDeclaracion();
}

FrmDeclaracion* AbrirDeclaracionReciente(int32_t csde)
{
    prepararDeclaracion(Modo::Abrir, Origen::Menu, csde);
    return AbrirDeclaracion();
}

// The returns of a party: the panel, its state and its doorways. `codigo` is the party whose
// returns a fresh list shows, `origen` the form's origin from it, `impresion` the print's way
// back, `volver` the party's list on closing. The state is asked for each time (`estado`),
// never held across a signal.
template <typename Panel, typename Estado>
Panel* abrirDeclaracionesDeParte(int32_t codigo, Estado& (*estado)(), Origen origen,
                                 OrigenImpresion impresion, void (*volver)())
{
    alAbrir();
    auto* panel = new Panel(codigo);
    AbrirPanel(panel);
    // On a side trip the form or the print brings the panel back, not the party's list.
    QObject::connect(panel, &PanelDeclaraciones::cerrado, panel, [estado, volver] {
        alCerrar();
        if (!estado().ENTRADA.enViaje())
            volver();
    });
    QObject::connect(panel, &PanelDeclaraciones::pideDeclaracion, panel,
                     [panel, estado, origen](Modo modo) {
                         Proceso::Protegido([&] {
                             prepararDeclaracion(modo, origen, estado().CSDE);
                             estado().ENTRADA.salirDeViaje(ViajeLista::Declaracion);
                             panel->Cerrar();
                             AbrirDeclaracion();
                         });
                     });
    QObject::connect(panel, &PanelDeclaraciones::pideImpresion, panel,
                     [panel, estado, impresion](int32_t csde) {
                         Proceso::Protegido([&] {
                             estado().ENTRADA.salirDeViaje(ViajeLista::Impresion);
                             cDecDatos& d = DecDatos();
                             d.CSDE = csde;
                             d.CargarDeclaracion();
                             d.ObtenerDatosOperacion(false);
                             panel->Cerrar();
                             AbrirImprimir(csde, impresion);
                         });
                     });
    panel->Iniciar();
    return panel;
}

FrmConDeclaraciones* AbrirConDeclaraciones(EntradaLista entrada, int32_t csco,
                                           const QString& nombre, const QString& dni)
{
    cConDeclaraciones& e = ConDeclaraciones();
    e.ENTRADA = entrada;
    if (entrada == EntradaLista::Abrir) {
        e.LBLCONTRI = nombre;
        e.lbldni = dni;
    }
    return abrirDeclaracionesDeParte<FrmConDeclaraciones>(
        csco, &ConDeclaraciones, Origen::DeclaracionesContribuyente,
        OrigenImpresion::DeclaracionesContribuyente, [] { AbrirConLista(EntradaLista::Vuelta); });
}

FrmPreDeclaraciones* AbrirPreDeclaraciones(EntradaLista entrada, int32_t cspr,
                                           const QString& nombre, const QString& dni)
{
    cPreDeclaraciones& e = PreDeclaraciones();
    e.ENTRADA = entrada;
    if (entrada == EntradaLista::Abrir) {
        e.LBLPRESEN = nombre;
        e.lbldni = dni;
    }
    return abrirDeclaracionesDeParte<FrmPreDeclaraciones>(
        cspr, &PreDeclaraciones, Origen::DeclaracionesPresentador,
        OrigenImpresion::DeclaracionesPresentador, [] { AbrirPreLista(EntradaLista::Vuelta); });
}

FrmImprimir* AbrirImprimir(int32_t csde, OrigenImpresion origen)
{
    ImOf().CSDE = csde;
    ImOf().ENTRADA = origen;
    alAbrir();
    FrmImprimir* panel = FrmImprimir::Abrir(DecDatos());
    QObject::connect(panel, &FrmImprimir::cerrado, panel, [] {
        alCerrar();
        const OrigenImpresion vuelta = ImOf().ENTRADA;
        if (vuelta == OrigenImpresion::Declaracion) {
            // The side trip to printing is over: the form keeps only where it came from.
            RutaDeclaracion& ruta = RutaDec();
            ruta.lista.volverDeViaje();
            ruta.entrada = Entrada::Vuelta;
        }
        Proceso::Protegido([vuelta] {
            switch (vuelta) {
            case OrigenImpresion::Declaracion:
                AbrirDeclaracion();
                break;
            case OrigenImpresion::ListaDeclaraciones:
                AbrirDecLista(EntradaLista::Vuelta);
                break;
            case OrigenImpresion::DeclaracionesContribuyente:
                AbrirConDeclaraciones(EntradaLista::Vuelta);
                break;
            case OrigenImpresion::DeclaracionesPresentador:
                AbrirPreDeclaraciones(EntradaLista::Vuelta);
                break;
            }
        });
    });
    return panel;
}

}  // namespace Navegacion
