#include "paneles/actualizacion/FrmSinConexion.h"

#include "catalogo/IdsCatalogo.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/Proceso.h"
#include "catalogo/Catalogo.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <QVBoxLayout>

FrmSinConexion::FrmSinConexion(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FrmSinConexion"));
    setModal(true);
    // Over every window, so that a check started behind the splash is seen.
    setWindowFlag(Qt::WindowStaysOnTopHint, true);
    construir();
    rellenar();
}

void FrmSinConexion::construir()
{
    lblTituloC = new QLabel(this);
    lblTituloC->setObjectName(QStringLiteral("lblTituloC"));
    lblTituloC->setWordWrap(true);
    lblTituloE = new QLabel(this);
    lblTituloE->setObjectName(QStringLiteral("lblTituloE"));
    lblTituloE->setWordWrap(true);
    ChkNoPreg = new QCheckBox(QStringLiteral("Berriro kontsulta ez egin / No volver a consultar"), this);
    ChkNoPreg->setObjectName(QStringLiteral("ChkNoPreg"));
    CmdContinuar = new QPushButton(QStringLiteral("Aurrera jarraitu... Continuar..."), this);
    CmdContinuar->setObjectName(QStringLiteral("CmdContinuar"));
    CmdContinuar->setDefault(true);
    connect(CmdContinuar, &QPushButton::clicked, this, &QDialog::accept);

    auto* botones = new QHBoxLayout;
    botones->addWidget(ChkNoPreg);
    botones->addStretch(1);
    botones->addWidget(CmdContinuar);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(lblTituloC);
    todo->addWidget(lblTituloE);
    todo->addStretch(1);
    todo->addLayout(botones);
    resize(440, 180);
}

void FrmSinConexion::rellenar()
{
    // Rows are taken as they are, whatever the language, so both languages always show.
    const bool sinConexion = ActOnline().SitAct == SitActualizacion::SinConexion;
    setWindowTitle(sinConexion ? TextoFila(kIdFalloConexion) + QStringLiteral(" / ")
                   + TextoFila(kIdFalloConexion + 10000) : TextoFila(kIdDatosErroneos)
                   + QStringLiteral(" / ") + TextoFila(kIdDatosErroneos + 10000));
    lblTituloC->setText(TextoFila(sinConexion ? kIdSinConexionInternet
                                  : kIdErrorDatosActualizacion));
    lblTituloE->setText(TextoFila(sinConexion ? kIdSinConexionInternet + 10000
                                  : kIdErrorDatosActualizacion + 10000));
    // The box shows the setting as it stands; only the user's changes store it.
    ChkNoPreg->setChecked(ActOnline().ActOnline == 0);
    connect(ChkNoPreg, &QCheckBox::toggled, this, [this](bool marcado) { ChkNoPreg_Click(marcado); });
}

void FrmSinConexion::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    centrarEnPantalla();
    // Under a window manager the size of the frame it adds is known only once the window is
    // on screen: the panel is centred again then.
    if (QWindow* ventana = windowHandle())
        ventana->installEventFilter(this);
}

bool FrmSinConexion::eventFilter(QObject* objeto, QEvent* evento)
{
    QWindow* ventana = windowHandle();
    if (ventana && objeto == ventana && evento->type() == QEvent::Expose && ventana->isExposed()) {
        ventana->removeEventFilter(this);
        centrarEnPantalla();
    }
    return QDialog::eventFilter(objeto, evento);
}

void FrmSinConexion::centrarEnPantalla()
{
    const QScreen* pantalla = screen() ? screen() : QGuiApplication::primaryScreen();
    if (!pantalla)
        return;
    QRect marco = frameGeometry();
    marco.moveCenter(pantalla->availableGeometry().center());
    move(marco.topLeft());
}

void FrmSinConexion::ChkNoPreg_Click(bool marcado)
{
    // Ticked switches the check at start-up off for good; cleared switches it on, even from
    // the undecided state of a first run.
    Proceso::Protegido([marcado] {
        cActOnline& act = ActOnline();
        act.ActOnline = marcado ? 0 : 1;
        act.GuardarActOnline();
    });
}
