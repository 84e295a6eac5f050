#pragma once
// The rows of the operations table as the lists of returns need them: the description of an
// operation on a return's date, looked up in memory rather than row by row.
#include "plataforma/Idioma.h"

#include <QHash>
#include <QList>
#include <QString>
#include <cstdint>

struct FilaOperacion {
    QString codigo;
    int32_t desde = 0;
    int32_t hasta = 0;
    QString descripcionCas;
    QString descripcionEus;
};

// Every row of T11_OPERACIONES, by code.
class TablaOperaciones {
public:
    TablaOperaciones(const QString& mdblec, const QString& origen);
    // The description of `codigo` on `fechad` in `idioma`; empty when the
    // code does not apply on that date.
    QString Descripcion(const QString& codigo, int32_t fechad, Idioma idioma) const;

private:
    QHash<QString, QList<FilaOperacion>> m_filas;
};
