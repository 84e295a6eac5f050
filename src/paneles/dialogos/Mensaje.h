#pragma once
// Every message box of the program goes through Mensaje(). The flags and answers are the
// classic message-box numbers the panels are written with (64 information, 292 a question
// with Yes/No and No as default, ...). Tests script the answers and read what was shown.
#include <QString>
#include <QList>

namespace vb {
enum Botones : int {
    OKOnly = 0, OKCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4, RetryCancel = 5,
    Critical = 16, Question = 32, Exclamation = 48, Information = 64,
    DefaultButton1 = 0, DefaultButton2 = 256, DefaultButton3 = 512,
};
enum Respuesta : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };
}

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
}
