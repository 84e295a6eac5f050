#pragma once
// The panel on which one return is entered. It edits the shared record DecDatos() in place:
// each field writes into the record when it is left, and the whole panel is then drawn again
// from the record by one routine, PresentarDeclaracion. The record, not the panel, is the truth.
//
// Four frames: FraDeclaracion (date, operation, reference, vehicle, amounts), FraPresentador,
// and FraSujetoPasivo and FraTransmitente under the tab strip tabTerceros; fraBotones holds
// cmdAceptar, cmdCancelar and cmdImprimir.
//
// The panel never opens another one: it says what the user asked for (a party chosen from a
// list, the print) through its signals, and the navigator marks the side trip on the form's
// route, closes it and opens the next panel. The route (how the form is entered, what the
// record is to hold, where it came from) is the navigator's, handed to the panel when it opens.
#include "paneles/dialogos/PanelNavegado.h"
#include "valores/EstadoNavegacion.h"

#include <cstdint>

class BloqueDomicilio;
class CajaNum;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedLayout;
class QTabBar;
class SalidaCampos;

// Which list a party is chosen from.
enum class EleccionParte { Sujeto, Transmitente, Presentador };

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
    void ConstruirDeclaracion();
    void ConstruirPresentador();
    void ConstruirPartes();
    void ConstruirBotones();
    void Disponer();
    void OrdenDeTabulacion();
    void Conectar();
    void ConectarCampos();
    void ConectarPartes();

    // Opening.
    void CargarListas();
    void CargarDatosFormulario();
    void FormatearImportes();
    void CargarNombres();
    void SeleccionarOperacion();

    // Drawing.
    void PresentarVehiculo();
    void PresentarImportes();
    void PresentarReducciones();
    void PresentarPartes();

    // Leaving the fields and clicking.
    void SalirTexto(QLineEdit* campo, QString& valor);
    void SalirFecha();
    void ActualizarOperacionPorFecha();
    void SalirOperacion();
    void ElegirOperacion(bool alSalir);
    void SalirClasificacion();
    void SalirCilindrada();
    void SalirBase();
    void SalirTipo();
    void ClicAdquirido(bool marcado);
    void ClicMotor(bool diesel);
    void ClicExento(bool marcado);
    void ClicNoSujeto(bool marcado);
    void ClicReduccion();
    void ClicConPresentador(bool marcado);
    void Modificado();
    void Redibujar();

    // Parties.
    bool MismaParte() const;
    void SalirDniSujeto();
    void SalirDniTransmitente();
    void ClicTipoDniTr(bool marcado);
    void ClicTipoDomiTr(bool marcado);
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

    // The return.
    QLineEdit* txtfechad = nullptr;
    QLineEdit* txtoperacion = nullptr;
    QComboBox* cmbOperacion = nullptr;
    QLineEdit* txtreferencia = nullptr;
    QCheckBox* chkAdquirido = nullptr;
    QLineEdit* txtmarca = nullptr;
    QLineEdit* txttipo = nullptr;
    QLineEdit* txtmodelo = nullptr;
    QLineEdit* txtbastidor = nullptr;
    CajaNum* txtclasificacion = nullptr;
    CajaNum* txtcilindrada = nullptr;
    QFrame* optmotor = nullptr;
    QRadioButton* optDiesel = nullptr;
    QRadioButton* optGasolina = nullptr;
    QCheckBox* chkexento = nullptr;
    QCheckBox* chknosujeto = nullptr;
    QCheckBox* chkReduccion1 = nullptr;
    QCheckBox* chkReduccion2 = nullptr;
    CajaNum* txtbasei = nullptr;
    CajaNum* txtBaseIReducida = nullptr;
    CajaNum* txttipoimp = nullptr;
    CajaNum* txtcuota = nullptr;
    CajaNum* txtdeduccion = nullptr;
    CajaNum* txttotal = nullptr;

    // The presenter.
    QPushButton* CmdPresentador = nullptr;
    QCheckBox* chkConPresentador = nullptr;
    QLineEdit* txtdnipr = nullptr;
    QLineEdit* txtnombrepr = nullptr;

    // The subject and the transmitter.
    QPushButton* cmdSujetoPasivo = nullptr;
    QLineEdit* txtdnisp = nullptr;
    QLineEdit* txtnombresp = nullptr;
    BloqueDomicilio* m_domSp = nullptr;
    QPushButton* cmdTransmitente = nullptr;
    QCheckBox* chktipodnitr = nullptr;
    QCheckBox* chktipodomitr = nullptr;
    QLineEdit* txtdnitr = nullptr;
    QLineEdit* txtnombretr = nullptr;
    QLineEdit* txtpaistr = nullptr;
    BloqueDomicilio* m_domTr = nullptr;

    // The buttons.
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* cmdImprimir = nullptr;

    // Labels, captioned by Anadir_captions.
    QList<QPair<QLabel*, int>> m_etiquetas;

    SalidaCampos* m_salidas = nullptr;
    Navegacion::RutaDeclaracion& m_ruta;

    bool m_saltarValidacion = false;
    bool m_presentandoDatos = false;
    bool m_cargandoOperaciones = false;
    bool m_mostrandoPestana = false;  // the panel itself selects a tab
    bool m_cerrando = false;
    bool m_activado = false;
};
