#pragma once
// Preferences: the language and the update check at start-up.
#include "plataforma/Idioma.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

class frmPreferencias : public QDialog {
    Q_OBJECT
public:
    explicit frmPreferencias(QWidget* parent = nullptr);

    void Anadir_captions();
    Idioma idiomaElegido() const { return m_idioma; }

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    void reflejarAjustes();
    void actualizarAhora();
    void aceptar();

    QLabel* lblIdioma = nullptr;
    QLabel* lblActualizaciones = nullptr;
    QCheckBox* chkActOnline = nullptr;
    QLabel* lblActAhora = nullptr;
    QRadioButton* optCast = nullptr;
    QRadioButton* optEusk = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    Idioma m_idioma;  // the language chosen, stored only on acceptance
};
