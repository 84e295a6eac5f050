#include "paneles/dialogos/Mensaje.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {
bool g_grabando = false;
QList<int> g_respuestas;
QList<MensajeSeam::Registro> g_registro;
MensajeSeam::AvisoSinRespuesta g_estricto = nullptr;

QMessageBox::Icon iconoDe(int botones)
{
    switch (botones & 0x70) {
    case vb::Critical: return QMessageBox::Critical;
    case vb::Question: return QMessageBox::Question;
    case vb::Exclamation: return QMessageBox::Warning;
    case vb::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

QList<int> botonesDe(int botones)
{
    switch (botones & 0x7) {
    case vb::OKCancel: return {vb::OK, vb::Cancel};
    case vb::AbortRetryIgnore: return {vb::Abort, vb::Retry, vb::Ignore};
    case vb::YesNoCancel: return {vb::Yes, vb::No, vb::Cancel};
    case vb::YesNo: return {vb::Yes, vb::No};
    case vb::RetryCancel: return {vb::Retry, vb::Cancel};
    default: return {vb::OK};
    }
}

// The buttons speak the language in use, as the texts of the box do.
QString rotulo(int respuesta)
{
    if (IdiomaPrograma().esEuskera()) {
        switch (respuesta) {
        case vb::OK: return QStringLiteral("Ados");
        case vb::Cancel: return QStringLiteral("Utzi");
        case vb::Abort: return QStringLiteral("Eten");
        case vb::Retry: return QStringLiteral("Berriro saiatu");
        case vb::Ignore: return QStringLiteral("Ez ikusi");
        case vb::Yes: return QStringLiteral("Bai");
        default: return QStringLiteral("Ez");
        }
    }
    switch (respuesta) {
    case vb::OK: return QStringLiteral("Aceptar");
    case vb::Cancel: return QStringLiteral("Cancelar");
    case vb::Abort: return QStringLiteral("Anular");
    case vb::Retry: return QStringLiteral("Reintentar");
    case vb::Ignore: return QStringLiteral("Omitir");
    case vb::Yes: return QStringLiteral("Sí");
    default: return QStringLiteral("No");
    }
}

int mostrar(const QString& texto, int botones, const QString& titulo)
{
    QMessageBox caja(iconoDe(botones), titulo.isEmpty() ? QApplication::applicationName() : titulo,
                     texto, QMessageBox::NoButton, QApplication::activeWindow());
    const QList<int> respuestas = botonesDe(botones);
    const int porDefecto = MensajeSeam::respuestaPorDefecto(botones);
    QList<QPair<QAbstractButton*, int>> mapa;
    for (int r : respuestas) {
        QPushButton* b = caja.addButton(rotulo(r), QMessageBox::AcceptRole);
        mapa.append({b, r});
        if (r == porDefecto)
            caja.setDefaultButton(b);
        if (r == vb::Cancel || (r == vb::No && !respuestas.contains(vb::Cancel)))
            caja.setEscapeButton(b);
    }
    caja.exec();
    for (const auto& [b, r] : mapa)
        if (caja.clickedButton() == b)
            return r;
    return porDefecto;
}
}

int Mensaje(const QString& texto, int botones, const QString& titulo)
{
    if (!g_grabando)
        return mostrar(texto, botones, titulo);
    const bool sinRespuesta = g_respuestas.isEmpty();
    const int r = sinRespuesta ? MensajeSeam::respuestaPorDefecto(botones)
                               : g_respuestas.takeFirst();
    g_registro.append({texto, titulo, botones, r});
    if (sinRespuesta && g_estricto)
        g_estricto(g_registro.last());
    return r;
}

namespace MensajeSeam {
void grabar(bool activo)
{
    g_grabando = activo;
    limpiar();
}
bool grabando() { return g_grabando; }
void setNextAnswer(int respuesta) { g_respuestas.append(respuesta); }
const QList<Registro>& registro() { return g_registro; }
void limpiar()
{
    g_registro.clear();
    g_respuestas.clear();
}
void estricto(AvisoSinRespuesta aviso) { g_estricto = aviso; }
int respuestaPorDefecto(int botones)
{
    const QList<int> respuestas = botonesDe(botones);
    const int indice = (botones & 0x300) >> 8;
    return respuestas.value(indice, respuestas.first());
}
}
