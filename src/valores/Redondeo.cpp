#include "valores/Redondeo.h"

#include "plataforma/Fallo.h"

#include <QString>
#include <cmath>

namespace {

double Signo(double x)
{
    return x > 0 ? 1.0 : (x < 0 ? -1.0 : 0.0);
}

double Comprobado(double x, const char* origen)
{
    if (!std::isfinite(x))
        throw cFallo(6, QString::fromLatin1(origen), QStringLiteral("Desbordamiento"));
    return x;
}

}  // namespace

double RedondearEntero(double valor)
{
    Comprobado(valor, "RedondearEntero");
    const double entero = std::floor(valor);
    const double resto = std::fabs(valor - entero);
    if (resto >= 0.5)
        return Signo(valor) + entero;
    return Signo(valor) * entero;
}

double Redondear(double valor, int16_t decimales)
{
    if (decimales > 6)
        return valor;
    Comprobado(valor, "Redondear");
    const double potencia = std::pow(10.0, decimales);
    const double signo = valor >= 0 ? 1.0 : -1.0;
    const double entero = std::trunc(std::fabs(valor)) * signo;
    const double fraccion = Comprobado(std::fabs(valor - entero) * potencia, "Redondear");
    const double redondeada = RedondearEntero(fraccion) * signo / potencia;
    return Comprobado(redondeada + entero, "Redondear");
}
