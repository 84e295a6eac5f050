// The declarations' table in layout 1 of the read/write database.
//
// One row per return. The columns hold the fields of a return (Declaracion) under their
// names. Codes of parties are NULL when the return names no stored
// contributor or presenter (the program's 0), so that the foreign keys hold. GRABACION is the
// order of the saves (the greatest is the last saved), for the recent declarations of the menu.
// The indexes serve the declaration lists: their criteria and orders (code, reference, date,
// total, operation) and the lists of one contributor or one presenter. Reference and operation
// sort and match without regard to the case of ASCII letters, as the lists search them.
#include "servicios/Esquema.h"

QStringList EsquemaDeclaracionesV1(const Dialecto& d)
{
    return {
        QStringLiteral(
            "CREATE TABLE DECLARACIONES ("
            "CSDE %1, "
            "REFERENCIA TEXT NOT NULL DEFAULT '' %2, "
            "CSPR INTEGER REFERENCES PRESENTADORES (CSPR), "
            "CSSU INTEGER REFERENCES CONTRIBUYENTES (CSCO), "
            "CSTRA INTEGER REFERENCES CONTRIBUYENTES (CSCO), "
            "FECHAD INTEGER NOT NULL DEFAULT 0, "
            "ADQUIRIDO TEXT NOT NULL DEFAULT '', "
            "MARCA TEXT NOT NULL DEFAULT '', "
            "TIPO TEXT NOT NULL DEFAULT '', "
            "MODELO TEXT NOT NULL DEFAULT '', "
            "BASTIDOR TEXT NOT NULL DEFAULT '', "
            "CLASIFICACION INTEGER NOT NULL DEFAULT 0, "
            "MOTOR TEXT NOT NULL DEFAULT 'G', "
            "CILINDRADA INTEGER NOT NULL DEFAULT 0, "
            "OPERACION TEXT NOT NULL DEFAULT '' %2, "
            "NOSUJETO TEXT NOT NULL DEFAULT '', "
            "EXENTO TEXT NOT NULL DEFAULT '', "
            "REDUCCION TEXT NOT NULL DEFAULT '', "
            "BASEI %3 NOT NULL DEFAULT 0, "
            "BASEIREDUCIDA %3 NOT NULL DEFAULT 0, "
            "TIPOIMP %3 NOT NULL DEFAULT 0, "
            "CUOTA %3 NOT NULL DEFAULT 0, "
            "DEDUCCION %3 NOT NULL DEFAULT 0, "
            "TOTAL %3 NOT NULL DEFAULT 0, "
            "DNISP TEXT NOT NULL DEFAULT '', "
            "NOMBRESP TEXT NOT NULL DEFAULT '', "
            "VIASP TEXT NOT NULL DEFAULT '', "
            "DOMICILIOSP TEXT NOT NULL DEFAULT '', "
            "NUMEROSP INTEGER NOT NULL DEFAULT 0, "
            "LETRASP TEXT NOT NULL DEFAULT '', "
            "ESCALERASP TEXT NOT NULL DEFAULT '', "
            "PISOSP TEXT NOT NULL DEFAULT '', "
            "MANOSP TEXT NOT NULL DEFAULT '', "
            "CODPROVSP TEXT NOT NULL DEFAULT '', "
            "NOMPROVSP TEXT NOT NULL DEFAULT '', "
            "CODPOSSP TEXT NOT NULL DEFAULT '', "
            "CODMUNSP TEXT NOT NULL DEFAULT '', "
            "NOMMUNSP TEXT NOT NULL DEFAULT '', "
            "TIPODNITR TEXT NOT NULL DEFAULT 'O', "
            "DNITR TEXT NOT NULL DEFAULT '', "
            "NOMBRETR TEXT NOT NULL DEFAULT '', "
            "VIATR TEXT NOT NULL DEFAULT '', "
            "DOMICILIOTR TEXT NOT NULL DEFAULT '', "
            "NUMEROTR INTEGER NOT NULL DEFAULT 0, "
            "LETRATR TEXT NOT NULL DEFAULT '', "
            "ESCALERATR TEXT NOT NULL DEFAULT '', "
            "PISOTR TEXT NOT NULL DEFAULT '', "
            "MANOTR TEXT NOT NULL DEFAULT '', "
            "TIPODOMITR TEXT NOT NULL DEFAULT 'N', "
            "PAISTR TEXT NOT NULL DEFAULT '', "
            "CODPROVTR TEXT NOT NULL DEFAULT '', "
            "NOMPROVTR TEXT NOT NULL DEFAULT '', "
            "CODPOSTR TEXT NOT NULL DEFAULT '', "
            "CODMUNTR TEXT NOT NULL DEFAULT '', "
            "NOMMUNTR TEXT NOT NULL DEFAULT '', "
            "GRABACION INTEGER NOT NULL DEFAULT 0)")
            .arg(d.claveCreciente, d.sinMayusculas, d.real),
        // The list reads code, reference, date, total and operation of many rows at once:
        // each order has an index that holds all five (the code is every index's last
        // column), so that a long list is read from the index alone, in its order.
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_LISTA ON DECLARACIONES "
                       "(CSDE, REFERENCIA, FECHAD, TOTAL, OPERACION)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_REFERENCIA ON DECLARACIONES "
                       "(REFERENCIA, FECHAD, TOTAL, OPERACION)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_FECHAD ON DECLARACIONES "
                       "(FECHAD, REFERENCIA, TOTAL, OPERACION)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_TOTAL ON DECLARACIONES "
                       "(TOTAL, REFERENCIA, FECHAD, OPERACION)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_OPERACION ON DECLARACIONES "
                       "(OPERACION, REFERENCIA, FECHAD, TOTAL)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_GRABACION ON DECLARACIONES (GRABACION)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_CSSU ON DECLARACIONES (CSSU)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_CSTRA ON DECLARACIONES (CSTRA)"),
        QStringLiteral("CREATE INDEX IX_DECLARACIONES_CSPR ON DECLARACIONES (CSPR)"),
    };
}
