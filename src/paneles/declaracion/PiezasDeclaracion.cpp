#include "paneles/declaracion/PiezasDeclaracion.h"

#include "paneles/partes/CamposDatos.h"

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>

namespace PiezasDeclaracion {

QFrame* Marco(QWidget* padre, const char* nombre)
{
    auto* marco = new QFrame(padre);
    marco->setObjectName(QString::fromLatin1(nombre));
    marco->setFrameShape(QFrame::StyledPanel);
    return marco;
}

QCheckBox* Casilla(QWidget* padre, const char* nombre)
{
    auto* casilla = new QCheckBox(padre);
    casilla->setObjectName(QString::fromLatin1(nombre));
    return casilla;
}

QPushButton* Boton(QWidget* padre, const char* nombre)
{
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(true);  // Enter on a button presses it
    return boton;
}

QLineEdit* Muestra(QWidget* padre, const char* nombre, int limite)
{
    QLineEdit* campo = CampoTexto(padre, nombre, limite, TipoFiltro::Texto, true);
    AbrirCampo(campo, false);
    return campo;
}

}  // namespace PiezasDeclaracion
