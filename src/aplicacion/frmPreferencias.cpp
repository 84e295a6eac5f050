#include "aplicacion/frmPreferencias.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/Proceso.h"
#include "catalogo/Catalogo.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

frmPreferencias::frmPreferencias(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmPreferencias"));
    setModal(true);
    auto hacer = [this](auto* w, const char* nombre) {
        w->setObjectName(QString::fromLatin1(nombre));
        return w;
    };
    lblIdioma = hacer(new QLabel(this), "lblIdioma");
    lblActualizaciones = hacer(new QLabel(this), "lblActualizaciones");
    chkActOnline = hacer(new QCheckBox(this), "chkActOnline");
    lblActAhora = hacer(new QLabel(this), "lblActAhora");
    lblActAhora->setCursor(Qt::PointingHandCursor);
    lblActAhora->setStyleSheet(QStringLiteral("color: #0000c0; text-decoration: underline;"));
    lblActAhora->installEventFilter(this);
    optCast = hacer(new QRadioButton(QStringLiteral("Castellano"), this), "optCast");
    optEusk = hacer(new QRadioButton(QStringLiteral("Euskera"), this), "optEusk");
    cmdAceptar = hacer(new QPushButton(this), "cmdAceptar");
    cmdCancelar = hacer(new QPushButton(this), "cmdCancelar");

    auto* rejilla = new QGridLayout(this);
    rejilla->addWidget(lblIdioma, 0, 0, 1, 2);
    rejilla->addWidget(optCast, 1, 0);
    rejilla->addWidget(optEusk, 1, 1);
    rejilla->addWidget(lblActualizaciones, 2, 0, 1, 2);
    rejilla->addWidget(chkActOnline, 3, 0, 1, 2);
    rejilla->addWidget(lblActAhora, 4, 0, 1, 2);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(cmdAceptar);
    botones->addWidget(cmdCancelar);
    rejilla->addLayout(botones, 5, 0, 1, 2);

    connect(optCast, &QRadioButton::toggled, this,
            [this](bool on) { m_idioma = on ? Idioma::Castellano : Idioma::Euskera; });
    connect(optEusk, &QRadioButton::toggled, this,
            [this](bool on) { m_idioma = on ? Idioma::Euskera : Idioma::Castellano; });
    connect(cmdAceptar, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { aceptar(); }); });
    connect(cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);

    Anadir_captions();
    reflejarAjustes();
}

void frmPreferencias::Anadir_captions()
{
    setWindowTitle(Texto(kIdPreferencias));
    lblIdioma->setText(Texto(kIdIdioma));
    lblActualizaciones->setText(Texto(kIdActualizaciones));
    chkActOnline->setText(Texto(kIdActivarActualizaciones));
    lblActAhora->setText(Texto(kIdActualizarAhora));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
}

void frmPreferencias::reflejarAjustes()
{
    chkActOnline->setChecked(ActOnline().ActOnline == 1);
    const bool castellano = IdiomaPrograma().esCastellano();
    optCast->setChecked(castellano);
    optEusk->setChecked(!castellano);
    m_idioma = IdiomaPrograma();
}

bool frmPreferencias::event(QEvent* e)
{
    // At each activation the panel shows the stored settings again, so changes not yet
    // accepted are lost after a check started from lblActAhora.
    if (e->type() == QEvent::WindowActivate) {
        reflejarAjustes();
        Anadir_captions();
    }
    return QDialog::event(e);
}

bool frmPreferencias::eventFilter(QObject* objeto, QEvent* e)
{
    if (objeto == lblActAhora && e->type() == QEvent::MouseButtonRelease) {
        Proceso::Protegido([this] { actualizarAhora(); });
        return true;
    }
    return QDialog::eventFilter(objeto, e);
}

void frmPreferencias::actualizarAhora()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ComprobarActualizacion();
    QApplication::restoreOverrideCursor();
    reflejarAjustes();
}

void frmPreferencias::aceptar()
{
    ActOnline().ActOnline = chkActOnline->isChecked() ? 1 : 0;
    ActOnline().GuardarActOnline();
    Entrada().CambiarIdioma(m_idioma);
    if (MDIVeldo* principal = VentanaMDI())
        principal->Anadir_captions();
    accept();
}
