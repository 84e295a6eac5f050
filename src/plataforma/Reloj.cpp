#include "plataforma/Reloj.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace {
bool g_grabando = false;
QList<int> g_esperas;
}

void Reloj::EsperarHasta(const QDeadlineTimer& fin)
{
    if (g_grabando) {
        g_esperas.append(static_cast<int>(qMax<qint64>(0, fin.remainingTime())));
        return;
    }
    while (!fin.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
}

void RelojSeam::grabar(bool activo)
{
    g_grabando = activo;
    g_esperas.clear();
}

const QList<int>& RelojSeam::esperas() { return g_esperas; }
