#include "ComprobarInterfaces.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

bool dentroDe(const QString& fichero, const QString& carpeta)
{
    return fichero.startsWith(carpeta + QLatin1Char('/'));
}

// A store class of the stores' layer: servicios/cContribSvr.h, servicios/cDeclaSvr.h, ...
bool esCabeceraDeAlmacen(const QString& fichero)
{
    static const QRegularExpression patron(QStringLiteral(R"(^servicios/c[A-Z]\w*\.h$)"));
    return patron.match(fichero).hasMatch();
}

// Headers whose declarations are an interface between the layers that keep typed values.
bool esInterfazTipada(const QString& fichero)
{
    if (!fichero.endsWith(QLatin1String(".h")))
        return false;
    for (const char* carpeta : {"valores", "registros", "paneles", "aplicacion"}) {
        if (dentroDe(fichero, QLatin1String(carpeta)))
            return true;
    }
    return esCabeceraDeAlmacen(fichero);
}

// The text of a line without its comment (a "//" outside a string is enough here: no
// header of the program puts "//" inside a string literal of a declaration).
QString sinComentario(const QString& linea)
{
    const qsizetype barra = linea.indexOf(QLatin1String("//"));
    return barra < 0 ? linea : linea.left(barra);
}

QString arregloEn(const QString& codigo, bool tambienQVariant)
{
    static const QRegularExpression arreglo(
        QStringLiteral(R"(\b(Arreglo2D|Arreglo|QVariantList)\b|QList\s*<\s*QVariant\s*>)"));
    static const QRegularExpression variante(QStringLiteral(R"(\bQVariant\b)"));
    QRegularExpressionMatch m = arreglo.match(codigo);
    if (m.hasMatch())
        return m.captured(0);
    if (tambienQVariant) {
        m = variante.match(codigo);
        if (m.hasMatch())
            return m.captured(0);
    }
    return QString();
}

QString cabeceraDeArreglos(const QString& linea)
{
    static const QRegularExpression patron(QStringLiteral(
        R"re(^\s*#\s*include\s*[<"]((?:\.\./)*servicios/(?:Arreglos|Posiciones\w*)\.h)[>"])re"));
    const QRegularExpressionMatch m = patron.match(linea);
    return m.hasMatch() ? m.captured(1) : QString();
}

}  // namespace

QList<Falta> ComprobarInterfaces(const QString& src, Recuento* recuento)
{
    QList<Falta> faltas;
    Recuento cuenta;
    const QDir raiz(src);
    QStringList ficheros;
    QDirIterator it(src, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        ficheros.append(raiz.relativeFilePath(it.next()));
    ficheros.sort();

    for (const QString& fichero : ficheros) {
        const bool fueraDeAlmacenes = !dentroDe(fichero, QStringLiteral("servicios"));
        const bool interfaz = esInterfazTipada(fichero);
        if (!fueraDeAlmacenes && !interfaz)
            continue;
        QFile f(raiz.filePath(fichero));
        if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        ++cuenta.ficheros;
        QTextStream in(&f);
        for (int n = 1; !in.atEnd(); ++n) {
            const QString linea = in.readLine();
            const QString cabecera = cabeceraDeArreglos(linea);
            if (fueraDeAlmacenes && !cabecera.isEmpty()) {
                faltas.append({fichero, n,
                               QStringLiteral("outside the stores, includes %1").arg(cabecera)});
                continue;
            }
            if (!interfaz || linea.trimmed().startsWith(QLatin1Char('#')))
                continue;
            ++cuenta.includes;  // here: the lines of declarations read
            const QString nombre = arregloEn(sinComentario(linea), esCabeceraDeAlmacen(fichero));
            if (!nombre.isEmpty())
                faltas.append({fichero, n,
                               QStringLiteral("an interface carries %1 instead of a typed value")
                                   .arg(nombre)});
        }
    }
    if (recuento)
        *recuento = cuenta;
    return faltas;
}
