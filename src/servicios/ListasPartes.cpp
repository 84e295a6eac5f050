#include "servicios/ListasPartes.h"

#include "servicios/BusquedaTexto.h"

#include <QStringList>

namespace ListasPartes {

QString CondicionesBusqueda(const CriteriosParte& criterios, const QString& nombre,
                            const QString& dni, QVariantList& valores)
{
    QStringList partes;
    if (criterios.NOMBRE && !criterios.NOMBRE->isEmpty())
        partes << CondicionPrefijo(nombre, *criterios.NOMBRE, valores);
    if (criterios.DNI && !criterios.DNI->isEmpty())
        partes << CondicionPrefijo(dni, *criterios.DNI, valores);
    return partes.isEmpty() ? QString()
                            : QStringLiteral(" WHERE ") + partes.join(QStringLiteral(" AND "));
}

QByteArray ClaveDeOrden(const QString& texto)
{
    QByteArray clave;
    clave.reserve(texto.size() * 2);
    for (QChar c : texto) {
        char16_t u = c.unicode();
        // Lower-case letters fold into upper case; accented vowels into their vowel.
        if (u >= u'a' && u <= u'z')
            u = char16_t(u - u'a' + u'A');
        int peso;
        switch (u) {
        case u'\u00D1': case u'\u00F1': peso = u'N' * 4 + 2; break;   // Ñ ñ
        case u'\u00C7': case u'\u00E7': peso = u'C' * 4 + 2; break;   // Ç ç
        case u'\u00C1': case u'\u00E1': case u'\u00C0': case u'\u00E0':
        case u'\u00C4': case u'\u00E4': peso = u'A' * 4; break;
        case u'\u00C9': case u'\u00E9': case u'\u00C8': case u'\u00E8':
        case u'\u00CB': case u'\u00EB': peso = u'E' * 4; break;
        case u'\u00CD': case u'\u00ED': case u'\u00CC': case u'\u00EC':
        case u'\u00CF': case u'\u00EF': peso = u'I' * 4; break;
        case u'\u00D3': case u'\u00F3': case u'\u00D2': case u'\u00F2':
        case u'\u00D6': case u'\u00F6': peso = u'O' * 4; break;
        case u'\u00DA': case u'\u00FA': case u'\u00D9': case u'\u00F9':
        case u'\u00DC': case u'\u00FC': peso = u'U' * 4; break;
        default: peso = u < 0x3FFF ? u * 4 : 0xFFFF; break;
        }
        clave.append(char((peso >> 8) & 0xFF));
        clave.append(char(peso & 0xFF));
    }
    return clave;
}

}  // namespace ListasPartes
