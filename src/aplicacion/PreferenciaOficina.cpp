#include "aplicacion/PreferenciaOficina.h"

#include "servicios/MotorAlmacenes.h"

#include <QSettings>
#include <QStandardPaths>

namespace {

const QString kClave = QStringLiteral("almacen/oficina");

QString fichero()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QStringLiteral("/veldoria.conf");
}

}  // namespace

namespace PreferenciaOficina {

QString Leer()
{
    const QSettings ajustes(fichero(), QSettings::IniFormat);
    return ajustes.value(kClave).toString().trimmed();
}

bool Guardar(const QString& oficina)
{
    QSettings ajustes(fichero(), QSettings::IniFormat);
    if (oficina.trimmed().isEmpty())
        ajustes.remove(kClave);
    else
        ajustes.setValue(kClave, oficina.trimmed());
    ajustes.sync();
    return ajustes.status() == QSettings::NoError;
}

void Aplicar()
{
    // An office named on the command line holds for this run.
    if (MotorDeLosAlmacenesElegido() == MotorElegido::Servidor)
        return;
    if (const QString oficina = Leer(); !oficina.isEmpty())
        ElegirOficina(oficina);
}

}  // namespace PreferenciaOficina
