#include "registros/intercambio/CsvContribuyentes.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/FalloIntercambio.h"
#include "valores/Csv.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

using C = CampoIntercambio;

constexpr std::array<const char*, kCamposIntercambio> kNombres = {
    "TIPODNI",         "DNI",           "NOMBRE",           "SIGLAS",
    "DOMICILIO",       "NUMERO",        "LETRA",            "ESCALERA",
    "PISO",            "MANO",          "TIPODOMICILIO",    "PAIS",
    "CODIGO PROVINCIA", "NOMBRE PROVINCIA", "CODIGO POSTAL", "CODIGO MUNICIPIO",
    "NOMBRE MUNICIPIO", "NUMERO SUJETO PASIVO", "NUMERO TRANSMITENTE",
};

constexpr C kObligatorias[] = {C::TIPODNI, C::DNI, C::NOMBRE};

const QChar kSeparadorEscrito = QLatin1Char(';');

// A heading as the user may have typed it: blanks around, any case, "_" for a blank.
QString Normalizada(QString nombre)
{
    nombre.replace(QLatin1Char('_'), QLatin1Char(' '));
    return nombre.simplified().toUpper();
}

std::optional<C> CampoDeColumna(const QString& nombre)
{
    const QString buscado = Normalizada(nombre);
    for (int i = 0; i < kCamposIntercambio; ++i)
        if (buscado == QLatin1String(kNombres[i]))
            return static_cast<C>(i);
    return std::nullopt;
}

// UTF-8 when the bytes are UTF-8 (a byte-order mark, or no byte that UTF-8 refuses), else
// Windows-1252.
QString Decodificar(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString texto = utf8.decode(bytes);
    if (!utf8.hasError())
        return texto;
    return Cp1252::Decodificar(bytes);
}

bool Vacia(const QStringList& campos)
{
    return std::all_of(campos.cbegin(), campos.cend(),
                       [](const QString& c) { return c.trimmed().isEmpty(); });
}

bool SoloCifras(const QString& texto)
{
    return !texto.isEmpty()
        && std::all_of(texto.cbegin(), texto.cend(), [](QChar c) { return c.isDigit(); });
}

// A value of the file in the form of its field in the exchange line.
QString ComoEnLaLinea(C campo, const QString& valor)
{
    const DefinicionCampo& d = Definicion(campo);
    if (!d.numero)
        return FormatoTexto(valor, d.ancho);
    const QString cifras = valor.trimmed();
    if (cifras.isEmpty())
        return QString(d.ancho, QLatin1Char('0'));
    // Anything but digits goes as it stands, for the checks to refuse.
    return SoloCifras(cifras) ? cifras.rightJustified(d.ancho, QLatin1Char('0')) : cifras;
}

class FuenteCsv : public FuenteLineas {
public:
    FuenteCsv(const QString& texto, QChar separador, double estimado)
        : m_lector(texto, separador), m_estimado(estimado)
    {
    }

    // Reads the first row; the failure of a heading, or nothing.
    std::optional<Veredicto> LeerCabecera()
    {
        QStringList nombres;
        Csv::Fallo fallo = Csv::Fallo::Ninguno;
        if (!m_lector.Siguiente(nombres, fallo))
            return std::nullopt;  // an empty file: nothing to import
        if (fallo != Csv::Fallo::Ninguno)
            return Cabecera(fallo == Csv::Fallo::ComillasSinCerrar ? kIdFilaComillasSinCerrar
                            : kIdFilaTextoTrasComillas, QString());
        std::array<bool, kCamposIntercambio> vistas{};
        for (const QString& nombre : nombres) {
            const std::optional<C> campo = CampoDeColumna(nombre);
            if (!campo)
                return Cabecera(kIdCsvColumnaDesconocida, nombre.trimmed());
            if (vistas[Indice(*campo)])
                return Cabecera(kIdCsvColumnaRepetida, Normalizada(nombre));
            vistas[Indice(*campo)] = true;
            m_columnas.push_back(*campo);
        }
        for (const C campo : kObligatorias)
            if (!vistas[Indice(campo)])
                return Cabecera(kIdCsvFaltaColumna, QLatin1String(kNombres[Indice(campo)]));
        for (int i = 0; i < kCamposIntercambio; ++i)
            if (!vistas[i])
                m_ausentes.push_back(static_cast<C>(i));
        return std::nullopt;
    }

    Resultado Siguiente(LineaLeida& leida, QString& motivo) override
    {
        Csv::Fallo fallo = Csv::Fallo::Ninguno;
        for (;;) {
            if (!m_lector.Siguiente(m_campos, fallo))
                return Resultado::Fin;
            if (fallo != Csv::Fallo::Ninguno || !Vacia(m_campos))
                break;
        }
        if (fallo == Csv::Fallo::ComillasSinCerrar)
            return Ilegible(kIdFilaComillasSinCerrar, motivo);
        if (fallo == Csv::Fallo::TextoTrasComillas)
            return Ilegible(kIdFilaTextoTrasComillas, motivo);
        if (m_campos.size() > qsizetype(m_columnas.size()))
            return Ilegible(kIdFilaConMasCampos, motivo);
        if (m_campos.size() < qsizetype(m_columnas.size()))
            return Ilegible(kIdFilaConMenosCampos, motivo);
        leida.corta = false;
        for (std::size_t i = 0; i < m_columnas.size(); ++i)
            leida.campos[Indice(m_columnas[i])] = ComoEnLaLinea(m_columnas[i], m_campos.at(qsizetype(i)));
        for (const C campo : m_ausentes)
            leida.campos[Indice(campo)] = ComoEnLaLinea(campo, QString());
        return Resultado::Linea;
    }
    int Numero() const override { return m_lector.Numero(); }
    double Estimado() const override { return m_estimado; }
    bool Error() const override { return false; }

private:
    // The message of a heading that is wrong: what is wrong, then the column it is about.
    static Veredicto Cabecera(int id, const QString& columna)
    {
        Veredicto v;
        v.id = id;
        v.mensaje = Texto(id) + columna;
        return v;
    }
    static Resultado Ilegible(int id, QString& motivo)
    {
        motivo = Texto(id);
        return Resultado::Ilegible;
    }

    Csv::Lector m_lector;
    double m_estimado;
    std::vector<C> m_columnas;  // the field of each column, in the file's order
    std::vector<C> m_ausentes;  // the fields without a column
    QStringList m_campos;
};

// The fields of a contributor as a row, in the order of the exchange line.
QStringList Valores(const ValoresLinea& v)
{
    QStringList r;
    r.reserve(kCamposIntercambio);
    for (int i = 0; i < kCamposIntercambio; ++i) {
        const C campo = static_cast<C>(i);
        const DefinicionCampo& d = Definicion(campo);
        if (!d.numero) {
            QString texto = v.textos[i];
            while (texto.endsWith(QLatin1Char(' ')))
                texto.chop(1);
            r.append(texto);
        } else if (campo == C::CODIGOPROVINCIA || campo == C::CODIGOPOSTAL
                   || campo == C::CODIGOMUNICIPIO) {
            r.append(FormatoNumero(v.numeros[i], d.ancho));
        } else {
            r.append(QString::number(v.numeros[i]));
        }
    }
    return r;
}

}  // namespace

namespace CsvContribuyentes {

QString NombreColumna(CampoIntercambio campo)
{
    return QLatin1String(kNombres[Indice(campo)]);
}

::Resultado<std::unique_ptr<FuenteLineas>> AbrirFuente(QFile& entrada)
{
    const QByteArray bytes = entrada.readAll();
    if (entrada.error() != QFileDevice::NoError)
        throw cFallo(FalloIntercambio::kAccesoDenegado, entrada.fileName(),
                     FalloIntercambio::Descripcion(FalloIntercambio::kAccesoDenegado));
    const QString texto = Decodificar(bytes);
    // One row a line, less the first: enough for the progress.
    const double estimado = std::max<qsizetype>(0, bytes.count('\n') - 1);
    auto fuente = std::make_unique<FuenteCsv>(texto, Csv::DetectarSeparador(texto), estimado);
    if (std::optional<Veredicto> mala = fuente->LeerCabecera())
        return std::move(*mala);
    return std::unique_ptr<FuenteLineas>(std::move(fuente));
}

QByteArray Cabecera()
{
    QStringList nombres;
    for (const char* n : kNombres)
        nombres.append(QLatin1String(n));
    return QByteArray("\xEF\xBB\xBF") + Csv::Registro(nombres, kSeparadorEscrito).toUtf8();
}

QByteArray Fila(const ValoresLinea& valores)
{
    return Csv::Registro(Valores(valores), kSeparadorEscrito).toUtf8();
}

}  // namespace CsvContribuyentes
