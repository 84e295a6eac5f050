#include "servicios/ValidacionPartes.h"

#include "catalogo/IdsCatalogo.h"
#include "servicios/CodigoPostal.h"
#include "servicios/ValidarDniOficial.h"


namespace {

// Views, so that no text is copied to set its blanks aside: the import runs these checks for
// every line of a file.
bool vacio(QStringView t)
{
    return t.trimmed().isEmpty();
}

// A number field of the exchange line: blanks alone stand for 0.
bool numerico(QStringView t)
{
    const QStringView cifras = t.trimmed();
    for (QChar c : cifras) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
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

// The rules of a postal code that an import line breaks, each judged apart: blanks alone
// stand for 0, as in every number field of the line.
struct ReglasCodigoPostal {
    bool cero = false;
    bool noDeCincoCifras = false;
    bool terminaEnCeros = false;
};

ReglasCodigoPostal ReglasRotasCodigoPostal(const QString& cp)
{
    const QStringView t = QStringView(cp).trimmed();
    ReglasCodigoPostal r;
    if (t.isEmpty()) {
        r.cero = r.terminaEnCeros = true;
        return r;
    }
    const bool numero = numerico(t);
    r.cero = numero && t.count(QLatin1Char('0')) == t.size();
    r.noDeCincoCifras = !(numero && t.size() == 5);
    r.terminaEnCeros = numero && t.endsWith(QLatin1String("000"));
    return r;
}

// The postal code of a presenter is shown in five digits, so fewer digits stand for the same
// code with leading zeros.
QString cincoCifras(const QString& cp)
{
    const QString t = cp.trimmed();
    return SoloCifras(t) && t.size() < 5 ? t.rightJustified(5, QLatin1Char('0')) : t;
}

}  // namespace

int16_t ReglasContribuyente(const Contribuyente& c)
{
    using namespace VeredictoContribuyente;
    const QString& tipoDni = c.TIPODNI;
    const QString& dni = c.DNIC;
    const QString& nombre = c.NOMBREC;
    const QString& domicilio = c.DOMICILIOC;
    const bool extranjero = c.TIPODOMI.trimmed() == QLatin1String("E");
    const QString& pais = c.PAIS;
    const QString provincia = CodigoProvincia::Normalizado(c.CODPROVC);
    const QString& cp = c.CODPOSC;
    const QString& nomProvincia = c.NOMPROVC;
    const QString& nomMunicipio = c.NOMMUNC;
    const QString municipio = CodigoMunicipio::Normalizado(c.CODMUNC);

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

QList<HallazgoImportacion> ErroresImportacion(const LineaContribuyente& l,
                                              const ConsultasReferencia& referencia)
{
    using C = CampoContribuyente;
    // The texts are read in place: an import validates every line of a file.
    const QString tipoDni = l.TIPODNI.trimmed();
    const QString& dni = l.DNIC;
    const QString& nombre = l.NOMBREC;
    const QString& domicilio = l.DOMICILIOC;
    const QString tipoDomi = l.TIPODOMI.trimmed();
    const QString& pais = l.PAIS;
    const QString& codProv = l.CODPROVC;
    const QString& cp = l.CODPOSC;
    const QString& nomProvincia = l.NOMPROVC;
    const QString& nomMunicipio = l.NOMMUNC;
    const QString& codMun = l.CODMUNC;
    const QString& numero = l.NUMEROC;
    const QString& numSp = l.NUMSP;
    const QString& numTr = l.NUMTR;
    const QString sigla = l.VIAC.trimmed();

    // A domicile of neither kind is reported as such; the rules that depend on the kind are
    // then left out, since it is not known which of them apply. Every other rule is judged on
    // its own: a code that is not a number is also not 00, not admissible and, for a postal
    // code, not of five digits, so the line gets every message that applies to it.
    const bool nacional = tipoDomi == QLatin1String("N");
    const bool extranjero = tipoDomi == QLatin1String("E");
    const bool provNumerica = numerico(codProv);
    const bool munNumerico = numerico(codMun);
    const QString provincia = provNumerica ? CodigoProvincia::Normalizado(codProv) : QString();
    const QString municipio = munNumerico ? CodigoMunicipio::Normalizado(codMun) : QString();
    // A code is "none" when it is blank or zero; a code that is not a number is something.
    const bool sinProvincia = provNumerica && provincia.isEmpty();
    const bool sinMunicipio = munNumerico && municipio.isEmpty();
    const bool enTesoreria = nacional && provincia == kProvinciaTesoreria;
    const bool enOtraProvincia = nacional && provNumerica && !provincia.isEmpty()
        && provincia != kProvinciaTesoreria;

    QList<HallazgoImportacion> errores;
    const auto si = [&errores](bool condicion, C campo, int id) {
        if (condicion)
            errores.append({campo, id});
    };
    const EstadoNif nif = ExaminarDni(tipoDni, dni);
    si(nif == EstadoNif::MalFormado || nif == EstadoNif::ControlErroneo, C::DNIC,
       kIdDniCifErroneoODigitoControl);
    si(nif == EstadoNif::Vacio, C::DNIC, kIdImportarDniObligatorio);
    si(vacio(nombre), C::NOMBREC, kIdImportarNombreVacio);
    si(vacio(domicilio), C::DOMICILIOC, kIdImportarDomicilioVacio);
    si(extranjero && vacio(pais), C::PAIS, kIdImportarPaisVacio);
    if (nacional) {
        const ReglasCodigoPostal cpRotas = ReglasRotasCodigoPostal(cp);
        si(!sinProvincia && !CodigoPostal::EsDeProvincia(cp, codProv), C::CODPOSC,
           kIdProvinciaYCodigoPostalNoCoinciden);
        si(cpRotas.noDeCincoCifras, C::CODPOSC, kIdCodigoPostalCincoCifras);
        si(cpRotas.terminaEnCeros, C::CODPOSC, kIdCodigoPostalTresUltimosCero);
        si(cpRotas.cero, C::CODPOSC, kIdCodigoPostalCero);
    }
    si(extranjero && vacio(nomProvincia), C::NOMPROVC, kIdImportarNombreProvinciaVacio);
    si((extranjero || enOtraProvincia) && vacio(nomMunicipio), C::NOMMUNC,
       kIdImportarNombreMunicipioVacio);
    si(nacional && sinProvincia, C::CODPROVC, kIdImportarCodigoProvinciaVacio);
    si(enTesoreria && sinMunicipio, C::CODMUNC, kIdImportarCodigoMunicipioVacio);
    si(!numerico(numero) || QStringView(numero).trimmed().size() > 5, C::NUMEROC,
       kIdPortalNoNumerico);
    si(!provNumerica, C::CODPROVC, kIdCodigoProvinciaNoNumerico);
    si(!numerico(cp), C::CODPOSC, kIdCodigoPostalNoNumerico);
    si(!munNumerico, C::CODMUNC, kIdCodigoMunicipioNoNumerico);
    si(!numerico(numSp), C::NUMSP, kIdContadorSujetosPasivosNoNumerico);
    si(!numerico(numTr), C::NUMTR, kIdContadorTransmitentesNoNumerico);
    si(tipoDni != QLatin1String("O") && tipoDni != QLatin1String("N"), C::TIPODNI,
       kIdTipoDniNoValido);
    si(!nacional && !extranjero, C::TIPODOMI, kIdTipoDomicilioNoValido);
    si(sigla.isEmpty() || !referencia.existeVia(sigla), C::VIAC, kIdSiglaNoAdmisible);
    si(extranjero && !sinProvincia, C::CODPROVC, kIdExtranjeroProvincia00);
    si(extranjero && !sinMunicipio, C::CODMUNC, kIdExtranjeroMunicipio000);
    si(nacional && !vacio(nomProvincia), C::NOMPROVC, kIdNacionalSinNombreProvincia);
    si(enTesoreria && !sinMunicipio
           && (!munNumerico || !referencia.existeMunicipio(municipio)),
       C::CODMUNC, kIdCodigoMunicipioNoAdmisible);
    si(enTesoreria && !vacio(nomMunicipio), C::NOMMUNC, kIdArbeliaSinNombreMunicipio);
    si(nacional && !sinProvincia && (!provNumerica || !referencia.existeProvincia(provincia)),
       C::CODPROVC, kIdCodigoProvinciaNoAdmisible);
    si(enOtraProvincia && !sinMunicipio, C::CODMUNC, kIdFueraDeArbeliaMunicipio000);
    si(nacional && !vacio(pais), C::PAIS, kIdNacionalSinPais);
    return errores;
}

int16_t ReglasPresentador(const Presentador& p)
{
    using namespace VeredictoPresentador;
    const QString& dni = p.DNIP;
    const QString& nombre = p.NOMBREP;
    const QString& domicilio = p.DOMICILIOP;
    const QString provincia = CodigoProvincia::Normalizado(p.CODPROVP);
    const QString municipio = CodigoMunicipio::Normalizado(p.CODMUNP);
    const QString& nomMunicipio = p.NOMMUNP;
    const QString cp = cincoCifras(p.CODPOSP);
    const QString telefono = p.TELEFONOP.trimmed();

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
