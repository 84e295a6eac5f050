#include "paneles/partes/ColumnasPresentadores.h"

namespace ColumnasPresentadores {

const QList<ColumnaLista>& Lista()
{
    static const QList<ColumnaLista> columnas = {
        {{0, "Codigo", "Codigo"}, 0, Qt::AlignLeft},
        {{0, "Apellidos y Nombre", "Deiturak eta izena"}, 2800, Qt::AlignLeft},
        {{0, "DNI", "NA"}, 1000, Qt::AlignLeft},
        {{0, "Calle", "Helbidea"}, 2165, Qt::AlignLeft},
        {{0, "Municipio", "Udalerria"}, 2200, Qt::AlignLeft},
        {{0, "Nº Decla", "Aitor.Zk."}, 750, Qt::AlignRight},
    };
    return columnas;
}

const QList<ColumnaLista>& Seleccion()
{
    static const QList<ColumnaLista> columnas = {
        {{0, "Codigo", "Codigo"}, 0, Qt::AlignLeft},
        {{0, "Apellidos y Nombre", "Deiturak eta izena"}, 2800, Qt::AlignLeft},
        {{0, "DNI", "NA"}, 1000, Qt::AlignRight},
        {{0, "Calle", "Helbidea"}, 2515, Qt::AlignLeft},
        {{0, "Municipio", "Udalerria"}, 2500, Qt::AlignLeft},
    };
    return columnas;
}

QString Texto(const FilaPresentador& fila, int columna)
{
    switch (columna) {
    case kCodigo: return QString::number(fila.CSPR);
    case kNombre: return fila.NOMBREP;
    case kDni: return fila.DNIP;
    case kCalle: return fila.DOMICILIOP;
    case kMunicipio: return fila.MUNICIPIO;
    case kDeclaraciones: return QString::number(fila.NUMDECLARACIONES);
    default: return QString();
    }
}

}  // namespace ColumnasPresentadores
