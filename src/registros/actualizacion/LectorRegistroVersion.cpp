#include "registros/actualizacion/LectorRegistroVersion.h"

#include <QByteArray>
#include <QFile>
#include <QStringList>

namespace {

QString unir(const RegistroVersion::Numeros& n, std::initializer_list<int> indices)
{
    QStringList partes;
    for (int i : indices)
        partes.append(QString::number(n[static_cast<std::size_t>(i)]));
    return partes.join(QLatin1Char('.'));
}

std::uint16_t numero(const std::uint8_t* p)
{
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

std::uint32_t suma(const std::uint8_t* p)
{
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8)
           | (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

// The record that starts at `p` (which holds the mark), when its check sum holds.
std::optional<RegistroVersion::Version> leerEn(const std::uint8_t* p)
{
    if (RegistroVersion::SumaDeControl(p, 32) != suma(p + 32))
        return std::nullopt;
    RegistroVersion::Version v;
    for (std::size_t i = 0; i < 4; ++i) {
        v.fichero[i] = numero(p + 16 + 2 * i);
        v.producto[i] = numero(p + 24 + 2 * i);
    }
    return v;
}

}  // namespace

std::optional<RegistroVersion::Version> BuscarRegistroVersion(QByteArrayView datos)
{
    const QByteArrayView marca(RegistroVersion::Marca.data(), RegistroVersion::TamanoMarca);
    qsizetype desde = 0;
    while (true) {
        const qsizetype en = datos.indexOf(marca, desde);
        if (en < 0 || datos.size() - en < static_cast<qsizetype>(RegistroVersion::Tamano))
            return std::nullopt;
        if (auto v = leerEn(reinterpret_cast<const std::uint8_t*>(datos.data() + en)))
            return v;
        desde = en + 1;
    }
}

std::optional<RegistroVersion::Version> LeerRegistroVersion(const QString& fichero)
{
    QFile f(fichero);
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 tamano = f.size();
    if (tamano <= 0)
        return std::nullopt;
    if (const uchar* mapa = f.map(0, tamano)) {
        auto v = BuscarRegistroVersion(
            QByteArrayView(reinterpret_cast<const char*>(mapa), static_cast<qsizetype>(tamano)));
        f.unmap(const_cast<uchar*>(mapa));
        return v;
    }
    return BuscarRegistroVersion(f.readAll());
}

QString VersionDelPrograma(const RegistroVersion::Numeros& fichero)
{
    return unir(fichero, {0, 1, 3});
}
