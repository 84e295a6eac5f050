#pragma once
// The panel on which one return is entered. It edits the shared record DecDatos() in place:
// each field writes into the record when it is left, and the whole panel is then drawn again
// from the record by one routine, PresentarDeclaracion. The record, not the panel, is the truth.
//
// The panel is a frame that holds blocks, each owning its part of the form and of the record:
// BloqueVehiculo (date, operation, reference, vehicle) and BloqueImportes (reductions and
// amounts) in FraDeclaracion, BloquePresentador in FraPresentador, BloqueSujeto and
// BloqueTransmitente in FraSujetoPasivo and FraTransmitente under the tab strip tabTerceros.
// The frame keeps the buttons (fraBotones: cmdAceptar, cmdCancelar, cmdImprimir), the tabs,
// the order of the checks on saving and what joins the blocks (the calculation, the drawing,
// one party's address mirrored on the other side).
//
// The panel never opens another one: it says what the user asked for (a party chosen from a
// list, the print) through its signals, and the navigator marks the side trip on the form's
// route, closes it and opens the next panel. The route (how the form is entered, what the
// record is to hold, where it came from) is the navigator's, handed to the panel when it opens.
#include "paneles/dialogos/PanelNavegado.h"
#include "paneles/declaracion/EnlaceDeclaracion.h"
#include "valores/EstadoNavegacion.h"

#include <cstdint>

class BloqueDeclaracion;
class BloqueImportes;
class BloquePresentador;
class BloqueSujeto;
class BloqueTransmitente;
class BloqueVehiculo;
class QFrame;
class QPushButton;
class QStackedLayout;
class QTabBar;
class SalidaCampos;

class FrmDeclaracion final : public PanelNavegado {
    Q_OBJECT
public:
    // Builds the panel for DecDatos() as `ruta` and its CSDE stand, opens it and shows it in
    // the main window with the focus on the date of accrual. The route outlives the panel.
    static FrmDeclaracion* Abrir(Navegacion::RutaDeclaracion& ruta);

    explicit FrmDeclaracion(Navegacion::RutaDeclaracion& ruta, QWidget* parent = nullptr);

    // Opening, in its order: captions, pickers, record, drawing, selectors.
    void Iniciar();

    // The routines other panels and tests may call.
    void Anadir_captions();
    void FormatosFecha();
    void CalcularValores();
    bool ValidarCampos();
    // The date in txtfechad checked and, when good, stored with what a new date does.
    bool ComprobarFecha();
    void PresentarDeclaracion();
    void ActivarSelectores();

    // Closes the panel (its sub-window in the main window).
    void Cerrar();

signals:
    // A party is to be chosen from a list. The panel is still open.
    void pideEleccion(EleccionParte parte);
    // The return (saved, CSDE its code) is to be printed. The panel is still open.
    void pideImpresion(int32_t csde);

protected:
    void AlCerrar() override { m_cerrando = true; }
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // Construction.
    void Construir();
    void ConstruirBotones();
    void Disponer();
    void OrdenDeTabulacion();
    void Conectar();
    // What the blocks ask of the frame.
    EnlaceDeclaracion Enlace();
    // The blocks in the order they are drawn and tabbed through.
    QList<BloqueDeclaracion*> Bloques() const;
    bool SelectorAbierto() const;

    // Opening.
    void CargarListas();
    void CargarDatosFormulario();
    void FormatearImportes();
    void CargarNombres();
    void SeleccionarOperacion();

    void Modificado();
    void Redibujar();

    // Parties.
    bool MismaParte() const;
    void EspejoDomicilio(bool desdeSujeto);
    void MostrarPestana(int pestana);
    void CambioDePestana(int pestana);
    void ClicPestana(int pestana);
    void Elegir(EleccionParte parte);

    // The buttons.
    void Aceptar();
    void Imprimir();
    bool Guardar();
    // The stored return CSDE loaded into the record and drawn, in place of what was typed.
    void CargarGuardada();
    void AnotarEnLista(int32_t codigo);

    // Frames and tabs.
    QFrame* FraDeclaracion = nullptr;
    QFrame* FraPresentador = nullptr;
    QTabBar* tabTerceros = nullptr;
    QFrame* FraSujetoPasivo = nullptr;
    QFrame* FraTransmitente = nullptr;
    QStackedLayout* m_pilaTerceros = nullptr;  // the two frames in one place
    QFrame* fraBotones = nullptr;

    // The blocks, children of the panel.
    BloqueVehiculo* m_vehiculo = nullptr;
    BloqueImportes* m_importes = nullptr;
    BloquePresentador* m_presentador = nullptr;
    BloqueSujeto* m_sujeto = nullptr;
    BloqueTransmitente* m_transmitente = nullptr;

    // The buttons.
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* cmdImprimir = nullptr;

    SalidaCampos* m_salidas = nullptr;
    Navegacion::RutaDeclaracion& m_ruta;

    bool m_saltarValidacion = false;
    bool m_mostrandoPestana = false;  // the panel itself selects a tab
    bool m_cerrando = false;
    bool m_activado = false;
};
