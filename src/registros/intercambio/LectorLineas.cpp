#include "registros/intercambio/LectorLineas.h"

namespace {
constexpr qint64 kBloque = 256 * 1024;
}

LectorLineas::LectorLineas(QFileDevice& dispositivo, qsizetype largoMaximo)
    : m_dispositivo(dispositivo), m_largoMaximo(largoMaximo)
{
}

bool LectorLineas::Rellenar()
{
    if (m_fin)
        return false;
    m_bufer = m_dispositivo.read(kBloque);
    m_posicion = 0;
    if (m_bufer.isEmpty()) {
        m_fin = true;
        // A read that answers nothing before the end is a failure of the device.
        m_error = m_dispositivo.error() != QFileDevice::NoError;
        return false;
    }
    return true;
}

bool LectorLineas::Siguiente(QByteArray& linea)
{
    linea.clear();
    bool algo = false;  // a byte of this line was read (an empty line between two ends counts)
    for (;;) {
        if (m_posicion >= m_bufer.size() && !Rellenar()) {
            if (!algo)
                return false;
            break;
        }
        algo = true;
        const qsizetype fin = m_bufer.indexOf('\n', m_posicion);
        const qsizetype hasta = fin < 0 ? m_bufer.size() : fin;
        const qsizetype cabe = m_largoMaximo + 1 - linea.size();  // one more, for a CR
        if (cabe > 0)
            linea.append(m_bufer.constData() + m_posicion, std::min(cabe, hasta - m_posicion));
        if (fin >= 0) {
            m_posicion = fin + 1;
            break;
        }
        m_posicion = m_bufer.size();
    }
    // The CR of a CR LF end (or of a last line that ends in a lone CR).
    if (linea.size() <= m_largoMaximo && linea.endsWith('\r'))
        linea.chop(1);
    else if (linea.size() > m_largoMaximo)
        linea.truncate(m_largoMaximo);
    return true;
}
