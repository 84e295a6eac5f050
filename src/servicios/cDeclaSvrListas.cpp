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

enum Criterio { cCodigo = 0, cReferencia, cFecha, cTotal, cOperacion };

bool esTexto(const QVariant& v)
{
    return v.typeId() == QMetaType::QString;
}

// A numeric criterion: a number, or a text that holds one; 0 when absent.
double numero(const QVariant& v)
{
    if (!v.isValid() || v.isNull())
        return 0;
    if (esTexto(v))
        return Val(v.toString());
    return v.toDouble();
}

// The total as the list shows it (euros, the Spanish way: "1.234,50"), in cents.
double centimos(const QVariant& v)
{
    if (!v.isValid() || v.isNull())
        return 0;
    if (esTexto(v)) {
        bool ok = false;
        const double euros = NumeroDeTexto(v.toString(), &ok);
        return ok ? euros * 100 : 0;
    }
    return v.toDouble() * 100;
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

// A start-of-text criterion; a number 0 in its slot is no criterion.
QString textoCriterio(const QVariant& v)
{
    if (!v.isValid() || v.isNull() || (!esTexto(v) && v.toDouble() == 0))
        return QString();
    return v.toString().trimmed().toUpper();
}

void aplicarCriterios(const Arreglo& criterios, Filtro& f)
{
    const double codigo = numero(criterios.value(cCodigo));
    if (codigo != 0)
        f.agregar(QStringLiteral("d.CSDE >= ?"), {codigo});
    const QString referencia = textoCriterio(criterios.value(cReferencia));
    if (!referencia.isEmpty())
        f.prefijo("REFERENCIA", referencia);
    const double fecha = numero(criterios.value(cFecha));
    if (fecha != 0)
        f.agregar(QStringLiteral("d.FECHAD >= ?"), {fecha});
    const double total = centimos(criterios.value(cTotal));
    if (total != 0)
        f.agregar(QStringLiteral("d.TOTAL >= ?"), {total});
    const QString operacion = textoCriterio(criterios.value(cOperacion));
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

int32_t buscar(const cDeclaSvr& svr, Arreglo2D& resultado, const Busqueda& b, uint8_t orden,
               const QString& tipoOrden, int16_t offsetIdioma, const QString& o)
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
    Arreglo2D filas(conParte ? 7 : 6);
    while (q.next()) {
        const int32_t fecha = q.value(2).toInt();
        const QString operacion = q.value(4).toString();
        filas[0].append(q.value(0).toInt());
        filas[1].append(q.value(1).toString());
        filas[2].append(fecha);
        filas[3].append(q.value(3).toDouble());
        filas[4].append(operacion);
        filas[5].append(operaciones.Descripcion(operacion, fecha, offsetIdioma));
        if (conParte)
            filas[6].append(sujetoTransmitente(b.contribuyente, q.value(5).toInt(),
                                               q.value(6).toInt()));
    }
    const auto cuenta = static_cast<int32_t>(filas[0].size());
    resultado = std::move(filas);
    return cuenta;
}

}  // namespace

int32_t cDeclaSvr::dameResultadoBusqueda(Arreglo2D& resultado, const Arreglo& criterios,
                                         uint8_t orden, const QString& tipoOrden,
                                         int16_t offsetIdioma) const
{
    Busqueda b;
    aplicarCriterios(criterios, b.filtro);
    return buscar(*this, resultado, b, orden, tipoOrden, offsetIdioma,
                  origen("dameResultadoBusqueda"));
}

int32_t cDeclaSvr::dameDeclaracionesContribuyente(const Arreglo& criterios, Arreglo2D& resultado,
                                                  int32_t csco, uint8_t orden,
                                                  const QString& tipoOrden,
                                                  int16_t offsetIdioma) const
{
    Busqueda b;
    b.filtro.agregar(QStringLiteral("(d.CSSU = ? OR d.CSTRA = ?)"), {csco, csco});
    b.contribuyente = csco;
    aplicarCriterios(criterios, b.filtro);
    if (csco == 0) {  // 0 is no contributor: no return is its
        resultado = Arreglo2D(7);
        return 0;
    }
    return buscar(*this, resultado, b, orden, tipoOrden, offsetIdioma,
                  origen("dameDeclaracionesContribuyente"));
}

int32_t cDeclaSvr::dameDeclaracionesPresentador(const Arreglo& criterios, Arreglo2D& resultado,
                                                int32_t cspr, uint8_t orden,
                                                const QString& tipoOrden,
                                                int16_t offsetIdioma) const
{
    Busqueda b;
    b.filtro.agregar(QStringLiteral("d.CSPR = ?"), {cspr});
    aplicarCriterios(criterios, b.filtro);
    return buscar(*this, resultado, b, orden, tipoOrden, offsetIdioma,
                  origen("dameDeclaracionesPresentador"));
}
