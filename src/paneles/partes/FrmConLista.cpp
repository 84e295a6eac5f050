#include "paneles/partes/FrmConLista.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/partes/ColumnasContribuyentes.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"

namespace {

DisenoLista Diseno()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmConLista");
    d.nombreGrid = QStringLiteral("flxContribuyentes");
    d.columnas = ColumnasContribuyentes::Todas();
    d.columnasContadores = {ColumnasContribuyentes::kComoSujeto, ColumnasContribuyentes::kComoTransmitente};
    d.idTituloAbrir = kIdAbrirContribuyente;
    d.idTituloEliminar = kIdEliminarContribuyente;
    d.tipDatos = {kIdDatosContribuyente};
    d.tipEliminar = {0, "Eliminar el contribuyente seleccionado", "Deuseztatu hautatutako zergaduna"};
    d.idTipNuevo = kIdNuevoContribuyente;
    d.idDeclaraciones = kIdBotonDeclaraciones;
    d.resultado = {0, " contribuyente(s) seleccionado(s) ", " hautatutako zergaduna(k) "};
    d.resultadoCriterios = {0, " contribuyente(s) seleccionado(s). ", " hautatutako zergaduna(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idTituloBorrado = kIdBorradoContribuyente;
    d.idNoBorrar = kIdContribuyenteEnDeclaraciones;
    d.idPregunta = kIdPreguntaEliminarContribuyente;
    d.idPreguntaEntre = kIdGuionEliminarContribuyente;
    d.idPreguntaFin = kIdInterrogacionEliminarContribuyente;
    return d;
}

}  // namespace

FrmConLista* FrmConLista::Abrir()
{
    auto* panel = new FrmConLista;
    AbrirPanel(panel);
    panel->Iniciar();
    return panel;
}

FrmConLista::FrmConLista(QWidget* parent) : PanelLista(Diseno(), ConLista(), parent) {}

void FrmConLista::CargarFilas()
{
    RellenarFilas(ConLista().CargarContribuyentes(), &ColumnasContribuyentes::Texto);
}

void FrmConLista::Borrar(int32_t codigo)
{
    ConDatos().CSCO = codigo;
    ConDatos().BorrarContribuyente();
}
