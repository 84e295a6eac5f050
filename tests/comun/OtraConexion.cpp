#include "comun/OtraConexion.h"

#include "plataforma/Fallo.h"

#include <QSqlDatabase>
#include <QThread>
#include <QtGlobal>
#include <thread>

namespace {
// The connections a thread opened are named after it; a thread that ends drops its own.
void soltarConexionesDelHilo()
{
    const QString hilo =
        QStringLiteral("|%1").arg(reinterpret_cast<quintptr>(QThread::currentThreadId()));
    for (const QString& nombre : QSqlDatabase::connectionNames()) {
        if (nombre.endsWith(hilo)) {
            QSqlDatabase::database(nombre, false).close();
            QSqlDatabase::removeDatabase(nombre);
        }
    }
}
}  // namespace

bool EnOtraConexion(const std::function<void()>& obra)
{
    bool bien = true;
    std::thread hilo([&] {
        try {
            obra();
        } catch (const cFallo& f) {
            qWarning("La otra copia falló: %s: %s", qPrintable(f.origen()),
                     qPrintable(f.descripcion()));
            bien = false;
        } catch (...) {
            qWarning("La otra copia falló");
            bien = false;
        }
        soltarConexionesDelHilo();
    });
    hilo.join();
    return bien;
}
