#include "comun/ProgramaPrueba.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

std::unique_ptr<CarpetaDePrueba> ProgramaConAlmacenNuevo()
{
    auto carpeta = AlmacenNuevo();
    (new MDIVeldo)->show();
    return carpeta;
}

ProgramaDePrueba::ProgramaDePrueba(const QString& idioma) : m_carpeta(AlmacenNuevo())
{
    Entrada().CambiarIdioma(Idioma::DeLetra(idioma));
    ActOnline().ActOnline = 0;  // the language is chosen: no chooser at the first activation
    m_ventana = new MDIVeldo;
    m_ventana->resize(1024, 768);
    m_ventana->show();
    m_ventana->activateWindow();
    m_activa = QTest::qWaitForWindowActive(m_ventana);
    if (!m_activa)
        qWarning("La ventana principal no se activó");
    m_ventana->ActualizarMenus();
    Procesar();
    m_estrictos.emplace();
}

ProgramaDePrueba::~ProgramaDePrueba()
{
    // What the closing of the program shows once the test is over is no part of the test.
    m_estrictos.reset();
    ReiniciarEstado();
    MensajeSeam::limpiar();
    m_carpeta.reset();
}

QWidget* ProgramaDePrueba::panel(const QString& nombre) const
{
    for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
        if (sub->widget() && sub->widget()->objectName() == nombre && sub->isVisible())
            return sub->widget();
    return nullptr;
}

QStringList ProgramaDePrueba::paneles() const
{
    // Frames already closed go first; any frame left after that counts, shown or not, so that
    // a panel closing only itself and leaving its empty frame behind shows in the list.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList nombres;
    for (QMdiSubWindow* sub : m_ventana->area()->subWindowList()) {
        if (sub->widget() && sub->isVisible())
            nombres << sub->widget()->objectName();
        else
            nombres << QStringLiteral("%1 (%2)").arg(
                sub->objectName(), sub->widget() ? QStringLiteral("oculto") : QStringLiteral("vacío"));
    }
    return nombres;
}

QWidget* PanelAbierto(const QString& nombre)
{
    Procesar();
    MDIVeldo* ventana = VentanaMDI();
    if (!ventana)
        return nullptr;
    for (QWidget* w : ventana->findChildren<QWidget*>(nombre))
        if (w->isVisible())
            return w;
    return nullptr;
}

void Procesar()
{
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QApplication::processEvents();
}
