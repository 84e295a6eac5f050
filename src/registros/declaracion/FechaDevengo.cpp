#include "registros/declaracion/FechaDevengo.h"

#include "catalogo/IdsCatalogo.h"
#include "registros/nucleo/CEntrada.h"
#include "catalogo/Catalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

namespace {

// A date number yyyymmdd written in the catalogue's date picture ("dd/mm/yyyy" in Spanish,
// "yyyy/mm/dd" in Basque).
QString fechaSegunPatron(int32_t numero, QString patron)
{
    const QString cifras = QString::number(numero).rightJustified(8, QLatin1Char('0'));
    patron.replace(QLatin1String("yyyy"), cifras.left(4));
    patron.replace(QLatin1String("mm"), cifras.mid(4, 2));
    patron.replace(QLatin1String("dd"), cifras.right(2));
    return patron;
}

}  // namespace

Veredicto VeredictoFecha(const QString& texto)
{
    Veredicto v;
    v.botones = vb::Exclamation;
    v.titulo = Texto(kIdErrorIntroduccionDatos);
    v.control = QStringLiteral("txtfechad");
    if (!cFecha::EsFecha(texto, IdiomaPrograma())) {
        v.id = kIdFechaDevengoIncorrecta;
        v.mensaje = Texto(kIdFechaDevengoIncorrecta);
        return v;
    }
    const int32_t minima = Entrada().FECMIN;
    const int32_t maxima = Entrada().FECMAX;
    const int32_t d = cFecha::StringToLong(texto, IdiomaPrograma());
    if (minima <= d && d <= maxima)
        return {};
    v.id = kIdFechaDevengoAnteriorA;
    v.mensaje = Texto(kIdFechaDevengoAnteriorA) + fechaSegunPatron(minima, Texto(kIdPatronFecha))
        + Texto(kIdFechaNiPosteriorA) + fechaSegunPatron(maxima, Texto(kIdPatronFecha))
        + QStringLiteral("\n");
    return v;
}

Veredicto CambiarFecha(const QString& texto)
{
    Veredicto v = VeredictoFecha(texto);
    if (v.vacio())
        DecDatos().FECHAD = cFecha::StringToLong(texto, IdiomaPrograma());
    return v;
}

QStringList ActualizarOperacionPorFecha(bool tipoBloqueado)
{
    cDecDatos& d = DecDatos();
    const QStringList lista = d.CargarListaOperaciones();
    d.ObtenerDatosOperacion(false);
    if (EntradaDeLista(lista, Operacion().DESCRIP) < 0) {
        // The operation does not apply on the new date.
        LimpiarOperacion();
        d.InicializaFecha();
    }
    AjustarTipoImpositivo(tipoBloqueado);
    AplicarOperacion();
    return lista;
}

int EntradaDeLista(const QStringList& lista, const QString& texto)
{
    if (texto.isEmpty())
        return -1;
    const QString mayusculas = texto.toUpper();
    for (int i = 0; i < lista.size(); ++i) {
        if (lista[i].startsWith(mayusculas) || lista[i].startsWith(texto))
            return i;
    }
    return -1;
}
