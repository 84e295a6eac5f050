#pragma once
// The state of the presenters' list (one instance, PreLista()), as the contributors' list with
// one counter of declarations and no VALORSEL.
#include "valores/cCriterio.h"
#include "servicios/Arreglos.h"

#include <QString>
#include <cstdint>
#include <optional>

class cPreLista {
public:
    std::optional<TablaCriterios> TABLASELECCION;
    QString SELECCIONACTUAL = QStringLiteral("0");
    int32_t CSPR = 0;
    int32_t NUMPRESENSEL = 0;
    QString ENTRADA;
    QString BUSQUEDA = QStringLiteral("N");
    QString MODO = QStringLiteral("C");
    uint8_t ORDEN = 1;
    int32_t NUMDECLARACIONES = 0;

    // As cConLista.
    void IniciarLista();
    bool HayCriterios() const;
    Arreglo CriteriosBusqueda() const;
    // The six columns of the presenters' grid; NUMPRESENSEL takes the count.
    int32_t CargarPresentadores(Arreglo2D& datos);
    void AnotarBusqueda(const QString& texto);
    void CambiarBusqueda();
    void Todos();
    bool OrdenarPor(int columna);
    bool ElegirColumnaBusqueda(int columna);
    void Seleccionar(int32_t codigo, int32_t numDeclaraciones);
};

cPreLista& PreLista();
