// The version file of the update service: where it is kept, its download and its reading.
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/General.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

QString RutaVersionIni()
{
    return CarpetaPrograma() + QStringLiteral("/version.ini");
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
                            + (OffsetIdioma == 10000 ? QStringLiteral("e") : QStringLiteral("c"));
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
        const QStringList partes = LeerClaveIni(QStringLiteral("informacion"),
                                                QStringLiteral("currentversion"), ruta)
                                       .trimmed()
                                       .split(QLatin1Char('.'));
        if (partes.size() < 3)
            return SitActualizacion::FicheroErroneo;
        act.ActVer1 = partes.at(0);
        act.ActVer2 = partes.at(1);
        act.ActVer3 = partes.at(2);
        act.ActDownloadURL =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("downloadurl"), ruta).trimmed();
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
