#include "servicios/cMiscelaneos.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

#include <QUrlQuery>

namespace {
const QString kAsistencia = QStringLiteral("http://asistencia.veldoria.example/");

bool euskera(int16_t idioma) { return idioma != 0; }
}  // namespace

QUrl cMiscelaneos::DireccionAyuOnline(int16_t idioma)
{
    QUrl url(kAsistencia);
    QUrlQuery consulta;
    consulta.addQueryItem(QStringLiteral("modelo"), QStringLiteral("747"));
    consulta.addQueryItem(QStringLiteral("idioma"),
                          euskera(idioma) ? QStringLiteral("e") : QStringLiteral("c"));
    url.setQuery(consulta);
    return url;
}

Veredicto cMiscelaneos::AccesoAyuOnline(const std::function<bool(const QUrl&)>& abrir) const
{
    if (abrir && abrir(DireccionAyuOnline(Idioma)))
        return {};
    Veredicto v;
    v.id = kIdNavegadorNoEncontradoMensaje;
    v.mensaje = TextoFila(euskera(Idioma) ? kIdNavegadorNoEncontradoMensaje + 10000
                          : kIdNavegadorNoEncontradoMensaje);
    v.botones = vb::Exclamation;
    v.titulo = TextoFila(euskera(Idioma) ? kIdNavegadorNoEncontrado + 10000
                         : kIdNavegadorNoEncontrado);
    return v;
}

Veredicto cMiscelaneos::MostrarOnlineInfo() const
{
    const QString direccion = DireccionAyuOnline(Idioma).toString();
    const QString texto = euskera(Idioma)
        ? QStringLiteral("Arbeliako Foru Aldundiaren on-line laguntza zerbitzuak Interneten bidez "
                         "erantzuten ditu Zenbait Garraiobideren gaineko Zerga Bereziari eta "
                         "programa honen erabilerari buruzko galderak, astelehenetik ostiralera, "
                         "8:00etatik 14:00etara.\n\nBertara sartzeko, aukeratu menuko «On-line "
                         "laguntza»: zure nabigatzailean helbide hau irekiko da:\n")
            + direccion
        : QStringLiteral("El servicio de asistencia on-line de la Diputación Foral de Arbelia "
                         "atiende por Internet las consultas sobre el Impuesto Especial sobre "
                         "Determinados Medios de Transporte y sobre el uso de este programa, de "
                         "lunes a viernes, de 8:00 a 14:00.\n\nPara acceder a él, elija "
                         "«Asistencia on-line» en el menú: se abrirá en su navegador la "
                         "dirección\n")
            + direccion;
    Veredicto v;
    v.mensaje = texto;
    v.botones = vb::Information;
    v.titulo = TextoFila(euskera(Idioma) ? kIdDescripcionServicio + 10000 : kIdDescripcionServicio);
    return v;
}

QString cMiscelaneos::HaciendaFiscalidad() const
{
    return euskera(Idioma) ? QStringLiteral("Ogasun eta Finantza Saila")
                           : QStringLiteral("Departamento de Hacienda y Finanzas");
}
