#include "servicios/ContadoresPartes.h"

#include "servicios/SentenciaPreparada.h"

namespace {

// The columns of DECLARACIONES that hold the codes of its parties.
const QString kSujeto = QStringLiteral("CSSU");
const QString kTransmitente = QStringLiteral("CSTRA");
const QString kPresentador = QStringLiteral("CSPR");

QString cuenta(const QString& columna, const QString& codigo)
{
    return QStringLiteral("(SELECT COUNT(*) FROM DECLARACIONES d WHERE d.%1 = %2)")
        .arg(columna, codigo);
}

int64_t contar(const QSqlDatabase& db, const QString& columna, int32_t codigo,
               const QString& origen)
{
    if (codigo == 0)  // 0 is "no party" in a declaration, never a party's code
        return 0;
    return EscalarPreparada(db,
                            QStringLiteral("SELECT COUNT(*) FROM DECLARACIONES WHERE %1 = ?")
                                .arg(columna),
                            {codigo}, origen, 0)
        .toLongLong();
}

}  // namespace

namespace ContadoresPartes {

QString SqlComoSujeto(const QString& codigo)
{
    return cuenta(kSujeto, codigo);
}

QString SqlComoTransmitente(const QString& codigo)
{
    return cuenta(kTransmitente, codigo);
}

QString SqlComoPresentador(const QString& codigo)
{
    return cuenta(kPresentador, codigo);
}

int64_t ComoSujeto(const QSqlDatabase& db, int32_t csco, const QString& origen)
{
    return contar(db, kSujeto, csco, origen);
}

int64_t ComoTransmitente(const QSqlDatabase& db, int32_t csco, const QString& origen)
{
    return contar(db, kTransmitente, csco, origen);
}

int64_t ComoPresentador(const QSqlDatabase& db, int32_t cspr, const QString& origen)
{
    return contar(db, kPresentador, cspr, origen);
}

}  // namespace ContadoresPartes
