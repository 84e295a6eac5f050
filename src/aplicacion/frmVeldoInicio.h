#pragma once
// The splash shown at every start: title and version for at least three seconds, or four when
// the update check runs under it.
#include <QWidget>

class QLabel;

class frmVeldoInicio : public QWidget {
    Q_OBJECT
public:
    explicit frmVeldoInicio(QWidget* parent = nullptr);

    // Shows the splash and runs its whole sequence, waiting until its end time.
    void Mostrar();

private:
    QLabel* Label1 = nullptr;
    QLabel* lblTitulo = nullptr;
    QLabel* lblTitulo1 = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* LblAct = nullptr;
    QLabel* lblcopy = nullptr;
};
