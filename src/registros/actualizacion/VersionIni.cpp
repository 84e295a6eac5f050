// The version file of the update service: where it is kept, its download and its reading.
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>
#include <algorithm>

namespace {
// A version with a control character (a bell, an escape, a line break inside) is no version,
// nor one with a character of format: the bidirectional controls (U+202E...) turn the text
// around on screen, so that "9.9.9" U+202E "1" shows as "9.9.91".
bool tieneControl(const QString& texto)
{
    return std::any_of(texto.cbegin(), texto.cend(), [](QChar c) {
        const QChar::Category categoria = c.category();
        return categoria == QChar::Other_Control || categoria == QChar::Other_Format;
    });
}
}  // namespace

QString RutaVersionIni()
{
    return CarpetaDatos() + QStringLiteral("/version.ini");
}

QString TituloPrograma()
{
    return QStringLiteral("Veldoria");
}

int DescargarVersionIni()
{
    try {
        const QString ruta = RutaVersionIni();
        const QFileInfo existente(ruta);
        if ((existente.exists() || existente.isSymLink()) && !QFile::remove(ruta))
            return SitActualizacion::FicheroErroneo;
        const QString url = ActOnline().URLAct + QStringLiteral("?Programa=") + TituloPrograma()
                            + QStringLiteral("&idioma=")
                            + (IdiomaPrograma().esEuskera() ? QStringLiteral("e") : QStringLiteral("c"));
        return DescargarFichero(url, ruta);
    } catch (...) {
        return SitActualizacion::FicheroErroneo;
    }
}

int LeerVersionIni()
{
    try {
        cActOnline& act = ActOnline();
        const QString ruta = RutaVersionIni();
        const QString version =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("currentversion"), ruta)
                .trimmed();
        const QStringList partes = version.split(QLatin1Char('.'));
        if (partes.size() < 3 || tieneControl(version))
            return SitActualizacion::FicheroErroneo;
        const QString descarga =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("downloadurl"), ruta).trimmed();
        // The address goes into a page the browser opens: only a web address is accepted.
        if (!descarga.isEmpty() && !EsDireccionWeb(descarga))
            return SitActualizacion::FicheroErroneo;
        act.ActVer1 = partes.at(0);
        act.ActVer2 = partes.at(1);
        act.ActVer3 = partes.at(2);
        act.ActDownloadURL = descarga;
        act.ActDescripcion =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("descripcion"), ruta).trimmed();
        // A difference, not a higher number: an older version offered is offered all the same.
        if (act.ActVer1.trimmed() != act.ProgVer1.trimmed()
            || act.ActVer2.trimmed() != act.ProgVer2.trimmed()
            || act.ActVer3.trimmed() != act.ProgVer3.trimmed())
            act.ComVer = 1;
        return SitActualizacion::FicheroLeido;
    } catch (...) {
        return SitActualizacion::FicheroErroneo;
    }
}

bool EsDireccionWeb(const QString& direccion)
{
    const QUrl url(direccion);
    const QString esquema = url.scheme().toLower();
    return url.isValid() && (esquema == QLatin1String("http") || esquema == QLatin1String("https"))
        && !url.host().isEmpty();
}
