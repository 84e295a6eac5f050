#include "registros/intercambio/Cp1252.h"

#include <array>

namespace {

// The characters of bytes 0x80 to 0x9F; the undefined ones stand for themselves.
constexpr std::array<char16_t, 32> kAltos = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t Caracter(unsigned char b)
{
    return b >= 0x80 && b < 0xA0 ? kAltos[b - 0x80] : char16_t(b);
}

std::optional<char> Byte(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return char(c);
    for (int i = 0; i < int(kAltos.size()); ++i)
        if (kAltos[i] == c)
            return char(0x80 + i);
    return std::nullopt;
}

}  // namespace

namespace Cp1252 {

QString Decodificar(const QByteArray& bytes)
{
    return Decodificar(bytes.constData(), bytes.size());
}

QString Decodificar(const char* desde, qsizetype largo)
{
    QString texto(largo, Qt::Uninitialized);
    QChar* destino = texto.data();
    for (qsizetype i = 0; i < largo; ++i)
        destino[i] = QChar(Caracter(static_cast<unsigned char>(desde[i])));
    return texto;
}

std::optional<QByteArray> Codificar(const QString& texto)
{
    QByteArray bytes(texto.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const std::optional<char> b = Byte(texto[i].unicode());
        if (!b)
            return std::nullopt;
        bytes[i] = *b;
    }
    return bytes;
}

bool Representable(const QString& texto)
{
    for (const QChar c : texto)
        if (!Byte(c.unicode()))
            return false;
    return true;
}

}  // namespace Cp1252
