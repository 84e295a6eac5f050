#include "paneles/declaracion/FrmSeleccion.h"

#include "catalogo/Catalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cConSeleccion.h"

#include <QCloseEvent>

namespace {

// Both lists are always in the open mode: they choose, they never delete.
const QString kModoElegir = QStringLiteral("C");

constexpr int kColumnaNombre = 1;
constexpr int kColumnaDni = 2;

DisenoLista DisenoContribuyentes()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmConSeleccion");
    d.nombreGrid = QStringLiteral("flxContribuyentes");
    d.columnas = {
        {{0, "Codigo", "Codigo"}, 0, Qt::AlignLeft},
        {{0, "Apellidos y Nombre", "Deiturak eta izena"}, 2700, Qt::AlignLeft},
        {{0, "DNI", "NA"}, 1000, Qt::AlignLeft},
        {{0, "Calle", "Helbidea"}, 2000, Qt::AlignLeft},
        {{0, "Municipio", "Udalerria"}, 2000, Qt::AlignLeft},
        {{0, "S.P.", "S.P."}, 600, Qt::AlignRight},
        {{0, "Tr.", "Tr."}, 600, Qt::AlignRight},
    };
    d.idTituloAbrir = 87;
    d.idTituloEliminar = 87;
    d.tipDatos = {88};
    d.resultado = {0, " contribuyente(s) seleccionado(s) ", " hautatutako zergaduna(k) "};
    d.resultadoCriterios = {0, " contribuyente(s) seleccionado(s). ", " hautatutako zergaduna(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idAceptar = 6;
    d.idCancelar = 4;
    d.idTipCancelar = 89;
    d.seleccion = true;
    return d;
}

DisenoLista DisenoPresentadores()
{
    DisenoLista d;
    d.nombrePanel = QStringLiteral("FrmPreSeleccion");
    d.nombreGrid = QStringLiteral("flxPresentadores");
    // The number alone is right-aligned here, unlike on the presenters' list.
    d.columnas = {
        {{0, "Codigo", "Codigo"}, 0, Qt::AlignLeft},
        {{0, "Apellidos y Nombre", "Deiturak eta izena"}, 2800, Qt::AlignLeft},
        {{0, "DNI", "NA"}, 1000, Qt::AlignRight},
        {{0, "Calle", "Helbidea"}, 2515, Qt::AlignLeft},
        {{0, "Municipio", "Udalerria"}, 2500, Qt::AlignLeft},
    };
    d.idTituloAbrir = 212;
    d.idTituloEliminar = 212;
    d.tipDatos = {213};
    d.resultado = {0, " presentador(es) seleccionado(s) ", " hautatutako aurkezlea(k) "};
    d.resultadoCriterios = {0, " presentador(es) seleccionado(s). ", " hautatutako aurkezlea(k). "};
    d.criterioNombre = {0, "Nombre empieza por", "Izenaren hasierako letra"};
    d.criterioDni = {0, "DNI empieza por", "NAren hasierako zifra"};
    d.idAceptar = 6;
    d.idCancelar = 4;
    d.idTipCancelar = 89;
    d.seleccion = true;
    return d;
}

EstadoLista EstadoContribuyentes()
{
    cConSeleccion& s = ConSeleccion();
    return {s.TABLASELECCION, s.SELECCIONACTUAL, s.CSCO, s.NUMCONTRISEL,
            s.BUSQUEDA,       kModoElegir,       s.ORDEN, {}};
}

EstadoLista EstadoPresentadores()
{
    cPreSeleccion& s = PreSeleccion();
    return {s.TABLASELECCION, s.SELECCIONACTUAL, s.CSPR, s.NUMPRESENSEL,
            s.BUSQUEDA,       kModoElegir,       s.ORDEN, {}};
}

// The form's LISTA loses the trip's letter: the first letter stays, or nothing.
void VolverAlFormulario()
{
    cDecDatos& d = DecDatos();
    d.LISTA = d.LISTA.size() >= 2 ? d.LISTA.left(1) : QString();
}

}  // namespace

// ----- Contributor -----

FrmConSeleccion::FrmConSeleccion(QWidget* parent)
    : PanelLista(DisenoContribuyentes(), EstadoContribuyentes(), parent)
{
}

void FrmConSeleccion::IniciarEstado()
{
    ConSeleccion().IniciarLista();
    m_seleccionHecha = false;
}

int32_t FrmConSeleccion::CargarDatos(Arreglo2D& datos)
{
    return ConSeleccion().CargarContribuyentes(datos);
}

void FrmConSeleccion::AnotarBusqueda(const QString& texto) { ConSeleccion().AnotarBusqueda(texto); }
void FrmConSeleccion::CambiarBusqueda() { ConSeleccion().CambiarBusqueda(); }
void FrmConSeleccion::TodosEstado() { ConSeleccion().Todos(); }
bool FrmConSeleccion::OrdenarPor(int columna) { return ConSeleccion().OrdenarPor(columna); }
bool FrmConSeleccion::ElegirColumnaBusqueda(int columna)
{
    return ConSeleccion().ElegirColumnaBusqueda(columna);
}

void FrmConSeleccion::Seleccionar(int32_t codigo, const QList<int32_t>&)
{
    ConSeleccion().CSCO = codigo;
}

void FrmConSeleccion::Elegido()
{
    cConSeleccion& s = ConSeleccion();
    cDecDatos& d = DecDatos();
    d.ENTRADA = s.ENTRADA;
    if (s.ENTRADA == QLatin1String("S")) {
        // A subject is official and national.
        if (!s.ValidarTipoDniDomicilio()) {
            Mensaje(Texto(90), vb::Information, windowTitle());
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

void FrmConSeleccion::closeEvent(QCloseEvent* evento)
{
    if (!m_devuelto) {
        m_devuelto = true;
        cDecDatos& d = DecDatos();
        if (!m_seleccionHecha)
            d.ENTRADA = QStringLiteral("P");
        VolverAlFormulario();
        d.CRITERIO = ConSeleccion().CRITERIO;
    }
    PanelLista::closeEvent(evento);
}

// ----- Presenter -----

FrmPreSeleccion::FrmPreSeleccion(QWidget* parent)
    : PanelLista(DisenoPresentadores(), EstadoPresentadores(), parent)
{
}

void FrmPreSeleccion::IniciarEstado() { PreSeleccion().IniciarLista(); }

int32_t FrmPreSeleccion::CargarDatos(Arreglo2D& datos)
{
    return PreSeleccion().CargarPresentadores(datos);
}

void FrmPreSeleccion::AnotarBusqueda(const QString& texto) { PreSeleccion().AnotarBusqueda(texto); }
void FrmPreSeleccion::CambiarBusqueda() { PreSeleccion().CambiarBusqueda(); }
void FrmPreSeleccion::TodosEstado() { PreSeleccion().Todos(); }
bool FrmPreSeleccion::OrdenarPor(int columna) { return PreSeleccion().OrdenarPor(columna); }
bool FrmPreSeleccion::ElegirColumnaBusqueda(int columna)
{
    return PreSeleccion().ElegirColumnaBusqueda(columna);
}

void FrmPreSeleccion::Seleccionar(int32_t codigo, const QList<int32_t>&)
{
    PreSeleccion().CSPR = codigo;
}

void FrmPreSeleccion::Elegido()
{
    // No check at all on a presenter; nothing reloads it, so the panel writes its name and
    // number itself.
    const cPreSeleccion& s = PreSeleccion();
    cDecDatos& d = DecDatos();
    if (d.CSPR != s.CSPR)
        d.MODIFICADO = true;
    d.CSPR = s.CSPR;
    const int fila = Grid()->RowSel();
    d.NOMBREPR = Grid()->TextMatrix(fila, kColumnaNombre);
    d.DNIPR = Grid()->TextMatrix(fila, kColumnaDni);
    Cerrar();
}

void FrmPreSeleccion::closeEvent(QCloseEvent* evento)
{
    if (!m_devuelto) {
        m_devuelto = true;
        DecDatos().ENTRADA = QStringLiteral("P");
        VolverAlFormulario();
    }
    PanelLista::closeEvent(evento);
}
