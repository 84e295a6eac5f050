#pragma once
// The about box: title, version and a short description, in the current language.
#include <QDialog>

class QLabel;
class QPushButton;

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* e) override;

private:
    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblcopy = nullptr;
    QPushButton* cmdOK = nullptr;
    bool m_abierto = false;
};
