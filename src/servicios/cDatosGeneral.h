#pragma once
// General data of the stores: counts of the user's records, the date limits, the pickers'
// reference lists and the update address. Set mdbmod or mdblec before each call.
#include "servicios/Arreglos.h"

#include <QString>
#include <cstdint>

class cDatosGeneral {
public:
    QString mdbmod;
    QString mdblec;

    int32_t NumeroDeclaraciones() const;
    int32_t NumeroContribuyentes() const;
    int16_t NumeroPresentadores() const;
    // Fills `fechas` with the oldest (0) and newest (1) accepted date, as yyyymmdd.
    void DameFechaMinimaMaxima(Arreglo& fechas) const;
    // Run the SQL text of a picker (code, name) and fill a[0] with codes, a[1] with names.
    void CargarVias(const QString& sql, Arreglo2D& a) const;
    void CargarProvincias(const QString& sql, Arreglo2D& a) const;
    void CargarMunicipios(const QString& sql, Arreglo2D& a) const;
    void CargarTipos(const QString& sql, Arreglo2D& a) const;
    QString ObtenNomMunicipio(const QString& codigo) const;
    QString ObtenNomProvincia(const QString& codigo) const;
    QString URLAct() const;
};
