// Tables of the parties in layout 1 of the read/write database.
//
// CONTRIBUYENTES holds the contributors and PRESENTADORES the presenters, one row each, keyed
// by a code given by the store (Dialecto::claveDada). Only the code of the last party can
// come back after its deletion, and a party named in a declaration is never deleted, so a
// code never comes to name another party in a declaration; the code is not a never-reused one
// (Dialecto::claveCreciente) because that costs every insert one more page written on the
// embedded engine. The identity number is unique whatever its case. Names and numbers match without regard to case (ASCII), which is what
// the prefix search of the lists uses; both columns are indexed for it.
//
// Codes of the address are kept in their fixed-width form: province "01", postal code "01001",
// municipality "001"; "" when there is none. The number of declarations in which a party is
// named is not stored: it is counted from DECLARACIONES when asked for (ContadoresPartes), so
// that it can never disagree with the declarations.
//
// The checks repeat the widths of the fields as a last guard; the rules of a valid party are
// those of the stores' validation, not of the table.
#include "servicios/Esquema.h"

QStringList EsquemaPartesV1(const Dialecto& d)
{
    return {
        QStringLiteral(
            "CREATE TABLE CONTRIBUYENTES ("
            "CSCO %1, "
            "TIPODNI TEXT NOT NULL DEFAULT 'O' CHECK (TIPODNI IN ('O', 'N')), "
            "DNIC TEXT NOT NULL %2 CHECK (length(DNIC) BETWEEN 1 AND 9), "
            "NOMBREC TEXT NOT NULL %2 CHECK (length(NOMBREC) BETWEEN 1 AND 40), "
            "VIAC TEXT NOT NULL DEFAULT 'CL' CHECK (length(VIAC) <= 2), "
            "DOMICILIOC TEXT NOT NULL DEFAULT '' CHECK (length(DOMICILIOC) <= 20), "
            "NUMEROC INTEGER NOT NULL DEFAULT 0 CHECK (NUMEROC BETWEEN 0 AND 99999), "
            "LETRAC TEXT NOT NULL DEFAULT '' CHECK (length(LETRAC) <= 2), "
            "ESCALERAC TEXT NOT NULL DEFAULT '' CHECK (length(ESCALERAC) <= 2), "
            "PISOC TEXT NOT NULL DEFAULT '' CHECK (length(PISOC) <= 2), "
            "MANOC TEXT NOT NULL DEFAULT '' CHECK (length(MANOC) <= 3), "
            "TIPODOMI TEXT NOT NULL DEFAULT 'N' CHECK (TIPODOMI IN ('N', 'E')), "
            "PAIS TEXT NOT NULL DEFAULT '' CHECK (length(PAIS) <= 20), "
            "CODPROVC TEXT NOT NULL DEFAULT '' CHECK (length(CODPROVC) <= 2), "
            "NOMPROVC TEXT NOT NULL DEFAULT '' CHECK (length(NOMPROVC) <= 20), "
            "CODPOSC TEXT NOT NULL DEFAULT '' CHECK (length(CODPOSC) <= 5), "
            "CODMUNC TEXT NOT NULL DEFAULT '' CHECK (length(CODMUNC) <= 3), "
            "NOMMUNC TEXT NOT NULL DEFAULT '' CHECK (length(NOMMUNC) <= 25))")
            .arg(d.claveDada, d.sinMayusculas),
        QStringLiteral("CREATE UNIQUE INDEX CONTRIBUYENTES_DNIC ON CONTRIBUYENTES (DNIC)"),
        QStringLiteral("CREATE INDEX CONTRIBUYENTES_NOMBREC ON CONTRIBUYENTES (NOMBREC)"),
        QStringLiteral(
            "CREATE TABLE PRESENTADORES ("
            "CSPR %1, "
            "DNIP TEXT NOT NULL %2 CHECK (length(DNIP) BETWEEN 1 AND 9), "
            "NOMBREP TEXT NOT NULL %2 CHECK (length(NOMBREP) BETWEEN 1 AND 40), "
            "VIAP TEXT NOT NULL DEFAULT 'CL' CHECK (length(VIAP) <= 2), "
            "DOMICILIOP TEXT NOT NULL DEFAULT '' CHECK (length(DOMICILIOP) <= 20), "
            "NUMEROP INTEGER NOT NULL DEFAULT 0 CHECK (NUMEROP BETWEEN 0 AND 99999), "
            "LETRAP TEXT NOT NULL DEFAULT '' CHECK (length(LETRAP) <= 2), "
            "ESCALERAP TEXT NOT NULL DEFAULT '' CHECK (length(ESCALERAP) <= 2), "
            "PISOP TEXT NOT NULL DEFAULT '' CHECK (length(PISOP) <= 2), "
            "MANOP TEXT NOT NULL DEFAULT '' CHECK (length(MANOP) <= 3), "
            "CODPROVP TEXT NOT NULL DEFAULT '' CHECK (length(CODPROVP) <= 2), "
            "CODPOSP TEXT NOT NULL DEFAULT '' CHECK (length(CODPOSP) <= 5), "
            "CODMUNP TEXT NOT NULL DEFAULT '' CHECK (length(CODMUNP) <= 3), "
            "NOMMUNP TEXT NOT NULL DEFAULT '' CHECK (length(NOMMUNP) <= 25), "
            "TELEFONOP TEXT NOT NULL DEFAULT '' CHECK (length(TELEFONOP) <= 9))")
            .arg(d.claveDada, d.sinMayusculas),
        QStringLiteral("CREATE UNIQUE INDEX PRESENTADORES_DNIP ON PRESENTADORES (DNIP)"),
        QStringLiteral("CREATE INDEX PRESENTADORES_NOMBREP ON PRESENTADORES (NOMBREP)"),
    };
}
