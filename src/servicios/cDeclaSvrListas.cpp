// The lists of returns of cDeclaSvr: all the returns, those of one contributor, those of one
// presenter; each under the criteria of the list's search and in the order of its column.
//
// The criteria are lower bounds on the code, the date of accrual and the total, and starts of
// the reference and of the operation code. The date and the code are compared with the stored
// numbers; the total is given as the list shows it, in euros, and compared with the stored
// cents. Every condition and order can use an index of DECLARACIONES.
#include "servicios/cDeclaSvr.h"
#include "servicios/cDeclaSvrTablaOperaciones.h"

#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/BusquedaTexto.h"
#include "servicios/Conexion.h"

#include <QStringList>

namespace {

QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cDeclaSvr.") + QLatin1String(operacion);
}

// The total as the list shows it (euros, the Spanish way: "1.234,50"), in cents; 0 when it is
// no amount.
double centimos(const QString& texto)
{
    bool ok = false;
    const double euros = NumeroDeTexto(texto, &ok);
    return ok ? euros * 100 : 0;
}

struct Filtro {
    QStringList condiciones;
    QVariantList valores;

    void agregar(const QString& condicion, const QVariantList& v)
    {
        condiciones << condicion;
        valores << v;
    }
    // The texts of the column that begin with `prefijo`, whatever their case: ranges, so
    // that the index serves, then the folded comparison.
    void prefijo(const char* columna, const QString& inicio)
    {
        condiciones << CondicionPrefijo(QStringLiteral("d.") + QLatin1String(columna), inicio,
                                        valores);
    }
    QString where() const
    {
        return condiciones.isEmpty() ? QString()
                                     : QStringLiteral(" WHERE ") + condiciones.join(" AND ");
    }
};

void aplicarCriterios(const CondicionesDeclaracion& c, Filtro& f)
{
    const double codigo = Val(c.CSDE);
    if (codigo != 0)
        f.agregar(QStringLiteral("d.CSDE >= ?"), {codigo});
    const QString referencia = c.REFERENCIA.trimmed().toUpper();
    if (!referencia.isEmpty())
        f.prefijo("REFERENCIA", referencia);
    if (c.FECHAD != 0)
        f.agregar(QStringLiteral("d.FECHAD >= ?"), {double(c.FECHAD)});
    const double total = centimos(c.TOTAL);
    if (total != 0)
        f.agregar(QStringLiteral("d.TOTAL >= ?"), {total});
    const QString operacion = c.OPERACION.trimmed().toUpper();
    if (!operacion.isEmpty())
        f.prefijo("OPERACION", operacion);
}

QString ordenSql(uint8_t orden, const QString& tipoOrden)
{
    static const char* const kColumnas[] = {"d.CSDE", "d.REFERENCIA", "d.FECHAD", "d.TOTAL",
                                            "d.OPERACION"};
    const char* columna = (orden >= 1 && orden <= 5) ? kColumnas[orden - 1] : kColumnas[0];
    const QString sentido =
        tipoOrden.trimmed().compare(QLatin1String("ASC"), Qt::CaseInsensitive) == 0
        ? QStringLiteral("ASC")
        : QStringLiteral("DESC");
    // The code breaks ties, in the same direction, so that the order is always the same.
    if (orden <= 1 || orden > 5)
        return QStringLiteral(" ORDER BY d.CSDE ") + sentido;
    return QStringLiteral(" ORDER BY %1 %2, d.CSDE %2").arg(QLatin1String(columna), sentido);
}

// What marks the returns of one contributor: whether it is their subject, their transmitter
// or both.
QString sujetoTransmitente(int32_t csco, int32_t cssu, int32_t cstra)
{
    if (cssu == csco && cstra == csco)
        return QStringLiteral("S-T");
    return cssu == csco ? QStringLiteral("S") : QStringLiteral("T");
}

struct Busqueda {
    Filtro filtro;
    int32_t contribuyente = 0;  // with a code, the seventh column S-T is added
};

QList<FilaDeclaracion> buscar(const cDeclaSvr& svr, const Busqueda& b, uint8_t orden,
                              const QString& tipoOrden, Idioma idioma, const QString& o)
{
    const TablaOperaciones operaciones(svr.mdblec, o);
    const QSqlDatabase db = Conexion::Modificable(svr.mdbmod, o);
    const bool conParte = b.contribuyente != 0;
    // Only the columns the list shows are read (and the parties for a contributor's list):
    // an index of each order holds them all.
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT d.CSDE, d.REFERENCIA, d.FECHAD, d.TOTAL, "
                                          "d.OPERACION%1 FROM DECLARACIONES d")
                                   .arg(conParte ? QStringLiteral(", d.CSSU, d.CSTRA")
                                                 : QString())
                               + b.filtro.where() + ordenSql(orden, tipoOrden),
                           b.filtro.valores, o);
    QList<FilaDeclaracion> filas;
    while (q.next()) {
        FilaDeclaracion f;
        f.CSDE = q.value(0).toInt();
        f.REFERENCIA = q.value(1).toString();
        f.FECHAD = q.value(2).toInt();
        f.TOTAL = Importe(q.value(3).toDouble());
        f.OPERACION = q.value(4).toString();
        f.DESCRIPCION = operaciones.Descripcion(f.OPERACION, f.FECHAD, idioma);
        if (conParte)
            f.PARTE = sujetoTransmitente(b.contribuyente, q.value(5).toInt(), q.value(6).toInt());
        filas.append(std::move(f));
    }
    return filas;
}

}  // namespace

QList<FilaDeclaracion> cDeclaSvr::dameResultadoBusqueda(const CondicionesDeclaracion& condiciones,
                                                       uint8_t orden, const QString& tipoOrden,
                                                       Idioma idioma) const
{
    Busqueda b;
    aplicarCriterios(condiciones, b.filtro);
    return buscar(*this, b, orden, tipoOrden, idioma, origen("dameResultadoBusqueda"));
}

QList<FilaDeclaracion> cDeclaSvr::dameDeclaracionesContribuyente(
    const CondicionesDeclaracion& condiciones, int32_t csco, uint8_t orden,
    const QString& tipoOrden, Idioma idioma) const
{
    if (csco == 0)  // 0 is no contributor: no return is its
        return {};
    Busqueda b;
    b.filtro.agregar(QStringLiteral("(d.CSSU = ? OR d.CSTRA = ?)"), {csco, csco});
    b.contribuyente = csco;
    aplicarCriterios(condiciones, b.filtro);
    return buscar(*this, b, orden, tipoOrden, idioma,
                  origen("dameDeclaracionesContribuyente"));
}

QList<FilaDeclaracion> cDeclaSvr::dameDeclaracionesPresentador(
    const CondicionesDeclaracion& condiciones, int32_t cspr, uint8_t orden,
    const QString& tipoOrden, Idioma idioma) const
{
    Busqueda b;
    b.filtro.agregar(QStringLiteral("d.CSPR = ?"), {cspr});
    aplicarCriterios(condiciones, b.filtro);
    return buscar(*this, b, orden, tipoOrden, idioma,
                  origen("dameDeclaracionesPresentador"));
}
