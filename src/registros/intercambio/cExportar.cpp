#include "registros/intercambio/cExportar.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "valores/Val.h"
#include "registros/partes/CriteriosLista.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/CsvContribuyentes.h"
#include "registros/intercambio/FalloIntercambio.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

using C = CampoIntercambio;

// The refusal of the contributors whose numbers are wrong, or lack their check character.
Veredicto NifErroneos(const QStringList& dnis)
{
    const QString lista = dnis.join(QStringLiteral(", "));
    Veredicto v;
    v.mensaje = TextoSegunIdioma(
        QStringLiteral("El/Los Interviniente/s con NIF: ") + lista
            + QStringLiteral(" tiene/n un NIF erróneo o necesita/n llevar el dígito de control"),
        lista
            + QStringLiteral(" IFZ duten esku hartzailea(e)k IFZ okerra du(te) edo kontrol "
                             "digitua eraman behar du(te)."));
    return v;
}

// The refusal of the contributors with characters the exchange file cannot hold.
Veredicto NoRepresentables(const QStringList& dnis)
{
    const QString lista = dnis.join(QStringLiteral(", "));
    Veredicto v;
    v.mensaje = TextoSegunIdioma(
        QStringLiteral("El/Los Interviniente/s con NIF: ") + lista
            + QStringLiteral(" tiene/n datos con caracteres que no caben en el fichero de "
                             "intercambio"),
        lista
            + QStringLiteral(" IFZ duten esku hartzailea(e)k trukerako fitxategian sartzen "
                             "ez diren karaktereak ditu(zte)."));
    return v;
}

// A stored number as the file writes it; blank is 0, and a value that is no whole number
// gives -1, which the line refuses rather than writing a wrong number.
int64_t Numero(double d)
{
    if (d < 0 || d != double(int64_t(d)))
        return -1;
    return int64_t(d);
}

int64_t Numero(const QString& texto)
{
    const QString t = texto.trimmed();
    if (t.isEmpty())
        return 0;
    bool ok = false;
    const double d = t.toDouble(&ok);
    return ok ? Numero(d) : -1;
}

// The fields of the line of a contributor: texts cut or filled to their widths, the six
// numbers as numbers.
RegistroContri RegistroDe(const Contribuyente& c)
{
    RegistroContri r;
    r.CSCO = c.CSCO;
    const auto texto = [&r](C campo, const QString& valor) {
        const int ancho = Definicion(campo).ancho;
        r.valores.textos[Indice(campo)] = FormatoTexto(valor.left(ancho), ancho);
    };
    const auto numero = [&r](C campo, int64_t valor) { r.valores.numeros[Indice(campo)] = valor; };
    texto(C::TIPODNI, c.TIPODNI);
    texto(C::DNI, c.DNIC);
    texto(C::NOMBRE, c.NOMBREC);
    texto(C::SIGLAS, c.VIAC);
    texto(C::DOMICILIO, c.DOMICILIOC);
    numero(C::NUMERO, Numero(c.NUMEROC));
    texto(C::LETRA, c.LETRAC);
    texto(C::ESCALERA, c.ESCALERAC);
    texto(C::PISO, c.PISOC);
    texto(C::MANO, c.MANOC);
    texto(C::TIPODOMICILIO, c.TIPODOMI);
    texto(C::PAIS, c.PAIS);
    numero(C::CODIGOPROVINCIA, Numero(c.CODPROVC));
    texto(C::NOMBREPROVINCIA, c.NOMPROVC);
    numero(C::CODIGOPOSTAL, Numero(c.CODPOSC));
    numero(C::CODIGOMUNICIPIO, Numero(c.CODMUNC));
    texto(C::NOMBREMUNICIPIO, c.NOMMUNC);
    numero(C::NUMEROSUJETOPASIVO, Numero(c.NUMSP));
    numero(C::NUMEROTRANSMITENTE, Numero(c.NUMTR));
    return r;
}

// A number of 0 (a non-official number must have a value).
bool ValorCero(const QString& dni)
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return false;
    for (const QChar c : t)
        if (!c.isDigit() && c != QLatin1Char('.') && c != QLatin1Char(','))
            return false;
    return Val(t) == 0;
}

}  // namespace

void cExportar::Iniciar()
{
    ORDEN = 1;
    BUSQUEDA = QStringLiteral("N");
    CSCO = 0;
    CSCOEXP = 0;
    FICHEROAEXPORTAR = CarpetaDatos() + QStringLiteral("/CONTRI.txt");
    TablaContriExpCLEAR();
    TablaContriCLEAR();
    SELECCIONACTUAL = QStringLiteral("0");
    TABLASELECCION.reset();
    lblTitulo.clear();
    lblayuda.clear();
    lblResultado1.clear();
    LblResultado2.clear();
    NUMCONTRISEL = 0;
    NUMCONTRIEXP = 0;
}

void cExportar::COPIARELEMENTOENTRETABLAS(int indice)
{
    TablaContriExpAÑADIR(TablaContriELEMENTO(indice));
}

void cExportar::TablaContriCLEAR()
{
    m_contri.clear();
}

void cExportar::TablaContriExpCLEAR()
{
    m_contriExp.clear();
    m_codigosExp.clear();
    NUMCONTRIEXP = 0;
}

void cExportar::TablaContriAÑADIR(const Contribuyente& contribuyente)
{
    m_contri.push_back(RegistroDe(contribuyente));
}

void cExportar::TablaContriExpAÑADIR(const RegistroContri& registro)
{
    m_contriExp.push_back(registro);
    m_codigosExp.insert(registro.CSCO);
    NUMCONTRIEXP = int32_t(m_contriExp.size());
}

void cExportar::TablaContriExpBORRAR(int indice)
{
    m_codigosExp.erase(m_contriExp.at(size_t(indice - 1)).CSCO);
    m_contriExp.erase(m_contriExp.begin() + (indice - 1));
    NUMCONTRIEXP = int32_t(m_contriExp.size());
}

bool cExportar::TablaContriExpPERTENECE(int32_t codigo) const
{
    return m_codigosExp.count(codigo) != 0;
}

const RegistroContri& cExportar::TablaContriELEMENTO(int indice) const
{
    return m_contri.at(size_t(indice - 1));
}

const RegistroContri& cExportar::TablaContriExpELEMENTO(int indice) const
{
    return m_contriExp.at(size_t(indice - 1));
}

int cExportar::IndiceEnTablaContri(int32_t codigo) const
{
    for (size_t i = 0; i < m_contri.size(); ++i)
        if (m_contri[i].CSCO == codigo)
            return int(i) + 1;
    return 0;
}

bool cExportar::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

int32_t cExportar::CargarFlxDeclaraciones()
{
    const QList<Contribuyente> contribuyentes = Almacen<cContribSvr>().dameResultadoBusquedaTodo(
        CriteriosLista::Criterios(TABLASELECCION), OrdenDeColumna(ORDEN));
    NUMCONTRISEL = int32_t(contribuyentes.size());
    TablaContriCLEAR();
    m_contri.reserve(size_t(contribuyentes.size()));
    for (const Contribuyente& c : contribuyentes)
        TablaContriAÑADIR(c);
    return NUMCONTRISEL;
}

void cExportar::AnotarBusqueda(const QString& texto)
{
    const int columna = CriteriosLista::ColumnaDeBusqueda(SELECCIONACTUAL);
    if (columna != 0) {
        AnotarCriterio(TABLASELECCION, SELECCIONACTUAL, texto);
        ORDEN = static_cast<uint8_t>(columna);
    }
    SELECCIONACTUAL = QStringLiteral("0");
}

void cExportar::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        SELECCIONACTUAL = QStringLiteral("0");
        TABLASELECCION.reset();
        CSCO = 0;
        CSCOEXP = 0;
    } else {
        BUSQUEDA = QStringLiteral("N");
        SELECCIONACTUAL = QStringLiteral("0");
    }
}

void cExportar::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    SELECCIONACTUAL = QStringLiteral("0");
    TABLASELECCION.reset();
    ORDEN = 1;
    CSCO = 0;
}

bool cExportar::OrdenarPor(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    ORDEN = static_cast<uint8_t>(columna);
    CSCO = 0;
    return true;
}

bool cExportar::ElegirColumnaBusqueda(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    SELECCIONACTUAL = QString::number(columna);
    return true;
}

bool cExportar::SeleccionarUno()
{
    const int indice = IndiceEnTablaContri(CSCO);
    if (indice == 0 || TablaContriExpPERTENECE(CSCO))
        return false;
    COPIARELEMENTOENTRETABLAS(indice);
    CSCOEXP = CSCO;
    return true;
}

void cExportar::SeleccionarTodos()
{
    m_contriExp.reserve(m_contriExp.size() + m_contri.size());
    for (int i = 1; i <= TablaContriCOUNT(); ++i) {
        const int32_t codigo = m_contri[size_t(i - 1)].CSCO;
        if (!TablaContriExpPERTENECE(codigo)) {
            COPIARELEMENTOENTRETABLAS(i);
            CSCOEXP = codigo;
        }
    }
}

void cExportar::DeseleccionarTodos()
{
    TablaContriExpCLEAR();
    CSCOEXP = 0;
}

Resultado<void> cExportar::ComprobarIdentidades() const
{
    cContribSvr svr;
    QStringList erroneos;
    QStringList noRepresentables;
    // A CSV file is UTF-8 and has no widths: it holds every character and number.
    const bool csv = EsFicheroCsv(FICHEROAEXPORTAR);
    for (const RegistroContri& r : m_contriExp) {
        const QString dni = r.texto(C::DNI).trimmed();
        if (r.texto(C::TIPODNI) == QLatin1String("O") ? !svr.ValidarDniOficial(dni)
                                                       : ValorCero(dni))
            erroneos << dni;
        else if (!csv && !ComponerLinea(r.valores))
            noRepresentables << dni;
    }
    if (!erroneos.isEmpty())
        return NifErroneos(erroneos);
    if (!noRepresentables.isEmpty())
        return NoRepresentables(noRepresentables);
    return {};
}

Resultado<void> cExportar::ComprobarDestino() const
{
    const QFileInfo info(FICHEROAEXPORTAR);
    if (FICHEROAEXPORTAR.trimmed().isEmpty() || info.fileName().isEmpty() || info.isDir()
        || !info.absoluteDir().exists())
        return VeredictoIntercambio(kIdNoHayDisquete);
    return {};
}

bool cExportar::DestinoExiste() const
{
    return QFileInfo::exists(FICHEROAEXPORTAR);
}

Resultado<void> cExportar::EscribirFichero() const
{
    QSaveFile fichero(FICHEROAEXPORTAR);
    if (!fichero.open(QIODevice::WriteOnly))
        return FalloIntercambio::VeredictoFallo(FalloIntercambio::kAccesoDenegado);
    QByteArray bloque;
    bloque.reserve(1 << 20);
    const bool csv = EsFicheroCsv(FICHEROAEXPORTAR);
    if (csv)
        bloque += CsvContribuyentes::Cabecera();
    for (const RegistroContri& r : m_contriExp) {
        if (csv) {
            bloque += CsvContribuyentes::Fila(r.valores);
        } else {
            const std::optional<QByteArray> linea = ComponerLinea(r.valores);
            if (!linea) {
                fichero.cancelWriting();
                return NoRepresentables({r.texto(C::DNI).trimmed()});
            }
            bloque += *linea;
            bloque += "\r\n";
        }
        if (bloque.size() >= (1 << 20)) {
            fichero.write(bloque);
            bloque.clear();
        }
    }
    fichero.write(bloque);
    if (!fichero.commit())
        return FalloIntercambio::VeredictoFallo(fichero.error() == QFileDevice::ResourceError
                                                    ? FalloIntercambio::kDiscoLleno
                                                    : FalloIntercambio::kAccesoDenegado);
    return {};
}

cExportar& Exportar()
{
    return Estado().de<cExportar>();
}
