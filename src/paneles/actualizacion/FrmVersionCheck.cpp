#include "paneles/actualizacion/FrmVersionCheck.h"

#include "paneles/actualizacion/LanzarExplorador.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/Proceso.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

template <typename W>
W* crear(QWidget* padre, const char* nombre)
{
    auto* w = new W(padre);
    w->setObjectName(QLatin1String(nombre));
    return w;
}

QLabel* rotulo(QWidget* padre, const char* nombre, const QString& texto)
{
    auto* l = crear<QLabel>(padre, nombre);
    l->setText(texto);
    return l;
}

// Fields that show and are not typed in: locked and grey.
void bloquear(QWidget* campo)
{
    QPalette p = campo->palette();
    p.setColor(QPalette::Base, QColor(0xE0, 0xE0, 0xE0));
    campo->setPalette(p);
}

}  // namespace

FrmVersionCheck::FrmVersionCheck(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FrmVersionCheck"));
    setWindowTitle(QStringLiteral("Actualizar versión"));
    setModal(true);
    construir();
    rellenar();
}

void FrmVersionCheck::construir()
{
    FraVersion = crear<QGroupBox>(this, "FraVersion");
    FraVersion->setTitle(QStringLiteral("Bertsioa / Versión"));
    LblAct = rotulo(FraVersion, "LblAct", QStringLiteral("Oraingoa / Actual"));
    LblDisp = rotulo(FraVersion, "LblDisp", QStringLiteral("Erabilgarria / Disponible"));
    LblActual = crear<QLabel>(FraVersion, "LblActual");
    LblDisponible = crear<QLabel>(FraVersion, "LblDisponible");
    auto* versiones = new QGridLayout(FraVersion);
    versiones->addWidget(LblAct, 0, 0);
    versiones->addWidget(LblActual, 0, 1);
    versiones->addWidget(LblDisp, 1, 0);
    versiones->addWidget(LblDisponible, 1, 1);
    versiones->setColumnStretch(1, 1);

    LblUrl = rotulo(this, "LblUrl", QStringLiteral("Deskarga helbidea / Dirección de descarga"));
    TxtUrl = crear<QLineEdit>(this, "TxtUrl");
    TxtUrl->setReadOnly(true);
    TxtUrl->setCursor(Qt::PointingHandCursor);
    TxtUrl->installEventFilter(this);
    LblArchivo = rotulo(this, "LblArchivo", QStringLiteral("Fitxategia / Fichero"));
    TxtPath = crear<QLineEdit>(this, "TxtPath");
    TxtPath->setReadOnly(true);
    LblInfo = rotulo(this, "LblInfo", QStringLiteral("Argibideak / Información"));
    TxtInfo = crear<QPlainTextEdit>(this, "TxtInfo");
    TxtInfo->setReadOnly(true);
    for (QWidget* campo : {static_cast<QWidget*>(TxtUrl), static_cast<QWidget*>(TxtPath),
                           static_cast<QWidget*>(TxtInfo)})
        bloquear(campo);

    CmdActualizar = crear<QPushButton>(this, "CmdActualizar");
    CmdActualizar->setText(QStringLiteral("Deskargatu Descargar"));
    CmdActualizar->setAutoDefault(false);
    CmdContinuar = crear<QPushButton>(this, "CmdContinuar");
    CmdContinuar->setText(QStringLiteral("Aurrera jarraitu... Continuar..."));
    CmdContinuar->setDefault(true);
    connect(CmdActualizar, &QPushButton::clicked, this, [this] { CmdActualizar_Click(); });
    connect(CmdContinuar, &QPushButton::clicked, this, &QDialog::accept);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(CmdActualizar);
    botones->addWidget(CmdContinuar);

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(FraVersion);
    todo->addWidget(LblUrl);
    todo->addWidget(TxtUrl);
    todo->addWidget(LblArchivo);
    todo->addWidget(TxtPath);
    todo->addWidget(LblInfo);
    todo->addWidget(TxtInfo, 1);
    todo->addLayout(botones);
    resize(460, 360);
}

void FrmVersionCheck::rellenar()
{
    // The check may have been started under the hourglass; the panel waits for the user.
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();

    const cActOnline& act = ActOnline();
    const QString punto = QStringLiteral(".");
    LblActual->setText(act.ProgVer1 + punto + act.ProgVer2 + punto + act.ProgVer3);
    LblDisponible->setText(act.ActVer1 + punto + act.ActVer2 + punto + act.ActVer3);
    TxtUrl->setText(act.ActDownloadURL);
    TxtUrl->setCursorPosition(0);
    TxtPath->setText(act.ActFile);
    TxtPath->setCursorPosition(0);
    TxtInfo->setPlainText(act.ActDescripcion);
    if (act.ComVer == 0) {
        // Nothing newer: only Continuar remains.
        CmdActualizar->setFixedHeight(0);
        CmdActualizar->hide();
        CmdContinuar->setFocus();
    }
}

bool FrmVersionCheck::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == TxtUrl && evento->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton) {
        TxtUrl_Click();
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

void FrmVersionCheck::CmdActualizar_Click()
{
    Proceso::Protegido([this] {
        LanzarExplorador(this, ActOnline().ActDownloadURL);
        accept();
    });
}

void FrmVersionCheck::TxtUrl_Click()
{
    Proceso::Protegido([this] { LanzarExplorador(this, ActOnline().ActDownloadURL); });
}
