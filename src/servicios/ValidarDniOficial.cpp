#include "servicios/ValidarDniOficial.h"

namespace {

const QString kLetrasDni = QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKE");
const QString kLetrasCif = QStringLiteral("ABCDEFGHJNPQRSUVW");
const QString kControlCifLetra = QStringLiteral("JABCDEFGHI");
// First letters of a CIF whose control is always a digit, and always a letter.
const QString kCifConDigito = QStringLiteral("ABEH");
const QString kCifConLetra = QStringLiteral("NPQRSW");
// First letters of the NIE and of the other NIF of persons.
const QString kNie = QStringLiteral("XYZ");
const QString kKlm = QStringLiteral("KLM");

bool esDigito(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool sonDigitos(QStringView texto)
{
    if (texto.isEmpty())
        return false;
    for (QChar c : texto) {
        if (!esDigito(c))
            return false;
    }
    return true;
}

bool todoCeros(QStringView digitos)
{
    for (QChar c : digitos) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

quint32 valorDe(QStringView digitos)
{
    quint32 v = 0;
    for (QChar c : digitos)
        v = v * 10 + static_cast<quint32>(c.unicode() - '0');
    return v;
}

enum class Forma { Ninguna, Dni, Nie, Klm, Cif };

// The form told by the characters before the check character (`cuerpo`, eight characters).
Forma formaDelCuerpo(QStringView cuerpo)
{
    if (cuerpo.size() != 8)
        return Forma::Ninguna;
    if (sonDigitos(cuerpo))
        return Forma::Dni;
    const QChar primera = cuerpo[0];
    if (!sonDigitos(cuerpo.mid(1)))
        return Forma::Ninguna;
    if (kNie.contains(primera))
        return Forma::Nie;
    if (kKlm.contains(primera))
        return Forma::Klm;
    if (kLetrasCif.contains(primera))
        return Forma::Cif;
    return Forma::Ninguna;
}

bool controlCorrecto(Forma forma, QStringView cuerpo, QChar control)
{
    switch (forma) {
    case Forma::Dni:
        return control == LetraDni(valorDe(cuerpo));
    case Forma::Nie:
        return control
            == LetraDni(static_cast<quint32>(kNie.indexOf(cuerpo[0])) * 10000000u
                        + valorDe(cuerpo.mid(1)));
    case Forma::Klm:
        return control == LetraDni(valorDe(cuerpo.mid(1)));
    case Forma::Cif: {
        const int c = ControlCif(cuerpo.mid(1).toString());
        const QChar digito(QLatin1Char(static_cast<char>('0' + c)));
        const QChar letra = kControlCifLetra[c];
        const QChar primera = cuerpo[0];
        if (kCifConDigito.contains(primera))
            return control == digito;
        if (kCifConLetra.contains(primera))
            return control == letra;
        return control == digito || control == letra;
    }
    case Forma::Ninguna:
        break;
    }
    return false;
}

// A check character must at least be of the kind its form uses: a letter for the DNI, the
// NIE and the K, L, M forms; a letter or a digit for a CIF.
bool controlDeLaClase(Forma forma, QChar control)
{
    const bool letra = control >= QLatin1Char('A') && control <= QLatin1Char('Z');
    return forma == Forma::Cif ? letra || esDigito(control) : letra;
}

}  // namespace

QChar LetraDni(quint32 numero)
{
    return kLetrasDni[static_cast<int>(numero % 23u)];
}

int ControlCif(const QString& digitos)
{
    int suma = 0;
    for (int i = 0; i < digitos.size(); ++i) {
        const int d = digitos[i].unicode() - '0';
        if (i % 2 == 0) {  // first, third, fifth, seventh: doubled, digits added
            const int doble = d * 2;
            suma += doble / 10 + doble % 10;
        } else {
            suma += d;
        }
    }
    return (10 - suma % 10) % 10;
}

EstadoNif ExaminarNifOficial(const QString& dni)
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return EstadoNif::Vacio;
    // Eight characters that are a whole body: the number was given without its check
    // character.
    if (t.size() == 8 && formaDelCuerpo(t) != Forma::Ninguna)
        return todoCeros(QStringView(t).right(7)) ? EstadoNif::MalFormado
                                                  : EstadoNif::ControlErroneo;
    if (t.size() != 9)
        return EstadoNif::MalFormado;
    const QStringView cuerpo = QStringView(t).left(8);
    const Forma forma = formaDelCuerpo(cuerpo);
    if (forma == Forma::Ninguna || !controlDeLaClase(forma, t[8]))
        return EstadoNif::MalFormado;
    if (todoCeros(forma == Forma::Dni ? cuerpo : cuerpo.mid(1)))
        return EstadoNif::MalFormado;
    return controlCorrecto(forma, cuerpo, t[8]) ? EstadoNif::Valido : EstadoNif::ControlErroneo;
}

EstadoNif ExaminarDocumentoExtranjero(const QString& dni)
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return EstadoNif::Vacio;
    if (t.size() > 9)
        return EstadoNif::MalFormado;
    for (QChar c : t) {
        const bool letra = (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QChar(0x00D1);
        if (!letra && !esDigito(c))
            return EstadoNif::MalFormado;
    }
    if (sonDigitos(t) && todoCeros(t))
        return EstadoNif::MalFormado;
    return EstadoNif::Valido;
}

EstadoNif ExaminarDni(const QString& tipoDni, const QString& dni)
{
    return tipoDni.trimmed() == QLatin1String("N") ? ExaminarDocumentoExtranjero(dni)
                                                   : ExaminarNifOficial(dni);
}

bool EsNifOficialValido(const QString& dni)
{
    return ExaminarNifOficial(dni) == EstadoNif::Valido;
}
