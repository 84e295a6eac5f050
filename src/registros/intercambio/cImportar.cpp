#include "registros/intercambio/cImportar.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "registros/intercambio/FalloIntercambio.h"
#include "registros/intercambio/FicheroErrores.h"
#include "registros/intercambio/FuenteLineas.h"
#include "registros/intercambio/LineaIntercambio.h"
#include "servicios/LoteContribuyentes.h"
#include "valores/Resultado.h"

#include <QDir>
#include <QFileInfo>
#include <limits>
#include <optional>

namespace {

using C = CampoIntercambio;

// A run that cannot go on for a reason that is not a failure of the disk (a file already
// open, a CSV heading that is wrong), with the message that says so.
struct FalloEjecucion {
    Veredicto motivo;
};

// A failure that the run reports by its number (the disk, or the line counter's overflow),
// raised as the failures of the stores are, and shown as message 277 when the run stops.
[[noreturn]] void FalloNumerado(int numero)
{
    throw cFallo(numero, QStringLiteral("cImportar.Ejecutar"),
                 FalloIntercambio::Descripcion(numero));
}

QString Ruta(const QString& fichero)
{
    const QFileInfo info(fichero);
    const QString canonica = info.canonicalFilePath();
    return canonica.isEmpty() ? info.absoluteFilePath() : canonica;
}

// The contributor of a line, field by field, as the line holds it.
LineaContribuyente LineaDe(const LineaLeida& l)
{
    return {l[C::TIPODNI],          l[C::DNI],
            l[C::NOMBRE],           l[C::SIGLAS],
            l[C::DOMICILIO],        l[C::NUMERO],
            l[C::LETRA],            l[C::ESCALERA],
            l[C::PISO],             l[C::MANO],
            l[C::TIPODOMICILIO],    l[C::PAIS],
            l[C::CODIGOPROVINCIA],  l[C::NOMBREPROVINCIA],
            l[C::CODIGOPOSTAL],     l[C::CODIGOMUNICIPIO],
            l[C::NOMBREMUNICIPIO],  l[C::NUMEROSUJETOPASIVO],
            l[C::NUMEROTRANSMITENTE]};
}

// The value to save of a valid line: its texts as read (the store drops the blanks around
// them), its house number as a number (a valid line has at most five digits there, blanks
// standing for 0). The file's counters are not saved: the store counts them.
Contribuyente ContribuyenteDe(const LineaContribuyente& l, const TitularParte& titular = {})
{
    Contribuyente c;
    c.CSCO = titular.codigo;
    c.VERSION = titular.version;
    c.TIPODNI = l.TIPODNI;
    c.DNIC = l.DNIC;
    c.NOMBREC = l.NOMBREC;
    c.VIAC = l.VIAC;
    c.DOMICILIOC = l.DOMICILIOC;
    c.NUMEROC = QStringView(l.NUMEROC).trimmed().toInt();
    c.LETRAC = l.LETRAC;
    c.ESCALERAC = l.ESCALERAC;
    c.PISOC = l.PISOC;
    c.MANOC = l.MANOC;
    c.TIPODOMI = l.TIPODOMI;
    c.PAIS = l.PAIS;
    c.CODPROVC = l.CODPROVC;
    c.NOMPROVC = l.NOMPROVC;
    c.CODPOSC = l.CODPOSC;
    c.CODMUNC = l.CODMUNC;
    c.NOMMUNC = l.NOMMUNC;
    return c;
}

}  // namespace

// One run: the open files, the batch of saves, and the steps of one line.
struct cImportar::Ejecucion {
    cImportar& estado;
    const Interlocutor& interlocutor;
    std::unique_ptr<QFile> entrada;
    std::unique_ptr<QFile> errores;
    std::unique_ptr<cLoteContribuyentes> lote;
    std::unique_ptr<FuenteLineas> fuente;
    LineaLeida leida;  // the line under way; its texts keep their room from line to line
    int numero = 0;    // its number in the error file: its line, or its row in a spreadsheet

    void Escribir(const QByteArray& bytes)
    {
        if (errores->write(bytes) != bytes.size())
            FalloNumerado(errores->error() == QFileDevice::ResourceError
                              ? FalloIntercambio::kDiscoLleno
                              : FalloIntercambio::kAccesoDenegado);
    }

    // A short line, or one that fails validation, is refused: its contributor otherwise.
    std::optional<LineaContribuyente> Validada(const LineaLeida& l)
    {
        if (l.corta) {
            Escribir(FicheroErrores::LineaCorta(numero));
            ++estado.NUMEROINC;
            return std::nullopt;
        }
        LineaContribuyente linea = LineaDe(l);
        const QList<HallazgoImportacion> fallos = lote->ValidarDatosImportar(linea);
        if (fallos.isEmpty())
            return linea;
        Escribir(FicheroErrores::LineasErrores(fallos, numero, l[C::DNI]));
        ++estado.NUMEROINC;
        return std::nullopt;
    }

    // A save the store refused, for a text it cannot keep as given (a control character, half
    // of a surrogate pair: the line's checks do not look at those), or because the contributor
    // to replace was saved again or deleted since the import read it (by another running copy
    // of the program: it is not overwritten): the line is incorrect and the message goes to the
    // error file. True when it was refused.
    bool Rechazada(const Resultado<void>& resultado, const LineaLeida& l)
    {
        if (resultado)
            return false;
        const Veredicto& v = resultado.veredicto();
        const QString mensaje =
            v.vigencia == Vigencia::Vigente ? v.mensaje : Texto(kIdContribuyenteCambiado);
        Escribir(FicheroErrores::LineaRechazo(numero, l[C::DNI], mensaje));
        ++estado.NUMEROINC;
        return true;
    }

    // Replaces the contributor that holds the line's number, as the import read it.
    void Sustituir(const LineaLeida& l, const TitularParte& titular)
    {
        const std::optional<LineaContribuyente> linea = Validada(l);
        if (!linea)
            return;
        if (Rechazada(lote->GuardarContribuyente(ContribuyenteDe(*linea, titular), true), l))
            return;
        ++estado.NUMEROSUS;
        ++estado.NUMEROIMP;
    }

    void Nuevo(const LineaLeida& l)
    {
        const std::optional<LineaContribuyente> linea = Validada(l);
        if (!linea)
            return;
        if (Rechazada(lote->GuardarContribuyente(ContribuyenteDe(*linea), false), l))
            return;
        ++estado.NUMEROIMP;
    }

    // No question is asked, so which contributor the number names matters only once the line
    // is valid: the line is then added as a new one, and when the store answers that its
    // number is held, it replaces that contributor instead. The same lines end the same way as
    // with the look-up first, and a new contributor costs one look-up of its number, not two.
    void Automatico(const LineaLeida& l)
    {
        const std::optional<LineaContribuyente> linea = Validada(l);
        if (!linea)
            return;
        const Resultado<TitularParte> alta = lote->AnadirSiNuevo(ContribuyenteDe(*linea));
        Resultado<void> resultado;
        if (!alta)
            resultado = alta.veredicto();
        const bool sustituye = alta && alta->codigo != 0;
        if (sustituye)
            resultado = lote->GuardarContribuyente(ContribuyenteDe(*linea, *alta), true);
        if (Rechazada(resultado, l))
            return;
        if (sustituye)
            ++estado.NUMEROSUS;
        ++estado.NUMEROIMP;
    }

    void Linea()
    {
        const LineaLeida& l = leida;
        if (estado.AUTOMATICO == QLatin1String("X")) {
            Automatico(l);
            return;
        }
        const TitularParte titular = lote->ExisteContribuyente(l[C::DNI]);
        if (titular.codigo == 0) {
            Nuevo(l);
        } else {
            // Nobody is kept waiting for the store while the question stands; what another
            // copy saves meanwhile is not overwritten (the version read is the one replaced).
            lote->Confirmar();
            if (interlocutor.sustituir && interlocutor.sustituir(l[C::DNI]))
                Sustituir(l, titular);
            else
                ++estado.NUMEROIGN;
        }
    }

    // A row of a spreadsheet that cannot be split is refused with the reason.
    void Ilegible(const QString& motivo)
    {
        Escribir(FicheroErrores::LineaIlegible(numero, motivo));
        ++estado.NUMEROINC;
    }

    void Leer()
    {
        ::Resultado<std::unique_ptr<FuenteLineas>> abierta = AbrirFuente(*entrada);
        if (!abierta)
            throw FalloEjecucion{abierta.veredicto()};
        fuente = std::move(abierta).valor();
        const double estimado = fuente->Estimado();
        QString motivo;
        for (;;) {
            const FuenteLineas::Resultado r = fuente->Siguiente(leida, motivo);
            if (r == FuenteLineas::Resultado::Fin)
                break;
            if (estado.LineasLeidas == std::numeric_limits<int16_t>::max())
                FalloNumerado(FalloIntercambio::kDesbordamiento);
            ++estado.LineasLeidas;
            numero = fuente->Numero();
            if (r == FuenteLineas::Resultado::Ilegible)
                Ilegible(motivo);
            else
                Linea();
            if (interlocutor.avance)
                interlocutor.avance(estado.LineasLeidas, estimado, false);
        }
        if (fuente->Error())
            FalloNumerado(FalloIntercambio::kAccesoDenegado);
        if (interlocutor.avance)
            interlocutor.avance(estado.LineasLeidas, estimado, true);
    }
};

void cImportar::Iniciar()
{
    NUMEROIMP = 0;
    NUMEROINC = 0;
    NUMEROSUS = 0;
    NUMEROIGN = 0;
    LineasLeidas = 0;
    AUTOMATICO.clear();
    FICHEROAIMPORTAR = CarpetaDatos() + QStringLiteral("/CONTRI.txt");
    FICHEROERRORES = CarpetaDatos() + QStringLiteral("/Erorres.txt");
    TERMINADA.clear();
}

QString cImportar::TextoPreguntaSustituir(const QString& dni)
{
    return TextoSegunIdioma(QStringLiteral("El contribuyente con DNI ") + dni
                                + QStringLiteral(" ya existe."),
                            dni + QStringLiteral(" zk.ko NA duen zergaduna lehenagotik dago."))
        + QLatin1Char('\n') + Texto(kIdPreguntaSustituir);
}

bool cImportar::Abierto(const QString& ruta) const
{
    for (const auto& f : m_dejadosAbiertos)
        if (Ruta(f->fileName()) == ruta)
            return true;
    return false;
}

Veredicto cImportar::Ejecutar(const Interlocutor& interlocutor)
{
    Ejecucion run{*this, interlocutor, nullptr, nullptr, nullptr, nullptr, {}, 0};
    const QString rutaEntrada = Ruta(FICHEROAIMPORTAR);
    const QString rutaErrores = Ruta(FICHEROERRORES);
    try {
        if (Abierto(rutaEntrada))
            return VeredictoIntercambio(kIdFicheroYaAbierto);
        run.entrada = std::make_unique<QFile>(FICHEROAIMPORTAR);
        if (FICHEROAIMPORTAR.isEmpty() || !QFileInfo::exists(FICHEROAIMPORTAR))
            return VeredictoIntercambio(kIdNoExisteFicheroImportar);
        if (QFileInfo(FICHEROAIMPORTAR).isDir() || !run.entrada->open(QIODevice::ReadOnly))
            return FalloIntercambio::VeredictoFallo(FalloIntercambio::kAccesoDenegado);
        // The error file is the exchange file itself, or one a failed run left open.
        if (rutaErrores == rutaEntrada || Abierto(rutaErrores))
            throw FalloEjecucion{VeredictoIntercambio(kIdFicheroYaAbierto)};
        run.errores = std::make_unique<QFile>(FICHEROERRORES);
        if (!run.errores->open(QIODevice::WriteOnly | QIODevice::Truncate))
            FalloNumerado(QFileInfo(FICHEROERRORES).absoluteDir().exists()
                              ? FalloIntercambio::kAccesoDenegado
                              : FalloIntercambio::kRutaNoEncontrada);
        run.lote = std::make_unique<cLoteContribuyentes>(mdbmod, mdblec);
        LineasLeidas = 0;
        run.Leer();
        run.lote->Confirmar();
        run.lote.reset();
        run.entrada->close();
        if (NUMEROINC > 0) {
            run.Escribir(FicheroErrores::Formato());
            run.errores->close();
        } else {
            run.errores->close();
            run.errores->remove();
        }
    } catch (const FalloEjecucion& f) {
        return Fallar(run, f.motivo);
    } catch (const cFallo& f) {
        return Fallar(run, FalloIntercambio::VeredictoFallo(f.numero(), f.descripcion()));
    }
    TERMINADA = QStringLiteral("S");
    return Cierre();
}

Veredicto cImportar::Fallar(Ejecucion& run, const Veredicto& motivo)
{
    // What was saved before the failure stays saved: the statement that failed changed
    // nothing, and the saves before it are whole. A store that cannot commit them any more
    // has rolled them back, which leaves it as the last committed batch had it.
    if (run.lote) {
        try {
            run.lote->Confirmar();
        } catch (const cFallo&) {
        }
        run.lote.reset();
    }
    // The files stay open, as they were when the run stopped; what was written of the error
    // file is handed to the system, so that a person can read it.
    if (run.errores && run.errores->isOpen())
        run.errores->flush();
    for (auto* f : {&run.entrada, &run.errores})
        if (*f && (*f)->isOpen())
            m_dejadosAbiertos.push_back(std::move(*f));
    return motivo;
}

Veredicto cImportar::Cierre() const
{
    if (NUMEROINC != 0 && NUMEROINC == LineasLeidas)
        return VeredictoIntercambio(kIdTodosErroneos);
    if (NUMEROINC > 0) {
        // "Hay " the number of refused lines, then one or several contributors.
        Veredicto v;
        v.id = kIdHay;
        v.mensaje = Texto(kIdHay) + QString::number(NUMEROINC)
            + Texto(NUMEROINC == 1 ? kIdUnContribuyenteErroneo : kIdContribuyentesErroneos);
        return v;
    }
    if (NUMEROIMP > 0)
        return VeredictoIntercambio(kIdImportadosCorrectamente);
    return {};
}

cImportar& Importar()
{
    return Estado().de<cImportar>();
}
