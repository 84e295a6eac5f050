#include "paneles/imprimir/cSuperficiePdf.h"

#include <QPageLayout>
#include <QPageSize>

namespace {
// The dots of the printer the frames were drawn for.
constexpr int kResolucion = 600;
}

cSuperficiePdf::cSuperficiePdf(const QString& fichero)
    : cSuperficiePintor(kResolucion), m_escritor(std::make_unique<QPdfWriter>(fichero))
{
    Preparar();
}

cSuperficiePdf::cSuperficiePdf(QIODevice* destino)
    : cSuperficiePintor(kResolucion), m_escritor(std::make_unique<QPdfWriter>(destino))
{
    Preparar();
}

void cSuperficiePdf::Preparar()
{
    m_escritor->setResolution(kResolucion);
    m_escritor->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                          QMarginsF(0, 0, 0, 0)));
    m_escritor->setCreator(QStringLiteral("Veldoria"));
    m_escritor->setTitle(QStringLiteral("747"));
}

cSuperficiePdf::~cSuperficiePdf() { Terminar(); }

void cSuperficiePdf::EmpezarHoja(QPainter& pintor)
{
    // The painter stays open from one sheet to the next: a later sheet is a new page.
    if (pintor.isActive())
        m_bien = m_escritor->newPage() && m_bien;
    else
        m_bien = pintor.begin(m_escritor.get());
    ++m_paginas;
}

void cSuperficiePdf::EndDoc()
{
    // The sheet is complete; the next drawing call opens the next page.
    TerminarHoja();
}

bool cSuperficiePdf::Terminar()
{
    CerrarPintor();
    return m_bien;
}
