#pragma once
// What the tests of the parties' stores share: a program folder with the reference database
// and a new read/write database of the current layout, declarations that name parties, and
// arrays of valid parties to start from.
#include "comun/Entorno.h"
#include "servicios/Arreglos.h"

#include <QSqlDatabase>
#include <QString>
#include <cstdint>
#include <memory>

class AlmacenDePrueba {
public:
    // Creates the folder (CarpetaDePrueba) and lays out VELDOMOD.mdb as the program does at
    // its first start.
    AlmacenDePrueba();
    ~AlmacenDePrueba();

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

// A DNI of eight digits with its right letter.
QString Dni(quint32 numero);

// Save arrays of a valid contributor: national in the treasury's province (municipality 001),
// and foreign with a foreign document.
Arreglo ContribuyenteNacional(const QString& dni, const QString& nombre, int32_t csco = 0);
Arreglo ContribuyenteExtranjero(const QString& dni, const QString& nombre, int32_t csco = 0);
// The validation array (11 texts) of a save array.
Arreglo ValidacionDe(const Arreglo& guardar);
// The import validation array (15 raw texts) of a valid national contributor, as an exchange
// line holds it (fixed widths, blanks included).
Arreglo ImportacionNacional();

// Save array of a valid presenter in the treasury's province.
Arreglo Presentador(const QString& dni, const QString& nombre, int32_t cspr = 0);
// Its validation array (8 texts).
Arreglo ValidacionPresentador(const Arreglo& guardar);
