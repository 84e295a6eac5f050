#include "paneles/dialogos/DialogoFichero.h"

#include <QFileDialog>

namespace {
bool g_grabando = false;
QList<QString> g_respuestas;
QList<DialogoFicheroSeam::Registro> g_registro;

QString grabado(bool guardar, const QString& titulo, const QString& carpeta, const QString& filtro)
{
    const QString r = g_respuestas.isEmpty() ? QString() : g_respuestas.takeFirst();
    g_registro.append({guardar, titulo, carpeta, filtro, r});
    return r;
}
}

QString DialogoAbrirFichero(QWidget* padre, const QString& titulo, const QString& carpeta,
                            const QString& filtro)
{
    if (g_grabando)
        return grabado(false, titulo, carpeta, filtro);
    return QFileDialog::getOpenFileName(padre, titulo, carpeta, filtro);
}

QString DialogoGuardarFichero(QWidget* padre, const QString& titulo, const QString& propuesta,
                              const QString& filtro)
{
    if (g_grabando)
        return grabado(true, titulo, propuesta, filtro);
    return QFileDialog::getSaveFileName(padre, titulo, propuesta, filtro);
}

namespace DialogoFicheroSeam {
void grabar(bool activo)
{
    g_grabando = activo;
    g_respuestas.clear();
    g_registro.clear();
}
void setNextFileName(const QString& ruta) { g_respuestas.append(ruta); }
const QList<Registro>& registro() { return g_registro; }
}
