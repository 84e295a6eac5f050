#include "aplicacion/Ayuda.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/Catalogo.h"

#include <QDialog>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

QString RutaAyuda(const QString& tema)
{
    return CarpetaPrograma() + QStringLiteral("/Ayuda/") + IdiomaPrograma().carpetaAyuda()
        + QLatin1Char('/') + tema;
}

void MostrarAyudaHtml(const QString& tema, QWidget* propietario)
{
    auto* visor = propietario ? propietario->findChild<QDialog*>(QStringLiteral("VisorAyuda"))
                              : nullptr;
    if (!visor) {
        visor = new QDialog(propietario, Qt::Window);
        visor->setObjectName(QStringLiteral("VisorAyuda"));
        visor->setAttribute(Qt::WA_DeleteOnClose);
        auto* pagina = new QTextBrowser(visor);
        pagina->setObjectName(QStringLiteral("txtAyuda"));
        pagina->setOpenExternalLinks(true);
        auto* capas = new QVBoxLayout(visor);
        capas->setContentsMargins(0, 0, 0, 0);
        capas->addWidget(pagina);
        visor->resize(720, 600);
    }
    auto* pagina = visor->findChild<QTextBrowser*>(QStringLiteral("txtAyuda"));
    pagina->setSource(QUrl::fromLocalFile(RutaAyuda(tema)));
    visor->setWindowTitle(Texto(kIdAyuda) + QStringLiteral(" - ") + Texto(kIdVeldoria));
    visor->show();
    visor->raise();
    visor->activateWindow();
}
