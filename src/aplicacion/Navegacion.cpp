#include "aplicacion/Navegacion.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/partes/FrmConDatos.h"
#include "paneles/partes/FrmConLista.h"
#include "paneles/partes/FrmPreDatos.h"
#include "paneles/partes/FrmPreLista.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

#include <map>

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

std::map<QString, std::function<void()>>& vueltasImprimir()
{
    static std::map<QString, std::function<void()>> vueltas;
    return vueltas;
}

// The letter the way back from printing is kept under: the presenter's returns take every
// letter other than the three named ones.
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
        const auto vuelta = vueltasImprimir().find(letra);
        if (vuelta != vueltasImprimir().end() && vuelta->second)
            Proceso::Protegido(vuelta->second);
    });
    return panel;
}

void InstalarVueltaImprimir(const QString& entrada, std::function<void()> volver)
{
    vueltasImprimir()[letraDeVuelta(entrada)] = std::move(volver);
}

}  // namespace Navegacion
