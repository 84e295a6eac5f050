#pragma once
// The first lines of the declaration form: the date of accrual, the operation (its code and
// its list), the reference, and the vehicle (acquired abroad, make, type, model, frame
// number, classification, cylinder capacity, engine). A new date reloads the operations; a
// new operation applies its rate and reductions, which the form then draws.
#include "paneles/declaracion/BloqueDeclaracion.h"

class CajaNum;
class QCheckBox;
class QComboBox;
class QFrame;
class QRadioButton;

class BloqueVehiculo final : public BloqueDeclaracion {
    Q_OBJECT
public:
    // The controls made inside `marco`.
    BloqueVehiculo(QWidget* panel, QWidget* marco, cDecDatos& registro);

    void Disponer(QBoxLayout* lineas) override;
    void Anadir_captions() override;
    QList<QWidget*> OrdenDeTabulacion() const override;

    // The date's mask in the program's language.
    void FormatosFecha();
    // The list of operations of the record's date, the record's operation chosen in it.
    void SeleccionarOperacion();
    // The date in txtfechad checked and, when good, stored with what a new date does.
    bool ComprobarFecha();
    // The text of the operation chosen in the list.
    QString TextoOperacion() const;
    // Where the form puts the focus when it opens.
    QWidget* CampoInicial() const;

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

private:
    void ConectarCampos() override;
    void PresentarCampos() override;

    void SalirFecha();
    void ActualizarOperacionPorFecha();
    void SalirOperacion();
    void ElegirOperacion(bool alSalir);
    void SalirClasificacion();
    void SalirCilindrada();
    void ClicAdquirido(bool marcado);
    void ClicMotor(bool diesel);
    // The list of operations filled by the block itself: no choice of the user.
    void LlenarOperaciones(const QStringList& lista);

    bool m_cargandoOperaciones = false;
};
