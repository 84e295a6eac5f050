#pragma once
// The list panels of the parties. The contributors' list (FrmConLista) and the presenters'
// (FrmPreLista) are one design: a grid of the parties found by the store, a prefix search
// typed in a box laid over a column heading, ordering by name or number with a click on the
// heading, and the doorway to a party's data, a new party, its declarations, or, in the
// delete mode, its deletion. What differs (state object, columns, texts, store, the panels
// handed over to) is given by each panel; the behaviour lives here once.
//
// The state object of each list outlives the panel, so that a list that comes back after a
// side trip (entered as Vuelta) finds its order, criteria and selection again. Each reload goes
// back to the store; the panel keeps nothing of its own between openings.
#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/PanelNavegado.h"
#include "registros/partes/cListaParte.h"
#include "valores/EstadoNavegacion.h"
#include "valores/cCriterio.h"
#include "paneles/controles/cUtilidadesGrid.h"

#include <QLineEdit>  // held by the grid utilities through a QPointer
#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

class QLabel;
class QPushButton;
class cFlexGrid;

// A text of the panels: a catalogue id, or, when the catalogue has none, a pair of literals
// (UTF-8) chosen by the language.
struct RotuloLista {
    int id = 0;
    const char* es = nullptr;
    const char* eu = nullptr;
    QString texto() const;
};

struct ColumnaLista {
    RotuloLista cabecera;
    int anchoTwips = 0;          // 0 hides the column
    Qt::Alignment alineacion = Qt::AlignLeft;
};

// What one list panel shows and says.
struct DisenoLista {
    QString nombrePanel;                   // objectName of the panel
    QString nombreGrid;                    // objectName of the grid
    QList<ColumnaLista> columnas;          // column 0 holds the party's code
    QList<int> columnasContadores;         // columns of the declaration counters
    int idTituloAbrir = 0;
    int idTituloEliminar = 0;
    RotuloLista tipDatos;                  // tip of cmdAceptar in the open mode
    RotuloLista tipEliminar;               // and in the delete mode
    int idTipNuevo = 0;
    int idDeclaraciones = 0;               // caption of CmdDeclaraciones
    RotuloLista resultado;                 // after the count, without criteria
    RotuloLista resultadoCriterios;        // after the count, with criteria
    RotuloLista criterioNombre;            // "... empieza por"
    RotuloLista criterioDni;
    int idTituloBorrado = 0;               // title of the delete messages
    int idNoBorrar = 0;                    // refusal: the party is in declarations
    int idPregunta = 0;                    // question: before the number,
    int idPreguntaEntre = 0;               //   between number and name,
    int idPreguntaFin = 0;                 //   after the name
    // cmdAceptar's and cmdCancelar's captions and Cancelar's tip.
    int idAceptar = kIdBotonDatos;
    int idCancelar = kIdBotonAtras;
    int idTipCancelar = kIdVolverMenuPrincipal;
    // A list that only chooses a party for the return being edited: no new party, no
    // declarations.
    bool seleccion = false;
};

class PanelLista : public PanelNavegado {
    Q_OBJECT
public:
    ~PanelLista() override;

    // Fills the grid from the store (result state) or lays out the search (search state),
    // selects the party of the state object and writes the help and result lines.
    void PresentaDatos();
    // Captions and tips of the opening, in the current language.
    void Anadir_captions();

    // The opening, once the panel is on the screen: the state set by ENTRADA, the first load.
    void Iniciar();
    // Closes the panel (and its frame in the main window).
    void Cerrar();

    // The small type, row height and scroll bars of a list's grid; and the arrow that shows its
    // ordering column. Shared by every panel that lists parties.
    static void PrepararGrid(cFlexGrid* grid);
    static QPixmap FlechaAscendente();
    // The arrow placed in the heading of the ordering column (1 name, 2 number).
    static void ColocarFlecha(QLabel* flecha, const cFlexGrid* grid, int orden);
    // The search layout: the criteria typed under their headings in row 1 of an emptied grid,
    // and the search box over the column under edit, with its text selected and the focus
    // (hidden when no column is under edit).
    static void MostrarBusqueda(cFlexGrid* grid, QLineEdit* caja, cUtilidadesGrid& utilidades,
                                const std::optional<TablaCriterios>& criterios,
                                const QString& seleccionActual);
    // True when the event is a lost focus of the search box that counts as leaving it.
    static bool AbandonaBusqueda(const QEvent* evento);

    // The row highlight and the grid's place for a page of rows.
    static constexpr QRgb kColorResaltado = 0x80C0FF;
    static constexpr int kFilasPorPagina = 15;

signals:
    // What the user asked for; the navigator answers by closing this panel and opening the next.
    // A new party (Nuevo) or the selected one (Abrir) on the data panel:
    void pideDatos(Navegacion::Modo modo);
    // The declarations of the selected party:
    void pideDeclaraciones(const QString& nombre, const QString& dni);

protected:
    void AlCerrar() override { m_cerrando = true; }
    PanelLista(DisenoLista diseno, cListaParte& estado, QWidget* parent);

    // Asks the store for the rows of the criteria in force, in ORDEN, and fills the grid.
    void CargarFlx();

    // What differs by party besides the design and the state object: the rows of the store
    // (each panel asks its state object, and hands them to RellenarFilas), and the deletion
    // of a party in the store.
    virtual void CargarFilas() = 0;
    virtual void Borrar(int32_t codigo) = 0;

    // The grid filled with the rows, the text of each cell given by `texto` (the party's
    // columns); no rows leave the heading and one empty row.
    template <class Fila>
    void RellenarFilas(const QList<Fila>& filas, QString (*texto)(const Fila&, int))
    {
        if (filas.isEmpty()) {
            LimpiarGrid();  // no row of an earlier result stays behind an empty one
            return;
        }
        RellenarGrid(filas.size(),
                     [&filas, texto](qsizetype fila, int columna) {
                         return texto(filas.at(fila), columna);
                     });
    }

    // Aceptar in the open mode: the selected party's data, or, on a selection list, the choice.
    virtual void Elegido();
    // The grid, for a selection list that reads the chosen row.
    const cFlexGrid* Grid() const { return m_grid; }

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void ConstruirControles();
    void ConstruirIconos();
    void Conectar();
    void Situar();
    void DefinirColumnas();
    void IniciarLista();
    void LimpiarGrid();
    // The `n` rows, the text of cell (fila, columna) from `celda`, rows counted from 0.
    void RellenarGrid(qsizetype n, const std::function<QString(qsizetype, int)>& celda);
    QString TextoCriterios() const;
    void SituarFlecha();
    void PresentaBotones();
    void PresentaResultado();
    void PresentaBusqueda();

    bool HayCriterios() const;
    void LeerFila();
    void MarcarFila();
    void PonerTitulo(const QString& titulo);

    // Handlers.
    void Pulsado(int fila, int columna);
    void Clic(int fila, int columna);
    void DobleClic(int fila, int columna);
    void Tecla(int tecla);
    void FilaCambiada();
    void BusquedaAbandonada();
    void Aceptar();
    void Buscar();
    void Todos();
    void Nuevo();
    void Declaraciones();

    DisenoLista m_diseno;
    cListaParte& m_estado;  // the list's state object, which outlives the panel
    cUtilidadesGrid Utilidades;
    bool ClicEnCabecera = false;
    bool CambioFilaActivo = false;
    bool m_cerrando = false;   // closing: a field left on the way out does nothing

    cFlexGrid* m_grid = nullptr;
    QLineEdit* txtBusqueda = nullptr;
    QLabel* picasc = nullptr;
    QLabel* lblayuda = nullptr;
    QLabel* lblResultado = nullptr;
    QPushButton* cmdBuscar = nullptr;
    QPushButton* cmdTodos = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* cmdNuevo = nullptr;
    QPushButton* CmdDeclaraciones = nullptr;
    QLabel* PicDatos = nullptr;
    QLabel* PicEliminar = nullptr;
    QLabel* PicAtras = nullptr;
    QLabel* PicCancelar = nullptr;
    // The selection panels' own pictures beside cmdAceptar and cmdCancelar.
    QLabel* PicAce = nullptr;
    QLabel* PicCan = nullptr;
    QLabel* PicNuevo = nullptr;
    QLabel* PicDeclaraciones = nullptr;
};
