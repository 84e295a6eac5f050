#pragma once
// The panel on which one contributor is entered or changed. It works straight on the shared
// record ConDatos(): each field writes into the record when it is left, and the panel then
// redraws itself from the record (PresentarContribuyente), which alone decides which fields
// are open. Aceptar validates through the store and saves; Cancelar just closes. Opened from
// the main menu or from the list of contributors (ConDatos().LISTA "S"), to which it hands
// back on closing.
#include <QWidget>
#include <cstdint>

class CajaNum;
class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class BloqueDomicilio;
class SalidaCampos;

class FrmConDatos : public QWidget {
    Q_OBJECT
public:
    // Builds the panel for ConDatos() as its MODO, LISTA and CSCO stand, and shows it.
    static FrmConDatos* Abrir();

    explicit FrmConDatos(QWidget* parent = nullptr);

    // Asks the store whether the record is valid; shows the verdict's message and puts the
    // focus on the field concerned when it is not.
    bool ValidarCampos();
    // Saves the record; shows the message of a refusal. Answers the store's verdict.
    int16_t GuardarContribuyente();

    bool Modificado() const { return m_modificado; }
    bool SaltarValidacion() const { return m_saltarValidacion; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construir();
    void OrdenDeTabulacion();
    void Conectar();
    void Iniciar();
    void Anadir_captions();
    void CargarListas();
    void CargarDatosContribuyente();
    void PresentarContribuyente();
    void ActivarSelectores();
    void Redibujar();
    bool SelectorAbierto() const;

    // Clicks on the check boxes.
    void ClicTipoDni(bool marcado);
    void ClicTipoDomicilio(bool marcado);

    void Aceptar();
    void Cancelar();
    void Cerrar();

    QFrame* fraDatos = nullptr;
    QFrame* fraBotones = nullptr;
    QCheckBox* chktipodni = nullptr;
    QCheckBox* chktipodomi = nullptr;
    QLineEdit* txtdnic = nullptr;
    QLineEdit* txtnombrec = nullptr;
    QLineEdit* txtpais = nullptr;
    CajaNum* txtnumsp = nullptr;
    CajaNum* txtnumtr = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QLabel* PicAce = nullptr;
    QLabel* PicCan = nullptr;

    QLabel* lbldnic = nullptr;
    QLabel* lblnombrec = nullptr;
    QLabel* lblpais = nullptr;
    QLabel* lblnumsp = nullptr;
    QLabel* lblnumtr = nullptr;

    BloqueDomicilio* m_domicilio = nullptr;  // street type to municipality, with the pickers
    SalidaCampos* m_salidas = nullptr;

    bool m_modificado = false;
    bool m_panelListo = false;
    bool m_saltarValidacion = false;
    bool m_cerrando = false;
    bool m_cerrado = false;
};
