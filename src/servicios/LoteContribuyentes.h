#pragma once
// Many saves of contributors in few write transactions: what an import needs to write a whole
// file at the speed of the file rather than at the speed of one commit per line.
//
// Each save takes the same array, runs the same checks and answers the same verdict as
// cContribSvr::GuardarContribuyente(datos, sustituir); each look-up sees every save made
// before it, committed or not, so a file that names one number twice gives the same results as
// saving its lines one by one. The saves are committed in batches: after kFilasPorLote saves,
// or once a batch has held the write lock for kMilisegundosPorLote, and at each Confirmar().
// A failure (or the end of the process) loses only the batch under way: every batch committed
// before it stays whole. A caller that waits for a person first calls Confirmar(), so that the
// lock is never held while nobody works, and a second running copy of the program is kept
// waiting for at most one short batch.
#include "servicios/AccesoTabla.h"
#include "servicios/Arreglos.h"
#include "servicios/Conexion.h"
#include "servicios/ValidacionPartes.h"
#include "valores/Veredicto.h"

#include <QElapsedTimer>
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
    void ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const;
    // Code of the contributor with this number (blanks around it ignored), 0 when none;
    // `version`, when given, receives the version of its row.
    int32_t ExisteContribuyente(const QString& dni, int64_t* version = nullptr);
    // As cContribSvr::GuardarContribuyente(datos, sustituir, rechazo, version): with the
    // version that ExisteContribuyente or AnadirSiNuevo gave, a contributor saved again or
    // deleted since is not replaced (verdicts Cambiado, Borrado). A save refused by its
    // verdict writes nothing.
    int16_t GuardarContribuyente(const Arreglo& datos, bool sustituir,
                                 Veredicto* rechazo = nullptr, int64_t* version = nullptr);
    // As GuardarContribuyente(datos, false), but for a number already in the store it writes
    // nothing, answers DniExistente and puts in `titular` the code that holds the number and in
    // `version` (when given) the version of its row, as ExisteContribuyente would (a save of
    // that code that follows does not read it again). One look-up of the number instead of two
    // for a new contributor: the insert itself finds the holder.
    int16_t AnadirSiNuevo(const Arreglo& datos, int32_t& titular, Veredicto* rechazo = nullptr,
                          int64_t* version = nullptr);
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
