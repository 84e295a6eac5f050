#pragma once
// The outcome of a failed check: no file came back (no connection, server down or silent, a
// missing page), or the file held no three-part version. It shows the reason in Spanish and in
// Basque at once, and lets the user switch the check at start-up off, or on again.
#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

class FrmSinConexion : public QDialog {
    Q_OBJECT
public:
    explicit FrmSinConexion(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void construir();
    void rellenar();
    void centrarEnPantalla();
    void ChkNoPreg_Click(bool marcado);

    QLabel* lblTituloC = nullptr;
    QLabel* lblTituloE = nullptr;
    QCheckBox* ChkNoPreg = nullptr;
    QPushButton* CmdContinuar = nullptr;
};
