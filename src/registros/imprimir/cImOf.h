#pragma once
// The options of one printing: which copies, which kind of sheet, with or without the
// presenter, the date of presentation. A plain holder; the print panel fills it and the
// drawing reads it. One shared instance, ImOf().
#include "valores/EstadoNavegacion.h"

#include <QString>
#include <cstdint>

class cImOf {
public:
    // The panel to go back to when the print panel closes; the navigator sets it.
    Navegacion::OrigenImpresion ENTRADA = Navegacion::OrigenImpresion::Declaracion;
    int32_t CSDE = 0;         // the return to print
    QString CONPRESENTADOR;   // "S" with presenter
    QString COPIABAN;         // "X" each copy wanted
    QString COPIAADM;
    QString COPIAINT;
    QString COPIAINF;
    QString TIPOIMP;          // "O" official, "B" draft
    int32_t FECHAPRE = 0;     // date of presentation yyyymmdd
};

cImOf& ImOf();
