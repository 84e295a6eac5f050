#include "registros/intercambio/AvisoIntercambio.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

namespace {
// A list of numbers is shown without the ", " that opens it.
QString Lista(const QStringList& dnis)
{
    return dnis.join(QStringLiteral(", "));
}
}  // namespace

int AvisoIntercambio::id() const
{
    switch (motivo) {
    case MotivoAviso::TodosErroneos: return kIdTodosErroneos;
    case MotivoAviso::UnErroneo:
    case MotivoAviso::VariosErroneos: return kIdHay;
    case MotivoAviso::Importados: return kIdImportadosCorrectamente;
    case MotivoAviso::NoExisteFichero: return kIdNoExisteFicheroImportar;
    case MotivoAviso::FicheroAbierto: return kIdFicheroYaAbierto;
    case MotivoAviso::ErrorEjecucion: return kIdErrorNumero;
    case MotivoAviso::NoHayDisquete: return kIdNoHayDisquete;
    case MotivoAviso::CabeceraCsv: return argumentos.value(0).toInt();
    case MotivoAviso::Ninguno:
    case MotivoAviso::NifErroneos:
    case MotivoAviso::NoRepresentables: return 0;
    }
    return 0;
}

QString AvisoIntercambio::texto() const
{
    const QString a0 = argumentos.value(0);
    switch (motivo) {
    case MotivoAviso::Ninguno: return QString();
    case MotivoAviso::UnErroneo: return Texto(kIdHay) + a0 + Texto(kIdUnContribuyenteErroneo);
    case MotivoAviso::VariosErroneos: return Texto(kIdHay) + a0 + Texto(kIdContribuyentesErroneos);
    case MotivoAviso::ErrorEjecucion:
        return Texto(kIdErrorNumero) + a0 + QStringLiteral(" : ") + argumentos.value(1);
    case MotivoAviso::NifErroneos:
        return TextoSegunIdioma(
            QStringLiteral("El/Los Interviniente/s con NIF: ") + Lista(argumentos)
                + QStringLiteral(" tiene/n un NIF erróneo o necesita/n llevar el dígito de control"),
            Lista(argumentos)
                + QStringLiteral(" IFZ duten esku hartzailea(e)k IFZ okerra du(te) edo kontrol "
                                 "digitua eraman behar du(te)."));
    case MotivoAviso::NoRepresentables:
        return TextoSegunIdioma(
            QStringLiteral("El/Los Interviniente/s con NIF: ") + Lista(argumentos)
                + QStringLiteral(" tiene/n datos con caracteres que no caben en el fichero de "
                                 "intercambio"),
            Lista(argumentos)
                + QStringLiteral(" IFZ duten esku hartzailea(e)k trukerako fitxategian sartzen "
                                 "ez diren karaktereak ditu(zte)."));
    case MotivoAviso::CabeceraCsv: return Texto(id()) + argumentos.value(1);
    default: return Texto(id());
    }
}

namespace FalloIntercambio {

QString Descripcion(int numero)
{
    switch (numero) {
    case kDesbordamiento:
        return TextoSegunIdioma(QStringLiteral("Desbordamiento"), QStringLiteral("Gainezkatzea"));
    case kDiscoLleno:
        return TextoSegunIdioma(QStringLiteral("Disco lleno"), QStringLiteral("Diskoa beteta"));
    case kAccesoDenegado:
        return TextoSegunIdioma(QStringLiteral("Error de acceso a la ruta o el archivo"),
                                QStringLiteral("Bide-izena edo fitxategia atzitzeko errorea"));
    case kRutaNoEncontrada:
        return TextoSegunIdioma(QStringLiteral("No se ha encontrado la ruta de acceso"),
                                QStringLiteral("Ez da bide-izena aurkitu"));
    default: return QString();
    }
}

AvisoIntercambio Aviso(int numero, const QString& descripcion)
{
    return {MotivoAviso::ErrorEjecucion, {QString::number(numero), descripcion}};
}

AvisoIntercambio Aviso(int numero)
{
    return Aviso(numero, Descripcion(numero));
}

}  // namespace FalloIntercambio
