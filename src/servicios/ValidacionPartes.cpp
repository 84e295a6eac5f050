#include "servicios/ValidacionPartes.h"

#include "servicios/ArreglosPartes.h"
#include "servicios/CodigoPostal.h"
#include "servicios/PosicionesImportar.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/ValidarDniOficial.h"

#include <algorithm>

using ArreglosPartes::Texto;

namespace {

bool vacio(const QString& t)
{
    return t.trimmed().isEmpty();
}

// A number field of the exchange line: blanks alone stand for 0.
bool numerico(const QString& t)
{
    return vacio(t) || SoloCifras(t);
}

// Postal code of a national address, judged against its province.
int16_t reglaCodigoPostal(const QString& cp, const QString& provincia)
{
    using namespace VeredictoContribuyente;
    if (CodigoPostal::EsCero(cp))
        return CodigoPostalCero;
    if (!CodigoPostal::TieneCincoCifras(cp))
        return CodigoPostalNoDeCincoCifras;
    if (!provincia.isEmpty() && !CodigoPostal::EsDeProvincia(cp, provincia))
        return CodigoPostalDeOtraProvincia;
    if (CodigoPostal::TerminaEnCeros(cp))
        return CodigoPostalTerminaEnCeros;
    return Valido;
}

// The postal code of a presenter is shown in five digits, so fewer digits stand for the same
// code with leading zeros.
QString cincoCifras(const QString& cp)
{
    const QString t = cp.trimmed();
    return SoloCifras(t) && t.size() < 5 ? t.rightJustified(5, QLatin1Char('0')) : t;
}

}  // namespace

int16_t ReglasContribuyente(const Arreglo& datos)
{
    using namespace VeredictoContribuyente;
    namespace V = PosValidacionContribuyente;
    const QString tipoDni = Texto(datos, V::TIPODNI);
    const QString dni = Texto(datos, V::DNIC);
    const QString nombre = Texto(datos, V::NOMBREC);
    const QString domicilio = Texto(datos, V::DOMICILIOC);
    const bool extranjero = Texto(datos, V::TIPODOMI).trimmed() == QLatin1String("E");
    const QString pais = Texto(datos, V::PAIS);
    const QString provincia = CodigoProvincia::Normalizado(Texto(datos, V::CODPROVC));
    const QString cp = Texto(datos, V::CODPOSC);
    const QString nomProvincia = Texto(datos, V::NOMPROVC);
    const QString nomMunicipio = Texto(datos, V::NOMMUNC);
    const QString municipio = CodigoMunicipio::Normalizado(Texto(datos, V::CODMUNC));

    const EstadoNif nif = ExaminarDni(tipoDni, dni);
    if (nif == EstadoNif::MalFormado)
        return DniMalFormado;
    if (nif == EstadoNif::Vacio)
        return DniVacio;
    if (vacio(nombre))
        return NombreVacio;
    if (vacio(domicilio))
        return DomicilioVacio;
    if (extranjero && vacio(pais))
        return PaisVacio;
    if (!extranjero) {
        // The four rules of the postal code exclude one another, so their order among
        // themselves does not matter; the table numbers them 6 to 9.
        const int16_t r = reglaCodigoPostal(cp, provincia);
        if (r != Valido)
            return r;
    }
    if (extranjero && vacio(nomProvincia))
        return ProvinciaVacia;
    const bool nombreMunicipioDebido =
        extranjero || (!provincia.isEmpty() && provincia != kProvinciaTesoreria);
    if (nombreMunicipioDebido && vacio(nomMunicipio))
        return MunicipioVacio;
    if (!extranjero && provincia.isEmpty())
        return CodigoProvinciaVacio;
    if (!extranjero && provincia == kProvinciaTesoreria && municipio.isEmpty())
        return CodigoMunicipioVacio;
    if (nif == EstadoNif::ControlErroneo)
        return DniControlErroneo;
    return Valido;
}

QList<int> ErroresImportacion(const Arreglo& datos, const ConsultasReferencia& referencia)
{
    using namespace VeredictoContribuyente;
    using namespace ErrorImportacion;
    namespace I = PosImportar;
    const QString tipoDni = Texto(datos, I::TIPODNI).trimmed();
    const QString dni = Texto(datos, I::DNIC);
    const QString nombre = Texto(datos, I::NOMBREC);
    const QString domicilio = Texto(datos, I::DOMICILIOC);
    const QString tipoDomi = Texto(datos, I::TIPODOMI).trimmed();
    const QString pais = Texto(datos, I::PAIS);
    const QString codProv = Texto(datos, I::CODPROVC);
    const QString cp = Texto(datos, I::CODPOSC);
    const QString nomProvincia = Texto(datos, I::NOMPROVC);
    const QString nomMunicipio = Texto(datos, I::NOMMUNC);
    const QString codMun = Texto(datos, I::CODMUNC);
    const QString numero = Texto(datos, I::NUMEROC);
    const QString numSp = Texto(datos, I::NUMSP);
    const QString numTr = Texto(datos, I::NUMTR);
    const QString sigla = Texto(datos, I::VIAC).trimmed();

    // A domicile of neither kind is reported as such; the rules that depend on the kind are
    // then left out, since it is not known which of them apply.
    const bool nacional = tipoDomi == QLatin1String("N");
    const bool extranjero = tipoDomi == QLatin1String("E");
    const bool provNumerica = numerico(codProv);
    const bool cpNumerico = numerico(cp);
    const bool munNumerico = numerico(codMun);
    const QString provincia = provNumerica ? CodigoProvincia::Normalizado(codProv) : QString();
    const QString municipio = munNumerico ? CodigoMunicipio::Normalizado(codMun) : QString();
    const bool enTesoreria = nacional && provincia == kProvinciaTesoreria;
    const bool enOtraProvincia = nacional && provNumerica && !provincia.isEmpty()
        && provincia != kProvinciaTesoreria;

    QList<int> errores;
    const auto si = [&errores](bool condicion, int codigo) {
        if (condicion)
            errores << codigo;
    };
    const EstadoNif nif = ExaminarDni(tipoDni, dni);
    si(nif == EstadoNif::MalFormado || nif == EstadoNif::ControlErroneo, DniMalFormado);
    si(nif == EstadoNif::Vacio, DniVacio);
    si(vacio(nombre), NombreVacio);
    si(vacio(domicilio), DomicilioVacio);
    si(extranjero && vacio(pais), PaisVacio);
    if (nacional && cpNumerico) {
        const int16_t r = reglaCodigoPostal(cp, provincia);
        si(r != Valido, r);
    }
    si(extranjero && vacio(nomProvincia), ProvinciaVacia);
    si((extranjero || enOtraProvincia) && vacio(nomMunicipio), MunicipioVacio);
    si(nacional && provNumerica && provincia.isEmpty(), CodigoProvinciaVacio);
    si(enTesoreria && munNumerico && municipio.isEmpty(), CodigoMunicipioVacio);
    si(!numerico(numero) || numero.trimmed().size() > 5, NumeroNoNumerico);
    si(!provNumerica, CodigoProvinciaNoNumerico);
    si(!cpNumerico, CodigoPostalNoNumerico);
    si(!munNumerico, CodigoMunicipioNoNumerico);
    si(!numerico(numSp), ContadorSujetosNoNumerico);
    si(!numerico(numTr), ContadorTransmitentesNoNumerico);
    si(tipoDni != QLatin1String("O") && tipoDni != QLatin1String("N"), TipoDniInvalido);
    si(!nacional && !extranjero, TipoDomicilioInvalido);
    si(sigla.isEmpty() || !referencia.existeVia(sigla), SiglaInadmisible);
    si(extranjero && provNumerica && !provincia.isEmpty(), ProvinciaExtranjeraNoCero);
    si(extranjero && munNumerico && !municipio.isEmpty(), MunicipioExtranjeroNoCero);
    si(nacional && !vacio(nomProvincia), NombreProvinciaEnNacional);
    si(enTesoreria && !municipio.isEmpty() && !referencia.existeMunicipio(municipio),
       MunicipioInadmisible);
    si(enTesoreria && !vacio(nomMunicipio), NombreMunicipioEnTesoreria);
    si(nacional && !provincia.isEmpty() && !referencia.existeProvincia(provincia),
       ProvinciaInadmisible);
    si(enOtraProvincia && !municipio.isEmpty(), MunicipioFueraDeTesoreria);
    si(nacional && !vacio(pais), PaisEnNacional);
    std::sort(errores.begin(), errores.end());
    return errores;
}

Arreglo2D ArregloErrores(const QList<int>& codigos)
{
    QVariantList columna;
    columna.reserve(codigos.size() + 1);
    for (int c : codigos)
        columna << c;
    columna << 0;
    return Arreglo2D{columna};
}

int16_t ReglasPresentador(const Arreglo& datos)
{
    using namespace VeredictoPresentador;
    namespace V = PosValidacionPresentador;
    const QString dni = Texto(datos, V::DNIP);
    const QString nombre = Texto(datos, V::NOMBREP);
    const QString domicilio = Texto(datos, V::DOMICILIOP);
    const QString provincia = CodigoProvincia::Normalizado(Texto(datos, V::CODPROVP));
    const QString municipio = CodigoMunicipio::Normalizado(Texto(datos, V::CODMUNP));
    const QString nomMunicipio = Texto(datos, V::NOMMUNP);
    const QString cp = cincoCifras(Texto(datos, V::CODPOSP));
    const QString telefono = Texto(datos, V::TELEFONOP).trimmed();

    // A presenter's number is always an official one, and an empty one is as wrong as a
    // badly formed one.
    const EstadoNif nif = ExaminarNifOficial(dni);
    if (nif == EstadoNif::Vacio || nif == EstadoNif::MalFormado)
        return DniErroneo;
    if (vacio(nombre))
        return NombreVacio;
    if (vacio(domicilio))
        return DomicilioVacio;
    if (provincia == kProvinciaTesoreria && municipio.isEmpty())
        return CodigoMunicipioVacio;
    if (provincia != kProvinciaTesoreria && vacio(nomMunicipio))
        return MunicipioVacio;
    if (CodigoPostal::EsCero(cp))
        return CodigoPostalCero;
    if (!CodigoPostal::EsDeProvincia(cp, provincia))
        return CodigoPostalDeOtraProvincia;
    if (CodigoPostal::TerminaEnCeros(cp))
        return CodigoPostalTerminaEnCeros;
    // A telephone of value 0 is shown empty, and so it is none.
    const bool sinTelefono = CodigoPostal::EsCero(telefono);
    if (!sinTelefono && !(telefono.size() == 9 && SoloCifras(telefono)))
        return TelefonoNoDeNueveCifras;
    if (sinTelefono)
        return TelefonoVacio;
    if (nif == EstadoNif::ControlErroneo)
        return DniControlErroneo;
    return Valido;
}
