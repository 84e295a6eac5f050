#include "SalidaOrdenes.h"

#include "aplicacion/OrdenesImprimir.h"

#include <QFile>
#include <cstdio>
#include <unistd.h>

SalidaOrden ejecutar(const QStringList& argumentos, const QString& carpeta, QPrinter* impresora)
{
    const QString fichero = carpeta + QStringLiteral("/stderr.txt");
    std::fflush(stderr);
    const int antes = dup(fileno(stderr));
    FILE* f = std::fopen(QFile::encodeName(fichero).constData(), "w");
    dup2(fileno(f), fileno(stderr));
    SalidaOrden r;
    r.estado = OrdenesImprimir(QStringList{QStringLiteral("Veldo")} + argumentos, impresora);
    std::fflush(stderr);
    dup2(antes, fileno(stderr));
    close(antes);
    std::fclose(f);
    QFile leido(fichero);
    leido.open(QIODevice::ReadOnly);
    r.error = QString::fromUtf8(leido.readAll()).trimmed();
    return r;
}
