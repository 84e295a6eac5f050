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
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

#include <memory>

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
void conectarLista(Lista* lista, const std::function<void(const QString& modo)>& prepararDatos,
                   Datos* (*abrirDatos)(), AbridorDeclaraciones declaraciones)
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
        [](const QString& modo) {
            cConDatos& c = ConDatos();
            c.setMODO(modo);
            c.LISTA = QStringLiteral("S");
            c.CSCO = modo == QLatin1String("A") ? 0 : ConLista().CSCO;
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
        [](const QString& modo) {
            cPreDatos& p = PreDatos();
            p.setMODO(modo);
            p.LISTA = QStringLiteral("S");
            p.CSPR = modo == QLatin1String("A") ? 0 : PreLista().CSPR;
        },
        &AbrirPreDatos, [](const QString& nombre, const QString& dni) {
            AbrirPreDeclaraciones(QStringLiteral("A"), nombre, dni);
        });
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

// The return a list hands to the form: "A" a new one, "C" the selected one, "D" its copy.
static void prepararDeclaracion(const QString& modo, const QString& lista, int32_t csde)
{
    cDecDatos& d = DecDatos();
    d.ENTRADA = QStringLiteral("A");
    d.setMODO(modo);
    d.LISTA = lista;
    if (modo != QLatin1String("A"))
        d.CSDE = csde;
}

// A list to choose a party for the return being edited: on closing, either way, the form
// comes back and reads in DecDatos() what happened.
static void abrirSeleccion(PanelLista* seleccion)
{
    alAbrir();
    AbrirPanel(seleccion);
    QObject::connect(seleccion, &PanelLista::cerrado, seleccion, [] {
        alCerrar();
        AbrirDeclaracion();
    });
    seleccion->Iniciar();
}

FrmDecLista* AbrirDecLista(const QString& entrada)
{
    DecLista().ENTRADA = entrada;
    alAbrir();
    auto* lista = new FrmDecLista;
    AbrirPanel(lista);
    QObject::connect(lista, &PanelDeclaraciones::cerrado, lista, [] { alCerrar(); });
    QObject::connect(lista, &PanelDeclaraciones::pideDeclaracion, lista, [lista](const QString& modo) {
        Proceso::Protegido([&] {
            prepararDeclaracion(modo, QStringLiteral("D"), DecLista().CSDE);
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
    FrmDeclaracion* form = FrmDeclaracion::Abrir();
    QObject::connect(form, &FrmDeclaracion::cerrado, form, [] {
        alCerrar();
        // A side trip (a selection panel, the print) is under way when LISTA has two letters,
        // or one that names no list: the trip's own panel takes over.
        const QString lista = DecDatos().LISTA;
        if (lista.size() != 1)
            return;
        if (lista == QLatin1String("D"))
            AbrirDecLista(QStringLiteral("P"));
        else if (lista == QLatin1String("C"))
            AbrirConDeclaraciones(QStringLiteral("P"));
        else if (lista == QLatin1String("P"))
            AbrirPreDeclaraciones(QStringLiteral("P"));
    });
    QObject::connect(form, &FrmDeclaracion::pideEleccion, form, [form](EleccionParte parte) {
        Proceso::Protegido([&] {
            form->Cerrar();
            if (parte == EleccionParte::Presentador)
                abrirSeleccion(new FrmPreSeleccion);
            else
                abrirSeleccion(new FrmConSeleccion);
        });
    });
    QObject::connect(form, &FrmDeclaracion::pideImpresion, form, [form](int32_t csde) {
        Proceso::Protegido([&] {
            form->Cerrar();
            AbrirImprimir(csde, QStringLiteral("D"));
        });
    });
    return form;
}

FrmDeclaracion* NuevaDeclaracion()
{
    cDecDatos& d = DecDatos();
    d.ENTRADA = QStringLiteral("A");
    d.setMODO(QStringLiteral("A"));
    d.LISTA.clear();
    return AbrirDeclaracion();
}

FrmDeclaracion* AbrirDeclaracionReciente(int32_t csde)
{
    cDecDatos& d = DecDatos();
    d.ENTRADA = QStringLiteral("A");
    d.setMODO(QStringLiteral("C"));
    d.LISTA.clear();
    d.CSDE = csde;
    return AbrirDeclaracion();
}

// The returns of a party: the panel, its state and its doorways. `lista` is the form's LISTA
// from it, `imprimir` the print's letter, `volver` the party's list on closing.
template <typename Panel, typename Estado>
Panel* abrirDeclaracionesDeParte(Estado& estado, const QString& letra, void (*volver)())
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
                     [panel, &estado, letra, deViaje](const QString& modo) {
                         Proceso::Protegido([&] {
                             prepararDeclaracion(modo, letra, estado.CSDE);
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
    return abrirDeclaracionesDeParte<FrmConDeclaraciones>(e, QStringLiteral("C"), [] {
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
    return abrirDeclaracionesDeParte<FrmPreDeclaraciones>(e, QStringLiteral("P"), [] {
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
            cDecDatos& d = DecDatos();
            d.LISTA = d.LISTA.size() >= 2 ? d.LISTA.left(1) : QString();
            d.ENTRADA = QStringLiteral("P");
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
