#include "plataforma/Fallo.h"

cFallo::cFallo(int numero, QString origen, QString descripcion)
    : m_numero(numero), m_origen(std::move(origen)), m_descripcion(std::move(descripcion)),
      m_what((m_origen + QStringLiteral(": ") + m_descripcion).toStdString())
{
}

cFallo cFallo::relanzadoDesde(const QString& origen) const
{
    return cFallo(m_numero, origen + QStringLiteral("\r\n") + m_origen, m_descripcion);
}
