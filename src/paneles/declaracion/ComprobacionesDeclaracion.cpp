#include "paneles/declaracion/ComprobacionesDeclaracion.h"

#include "paneles/dialogos/MostrarVeredicto.h"
#include "registros/declaracion/FechaDevengo.h"

#include <QGuiApplication>

ResultadoTipo ValidarTipoImpositivo(double valor, bool bloqueada, bool saltarValidacion)
{
    const ResultadoTipo r = AceptarTipoImpositivo(valor, bloqueada, saltarValidacion);
    MostrarVeredicto(r.veredicto);
    return r;
}

bool ValidarFecha(const QString& texto)
{
    const Veredicto v = VeredictoFecha(texto);
    MostrarVeredicto(v);
    return v.vacio();
}

bool ComprobarFecha(const QString& texto, const std::function<void()>& trasCambio)
{
    const Veredicto v = CambiarFecha(texto);
    if (!v.vacio()) {
        MostrarVeredicto(v);
        return false;
    }
    if (trasCambio)
        trasCambio();
    return true;
}

Veredicto ValidarCampos(bool tipoBloqueado, const QString& titulo, const QString& textoOperacion,
                        QWidget* panel)
{
    const Veredicto v = VeredictoCampos(tipoBloqueado, titulo, textoOperacion);
    MostrarVeredicto(v, panel);
    return v;
}

int16_t ValidarNifIntervinientes(const QString& titulo)
{
    const Veredicto v = VeredictoNifIntervinientes(titulo);
    if (v.vacio())
        return 0;
    MostrarVeredicto(v);
    // The check may have run under a busy pointer: after the message the user gets the normal
    // one back.
    if (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    return -1;
}
