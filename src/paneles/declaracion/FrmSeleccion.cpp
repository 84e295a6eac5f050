#include "paneles/declaracion/FrmSeleccion.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/ColumnasContribuyentes.h"
#include "paneles/partes/ColumnasPresentadores.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cConSeleccion.h"


namespace {

DisenoLista DisenoContribuyentes()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmConSeleccion");
    d.nombreGrid = QStringLiteral("flxContribuyentes");
    d.columnas = ColumnasContribuyentes::Todas();
    d.idTituloAbrir = kIdListaSeleccionContribuyente;
    d.idTituloEliminar = kIdListaSeleccionContribuyente;
    d.tipDatos = {kIdSeleccionarContribuyente};
    d.resultado = {0, " contribuyente(s) seleccionado(s) ", " hautatutako zergaduna(k) "};
    d.resultadoCriterios = {0, " contribuyente(s) seleccionado(s). ", " hautatutako zergaduna(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idAceptar = kIdBotonAceptar;
    d.idCancelar = kIdBotonCancelar;
    d.idTipCancelar = kIdVolverDatosDeclaracion;
    d.seleccion = true;
    // The doorways a selection list does not show keep the captions of the party lists.
    d.idDeclaraciones = kIdBotonDeclaraciones;
    d.idTipNuevo = kIdNuevoContribuyente;
    return d;
}

DisenoLista DisenoPresentadores()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmPreSeleccion");
    d.nombreGrid = QStringLiteral("flxPresentadores");
    d.columnas = ColumnasPresentadores::Seleccion();
    d.idTituloAbrir = kIdListaSeleccionPresentador;
    d.idTituloEliminar = kIdListaSeleccionPresentador;
    d.tipDatos = {kIdSeleccionarPresentador};
    d.resultado = {0, " presentador(es) seleccionado(s) ", " hautatutako aurkezlea(k) "};
    d.resultadoCriterios = {0, " presentador(es) seleccionado(s). ", " hautatutako aurkezlea(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idAceptar = kIdBotonAceptar;
    d.idCancelar = kIdBotonCancelar;
    d.idTipCancelar = kIdVolverDatosDeclaracion;
    d.seleccion = true;
    // The doorways a selection list does not show keep the captions of the party lists.
    d.idDeclaraciones = kIdBotonDeclaraciones;
    d.idTipNuevo = kIdNuevoContribuyente;
    return d;
}

}  // namespace

// ----- Contributor -----

FrmConSeleccion::FrmConSeleccion(cDecDatos& declaracion, QWidget* parent)
    : PanelLista(DisenoContribuyentes(), ConSeleccion(), parent), m_declaracion(declaracion)
{
    ConSeleccion().IniciarSeleccion();
}

void FrmConSeleccion::CargarFilas()
{
    RellenarFilas(ConSeleccion().CargarContribuyentes(), &ColumnasContribuyentes::Texto);
}

void FrmConSeleccion::Elegido()
{
    cConSeleccion& s = ConSeleccion();
    cDecDatos& d = m_declaracion;
    if (s.ENTRADA == Navegacion::Entrada::Sujeto) {
        // A subject is official and national.
        if (!s.ValidarTipoDniDomicilio()) {
            Mensaje(Texto(kIdSujetoPasivoNoOficialNacional), vb::Information, windowTitle());
            return;
        }
        if (d.CSSU != s.CSCO)
            d.MODIFICADO = true;
        d.CSSU = s.CSCO;
    } else {
        if (d.CSTRA != s.CSCO)
            d.MODIFICADO = true;
        d.CSTRA = s.CSCO;
    }
    m_seleccionHecha = true;
    Cerrar();
}

// ----- Presenter -----

FrmPreSeleccion::FrmPreSeleccion(cDecDatos& declaracion, QWidget* parent)
    : PanelLista(DisenoPresentadores(), PreSeleccion(), parent), m_declaracion(declaracion)
{
    PreSeleccion().IniciarSeleccion();
}

void FrmPreSeleccion::CargarFilas()
{
    RellenarFilas(PreSeleccion().CargarPresentadores(), &ColumnasPresentadores::Texto);
}

void FrmPreSeleccion::Elegido()
{
    // No check at all on a presenter; nothing reloads it, so the panel writes its name and
    // number itself.
    const cPreSeleccion& s = PreSeleccion();
    cDecDatos& d = m_declaracion;
    if (d.CSPR != s.CSPR)
        d.MODIFICADO = true;
    d.CSPR = s.CSPR;
    const int fila = Grid()->RowSel();
    d.NOMBREPR = Grid()->TextMatrix(fila, ColumnasPresentadores::kNombre);
    d.DNIPR = Grid()->TextMatrix(fila, ColumnasPresentadores::kDni);
    Cerrar();
}
