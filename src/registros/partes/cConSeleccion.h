#pragma once
// The states of the lists from which, while a return is being edited, a contributor is chosen
// as subject or transmitter (ConSeleccion()) and a presenter is chosen (PreSeleccion()). The
// declaration form sets ConSeleccion's ENTRADA and CRITERIO before the list opens; the
// contributor's criteria of one visit survive to the next while CRITERIO is "S", the
// presenter's never do.
#include "servicios/Arreglos.h"
#include "valores/cCriterio.h"

#include <QString>
#include <cstdint>
#include <optional>

class cConSeleccion {
public:
    // Whether the contributor CSCO may stand as subject: official number, national address.
    bool ValidarTipoDniDomicilio() const;

    int32_t CSCO = 0;            // the selected contributor
    int32_t NUMCONTRISEL = 0;    // contributors found
    QString CRITERIO;            // "S" the criteria survive the trip back to the form
    uint8_t ORDEN = 1;           // column of the order: 1 name, 2 number
    QString BUSQUEDA = QStringLiteral("N");  // "N" result state, "B" search state
    QString ENTRADA;             // "S" choosing the subject, "T" the transmitter
    std::optional<TablaCriterios> TABLASELECCION;
    QString SELECCIONACTUAL = QStringLiteral("0");

    // The start: the result state with nothing selected; the criteria and order of the last
    // visit only while CRITERIO is "S".
    void IniciarLista();
    bool HayCriterios() const;
    int32_t CargarContribuyentes(Arreglo2D& datos);
    // The search box was left: its column's criterion, the order by it; the criteria now
    // survive the trip back.
    void AnotarBusqueda(const QString& texto);
    void CambiarBusqueda();
    void Todos();
    bool OrdenarPor(int columna);
    bool ElegirColumnaBusqueda(int columna);
};

class cPreSeleccion {
public:
    int32_t CSPR = 0;
    int32_t NUMPRESENSEL = 0;
    uint8_t ORDEN = 1;
    QString BUSQUEDA = QStringLiteral("N");
    std::optional<TablaCriterios> TABLASELECCION;
    QString SELECCIONACTUAL = QStringLiteral("0");

    // The start: criteria and order always reset.
    void IniciarLista();
    bool HayCriterios() const;
    int32_t CargarPresentadores(Arreglo2D& datos);
    void AnotarBusqueda(const QString& texto);
    void CambiarBusqueda();
    void Todos();
    bool OrdenarPor(int columna);
    bool ElegirColumnaBusqueda(int columna);
};

cConSeleccion& ConSeleccion();
cPreSeleccion& PreSeleccion();
