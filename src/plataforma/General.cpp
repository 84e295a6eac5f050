#include "plataforma/General.h"

#include <QCoreApplication>
#include <QDir>

int16_t OffsetIdioma = 0;
QString mdbmod;
QString mdblec;
QString mdbPath;
QString VersionPrograma;
QString VersionProducto;

namespace {
QString g_carpeta;
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
