#pragma once
// The transmitter of the declaration form: the button that chooses one from the list of
// contributors, the boxes of a foreign number and a foreign address, the tax number typed
// (looked up among the contributors), the name, the address, whose fields and pickers are a
// BloqueDomicilio, and the country of a foreign address.
//
// The button and the box of a foreign number are ways out of a bad field, as Cancelar is:
// their press comes before the field is left, and the field's checks do not stop the user.
#include "paneles/declaracion/BloqueDeclaracion.h"

class BloqueDomicilio;
class QCheckBox;
class QPushButton;

class BloqueTransmitente final : public BloqueDeclaracion {
    Q_OBJECT
public:
    // The controls made inside `marco`.
    BloqueTransmitente(QWidget* panel, QWidget* marco, cDecDatos& registro);

    void Disponer(QBoxLayout* lineas) override;
    void Anadir_captions() override;
    void ActivarSelectores() override;
    QList<QWidget*> OrdenDeTabulacion() const override;

    BloqueDomicilio* Domicilio() const { return m_dom; }
    // The field that takes the focus when the transmitter's tab is chosen.
    QLineEdit* CampoDni() const { return txtdnitr; }

    QPushButton* cmdTransmitente = nullptr;
    QCheckBox* chktipodnitr = nullptr;
    QCheckBox* chktipodomitr = nullptr;
    QLineEdit* txtdnitr = nullptr;
    QLineEdit* txtnombretr = nullptr;
    QLineEdit* txtpaistr = nullptr;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void ConectarCampos() override;
    void PresentarCampos() override;
    void SalirDni();
    void ClicTipoDni(bool marcado);
    void ClicTipoDomi(bool marcado);

    BloqueDomicilio* m_dom = nullptr;
};
