#pragma once
// The panel on which one presenter is entered or changed: the contributor's panel for a party
// that is always national and official, so without kinds of document or domicile, country,
// typed province or counters, and with a telephone. It works straight on the shared record
// PreDatos(): a field left with a text other than the record's writes it there (and only that
// marks the presenter as changed), and the panel redraws itself from the record
// (PresentarPresentador). Opened from the main menu or from the list of presenters
// (PreDatos().LISTA "S"), to which it hands back on closing.
#include <QWidget>
#include <cstdint>

class CajaNum;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class BloqueDomicilio;
class SalidaCampos;

class FrmPreDatos : public QWidget {
    Q_OBJECT
public:
    // Builds the panel for PreDatos() as its MODO, LISTA and CSPR stand, and shows it.
    static FrmPreDatos* Abrir();

    explicit FrmPreDatos(QWidget* parent = nullptr);

    // Asks the store whether the record is valid; shows the verdict's message and puts the
    // focus on the field concerned when it is not.
    bool ValidarCampos();
    // Saves the record; shows the message of a refusal. Answers the store's verdict.
    int16_t GuardarPresentador();

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
    void CargarDatosPresentador();
    void PresentarPresentador();
    void ActivarSelectores();
    void Redibujar();
    bool SelectorAbierto() const;

    void Aceptar();
    void Cancelar();
    void Cerrar();

    QFrame* fraDatos = nullptr;
    QFrame* fraBotones = nullptr;
    QLineEdit* txtdnip = nullptr;
    QLineEdit* txtnombrep = nullptr;
    QLineEdit* txttelefonop = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QLabel* PicAce = nullptr;
    QLabel* PicCan = nullptr;

    QLabel* lbldnip = nullptr;
    QLabel* lblnombrep = nullptr;
    QLabel* lbltelefonop = nullptr;

    BloqueDomicilio* m_domicilio = nullptr;  // street type to municipality, with the pickers
    SalidaCampos* m_salidas = nullptr;

    bool m_modificado = false;
    bool m_saltarValidacion = false;
    bool m_cerrando = false;
    bool m_cerrado = false;
};
