#include "aplicacion/FrmIdioma.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/Proceso.h"
#include "paneles/dialogos/Ventanas.h"
#include "catalogo/Catalogo.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FrmIdioma::FrmIdioma(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FrmIdioma"));
    setModal(true);
    Frame1 = new QGroupBox(this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    cmdcastellano = new QPushButton(Frame1);
    cmdcastellano->setObjectName(QStringLiteral("cmdcastellano"));
    cmdeuskera = new QPushButton(Frame1);
    cmdeuskera->setObjectName(QStringLiteral("cmdeuskera"));
    for (QPushButton* b : {cmdcastellano, cmdeuskera}) {
        b->setMinimumSize(150, 70);
        b->setAutoDefault(false);
    }
    auto* botones = new QHBoxLayout(Frame1);
    botones->addWidget(cmdcastellano);
    botones->addWidget(cmdeuskera);

    chkActOnline = new QCheckBox(this);
    chkActOnline->setObjectName(QStringLiteral("chkActOnline"));
    chkActOnline->setText(QStringLiteral("¿desea que se le informe sobre la existencia de "
                                         "actualizaciones cada vez que se inicie el programa?"));
    chkActOnline->setChecked(false);
    LblAct = new QLabel(this);
    LblAct->setObjectName(QStringLiteral("LblAct"));
    LblAct->hide();

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(Frame1);
    todo->addWidget(chkActOnline);
    todo->addWidget(LblAct);

    connect(chkActOnline, &QCheckBox::toggled, this, [this](bool marcado) {
        Proceso::Protegido([this, marcado] { alCambiarActOnline(marcado); });
    });
    connect(cmdcastellano, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { elegir(Idioma::Castellano); }); });
    connect(cmdeuskera, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { elegir(Idioma::Euskera); }); });

    // When it opens: captions, commands off, the update box from the setting.
    Anadir_captions();
    if (MDIVeldo* ventana = VentanaMDI())
        ventana->DeshabilitarMenus();
    const int ajuste = ActOnline().ActOnline;
    chkActOnline->setChecked(ajuste == -1 || ajuste > 0);
}

void FrmIdioma::Anadir_captions()
{
    // The inverted rows 315 to 318 give the other language, so both always show.
    setWindowTitle(Texto(kIdSeleccionIdioma) + QStringLiteral("/")
                   + Texto(kIdSeleccionIdiomaEnOtraLengua));
    Frame1->setTitle(Texto(kIdIdioma) + QStringLiteral("/") + Texto(kIdIdiomaEnOtraLengua));
    cmdcastellano->setText(Texto(kIdBotonCastellano) + QStringLiteral("\n\n")
                           + Texto(kIdCastellanoEnOtraLengua));
    cmdeuskera->setText(Texto(kIdBotonEuskera) + QStringLiteral("\n\n")
                        + Texto(kIdEuskeraEnOtraLengua));
}

void FrmIdioma::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    if (!m_abierto) {
        m_abierto = true;
        if (parentWidget()) {
            adjustSize();
            move(parentWidget()->geometry().center() - rect().center());
        }
    }
    if (IdiomaPrograma().esCastellano())
        cmdcastellano->setFocus();
    else
        cmdeuskera->setFocus();
}

void FrmIdioma::keyPressEvent(QKeyEvent* e)
{
    // Enter moves to the next control.
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        focusNextChild();
        return;
    }
    QDialog::keyPressEvent(e);
}

void FrmIdioma::alCambiarActOnline(bool marcado)
{
    ActOnline().ActOnline = marcado ? 1 : 0;
    ActOnline().GuardarActOnline();
}

void FrmIdioma::elegir(Idioma idioma)
{
    Entrada().CambiarIdioma(idioma);
    if (MDIVeldo* principal = VentanaMDI())
        principal->Anadir_captions();
    if (ActOnline().ActOnline == -1) {
        chkActOnline->hide();
        ComprobarActualizacion();
    }
    accept();
}
