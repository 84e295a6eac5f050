#include "paneles/imprimir/cSuperficieVista.h"

#include <QPrinter>

cSuperficieVista::cSuperficieVista(QPrinter& impresora)
    : cSuperficiePintor(impresora.resolution()), m_impresora(impresora)
{
    // The form counts millimetres from the paper's edge, not from the printable area.
    m_impresora.setFullPage(true);
}

cSuperficieVista::~cSuperficieVista() { CerrarPintor(); }

void cSuperficieVista::EmpezarHoja(QPainter& pintor)
{
    // The painter stays open from one sheet to the next: a later sheet is a new page.
    if (pintor.isActive())
        m_impresora.newPage();
    else
        pintor.begin(&m_impresora);
    ++m_paginas;
}

void cSuperficieVista::EndDoc() { TerminarHoja(); }
