#include "aplicacion/frmAbout.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setModal(true);
    auto etiqueta = [this](const char* nombre) {
        auto* l = new QLabel(this);
        l->setObjectName(QString::fromLatin1(nombre));
        l->setWordWrap(true);
        return l;
    };
    lblTitle = etiqueta("lblTitle");
    QFont negrita = lblTitle->font();
    negrita.setBold(true);
    lblTitle->setFont(negrita);
    lblTitle->setText(QStringLiteral(
        "Veldoria. Impuesto Especial sobre determinados Medios de Transporte."));
    lblVersion = etiqueta("lblVersion");
    lblDescription = etiqueta("lblDescription");
    lblDescription->setText(QStringLiteral(
        "El programa de ayuda VELDORIA permite confeccionar desde un ordenador personal las "
        "declaraciones correspondientes al Impuesto Especial sobre determinados Medios de "
        "Transporte y, por el momento, sólo está prevista su utilización para vehículos "
        "terrestres."));
    lblcopy = etiqueta("lblcopy");
    cmdOK = new QPushButton(QStringLiteral("&Aceptar"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* icono = new QLabel(this);
    icono->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(48, 48));
    auto* capas = new QVBoxLayout(this);
    capas->addWidget(icono);
    for (QLabel* l : {lblTitle, lblVersion, lblDescription, lblcopy})
        capas->addWidget(l);
    capas->addWidget(cmdOK, 0, Qt::AlignRight);
    setFixedWidth(460);
}

void frmAbout::showEvent(QShowEvent* e)
{
    if (m_abierto) {
        QDialog::showEvent(e);
        return;
    }
    m_abierto = true;
    setWindowTitle(QStringLiteral("Acerca de ") + windowTitle());
    if (IdiomaPrograma().esEuskera()) {
        lblTitle->setText(QStringLiteral("Veldoriak. Zenbait Garraiobideren gaineko Zerga Berezia."));
        lblVersion->setText(VersionPrograma + QStringLiteral(" bertsioa"));
        lblDescription->setText(QStringLiteral(
            "Veldorien laguntza programa erabiliz, Zenbait Garraiobideren gaineko Zerga "
            "Bereziaren aitorpenak egin daitezke ordenadore pertsonal batetik. Oraingoz, bakarrik "
            "lehorreko ibilgailuetarako erabiltzea pentsatu da."));
        cmdOK->setText(QStringLiteral("&Ados"));
    } else {
        lblVersion->setText(QStringLiteral("Versión ") + VersionPrograma);
    }
    QDialog::showEvent(e);
}
