#pragma once
// The lists of returns: all returns (FrmDecLista), a contributor's (FrmConDeclaraciones) and a
// presenter's (FrmPreDeclaraciones). One design: a grid of the returns found by the store, one
// row each under the heading, 15 rows in sight; a search typed in a box laid over a cell, one
// condition per column; the order by a click on a heading, with an arrow that shows its
// direction; and the doorway to a return (open, copy, new, print, delete). What differs (state
// object, columns, texts, the store's call, the header of a party's lists) is each panel's; the
// behaviour lives here.
//
// The state object of each list outlives the panel: a list that comes back from the form
// finds its order, conditions and selection again.
#include "paneles/dialogos/PanelNavegado.h"
#include "paneles/controles/cUtilidadesGrid.h"
#include "valores/EstadoNavegacion.h"
#include "valores/FilaDeclaracion.h"

#include <QLineEdit>
#include <QList>
#include <QString>
#include <cstdint>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class cFlexGrid;
class cListaDeclaraciones;

struct ColumnaDeclaraciones {
    const char* es;
    const char* eu;
    int anchoTwips;
    Qt::Alignment alineacion;
};

class PanelDeclaraciones : public PanelNavegado {
    Q_OBJECT
public:
    // The number of rows of a page of the grid.
    static constexpr int kFilasPorPagina = 15;
    static constexpr QRgb kColorResaltado = 0x80C0FF;

    // Reloads from the store (result state) or lays out the search (search state), selects
    // the return of the state object, writes the help and result lines, places the arrow.
    void PresentaDatos();
    void PresentaBotones();
    // The rows of the conditions in force, from the store.
    void CargarFlxDeclaraciones();
    // The opening, once the panel is on the screen: the state by ENTRADA, the first load.
    void Iniciar();
    void Cerrar();

signals:
    // A return on the declaration form: the selected one (Abrir), its copy, or a new one.
    void pideDeclaracion(Navegacion::Modo modo);
    // The selected return printed.
    void pideImpresion(int32_t csde);

protected:
    void AlCerrar() override { m_cerrando = true; }
    PanelDeclaraciones(const QString& nombre, QList<ColumnaDeclaraciones> columnas, QWidget* parent);

    // What each list says and does of its own.
    virtual cListaDeclaraciones& estado() const = 0;
    virtual void IniciarEstado() = 0;
    // The rows of the list, from its record (which counts them in NUMDECLASEL).
    virtual QList<FilaDeclaracion> CargarDatos() = 0;
    // The words of one condition (CAMPOSELECCION `campo`).
    virtual QString TextoCriterio(int campo, const QString& valor) const = 0;
    virtual void Anadir_captions() = 0;
    // Help lines of the result and the search states.
    virtual int idAyudaResultado() const = 0;
    virtual int idAyudaBusqueda() const = 0;
    // The result line when the store found nothing: the conditions' texts and id 63.
    virtual QString ResultadoVacio() const;
    // The delete mode (cmdAceptar deletes, the other doorways hide).
    virtual bool ModoEliminar() const { return false; }
    // After the header of the party's lists has to be drawn again.
    virtual void PresentaCabecera() {}
    // The deletion of the selected return; the list reloads after it.
    void EliminarSeleccionada(int idEntre);
    // The texts of the conditions in force, joined by ", ".
    QString TextoCriterios() const;

    bool eventFilter(QObject* objeto, QEvent* evento) override;

    // Space above the grid for the header of a party's lists.
    QVBoxLayout* m_cabecera = nullptr;

    cFlexGrid* flxDeclaraciones = nullptr;
    QLineEdit* txtBusqueda = nullptr;
    QLabel* picasc = nullptr;
    QLabel* picdesc = nullptr;
    QLabel* lblayuda = nullptr;
    QLabel* lblResultado = nullptr;
    QPushButton* cmdBuscar = nullptr;
    QPushButton* cmdTodos = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* cmdNuevo = nullptr;
    QPushButton* cmdCopiar = nullptr;
    QPushButton* cmdImprimir = nullptr;
    QLabel* PicDatos = nullptr;
    QLabel* PicEliminar = nullptr;
    QLabel* PicAtras = nullptr;
    QLabel* PicCancelar = nullptr;
    QLabel* PicNuevo = nullptr;
    QLabel* PicCopiar = nullptr;
    QLabel* PicImprimir = nullptr;
    // The delete of a party's lists, beside cmdAceptar; hidden on the other lists.
    QPushButton* cmdEliminar = nullptr;
    QLabel* PicBorrar = nullptr;

    virtual void Aceptar();
    virtual void Eliminar() {}

private:
    void Construir(const QList<ColumnaDeclaraciones>& columnas);
    void Conectar();
    void LimpiarGrid();
    void RellenarGrid(const QList<FilaDeclaracion>& filas);
    void PresentaResultado();
    void PresentaBusqueda();
    void SituarFlecha();
    void MostrarAyudaAlPie(const QString& texto);
    void LeerFila();

    void Pulsado(int fila);
    void Clic(int columna);
    void DobleClic(int fila);
    void FilaCambiada();
    void BusquedaAbandonada();
    void Buscar();
    void Todos();

    cUtilidadesGrid Utilidades;
    QHBoxLayout* m_busqueda = nullptr;
    bool ClicEnCabecera = false;
    bool CambioFilaActivo = false;
    bool m_cerrando = false;
};
