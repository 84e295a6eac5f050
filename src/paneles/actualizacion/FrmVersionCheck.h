#pragma once
// The outcome of a check that read the version file: the running version beside the one
// offered, the download address, the program's file and the server's description. When the
// versions are equal the download button is collapsed, which is how the panel says that
// nothing newer exists. Its captions are fixed pairs, Basque / Spanish, in either language.
#include <QDialog>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QGroupBox;

class FrmVersionCheck : public QDialog {
    Q_OBJECT
public:
    explicit FrmVersionCheck(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void construir();
    void rellenar();
    void CmdActualizar_Click();
    void TxtUrl_Click();

    QGroupBox* FraVersion = nullptr;
    QLabel* LblAct = nullptr;
    QLabel* LblDisp = nullptr;
    QLabel* LblActual = nullptr;
    QLabel* LblDisponible = nullptr;
    QLabel* LblUrl = nullptr;
    QLineEdit* TxtUrl = nullptr;
    QLabel* LblArchivo = nullptr;
    QLineEdit* TxtPath = nullptr;
    QLabel* LblInfo = nullptr;
    QPlainTextEdit* TxtInfo = nullptr;
    QPushButton* CmdActualizar = nullptr;
    QPushButton* CmdContinuar = nullptr;
};
