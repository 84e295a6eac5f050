#pragma once
// What the declaration tests share: a program folder with both databases laid out, parties
// in the store, a valid return in DecDatos(), and valid tax numbers.
#include "comun/Entorno.h"
#include "servicios/Arreglos.h"

#include <QString>
#include <cstdint>
#include <memory>

// A program folder whose read/write database has been created by the migration, with the
// message seams recording. The language is Spanish.
class AlmacenDePrueba {
public:
    AlmacenDePrueba();
    ~AlmacenDePrueba();

private:
    std::unique_ptr<CarpetaDePrueba> m_carpeta;
};

// A valid DNI (eight digits and the right letter) for a number.
QString DniValido(quint32 numero);

// A national contributor of the home province 77; answers its code.
int32_t NuevoContribuyente(const QString& dni, const QString& nombre);
// A contributor with a foreign number and address.
int32_t NuevoContribuyenteExtranjero(const QString& dni, const QString& nombre);
int32_t NuevoPresentador(const QString& dni, const QString& nombre);

// DecDatos() as a new return that passes every rule: a petrol passenger car of 2010 under the
// operation T2, subject and transmitter national, in the home province. Operacion() holds T2.
void DeclaracionValida();

// The number of rows of DECLARACIONES.
int FilasDeclaraciones();
