#include "paneles/partes/FrmPreLista.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/partes/ColumnasPresentadores.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

namespace {

DisenoLista Diseno()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmPreLista");
    d.nombreGrid = QStringLiteral("flxPresentadores");
    d.columnas = ColumnasPresentadores::Lista();
    d.columnasContadores = {ColumnasPresentadores::kDeclaraciones};
    d.idTituloAbrir = kIdAbrirPresentador;
    d.idTituloEliminar = kIdEliminarPresentador;
    d.tipDatos = {0, "Datos del presentador", "Aurkezlearen datuak"};
    d.tipEliminar = {0, "Eliminar el presentador seleccionado", "Deuseztatu hautatutako aurkezlea"};
    d.idTipNuevo = kIdNuevoPresentador;
    d.idDeclaraciones = kIdBotonDeclaracionesPresentador;
    // The Basque result line has no point after the criteria, unlike the contributors' one.
    d.resultado = {0, " presentador(es) seleccionado(s) ", " hautatutako aurkezlea(k) "};
    d.resultadoCriterios = {0, " presentador(es) seleccionado(s). ", " hautatutako aurkezlea(k) "};
    d.criterioNombre = {0, "Nombre empieza por", "Izzenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idTituloBorrado = kIdBorradoPresentador;
    d.idNoBorrar = kIdPresentadorEnDeclaraciones;
    d.idPregunta = kIdPreguntaEliminarPresentador;
    d.idPreguntaEntre = kIdGuionEliminarPresentador;
    d.idPreguntaFin = kIdInterrogacionEliminarPresentador;
    return d;
}

}  // namespace

FrmPreLista* FrmPreLista::Abrir()
{
    auto* panel = new FrmPreLista;
    AbrirPanel(panel);
    panel->Iniciar();
    return panel;
}

FrmPreLista::FrmPreLista(QWidget* parent) : PanelLista(Diseno(), PreLista(), parent) {}

void FrmPreLista::CargarFilas()
{
    RellenarFilas(PreLista().CargarPresentadores(), &ColumnasPresentadores::Texto);
}

void FrmPreLista::Borrar(int32_t codigo)
{
    PreDatos().CSPR = codigo;
    PreDatos().BorrarPresentador();
}
