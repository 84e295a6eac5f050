#pragma once
// The subject (sujeto pasivo) of the declaration form: the button that chooses one from the
// list of contributors, the tax number typed (looked up among the contributors), the name and
// the address, whose fields and pickers are a BloqueDomicilio. A subject has an official
// number and a national address.
#include "paneles/declaracion/BloqueDeclaracion.h"

class BloqueDomicilio;
class QPushButton;

class BloqueSujeto final : public BloqueDeclaracion {
    Q_OBJECT
public:
    // The controls made inside `marco`.
    BloqueSujeto(QWidget* panel, QWidget* marco, cDecDatos& registro);

    void Disponer(QBoxLayout* lineas) override;
    void Anadir_captions() override;
    void ActivarSelectores() override;
    QList<QWidget*> OrdenDeTabulacion() const override;

    BloqueDomicilio* Domicilio() const { return m_dom; }
    // The field that takes the focus when the subject's tab is chosen.
    QLineEdit* CampoDni() const { return txtdnisp; }

    QPushButton* cmdSujetoPasivo = nullptr;
    QLineEdit* txtdnisp = nullptr;
    QLineEdit* txtnombresp = nullptr;

private:
    void ConectarCampos() override;
    void PresentarCampos() override;
    void SalirDni();
    // A refused number: the message under the form's title, the subject drawn again, the
    // focus back on the number.
    void RechazarDni(int idMensaje, bool mostrarPestana);

    BloqueDomicilio* m_dom = nullptr;
};
