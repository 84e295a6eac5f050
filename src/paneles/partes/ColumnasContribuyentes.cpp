#include "paneles/partes/ColumnasContribuyentes.h"

namespace ColumnasContribuyentes {

const QList<ColumnaLista>& Todas()
{
    static const QList<ColumnaLista> columnas = {
        {{0, "Codigo", "Codigo"}, 0, Qt::AlignLeft},
        {{0, "Apellidos y Nombre", "Deiturak eta izena"}, 2700, Qt::AlignLeft},
        {{0, "DNI", "NA"}, 1000, Qt::AlignLeft},
        {{0, "Calle", "Helbidea"}, 2000, Qt::AlignLeft},
        {{0, "Municipio", "Udalerria"}, 2000, Qt::AlignLeft},
        {{0, "S.P.", "S.P."}, 600, Qt::AlignRight},
        {{0, "Tr.", "Tr."}, 600, Qt::AlignRight},
    };
    return columnas;
}

QString Titulo(int columna)
{
    return Todas().at(columna).cabecera.texto();
}

QString Texto(const FilaContribuyente& fila, int columna)
{
    switch (columna) {
    case kCodigo: return QString::number(fila.CSCO);
    case kNombre: return fila.NOMBREC;
    case kDni: return fila.DNIC;
    case kCalle: return fila.DOMICILIOC;
    case kMunicipio: return fila.MUNICIPIO;
    case kComoSujeto: return QString::number(fila.NUMSP);
    case kComoTransmitente: return QString::number(fila.NUMTR);
    default: return QString();
    }
}

}  // namespace ColumnasContribuyentes
