#pragma once
// The panel that prints one stored return on form 747: the kind of sheet (official or draft),
// with or without the presenter, which copies, and the date of presentation. Aceptar prints
// the copies in their fixed order, each a print document of its own, and closes; "Vista
// previa" shows exactly those copies and "PDF" writes them to a file. The options live in
// ImOf(); the navigator hands the panel the return to print, already loaded in DecDatos() with
// its operation in Operacion(), and the panel loads its presenter into PreDatos(), from which
// the drawing reads the sheet. When it closes, the navigator goes back to the panel
// ImOf().ENTRADA names.
#include "paneles/dialogos/PanelNavegado.h"

class cDecDatos;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class FrmImprimir : public PanelNavegado {
    Q_OBJECT
public:
    // `declaracion` is the return to print.
    explicit FrmImprimir(const cDecDatos& declaracion, QWidget* parent = nullptr);
    // Opens the panel on `declaracion` as a child of the main window, with ImOf().CSDE and
    // ENTRADA already set.
    static FrmImprimir* Abrir(const cDecDatos& declaracion);

    void Anadir_captions();

private:
    void crearControles();
    void conectar();
    // True when the date of presentation is bad (the message has been shown).
    bool ValidarFechaPresentacion();
    void ValoresIniciales();
    void CargarDatosPresentador();
    void RefrescarOpciones();

    void alElegirPresentador(int elemento);
    void alElegirTipo(int elemento);
    void alMarcarCopia(QCheckBox* caja, QString& propiedad);
    void Aceptar();
    void VistaPrevia();
    void GuardarPdf();
    void OpcionesImpresora();
    bool conPresentador() const;

    const cDecDatos& m_declaracion;
    bool Cargado = false;

    QGroupBox* frameTipoImpreso = nullptr;
    QButtonGroup* optTipoImpreso = nullptr;
    QGroupBox* framePresentador = nullptr;
    QButtonGroup* optPresentador = nullptr;
    QCheckBox* chkCopiaBanco = nullptr;
    QCheckBox* chkCopiaAdministracion = nullptr;
    QCheckBox* chkCopiaInteresado = nullptr;
    QCheckBox* chkCopiaInformatica = nullptr;
    QLabel* lblFechaPresentacion = nullptr;
    QLineEdit* txtFechaPresentacion = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QPushButton* btnOpcionesImpresora = nullptr;
    QPushButton* cmdVistaPrevia = nullptr;
    QPushButton* cmdPdf = nullptr;
    QLabel* PicImp = nullptr;
    QLabel* PicAce = nullptr;
    QLabel* PicCan = nullptr;
};
