#pragma once
// The export of contributors (one instance, Exportar()): the state of the export panel, the two
// tables behind its grids (what the store found, what goes into the file) and the export
// itself. The tables count from 1. The export table keeps the order in which contributors were
// selected, which is the order of the lines, and never holds one contributor twice.
#include "valores/cCriterio.h"
#include "registros/intercambio/LineaIntercambio.h"
#include "valores/Contribuyente.h"
#include "valores/Resultado.h"

#include <QString>
#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

// One contributor of a table: its code, then the fields of the line (texts cut or filled to
// their widths, the six numbers as numbers).
struct RegistroContri {
    int32_t CSCO = 0;
    ValoresLinea valores;
    const QString& texto(CampoIntercambio c) const { return valores.textos[Indice(c)]; }
};

class cExportar {
public:
    std::optional<TablaCriterios> TABLASELECCION;  // the criteria in force; absent: none
    QString SELECCIONACTUAL = QStringLiteral("0");  // the column searched on, "0" none
    int32_t CSCO = 0;          // row selected among those found, 0 none
    uint8_t ORDEN = 1;         // 1 by name, 2 by number
    QString BUSQUEDA = QStringLiteral("N");  // "N" normal, "B" search
    QString lblTitulo, lblayuda, lblResultado1, LblResultado2;
    int32_t NUMCONTRISEL = 0;  // rows found by the store
    int32_t CSCOEXP = 0;       // row selected among those to export, 0 none
    int32_t NUMCONTRIEXP = 0;  // rows of the export table
    QString FICHEROAEXPORTAR;  // full name of the file

    // The start values of an opening (the export table emptied, the default file name).
    void Iniciar();

    // --- The tables. Indexes count from 1.
    void COPIARELEMENTOENTRETABLAS(int indice);
    void TablaContriCLEAR();
    void TablaContriExpCLEAR();
    // A contributor of the store's answer.
    void TablaContriAÑADIR(const Contribuyente& contribuyente);
    void TablaContriExpAÑADIR(const RegistroContri& registro);
    void TablaContriExpBORRAR(int indice);
    int TablaContriCOUNT() const { return int(m_contri.size()); }
    int TablaContriExpCOUNT() const { return int(m_contriExp.size()); }
    bool TablaContriExpPERTENECE(int32_t codigo) const;
    const RegistroContri& TablaContriELEMENTO(int indice) const;
    const RegistroContri& TablaContriExpELEMENTO(int indice) const;
    // Index of the found row of that code, 0 when none.
    int IndiceEnTablaContri(int32_t codigo) const;

    // --- The store and the state moves of the panel.
    bool HayCriterios() const;
    // Asks the store for the contributors of the criteria, in ORDEN; fills TablaContri and
    // NUMCONTRISEL. Answers the count.
    int32_t CargarFlxDeclaraciones();
    void AnotarBusqueda(const QString& texto);  // the search box was left
    void CambiarBusqueda();                     // cmdBuscar
    void Todos();                               // cmdTodos
    bool OrdenarPor(int columna);               // a click on a heading (name 1, number 2)
    bool ElegirColumnaBusqueda(int columna);    // a click in the search state
    // CmdSelUno: the contributor CSCO joins the export table unless it is there already;
    // true when it joined.
    bool SeleccionarUno();
    // CmdSelTodos: every found contributor not selected yet joins, in the order found.
    void SeleccionarTodos();
    // CmdDeselTodos.
    void DeseleccionarTodos();

    // --- The export.
    // Refuses the contributors that cannot go into the file, naming their numbers: first
    // those with an official number that is not valid or a non-official one of value 0; else
    // those with a value the code page cannot hold. Accepted when all can.
    Resultado<void> ComprobarIdentidades() const;
    // Refused (message 249) when FICHEROAEXPORTAR cannot name a file (no name, or no such
    // folder).
    Resultado<void> ComprobarDestino() const;
    bool DestinoExiste() const;
    // Writes the lines of the export table, in its order, replacing the file whole: the file
    // is either the new one or the old one, never half of each. Refused for a value the code
    // page cannot hold; a failure of the disk answers message 277.
    Resultado<void> EscribirFichero() const;

private:
    std::vector<RegistroContri> m_contri;
    std::vector<RegistroContri> m_contriExp;
    std::unordered_set<int32_t> m_codigosExp;
};

cExportar& Exportar();
