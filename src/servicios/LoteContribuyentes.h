#pragma once
// Many saves of contributors in few write transactions: what an import needs to write a whole
// file at the speed of the file rather than at the speed of one commit per line.
//
// Each save takes the same value, runs the same checks and answers the same verdict as
// cContribSvr::GuardarContribuyente(c, sustituir); each look-up sees every save made
// before it, committed or not, so a file that names one number twice gives the same results as
// saving its lines one by one. The saves are committed in batches: after kFilasPorLote saves,
// or once a batch has held the write lock for kMilisegundosPorLote, and at each Confirmar().
// A failure (or the end of the process) loses only the batch under way: every batch committed
// before it stays whole. A caller that waits for a person first calls Confirmar(), so that the
// lock is never held while nobody works, and a second running copy of the program is kept
// waiting for at most one short batch.
#include "servicios/AccesoTabla.h"
#include "servicios/Conexion.h"
#include "servicios/Sobrescritura.h"
#include "servicios/ValidacionPartes.h"
#include "valores/Contribuyente.h"
#include "valores/Resultado.h"

#include <QElapsedTimer>
#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <cstdint>
#include <memory>

class cLoteContribuyentes {
public:
    static constexpr int kFilasPorLote = 32768;
    static constexpr int kMilisegundosPorLote = 400;

    // Opens the read/write database `mdbmod` and reads the look-ups of the validation from the
    // reference database `mdblec` (cFallo when either cannot be read).
    cLoteContribuyentes(const QString& mdbmod, const QString& mdblec);
    // The batch under way, if any, is rolled back.
    ~cLoteContribuyentes();
    cLoteContribuyentes(const cLoteContribuyentes&) = delete;
    cLoteContribuyentes& operator=(const cLoteContribuyentes&) = delete;

    // As cContribSvr::ValidarDatosImportar: every error of one exchange line.
    QList<HallazgoImportacion> ValidarDatosImportar(const LineaContribuyente& linea) const;
    // Code of the contributor with this number (blanks around it ignored), 0 when none, with
    // the version of its row.
    TitularParte ExisteContribuyente(const QString& dni);
    // As cContribSvr::GuardarContribuyente(c, sustituir, sobre): `sustituir` replaces the
    // contributor CSCO (with VersionCargada, over the VERSION the value carries: one saved again
    // or deleted since is not replaced, and the verdict's vigencia says which), or with CSCO 0
    // the holder of the number as the last look-up or AnadirSiNuevo found it, over the version
    // found. A save refused writes nothing.
    Resultado<void> GuardarContribuyente(const Contribuyente& c, bool sustituir,
                                         Sobrescritura sobre = Sobrescritura::VersionCargada);
    // As GuardarContribuyente(c, false), but for a number already in the store it writes
    // nothing and answers its holder (code and version), as ExisteContribuyente would: a save
    // with `sustituir` that follows replaces that holder without reading it again. The holder
    // is code 0 when the contributor was added. One look-up of the number instead of two for a
    // new contributor: the insert itself finds the holder.
    Resultado<TitularParte> AnadirSiNuevo(const Contribuyente& c);
    // Commits the saves made so far.
    void Confirmar();
    // Saves not yet committed.
    int Pendientes() const { return m_pendientes; }

private:
    // The write transaction of the batch, begun at its first save.
    void Empezar();
    // One more save in the batch: commits it once it is full or old enough.
    void Contar();

    QString m_origen;
    QSqlDatabase m_db;
    ConsultasReferencia m_referencia;
    std::unique_ptr<AccesoNativo> m_acceso;
    std::unique_ptr<Transaccion> m_transaccion;
    QElapsedTimer m_reloj;
    int m_pendientes = 0;
    // The last look-up, while nothing has been written after it: a save of that number need
    // not read its holder again.
    QString m_dniConsultado;
    TitularParte m_consultado;
    bool m_consultaVigente = false;
};
