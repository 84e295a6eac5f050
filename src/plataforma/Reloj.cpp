#include "plataforma/Reloj.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace {
bool g_grabando = false;
QList<int> g_esperas;
}

void Reloj::EsperarHasta(const QDeadlineTimer& fin, int nominalMs)
{
    if (g_grabando) {
        g_esperas.append(nominalMs);
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
