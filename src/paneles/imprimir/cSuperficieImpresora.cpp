#include "paneles/imprimir/cSuperficieImpresora.h"

#include <QPrinterInfo>

cSuperficieImpresora::cSuperficieImpresora(QPrinter& impresora)
    : cSuperficiePintor(impresora.resolution()), m_impresora(impresora)
{
    // The form counts millimetres from the paper's edge, not from the printable area.
    m_impresora.setFullPage(true);
}

cSuperficieImpresora::~cSuperficieImpresora() { CerrarPintor(); }

void cSuperficieImpresora::EmpezarHoja(QPainter& pintor)
{
    m_bien = pintor.begin(&m_impresora) && m_bien;
}

void cSuperficieImpresora::EndDoc()
{
    // Ending the painter ends the job and sends it out; the next sheet begins a new one.
    CerrarPintor();
    TerminarHoja();
}

int cSuperficieImpresora::NumeroImpresoras()
{
    return static_cast<int>(QPrinterInfo::availablePrinters().size());
}
