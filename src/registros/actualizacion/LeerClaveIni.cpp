// A reader of INI text with the rules the update service writes its version file for:
// - a line whose first non-blank character is "[" opens a section named by what lies between
//   it and the last "]" of the line; a line starting with ";" is a comment;
// - "key = value" lines: blanks around the key and around the value are dropped; a line
//   without "=" is a key without value, which answers the default;
// - sections and keys match without regard to case; only the first section of a name is
//   searched, and the first key of a name within it;
// - a value (or the default) that starts and ends with the same quote, ' or ", loses both;
// - the answer fits a buffer of 1024 characters: at most 1023 are returned;
// - a missing file, section or key answers the default " ".
#include "registros/actualizacion/ActualizacionOnline.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>
#include <optional>

namespace {

constexpr int TamanoBuffer = 1024;
const QString ValorPorDefecto = QStringLiteral(" ");

bool esBlanco(QChar c)
{
    return c.isSpace() || c == QChar(0x1A);
}

QString recortar(const QString& texto)
{
    qsizetype ini = 0;
    qsizetype fin = texto.size();
    while (ini < fin && esBlanco(texto.at(ini)))
        ++ini;
    while (fin > ini && esBlanco(texto.at(fin - 1)))
        --fin;
    return texto.mid(ini, fin - ini);
}

// The file's text: UTF-16 or UTF-8 when it says so with a byte-order mark, UTF-8 when its
// bytes are valid UTF-8, else the single-byte Western code page.
QString textoDelFichero(const QByteArray& bytes)
{
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        QStringDecoder utf16(QStringConverter::Utf16);
        return utf16.decode(bytes);
    }
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes.mid(3));
    QStringDecoder utf8(QStringConverter::Utf8);
    const QString texto = utf8.decode(bytes);
    if (!utf8.hasError())
        return texto;
    return QString::fromLatin1(bytes);
}

// The value of `clave` in the first section named `seccion`: nullopt when there is no such
// key, or the key has no "=".
std::optional<QString> buscarValor(const QString& texto, const QString& seccion,
                                   const QString& clave)
{
    bool enSeccion = false;
    bool seccionVista = false;
    const QStringList lineas = texto.split(QLatin1Char('\n'));
    for (const QString& bruta : lineas) {
        const QString linea = recortar(bruta);
        if (linea.isEmpty() || linea.startsWith(QLatin1Char(';')))
            continue;
        if (linea.startsWith(QLatin1Char('['))) {
            const qsizetype cierre = linea.lastIndexOf(QLatin1Char(']'));
            if (cierre > 0) {
                if (enSeccion)
                    return std::nullopt;  // only the first section of the name counts
                const QString nombre = linea.mid(1, cierre - 1);
                enSeccion = !seccionVista && nombre.compare(seccion, Qt::CaseInsensitive) == 0;
                seccionVista = seccionVista || enSeccion;
                continue;
            }
        }
        if (!enSeccion)
            continue;
        const qsizetype igual = linea.indexOf(QLatin1Char('='));
        const QString nombre = recortar(igual < 0 ? linea : linea.left(igual));
        if (nombre.compare(clave, Qt::CaseInsensitive) != 0)
            continue;
        if (igual < 0)
            return std::nullopt;
        return recortar(linea.mid(igual + 1));
    }
    return std::nullopt;
}

// Copies a value into the 1024-character answer, dropping matching outer quotes.
QString copiarEntrada(QString valor)
{
    QChar comilla;
    if (valor.size() > 1 && (valor.front() == QLatin1Char('\'') || valor.front() == QLatin1Char('"'))
        && valor.back() == valor.front()) {
        comilla = valor.front();
        valor.remove(0, 1);
    }
    const qsizetype longitudSinComilla = valor.size();
    QString respuesta = valor.left(TamanoBuffer - 1);
    // The closing quote is dropped whenever the rest fitted the buffer, even when the cut
    // already took it away.
    if (!comilla.isNull() && TamanoBuffer >= longitudSinComilla)
        respuesta.chop(1);
    return respuesta;
}

}  // namespace

QString LeerClaveIni(const QString& seccion, const QString& clave, const QString& fichero)
{
    QFile f(fichero);
    std::optional<QString> valor;
    if (f.open(QIODevice::ReadOnly))
        valor = buscarValor(textoDelFichero(f.readAll()), seccion, clave);
    return copiarEntrada(valor.value_or(ValorPorDefecto));
}
