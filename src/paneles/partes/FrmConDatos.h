#pragma once
// The panel on which one contributor is entered or changed. It works straight on the shared
// record ConDatos(): each field writes into the record when it is left, and the panel then
// redraws itself from the record (PresentarContribuyente), which alone decides which fields
// are open. Aceptar validates through the store and saves; Cancelar just closes. Opened from
// the main menu or from the list of contributors, to which the navigator hands back on
// closing.
//
// Its own beside the presenter's: the kinds of document and domicile (a foreign domicile has a
// country and a typed province), the counters of declarations, and a change that counts as
// soon as it is typed.
#include "paneles/partes/PanelDatos.h"

class CajaNum;
class QCheckBox;
class QLineEdit;

class FrmConDatos final : public PanelDatos {
    Q_OBJECT
public:
    // Builds the panel for ConDatos() as `ruta` and CSCO stand, and shows it.
    static FrmConDatos* Abrir(const Navegacion::RutaParte& ruta);

    explicit FrmConDatos(const Navegacion::RutaParte& ruta, QWidget* parent = nullptr);

    bool ValidarCampos() override;
    // Saves the record; shows the message of a refusal. Answers whether it was saved.
    bool GuardarContribuyente();

private:
    void Construir();
    void OrdenDeTabulacion();
    void Conectar();
    void Anadir_captions() override;
    void CargarDatos() override { CargarDatosContribuyente(); }
    void CargarDatosContribuyente();
    void Redibujar() override;
    void PresentarContribuyente();
    void ActivarSelectores();
    bool Guardar() override { return GuardarContribuyente(); }
    void AnotarEnLista() override;

    // Clicks on the check boxes.
    void ClicTipoDni(bool marcado);
    void ClicTipoDomicilio(bool marcado);

    QCheckBox* chktipodni = nullptr;
    QCheckBox* chktipodomi = nullptr;
    QLineEdit* txtdnic = nullptr;
    QLineEdit* txtnombrec = nullptr;
    QLineEdit* txtpais = nullptr;
    CajaNum* txtnumsp = nullptr;
    CajaNum* txtnumtr = nullptr;

    QLabel* lbldnic = nullptr;
    QLabel* lblnombrec = nullptr;
    QLabel* lblpais = nullptr;
    QLabel* lblnumsp = nullptr;
    QLabel* lblnumtr = nullptr;

    bool m_panelListo = false;
};
