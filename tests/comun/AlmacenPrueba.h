#pragma once
// A program folder whose read/write store the migration has just laid out, as at the first
// start, with the seams recording and the language Spanish; and the store's rows read and
// written directly, beside the stores' own operations.
#include "comun/Entorno.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <cstdint>
#include <memory>

class AlmacenDePrueba {
public:
    // Creates the folder (CarpetaDePrueba), starts recording every seam with an empty record,
    // sets the language to Spanish and lays out VELDOMOD.mdb as the program does at its first
    // start.
    AlmacenDePrueba();
    ~AlmacenDePrueba();
    AlmacenDePrueba(const AlmacenDePrueba&) = delete;
    AlmacenDePrueba& operator=(const AlmacenDePrueba&) = delete;

    QSqlDatabase db() const;
    const CarpetaDePrueba& carpeta() const { return *m_carpeta; }

    // A declaration naming these parties (0: none); answers its code.
    int32_t NuevaDeclaracion(int32_t cssu, int32_t cstra, int32_t cspr = 0) const;
    void BorrarDeclaracion(int32_t csde) const;
    // Rows of a table.
    int Filas(const QString& tabla) const;
    // One stored value.
    QVariant Valor(const QString& sql, const QVariantList& valores = {}) const;
    void Ejecutar(const QString& sql, const QVariantList& valores = {}) const;

private:
    std::unique_ptr<CarpetaDePrueba> m_carpeta;
};

// The read/write store of the application paths (mdbmod), whoever laid it out: one stored
// value, and a statement run on it.
QVariant ValorAlmacenado(const QString& sql, const QVariantList& valores = {});
void EjecutarEnAlmacen(const QString& sql, const QVariantList& valores = {});
// A declaration row that names the parties given (0: none), as the declarations' store keeps
// them; enough for the counters of the parties. Answers its code.
int32_t NuevaDeclaracion(int32_t sujeto, int32_t transmitente, int32_t presentador = 0);
// The number of rows of DECLARACIONES.
int FilasDeclaraciones();
