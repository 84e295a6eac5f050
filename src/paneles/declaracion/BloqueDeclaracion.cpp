#include "paneles/declaracion/BloqueDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/cDecDatos.h"

#include <QLabel>
#include <QLineEdit>
#include <utility>

BloqueDeclaracion::BloqueDeclaracion(QWidget* panel, cDecDatos& registro)
    : QObject(panel), m_panel(panel), m_registro(registro)
{
}

void BloqueDeclaracion::Conectar(EnlaceDeclaracion enlace)
{
    m_enlace = std::move(enlace);
    ConectarCampos();
}

void BloqueDeclaracion::Anadir_captions()
{
    for (const auto& [etiqueta, id] : m_etiquetas)
        etiqueta->setText(Texto(id));
}

void BloqueDeclaracion::Presentar()
{
    m_presentando = true;
    PresentarCampos();
    m_presentando = false;
}

QLabel* BloqueDeclaracion::Etiqueta(QWidget* padre, const char* nombre, int id)
{
    QLabel* etiqueta = ::Etiqueta(padre, nombre);
    m_etiquetas.append({etiqueta, id});
    return etiqueta;
}

void BloqueDeclaracion::Modificado()
{
    m_enlace.modificado();
}

void BloqueDeclaracion::SalirTexto(QLineEdit* campo, QString& valor)
{
    if (Saltando() || campo->text() == valor)
        return;
    Modificado();
    valor = campo->text();
    m_enlace.redibujar();
}

void BloqueDeclaracion::VigilarTexto(QLineEdit* campo, QString& valor)
{
    m_enlace.salidas->Vigilar(campo, [this, campo, &valor] { SalirTexto(campo, valor); });
}
