#include "catalogo/Catalogo.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/CatalogoFilas.h"

QString Texto(int id)
{
    // The sum is a 16-bit addition, as the offset is.
    return TextoFila(static_cast<int16_t>(id + OffsetIdioma()));
}

QString TextoFila(int fila)
{
    const bool euskera = fila > 10000;
    const int base = euskera ? fila - 10000 : fila;
    if (base < 1 || base > Catalogo::kUltimoId)
        throw cFallo(326, QStringLiteral("Veldo"),
                     QStringLiteral("No se encontró el recurso %1").arg(fila));
    const Catalogo::FilaCatalogo& f = Catalogo::kFilas[base - 1];
    return QString::fromUtf8(euskera ? f.euskera : f.castellano);
}

QString TextoSegunIdioma(const QString& es, const QString& eu)
{
    return IdiomaPrograma().segun(es, eu);
}
