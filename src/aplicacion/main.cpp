#include "aplicacion/Veldo.h"

int main(int argc, char** argv)
{
    return EjecutarVeldo(argc, argv);
}
