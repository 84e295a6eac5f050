#include "app/Veldo.h"

#include <QApplication>

int EjecutarVeldo(int argc, char** argv)
{
    QApplication app(argc, argv);
    return 0;
}
