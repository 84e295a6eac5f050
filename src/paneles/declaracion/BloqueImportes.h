#pragma once
// The amounts of the declaration form: the reductions of the base (50 % and 30 %), exempt and
// not subject, the taxable base typed, and what the calculation shows (the reduced base, the
// rate, typed only for an operation without a fixed one, the quota, the deduction and the
// total). A change that moves the amounts asks the form for the calculation.
#include "paneles/declaracion/BloqueDeclaracion.h"

class CajaNum;
class QCheckBox;

class BloqueImportes final : public BloqueDeclaracion {
    Q_OBJECT
public:
    // The controls made inside `marco`.
    BloqueImportes(QWidget* panel, QWidget* marco, cDecDatos& registro);

    void Disponer(QBoxLayout* lineas) override;
    void Anadir_captions() override;
    QList<QWidget*> OrdenDeTabulacion() const override;

    // The digits and formats of the amounts.
    void FormatearImportes();
    // The rate is the operation's: the box is locked.
    bool TipoBloqueado() const;

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

private:
    void ConectarCampos() override;
    void PresentarCampos() override;
    void PresentarReducciones();
    void PresentarImportes();

    void SalirBase();
    void SalirTipo();
    void ClicExento(bool marcado);
    void ClicNoSujeto(bool marcado);
    void ClicReduccion();
};
