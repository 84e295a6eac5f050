#include "plataforma/General.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <unistd.h>

QString mdbmod;
QString mdblec;
QString mdbPath;
QString VersionPrograma;

namespace {
QString g_carpeta;

// Everything under /usr is read-only by the file system hierarchy's rule, whoever runs the
// program, so an installed copy never writes beside itself, not even when root starts it.
bool EnUsr(const QString& carpeta)
{
    return carpeta == QLatin1String("/usr") || carpeta.startsWith(QLatin1String("/usr/"));
}

// Whether the user may write in `carpeta`. Root passes every permission check, so for root the
// folder's own mode decides: a folder without any write bit is not written to.
bool EsEscribible(const QString& carpeta)
{
    const QFileInfo info(carpeta);
    if (!info.isDir() || !info.isWritable())
        return false;
    if (::geteuid() != 0)
        return true;
    return (info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther)) != 0;
}

// $XDG_DATA_HOME/veldoria; an unset or relative XDG_DATA_HOME means ~/.local/share.
QString CarpetaDatosUsuario()
{
    const QString xdg = qEnvironmentVariable("XDG_DATA_HOME");
    const QString base = QDir::isAbsolutePath(xdg) ? xdg
                                                   : QDir::homePath() + QStringLiteral("/.local/share");
    return QDir::cleanPath(base + QStringLiteral("/veldoria"));
}
}

QString CarpetaPrograma()
{
    if (!g_carpeta.isEmpty())
        return g_carpeta;
    return QDir::cleanPath(QCoreApplication::applicationDirPath());
}

void EstablecerCarpetaPrograma(const QString& carpeta)
{
    g_carpeta = QDir::cleanPath(carpeta);
}

QString TablasDelPrograma(const QString& carpetaPrograma)
{
    QString base = carpetaPrograma;
    while (base.endsWith(QLatin1Char('/')) && base.size() > 1)
        base.chop(1);
    const int posicion = base.indexOf(QStringLiteral("cliente"), 0, Qt::CaseInsensitive);
    if (posicion >= 0)
        base = base.left(qMax(0, posicion - 1));
    return base + QStringLiteral("/Tablas/");
}

QString CarpetaDatos()
{
    const QString programa = CarpetaPrograma();
    if (EnUsr(programa))
        return CarpetaDatosUsuario();
    // A read/write database already beside the program is the user's data: it is used where
    // it is, even when the folder is read-only for this user (start-up then says what to do),
    // rather than a new empty one being made elsewhere.
    if (EsEscribible(programa)
        || QFileInfo::exists(TablasDelPrograma(programa) + QStringLiteral("VELDOMOD.mdb")))
        return programa;
    return CarpetaDatosUsuario();
}
