#pragma once
// The presenter of the declaration form: the button that chooses one from the list of
// presenters, the box that shows the return has one (and only takes it away), and the chosen
// presenter's number and name, shown and never typed.
#include "paneles/declaracion/BloqueDeclaracion.h"

class QCheckBox;
class QPushButton;

class BloquePresentador final : public BloqueDeclaracion {
    Q_OBJECT
public:
    // The controls made inside `marco`.
    BloquePresentador(QWidget* panel, QWidget* marco, cDecDatos& registro);

    void Disponer(QBoxLayout* lineas) override;
    void Anadir_captions() override;
    void ActivarSelectores() override;
    QList<QWidget*> OrdenDeTabulacion() const override;

    QPushButton* CmdPresentador = nullptr;
    QCheckBox* chkConPresentador = nullptr;
    QLineEdit* txtdnipr = nullptr;
    QLineEdit* txtnombrepr = nullptr;

private:
    void ConectarCampos() override;
    void PresentarCampos() override;
    void ClicConPresentador(bool marcado);
};
