#pragma once
// A run-time failure: what a server or a routine raises when it cannot go on. Nothing in the
// panels catches it; it reaches the runtime failure notice, which shows its source and
// description and ends the program. A few routines catch it only to raise it again with their
// own name in front of the source.
#include <QString>
#include <exception>
#include <string>

class cFallo : public std::exception {
public:
    cFallo(int numero, QString origen, QString descripcion);

    int numero() const { return m_numero; }
    const QString& origen() const { return m_origen; }
    const QString& descripcion() const { return m_descripcion; }
    const char* what() const noexcept override { return m_what.c_str(); }

    // The same failure with `origen` + CR LF + the former source as its source.
    cFallo relanzadoDesde(const QString& origen) const;

private:
    int m_numero;
    QString m_origen;
    QString m_descripcion;
    std::string m_what;
};
