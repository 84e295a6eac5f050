#pragma once
// Every file chooser of the program goes through these two routines. Tests set the next
// answer (a path, or an empty text for Cancel) and read what was asked.
#include <QString>
#include <QList>

class QWidget;

QString DialogoAbrirFichero(QWidget* padre, const QString& titulo, const QString& carpeta,
                            const QString& filtro);
QString DialogoGuardarFichero(QWidget* padre, const QString& titulo, const QString& propuesta,
                              const QString& filtro);

namespace DialogoFicheroSeam {
struct Registro {
    bool guardar = false;
    QString titulo;
    QString carpeta;
    QString filtro;
    QString respuesta;
};
void grabar(bool activo);
void setNextFileName(const QString& ruta);  // empty text: the user cancels
const QList<Registro>& registro();
}
