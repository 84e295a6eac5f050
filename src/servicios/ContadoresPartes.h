#pragma once
// How many declarations name a party: a contributor as subject (NUMSP) or as transmitter
// (NUMTR), a presenter as presenter.
//
// The counts are not kept in the parties' rows: they are counted from DECLARACIONES each time
// they are asked for, so that they agree with the declarations whatever a save array carries
// and whichever way a declaration was saved or deleted. Those columns of DECLARACIONES are
// indexed by its layout, which keeps every count an index lookup. This is the one place that
// knows how a declaration names its parties.
#include <QSqlDatabase>
#include <QString>
#include <cstdint>

namespace ContadoresPartes {

// SQL expressions, for a select list, that count the declarations of the party whose code is
// the column `codigo` of the outer query (e.g. "c.CSCO").
QString SqlComoSujeto(const QString& codigo);
QString SqlComoTransmitente(const QString& codigo);
QString SqlComoPresentador(const QString& codigo);

int64_t ComoSujeto(const QSqlDatabase& db, int32_t csco, const QString& origen);
int64_t ComoTransmitente(const QSqlDatabase& db, int32_t csco, const QString& origen);
int64_t ComoPresentador(const QSqlDatabase& db, int32_t cspr, const QString& origen);

}  // namespace ContadoresPartes
