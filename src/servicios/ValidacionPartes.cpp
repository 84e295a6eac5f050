#include "servicios/ValidacionPartes.h"

#include "catalogo/IdsCatalogo.h"
#include "servicios/CodigoPostal.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/VeredictosPartes.h"


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

// A broken rule: its message in an information box, and the field that takes the focus.
Veredicto rechazo(int id, const char* control)
{
    Veredicto v = VeredictosPartes::Informacion(id);
    v.control = QLatin1String(control);
    return v;
}

// Postal code of a national address, judged against its province. The four rules exclude one
// another, so their order among themselves does not matter.
Resultado<void> reglaCodigoPostal(const QString& cp, const QString& provincia)
{
    const char* const campo = "txtcodposc";
    if (CodigoPostal::EsCero(cp))
        return rechazo(kIdCodigoPostalCero, campo);
    if (!CodigoPostal::TieneCincoCifras(cp))
        return rechazo(kIdCodigoPostalCincoCifras, campo);
    if (!provincia.isEmpty() && !CodigoPostal::EsDeProvincia(cp, provincia))
        return rechazo(kIdProvinciaYCodigoPostalNoCoinciden, campo);
    if (CodigoPostal::TerminaEnCeros(cp))
        return rechazo(kIdCodigoPostalTresUltimosCero, campo);
    return {};
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

Resultado<void> ReglasContribuyente(const Contribuyente& c)
{
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
        return rechazo(kIdDniCifErroneoODigitoControl, "txtdnic");
    if (nif == EstadoNif::Vacio)
        return rechazo(kIdDniVacio, "txtdnic");
    if (vacio(nombre))
        return rechazo(kIdNombreVacio, "txtnombrec");
    if (vacio(domicilio))
        return rechazo(kIdDomicilioVacio, "txtdomicilioc");
    if (extranjero && vacio(pais))
        return rechazo(kIdPaisVacio, "txtpais");
    if (!extranjero) {
        if (Resultado<void> r = reglaCodigoPostal(cp, provincia); !r)
            return r;
    }
    if (extranjero && vacio(nomProvincia))
        return rechazo(kIdProvinciaVacia, "txtnomprovc");
    const bool nombreMunicipioDebido =
        extranjero || (!provincia.isEmpty() && provincia != kProvinciaTesoreria);
    if (nombreMunicipioDebido && vacio(nomMunicipio))
        return rechazo(kIdMunicipioVacio, "txtnommunc");
    if (!extranjero && provincia.isEmpty())
        return rechazo(kIdCodigoProvinciaVacio, "txtcodprovc");
    if (!extranjero && provincia == kProvinciaTesoreria && municipio.isEmpty())
        return rechazo(kIdCodigoMunicipioVacio, "txtcodmunc");
    if (nif == EstadoNif::ControlErroneo)
        return rechazo(kIdNifSinDigitoControl, "txtdnic");
    return {};
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

Resultado<void> ReglasPresentador(const Presentador& p)
{
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
        return rechazo(kIdDniCifErroneoODigitoControl, "txtdnip");
    if (vacio(nombre))
        return rechazo(kIdNombreVacio, "txtnombrep");
    if (vacio(domicilio))
        return rechazo(kIdDomicilioVacio, "txtdomiciliop");
    if (provincia == kProvinciaTesoreria && municipio.isEmpty())
        return rechazo(kIdCodigoMunicipioVacio, "txtcodmunp");
    if (provincia != kProvinciaTesoreria && vacio(nomMunicipio))
        return rechazo(kIdMunicipioVacio, "txtnommunp");
    if (CodigoPostal::EsCero(cp))
        return rechazo(kIdCodigoPostalCero, "txtcodposp");
    if (!CodigoPostal::EsDeProvincia(cp, provincia))
        return rechazo(kIdProvinciaYCodigoPostalNoCoinciden, "txtcodposp");
    if (CodigoPostal::TerminaEnCeros(cp))
        return rechazo(kIdCodigoPostalTresUltimosCero, "txtcodposp");
    // A telephone of value 0 is shown empty, and so it is none.
    const bool sinTelefono = CodigoPostal::EsCero(telefono);
    if (!sinTelefono && !(telefono.size() == 9 && SoloCifras(telefono)))
        return rechazo(kIdTelefonoNueveCifras, "txttelefonop");
    if (sinTelefono)
        return rechazo(kIdTelefonoVacio, "txttelefonop");
    if (nif == EstadoNif::ControlErroneo)
        return rechazo(kIdNifSinDigitoControl, "txtdnip");
    return {};
}
