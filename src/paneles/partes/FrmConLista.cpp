#include "paneles/partes/FrmConLista.h"

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
    d.idTituloAbrir = 72;
    d.idTituloEliminar = 85;
    d.tipDatos = {3};
    d.tipEliminar = {0, "Eliminar el contribuyente seleccionado", "Deuseztatu hautatutako zergaduna"};
    d.idTipNuevo = 79;
    d.idDeclaraciones = 73;
    d.resultado = {0, " contribuyente(s) seleccionado(s) ", " hautatutako zergaduna(k) "};
    d.resultadoCriterios = {0, " contribuyente(s) seleccionado(s). ", " hautatutako zergaduna(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idTituloBorrado = 80;
    d.idNoBorrar = 81;
    d.idPregunta = 82;
    d.idPreguntaEntre = 83;
    d.idPreguntaFin = 84;
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

void FrmConLista::Borrar(int32_t codigo)
{
    ConDatos().CSCO = codigo;
    ConDatos().BorrarContribuyente();
}
