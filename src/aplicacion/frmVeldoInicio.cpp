#include "aplicacion/frmVeldoInicio.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFrame>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

frmVeldoInicio::frmVeldoInicio(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmVeldoInicio"));
    setAutoFillBackground(true);
    QPalette fondo = palette();
    fondo.setColor(QPalette::Window, QColor(0xF4, 0xF1, 0xE8));
    setPalette(fondo);
    auto etiqueta = [this](const char* nombre, int puntos, bool negrita) {
        auto* l = new QLabel(this);
        l->setObjectName(QString::fromLatin1(nombre));
        l->setAlignment(Qt::AlignCenter);
        QFont f(QStringLiteral("Liberation Sans"), puntos);
        f.setBold(negrita);
        l->setFont(f);
        return l;
    };
    Label1 = etiqueta("Label1", 10, false);
    Label1->setText(QStringLiteral("Zenbait Garraiobideren gaineko Zerga Berezia"));
    lblTitulo = etiqueta("lblTitulo", 22, true);
    lblTitulo->setText(QStringLiteral("747 Eredua / Modelo 747"));
    lblTitulo1 = etiqueta("lblTitulo1", 13, false);
    lblVersion = etiqueta("lblVersion", 10, false);
    LblAct = etiqueta("LblAct", 10, false);
    LblAct->hide();
    lblcopy = etiqueta("lblcopy", 8, false);

    auto* marco = new QFrame(this);
    marco->setFrameShape(QFrame::Box);
    auto* capas = new QVBoxLayout(marco);
    for (QLabel* l : {Label1, lblTitulo, lblTitulo1, lblVersion, LblAct, lblcopy})
        capas->addWidget(l);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(marco);
    setFixedSize(480, 260);
}

void frmVeldoInicio::Mostrar()
{
    if (const QScreen* pantalla = QApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());
    show();
    lblTitulo1->setText(TextoFila(kIdImpuestoVeldoriacion + 10000) + QStringLiteral("/")
                        + Texto(kIdImpuestoVeldoriacion));
    lblVersion->setText(QStringLiteral("Bertsioa/Versión") + VersionPrograma);
    QApplication::processEvents();

    QDeadlineTimer fin(3000);
    if (ActOnline().ActOnline == 1) {
        fin.setRemainingTime(4000);
        LblAct->setText(QStringLiteral("Eguneratzen / Buscando actualización ..."));
        LblAct->show();
        QApplication::processEvents();
        ComprobarActualizacion();
        LblAct->hide();
    }
    // A check that took longer than the end time adds no further wait.
    Reloj::EsperarHasta(fin);
}
