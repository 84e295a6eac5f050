#include "registros/intercambio/FalloIntercambio.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

namespace FalloIntercambio {

QString Descripcion(int numero)
{
    switch (numero) {
    case kDesbordamiento:
        return TextoSegunIdioma(QStringLiteral("Desbordamiento"), QStringLiteral("Gainezkatzea"));
    case kDiscoLleno:
        return TextoSegunIdioma(QStringLiteral("Disco lleno"), QStringLiteral("Diskoa beteta"));
    case kAccesoDenegado:
        return TextoSegunIdioma(QStringLiteral("Error de acceso a la ruta o el archivo"),
                                QStringLiteral("Bide-izena edo fitxategia atzitzeko errorea"));
    case kRutaNoEncontrada:
        return TextoSegunIdioma(QStringLiteral("No se ha encontrado la ruta de acceso"),
                                QStringLiteral("Ez da bide-izena aurkitu"));
    default: return QString();
    }
}

Veredicto VeredictoFallo(int numero, const QString& descripcion)
{
    Veredicto v;
    v.id = kIdErrorNumero;
    v.mensaje = Texto(kIdErrorNumero) + QString::number(numero) + QStringLiteral(" : ")
        + descripcion;
    return v;
}

Veredicto VeredictoFallo(int numero)
{
    return VeredictoFallo(numero, Descripcion(numero));
}

}  // namespace FalloIntercambio

Veredicto VeredictoIntercambio(int id)
{
    Veredicto v;
    v.id = id;
    v.mensaje = Texto(id);
    return v;
}
