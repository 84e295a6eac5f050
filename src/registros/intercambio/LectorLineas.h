#pragma once
// Reads the lines of an exchange file from an open device. A line ends in LF, with or without
// the CR before it; the last line needs no end; an empty file has no line. Only the first
// `largoMaximo` bytes of a line are kept (the rest of a long line is read and dropped), so a
// file of any shape reads in bounded memory.
#include <QByteArray>
#include <QFileDevice>

class LectorLineas {
public:
    LectorLineas(QFileDevice& dispositivo, qsizetype largoMaximo);

    // The next line without its end, false at the end of the file. A failure of the device is
    // reported by error().
    bool Siguiente(QByteArray& linea);
    bool error() const { return m_error; }

private:
    bool Rellenar();

    QFileDevice& m_dispositivo;
    qsizetype m_largoMaximo;
    QByteArray m_bufer;
    qsizetype m_posicion = 0;
    bool m_fin = false;
    bool m_error = false;
};
