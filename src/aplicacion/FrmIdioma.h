#pragma once
// The first-run chooser of language (and of the update check at start-up). Its captions show
// both languages at once.
#include "plataforma/Idioma.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

class FrmIdioma : public QDialog {
    Q_OBJECT
public:
    explicit FrmIdioma(QWidget* parent = nullptr);

    void Anadir_captions();

protected:
    void showEvent(QShowEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void alCambiarActOnline(bool marcado);
    void elegir(Idioma idioma);

    QGroupBox* Frame1 = nullptr;
    QPushButton* cmdcastellano = nullptr;
    QPushButton* cmdeuskera = nullptr;
    QCheckBox* chkActOnline = nullptr;
    QLabel* LblAct = nullptr;
    bool m_abierto = false;
};
