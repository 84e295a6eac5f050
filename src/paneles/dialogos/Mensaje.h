#pragma once
// Every message box of the program goes through Mensaje(). The flags and answers are the
// classic message-box numbers of valores/BotonesMensaje.h. Tests script the answers and read
// what was shown.
#include "valores/BotonesMensaje.h"

#include <QString>
#include <QList>

class QWidget;

// Shows a message box; answers one of vb::Respuesta.
int Mensaje(const QString& texto, int botones = vb::OKOnly, const QString& titulo = QString());

// The seam for tests: while recording, no box is shown. Each call takes the next scripted
// answer, or the box's default button when none is left, and is kept in the record.
namespace MensajeSeam {
struct Registro {
    QString texto;
    QString titulo;
    int botones = 0;
    int respuesta = 0;
    int icono() const { return botones & 0x70; }
};
void grabar(bool activo);           // start or stop recording (and clears the record)
bool grabando();
void setNextAnswer(int respuesta);  // queue one answer
const QList<Registro>& registro();
void limpiar();
int respuestaPorDefecto(int botones);

// Strict mode, for tests that script every box: a box that finds no queued answer is a fault
// of the test. It is recorded with its default answer as before, and the function given is
// told of it (the test library makes the running test fail there). Null turns it off.
using AvisoSinRespuesta = void (*)(const Registro& mensaje);
void estricto(AvisoSinRespuesta aviso);
}
