// The whole-return validation of cDeclaSvr: the rules a return must keep before it is stored,
// tried in the order of their numbers, so that a return with several faults is told of the
// lowest one first.
//
//  1-4   make, model, type and chassis number given
//  5-6   classification and cylinder capacity given
//  7     an operation given that applies on the date of accrual (it has a print key then)
//  8     a taxable base above zero
//  9     a typed rate (operation without fixed rate) within the operation's limits
//  10    the subject's number, when given, a valid official one (an empty one is rule 37)
//  11-13 the subject's name, street type and street
//  14-15 the subject's municipality: a code in the home province 77, a name elsewhere
//  16-18 the subject's postal code: not zero, of the province, not ending in 000
//  19-20 the transmitter's number valid for its kind, and given
//  21-23 the transmitter's name, street type and street
//  24    a foreign transmitter's country
//  25-27 a national transmitter's postal code: of the province, five digits, not ending in 000
//  28    the transmitter's postal code not zero
//  29-30 the transmitter's province name (foreign) and municipality name (foreign, or a
//        national address outside the home province)
//  31-32 a national transmitter's province code, and municipality code in the home province
//  33-36, 38-40  the operation fits the vehicle and the date (see T11_OPERACIONES.tsv):
//        33/34 a small-engined passenger car before 2008 (33 petrol, 34 diesel) cannot use
//              the 12 % codes P6, P7, TN;
//        35/36 any other passenger car before 2008 (35 petrol or no engine given, 36 diesel)
//              cannot use the 7 % codes P6B, P7B, T7;
//        38    before 2008 a classification other than a passenger car takes N43, TN or TE;
//        39    the scrapping-plan codes are not admitted after 2006 above 2499 cc;
//        40    from 2008 a classification other than a passenger car takes N43, T1-T5 or TE
//  37    the subject's number given
#include "catalogo/IdsCatalogo.h"
#include "servicios/cDeclaSvr.h"

#include "catalogo/Catalogo.h"
#include "valores/Val.h"
#include "servicios/ValidarDniOficial.h"

#include <QStringList>
#include <array>
#include <bit>
#include <cstdint>

namespace {

// The tabs of the declaration form that hold the parties, and none.
constexpr int kNinguna = kSinPestana;
constexpr int kSujeto = 0;
constexpr int kTransmitente = 1;

struct Regla {
    int id;  // catalogue id of the message
    const char* control;
    int pestana;
};

// Rule number n is entry n - 1. The messages of rules 9 and 39 are completed by whoever shows
// them (the operation's limits, the operation's text).
constexpr std::array<Regla, cDeclaSvr::kUltimaRegla> kReglas{{
    {kIdMarcaVacia, "txtmarca", kNinguna},                                             // 1
    {kIdModeloVacio, "txtmodelo", kNinguna},                                           // 2
    {kIdTipoVacio, "txttipo", kNinguna},                                               // 3
    {kIdBastidorVacio, "txtbastidor", kNinguna},                                       // 4
    {kIdClasificacionVacia, "txtclasificacion", kNinguna},                             // 5
    {kIdCilindradaVacia, "txtcilindrada", kNinguna},                                   // 6
    {kIdOperacionVacia, "txtoperacion", kNinguna},                                     // 7
    {kIdBaseImponibleVacia, "txtbasei", kNinguna},                                     // 8
    {kIdTipoImpositivoMenorQue, "txttipoimp", kNinguna},  // 9, with 141
    {kIdDniCifErroneoODigitoControl, "txtdnisp", kSujeto},                             // 10
    {kIdNombreSujetoPasivoVacio, "txtnombresp", kSujeto},                              // 11
    {kIdSiglasSujetoPasivoVacias, "txtviasp", kSujeto},                                // 12
    {kIdDomicilioSujetoPasivoVacio, "txtdomiciliosp", kSujeto},                        // 13
    {kIdCodigoMunicipioSujetoPasivoVacio, "txtcodmunsp", kSujeto},                     // 14
    {kIdMunicipioSujetoPasivoVacio, "txtnommunsp", kSujeto},                           // 15
    {kIdCodigoPostalSujetoPasivoCero, "txtcodpossp", kSujeto},                         // 16
    {kIdProvinciaYCodigoPostalSujetoPasivoNoCoinciden, "txtcodpossp", kSujeto},        // 17
    {kIdCodigoPostalSujetoPasivoTresUltimosCero, "txtcodpossp", kSujeto},              // 18
    {kIdDniCifTransmitenteErroneo, "txtdnitr", kTransmitente},                         // 19
    {kIdDniTransmitenteVacio, "txtdnitr", kTransmitente},                              // 20
    {kIdNombreTransmitenteVacio, "txtnombretr", kTransmitente},                        // 21
    {kIdSiglasTransmitenteVacias, "txtviatr", kTransmitente},                          // 22
    {kIdDomicilioTransmitenteVacio, "txtdomiciliotr", kTransmitente},                  // 23
    {kIdPaisTransmitenteVacio, "txtpaistr", kTransmitente},                            // 24
    {kIdProvinciaYCodigoPostalTransmitenteNoCoinciden, "txtcodpostr", kTransmitente},  // 25
    {kIdCodigoPostalTransmitenteCincoCifras, "txtcodpostr", kTransmitente},            // 26
    {kIdCodigoPostalTransmitenteTresUltimosCero, "txtcodpostr", kTransmitente},        // 27
    {kIdCodigoPostalTransmitenteCero, "txtcodpostr", kTransmitente},                   // 28
    {kIdProvinciaTransmitenteVacia, "txtnomprovtr", kTransmitente},                    // 29
    {kIdMunicipioTransmitenteVacio, "txtnommuntr", kTransmitente},                     // 30
    {kIdCodigoProvinciaTransmitenteVacio, "txtcodprovtr", kTransmitente},              // 31
    {kIdCodigoMunicipioTransmitenteVacio, "txtcodmuntr", kTransmitente},               // 32
    {kIdOperacionNoP6P7, "txtcilindrada", kNinguna},                                   // 33
    {kIdOperacionNoP6P7Duplicada, "txtcilindrada", kNinguna},                          // 34
    {kIdOperacionNoP6BP7B, "txtcilindrada", kNinguna},                                 // 35
    {kIdOperacionNoP6BP7BDuplicada, "txtcilindrada", kNinguna},                        // 36
    {kIdDniSujetoPasivoVacio, "txtdnisp", kSujeto},                                    // 37
    {kIdOperacionN43TnTe, "txtoperacion", kNinguna},                                   // 38
    {kIdOperacionNoPuedeSer, "txtoperacion", kNinguna},  // 39, with the operation and 357
    {kIdOperacionN43T1aT5Te, "txtoperacion", kNinguna},                                // 40
}};

// The rate with no fixed value, recognised by its bits as everywhere in the program.
bool esTasaLibre(double tasa)
{
    return std::bit_cast<std::uint64_t>(tasa) == 0x4058FF5C28F5C28FULL;
}

constexpr int32_t kInicioBandasCo2 = 20080101;  // first day of the rates by emissions
constexpr int kUltimoAnoSinLimitePlan = 2006;   // the scrapping plan's capacity limit after it
constexpr int32_t kLimiteCilindradaPlan = 2499;
constexpr int kProvinciaPropia = 77;

class Revision {
public:
    Revision(const DatosValidacion& datos, const QString& impresion, int32_t fechad)
        : m_datos(datos), m_impresion(impresion.trimmed()), m_fechad(fechad)
    {
    }

    int primeraRota() const;

private:
    static bool vacio(const QString& texto) { return texto.trimmed().isEmpty(); }
    QString operacion() const { return m_datos.OPERACION.trimmed(); }
    bool operacionEn(const QStringList& codigos) const { return codigos.contains(operacion()); }

    // A passenger car: a four-digit classification that begins with 10.
    bool esTurismo() const
    {
        const double c = m_datos.CLASIFICACION;
        return c >= 1000 && c <= 1099;
    }
    bool esDiesel() const { return m_datos.MOTOR.trimmed() == QLatin1String("D"); }
    bool esGasolina() const { return m_datos.MOTOR.trimmed() == QLatin1String("G"); }
    // The engines that paid the reduced rate of 7 % before 2008.
    bool motorPequeno() const
    {
        const double cc = m_datos.CILINDRADA;
        return (esDiesel() && cc < 2000) || (esGasolina() && cc < 1600);
    }
    bool antesDeBandas() const { return m_fechad < kInicioBandasCo2; }

    bool reglaTasa() const
    {
        if (!esTasaLibre(m_datos.TASA))
            return false;
        const double tipo = m_datos.TIPOIMP;
        return tipo < m_datos.TASAMINIMA || tipo > m_datos.TASAMAXIMA;
    }

    // The subject's address is always national.
    int reglasSujeto() const;
    int reglasTransmitente() const;
    int reglasVehiculoOperacion() const;

    const DatosValidacion& m_datos;
    QString m_impresion;
    int32_t m_fechad;
};

// A postal code as the rules read it: a numeric code of up to five digits with its leading
// zeros put back; any other text as it stands.
QString codigoPostal(const QString& texto)
{
    const QString t = texto.trimmed();
    bool digitos = !t.isEmpty() && t.size() <= 5;
    for (QChar c : t)
        digitos = digitos && c.isDigit() && c.unicode() < 128;
    return digitos ? t.rightJustified(5, QLatin1Char('0')) : t;
}

bool cincoCifras(const QString& cp)
{
    if (cp.size() != 5)
        return false;
    for (QChar c : cp) {
        if (!(c.isDigit() && c.unicode() < 128))
            return false;
    }
    return true;
}

bool soloCeros(const QString& texto)
{
    const QString t = texto.trimmed();
    for (QChar c : t) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;  // also the empty text
}

// The province a postal code belongs to: its first two digits.
bool deLaProvincia(const QString& cp, double provincia)
{
    return cp.size() >= 2 && Val(cp.left(2)) == provincia && cp.left(2).at(0).isDigit()
        && cp.left(2).at(1).isDigit();
}

int Revision::reglasSujeto() const
{
    const DatosValidacion& d = m_datos;
    if (!vacio(d.DNISP) && !EsNifOficialValido(d.DNISP))
        return 10;
    if (vacio(d.NOMBRESP))
        return 11;
    if (vacio(d.VIASP))
        return 12;
    if (vacio(d.DOMICILIOSP))
        return 13;
    const double provincia = Val(d.CODPROVSP);
    if (provincia == kProvinciaPropia && Val(d.CODMUNSP) == 0)
        return 14;
    if (provincia != kProvinciaPropia && vacio(d.NOMMUNSP))
        return 15;
    const QString cp = codigoPostal(d.CODPOSSP);
    if (Val(cp) == 0)
        return 16;
    if (!deLaProvincia(cp, provincia))
        return 17;
    if (cp.size() == 5 && cp.right(3) == QLatin1String("000"))
        return 18;
    return 0;
}

int Revision::reglasTransmitente() const
{
    const DatosValidacion& d = m_datos;
    if (!vacio(d.DNITR) && ExaminarDni(d.TIPODNITR.trimmed(), d.DNITR) != EstadoNif::Valido)
        return 19;
    if (vacio(d.DNITR))
        return 20;
    if (vacio(d.NOMBRETR))
        return 21;
    if (vacio(d.VIATR))
        return 22;
    if (vacio(d.DOMICILIOTR))
        return 23;
    const bool extranjero = d.TIPODOMITR.trimmed() == QLatin1String("E");
    if (extranjero && vacio(d.PAISTR))
        return 24;
    const double provincia = Val(d.CODPROVTR);
    if (!extranjero) {
        // A national code is read as five digits; a foreign one keeps its country's shape.
        const QString cp = codigoPostal(d.CODPOSTR);
        if (!deLaProvincia(cp, provincia))
            return 25;
        if (!cincoCifras(cp))
            return 26;
        if (cp.right(3) == QLatin1String("000"))
            return 27;
    }
    if (soloCeros(d.CODPOSTR))
        return 28;
    if (extranjero && vacio(d.NOMPROVTR))
        return 29;
    if ((extranjero || provincia != kProvinciaPropia) && vacio(d.NOMMUNTR))
        return 30;
    if (!extranjero && provincia == 0)
        return 31;
    if (!extranjero && provincia == kProvinciaPropia && Val(d.CODMUNTR) == 0)
        return 32;
    return 0;
}

int Revision::reglasVehiculoOperacion() const
{
    static const QStringList kTipoGeneral{QStringLiteral("P6"), QStringLiteral("P7"),
                                          QStringLiteral("TN")};
    static const QStringList kTipoReducido{QStringLiteral("P6B"), QStringLiteral("P7B"),
                                           QStringLiteral("T7")};
    static const QStringList kAntesDeBandas{QStringLiteral("N43"), QStringLiteral("TN"),
                                            QStringLiteral("TE")};
    static const QStringList kPlanBajas{QStringLiteral("P6"), QStringLiteral("P7"),
                                        QStringLiteral("P6B"), QStringLiteral("P7B")};
    static const QStringList kBandas{QStringLiteral("N43"), QStringLiteral("T1"),
                                     QStringLiteral("T2"), QStringLiteral("T3"),
                                     QStringLiteral("T4"), QStringLiteral("T5"),
                                     QStringLiteral("TE")};

    if (antesDeBandas() && esTurismo()) {
        if (motorPequeno() && operacionEn(kTipoGeneral))
            return esDiesel() ? 34 : 33;
        if (!motorPequeno() && operacionEn(kTipoReducido))
            return esDiesel() ? 36 : 35;
    }
    if (vacio(m_datos.DNISP))
        return 37;
    if (antesDeBandas() && !esTurismo() && !operacionEn(kAntesDeBandas))
        return 38;
    if (m_fechad / 10000 > kUltimoAnoSinLimitePlan && m_datos.CILINDRADA > kLimiteCilindradaPlan
        && operacionEn(kPlanBajas))
        return 39;
    if (!antesDeBandas() && !esTurismo() && !operacionEn(kBandas))
        return 40;
    return 0;
}

int Revision::primeraRota() const
{
    const QString* obligatorios[] = {&m_datos.MARCA, &m_datos.MODELO, &m_datos.TIPO,
                                     &m_datos.BASTIDOR};
    for (int n = 0; n < 4; ++n) {
        if (vacio(*obligatorios[n]))
            return n + 1;
    }
    if (m_datos.CLASIFICACION <= 0)
        return 5;
    if (m_datos.CILINDRADA <= 0)
        return 6;
    if (operacion().isEmpty() || m_impresion.isEmpty())
        return 7;
    if (m_datos.BASEI <= 0)
        return 8;
    if (reglaTasa())
        return 9;
    if (const int r = reglasSujeto())
        return r;
    if (const int r = reglasTransmitente())
        return r;
    return reglasVehiculoOperacion();
}

}  // namespace

Veredicto cDeclaSvr::VeredictoRegla(int regla)
{
    if (regla < 1 || regla > kUltimaRegla)
        return {};
    const Regla& r = kReglas[regla - 1];
    Veredicto v;
    v.id = r.id;
    v.mensaje = Texto(r.id);
    v.botones = vb::Information;
    v.control = QLatin1String(r.control);
    v.pestana = r.pestana;
    return v;
}

Resultado<void> cDeclaSvr::ValidarDatosDeclaraciones(const DatosValidacion& datos,
                                                     const QString& impresion,
                                                     int32_t fechad) const
{
    const int rota = Revision(datos, impresion, fechad).primeraRota();
    if (rota == 0)
        return {};
    return VeredictoRegla(rota);
}
