#include "aplicacion/FechaSeleccion.h"

#include "catalogo/Catalogo.h"

#include <QDate>

std::optional<int32_t> FechaSeleccion(const QString& texto)
{
    const QDate d = QDate::fromString(texto.trimmed(), QStringLiteral("dd/MM/yyyy"));
    if (!d.isValid())
        return std::nullopt;
    return d.year() * 10000 + d.month() * 100 + d.day();
}

QString FechaSeleccionNoValida(const QString& texto)
{
    return TextoSegunIdioma(QStringLiteral("La fecha de la selección no es correcta: "),
                            QStringLiteral("Hautapenaren data ez da zuzena: "))
           + texto;
}
