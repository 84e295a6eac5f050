#include "registros/intercambio/FicheroErrores.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/LineaIntercambio.h"

namespace {

const QString kSangria(9, QLatin1Char(' '));

// The text as one line of the file. Every text of the catalogue is in the code page; a
// character that were not would be written as "?", since the file is only read by a person.
QByteArray Linea(const QString& texto)
{
    std::optional<QByteArray> bytes = Cp1252::Codificar(texto);
    if (!bytes) {
        QString limpio = texto;
        for (QChar& c : limpio)
            if (!Cp1252::Representable(QString(c)))
                c = QLatin1Char('?');
        bytes = Cp1252::Codificar(limpio);
    }
    return *bytes + "\r\n";
}

}  // namespace

namespace FicheroErrores {

QByteArray LineaCorta(int linea)
{
    return Linea(Texto(kIdLinea) + QString::number(linea) + Texto(kIdNoImportados));
}

// "Linea 7 - DNI-CIF " the DNI as read, and ": ".
QString Cabeza(int linea, const QString& dni)
{
    QString etiqueta = Texto(kIdDniCif);
    etiqueta.chop(1);
    return Texto(kIdLinea) + QString::number(linea) + QStringLiteral(" - ") + etiqueta
        + QLatin1Char(' ') + dni + QStringLiteral(": ");
}

QByteArray LineaIlegible(int linea, const QString& motivo)
{
    return Linea(Texto(kIdLinea) + QString::number(linea) + QStringLiteral(" - ") + motivo);
}

QByteArray LineaRechazo(int linea, const QString& dni, const QString& mensaje)
{
    return Linea(Cabeza(linea, dni) + mensaje);
}

QByteArray LineasErrores(const QList<HallazgoImportacion>& errores, int linea,
                         const QString& dni)
{
    const QString cabeza = Cabeza(linea, dni);
    QByteArray lineas;
    for (const HallazgoImportacion& e : errores)
        lineas += Linea(cabeza + Texto(e.id));
    return lineas;
}

QByteArray Formato()
{
    QByteArray texto = Linea(QString()) + Linea(Texto(kIdFormato));
    for (int i = 0; i < kCamposIntercambio; ++i)
        texto += Linea(kSangria
                       + QString::fromLatin1(Definicion(static_cast<CampoIntercambio>(i)).formato));
    return texto;
}

}  // namespace FicheroErrores
