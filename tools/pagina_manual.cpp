// Writes the manual page veldoria(1) to the file named by its first argument, from the same
// table of options that `veldoria --help` lists; the second argument is the version.
#include "aplicacion/LineaDeOrdenes.h"

#include <QCoreApplication>
#include <QSaveFile>

int main(int argc, char** argv)
{
    QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 3)
        return 2;
    QSaveFile fichero(argumentos.at(1));
    if (!fichero.open(QIODevice::WriteOnly))
        return 1;
    fichero.write(LineaDeOrdenes::PaginaManual(argumentos.at(2)).toUtf8());
    return fichero.commit() ? 0 : 1;
}
