// The program's version record: file version and product version, four numbers each, given by
// the build (the project's version). The record is read back from the executable file on disk,
// so it must survive into the linked program: `used` and `retain` keep it from being dropped
// by the compiler or by section garbage collection, and the build asks the linker to pull this
// object into every program that links the application library (--undefined).
#include "aplicacion/RegistroVersion.h"

#if !defined(VELDO_VERSION_1) || !defined(VELDO_VERSION_2) || !defined(VELDO_VERSION_3) \
    || !defined(VELDO_VERSION_4)
#error "The build must give the four numbers of the version (VELDO_VERSION_1 to VELDO_VERSION_4)"
#endif

namespace {
constexpr RegistroVersion::Numeros VersionFichero = {VELDO_VERSION_1, VELDO_VERSION_2,
                                                     VELDO_VERSION_3, VELDO_VERSION_4};
// The product carries the same version as the file.
constexpr RegistroVersion::Numeros VersionProductoRegistro = VersionFichero;
}

#if defined(__has_attribute)
#if __has_attribute(retain)
#define VELDO_CONSERVAR __attribute__((used, retain))
#elif __has_attribute(used)
#define VELDO_CONSERVAR __attribute__((used))
#endif
#endif
#ifndef VELDO_CONSERVAR
#define VELDO_CONSERVAR
#endif

extern "C" VELDO_CONSERVAR const RegistroVersion::Bytes VeldoRegistroVersion =
    RegistroVersion::Construir(VersionFichero, VersionProductoRegistro);
