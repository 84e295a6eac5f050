#pragma once
// The import panel: the exchange file to read, the automatic mode, and, once the import has
// run, its four counters and where the error file is. Its state lives in Importar(); the
// import itself is Importar().Ejecutar(), which this panel drives and whose questions and
// closing message it shows.
#include "paneles/dialogos/PanelNavegado.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;

class FrmImportar final : public PanelNavegado {
    Q_OBJECT
public:
    // Builds the panel with the start values of an opening and shows it in the main window.
    static FrmImportar* Abrir();

    explicit FrmImportar(QWidget* parent = nullptr);

    void Anadir_captions();
    void MostrarDatos();
    void MostrarBotones();

private:
    void Construir();
    void Conectar();
    void Modificar();
    void Automatico(bool marcado);
    void Aceptar();
    void Avance(int lineas, double estimado, bool fin);
    void Cerrar();

    QGroupBox* Frame1 = nullptr;
    QLabel* LblFichero = nullptr;
    QPushButton* CmdModificar = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* LblTotal = nullptr;
    QLabel* LblImportados = nullptr;
    QLabel* LblIncorrectos = nullptr;
    QLabel* LblSustituidos = nullptr;
    QLabel* lblIgnorados = nullptr;
    QCheckBox* ChkAutomatico = nullptr;
    QLabel* lblError = nullptr;
    QLabel* lblError2 = nullptr;
    QProgressBar* progreso = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;

    double m_paso = 0;       // progress of one line
    double m_valor = 0;      // the bar's value, unrounded
};
