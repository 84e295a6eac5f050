#pragma once
// The export panel: the contributors found by the store in one grid (searched and ordered as in
// the party lists), the ones chosen for the file in a second grid, and the file they go to.
// Its state and both tables live in Exportar(); the checks and the writing of the file are
// Exportar()'s, and this panel shows what they answer.
#include "paneles/dialogos/PanelNavegado.h"
#include "paneles/controles/cUtilidadesGrid.h"

#include <QLineEdit>  // held by the grid utilities through a QPointer

class QLabel;
class QPushButton;
class cFlexGrid;

class FrmExportar final : public PanelNavegado {
    Q_OBJECT
public:
    // Builds the panel with the start values of an opening, loads the contributors and shows it
    // in the main window.
    static FrmExportar* Abrir();

    explicit FrmExportar(QWidget* parent = nullptr);

    void Anadir_captions();
    // Asks the store again (normal mode) or lays out the search (search mode), and shows both
    // grids and their lines.
    void PresentaDatos();
    void PresentaBotones();

    static constexpr int kFilasPorPagina = 13;

protected:
    void AlCerrar() override { m_cerrando = true; }
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construir();
    void Situar();
    void Conectar();
    void DefinirColumnas(cFlexGrid* grid);
    // `recargar` false: only the selection moved; the found rows are those last asked for.
    void Presentar(bool recargar);
    void PresentaResultado(bool recargar);
    void PresentaBusqueda();
    void PresentaSeleccionados();
    void SituarFlecha();
    void MarcarEncontrado();
    void MarcarSeleccionado();

    // Handlers.
    void Pulsado(int fila);
    void Clic(int fila, int columna);
    void FilaCambiada();
    void ClicSeleccionados(int fila);
    void FilaSeleccionadosCambiada();
    void BusquedaAbandonada();
    void Buscar();
    void Todos();
    void SelUno();
    void SelTodos();
    void DeselUno();
    void DeselTodos();
    void Modificar();
    void Aceptar();
    void Cerrar();

    cUtilidadesGrid Utilidades;
    cUtilidadesGrid UtilidadesSeleccionados;
    bool ClicEnCabecera = false;
    bool CambioFilaActivo = false;
    bool m_cerrando = false;

    QLabel* lblTitulo = nullptr;
    QLabel* lblayuda = nullptr;
    cFlexGrid* flxDeclaraciones = nullptr;
    QLabel* lblResultado1 = nullptr;
    QPushButton* cmdBuscar = nullptr;
    QPushButton* cmdTodos = nullptr;
    QLineEdit* txtBusqueda = nullptr;
    QPushButton* CmdSelUno = nullptr;
    QPushButton* CmdSelTodos = nullptr;
    QPushButton* CmdDeselUno = nullptr;
    QPushButton* CmdDeselTodos = nullptr;
    cFlexGrid* FlxSeleccionados = nullptr;
    QLabel* LblResultado2 = nullptr;
    QLabel* LblFichero = nullptr;
    QPushButton* CmdModificar = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QLabel* picasc = nullptr;
};
