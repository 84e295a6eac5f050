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

// The panel the way back from printing leads to: the presenter's returns take every letter
// other than the three named ones.
QString letraDeVuelta(const QString& entrada)
{
    static const QStringList conocidas{QStringLiteral("D"), QStringLiteral("L"), QStringLiteral("C")};
    return conocidas.contains(entrada) ? entrada : QStringLiteral("P");
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

FrmConLista* AbrirConLista(const QString& entrada)
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
            AbrirConDeclaraciones(QStringLiteral("A"), nombre, dni);
        });
    return lista;
}

FrmPreLista* AbrirPreLista(const QString& entrada)
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
            AbrirPreDeclaraciones(QStringLiteral("A"), nombre, dni);
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
            AbrirConLista(QStringLiteral("P"));
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
        DecLista().ENTRADA = QStringLiteral("P");
        break;
    case Origen::DeclaracionesContribuyente:
        ConDeclaraciones().ENTRADA = QStringLiteral("P");
        break;
    case Origen::DeclaracionesPresentador:
        PreDeclaraciones().ENTRADA = QStringLiteral("P");
        break;
    case Origen::Menu:
        break;
    }
}

FrmDecLista* AbrirDecLista(const QString& entrada)
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
            AbrirImprimir(csde, QStringLiteral("L"));
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
            AbrirDecLista(QStringLiteral("P"));
        else if (vuelta == Origen::DeclaracionesContribuyente)
            AbrirConDeclaraciones(QStringLiteral("P"));
        else if (vuelta == Origen::DeclaracionesPresentador)
            AbrirPreDeclaraciones(QStringLiteral("P"));
    });
    QObject::connect(form, &FrmDeclaracion::pideEleccion, form, [form](EleccionParte parte) {
        Proceso::Protegido([&] {
            RutaDeclaracion& ruta = RutaDec();
            ruta.lista.salirDeViaje(Viaje::Seleccion);
            if (parte == EleccionParte::Presentador) {
                form->Cerrar();
                // The presenter chosen is written by the list itself: nothing to load.
                abrirSeleccion(new FrmPreSeleccion, [] { return Entrada::Vuelta; });
                return;
            }
            // The contributor's list chooses for the subject or the transmitter, and keeps its
            // criteria for the next visit while the form's route says so.
            cConSeleccion& s = ConSeleccion();
            s.ENTRADA = parte == EleccionParte::Sujeto ? Entrada::Sujeto : Entrada::Transmitente;
            s.CRITERIO = ruta.criterio;
            form->Cerrar();
            auto* seleccion = new FrmConSeleccion;
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
            AbrirImprimir(csde, QStringLiteral("D"));
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

// The returns of a party: the panel, its state and its doorways. `lista` is the form's LISTA
// from it, `imprimir` the print's letter, `volver` the party's list on closing.
template <typename Panel, typename Estado>
Panel* abrirDeclaracionesDeParte(Estado& estado, Origen origen, const QString& letra, void (*volver)())
{
    alAbrir();
    auto* panel = new Panel;
    AbrirPanel(panel);
    // Whether the panel was left for a side trip: then the form or the print brings it back,
    // and not the party's list. ENTRADA alone does not tell it, since a click on a heading, a
    // search or Todos empty it before the trip adds its letter.
    auto deViaje = std::make_shared<bool>(false);
    QObject::connect(panel, &PanelDeclaraciones::cerrado, panel, [deViaje, volver] {
        alCerrar();
        if (!*deViaje)
            volver();
    });
    QObject::connect(panel, &PanelDeclaraciones::pideDeclaracion, panel,
                     [panel, &estado, origen, deViaje](Modo modo) {
                         Proceso::Protegido([&] {
                             prepararDeclaracion(modo, origen, estado.CSDE);
                             estado.ENTRADA += QStringLiteral("D");
                             *deViaje = true;
                             panel->Cerrar();
                             AbrirDeclaracion();
                         });
                     });
    QObject::connect(panel, &PanelDeclaraciones::pideImpresion, panel,
                     [panel, &estado, letra, deViaje](int32_t csde) {
                         Proceso::Protegido([&] {
                             estado.ENTRADA += QStringLiteral("I");
                             *deViaje = true;
                             cDecDatos& d = DecDatos();
                             d.CSDE = csde;
                             d.CargarDeclaracion();
                             d.ObtenerDatosOperacion(false);
                             panel->Cerrar();
                             AbrirImprimir(csde, letra);
                         });
                     });
    panel->Iniciar();
    return panel;
}

FrmConDeclaraciones* AbrirConDeclaraciones(const QString& entrada, const QString& nombre,
                                           const QString& dni)
{
    cConDeclaraciones& e = ConDeclaraciones();
    e.ENTRADA = entrada;
    if (entrada == QLatin1String("A")) {
        e.LBLCONTRI = nombre;
        e.lbldni = dni;
    }
    return abrirDeclaracionesDeParte<FrmConDeclaraciones>(e, Origen::DeclaracionesContribuyente, QStringLiteral("C"), [] {
        AbrirConLista(QStringLiteral("P"));
    });
}

FrmPreDeclaraciones* AbrirPreDeclaraciones(const QString& entrada, const QString& nombre,
                                           const QString& dni)
{
    cPreDeclaraciones& e = PreDeclaraciones();
    e.ENTRADA = entrada;
    if (entrada == QLatin1String("A")) {
        e.LBLPRESEN = nombre;
        e.lbldni = dni;
    }
    return abrirDeclaracionesDeParte<FrmPreDeclaraciones>(e, Origen::DeclaracionesPresentador, QStringLiteral("P"), [] {
        AbrirPreLista(QStringLiteral("P"));
    });
}

FrmImprimir* AbrirImprimir(int32_t csde, const QString& entrada)
{
    ImOf().CSDE = csde;
    ImOf().ENTRADA = entrada;
    alAbrir();
    FrmImprimir* panel = FrmImprimir::Abrir();
    QObject::connect(panel, &FrmImprimir::cerrado, panel, [] {
        alCerrar();
        const QString letra = letraDeVuelta(ImOf().ENTRADA);
        if (letra == QLatin1String("D")) {
            // The side trip to printing is over: the form keeps only where it came from.
            RutaDeclaracion& ruta = RutaDec();
            ruta.lista.volverDeViaje();
            ruta.entrada = Entrada::Vuelta;
        }
        Proceso::Protegido([&letra] {
            if (letra == QLatin1String("D"))
                AbrirDeclaracion();
            else if (letra == QLatin1String("L"))
                AbrirDecLista(QStringLiteral("P"));
            else if (letra == QLatin1String("C"))
                AbrirConDeclaraciones(QStringLiteral("P"));
            else
                AbrirPreDeclaraciones(QStringLiteral("P"));
        });
    });
    return panel;
}

}  // namespace Navegacion
