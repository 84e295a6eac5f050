#include "valores/Filtros.h"

#include <QString>

namespace {
constexpr int kRetroceso = 8;
}

const char16_t* const kCaracteresTexto =
    u"0123456789" u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ" u" !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ";

void FiltroDigitos(int& key)
{
    if ((key < '0' || key > '9') && key != kRetroceso)
        key = 0;
}

void FiltroFecha(int& key)
{
    if (key != '/')
        FiltroDigitos(key);
}

int FiltroTexto(int key)
{
    if (key <= 0 || key > 0xFFFF)
        return 0;
    const QChar mayuscula = QChar(static_cast<char16_t>(key)).toUpper();
    static const QString permitidos = QString::fromUtf16(kCaracteresTexto);
    if (permitidos.contains(mayuscula, Qt::CaseSensitive) || key == kRetroceso)
        return mayuscula.unicode();
    return 0;
}
