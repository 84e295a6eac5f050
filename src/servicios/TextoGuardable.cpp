#include "servicios/TextoGuardable.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

namespace {

// A character no store keeps: the controls of C0 (NUL, tab, line break...) and DEL. NUL ends a
// text for SQLite's own functions, and the others break a line of the exchange file or a field
// of one line. The controls of C1 are kept: they survive the store unchanged, and the file of
// the exchange, read as Windows-1252, turns its five undefined bytes into them.
bool esControl(char32_t c)
{
    return c < 0x20 || c == 0x7F;
}

// True when every UTF-16 unit belongs to a whole character that the store gives back as it was
// given: no half of a surrogate pair stands alone (SQLite would join it with its neighbour or
// replace it on the way to UTF-8), and no noncharacter stands (U+FFFE, U+FFFF and the other
// code points Unicode keeps out of texts come back from the store as U+FFFD).
bool caracteresEnteros(QStringView t)
{
    for (qsizetype i = 0; i < t.size(); ++i) {
        const QChar c = t[i];
        char32_t punto = c.unicode();
        if (c.isHighSurrogate()) {
            if (i + 1 >= t.size() || !t[i + 1].isLowSurrogate())
                return false;
            punto = QChar::surrogateToUcs4(c, t[i + 1]);
            ++i;
        } else if (c.isLowSurrogate()) {
            return false;
        }
        if (QChar::isNonCharacter(punto))
            return false;
    }
    return true;
}

// Every control is one UTF-16 unit, so the units are looked at one by one, without a copy.
bool hayControles(QStringView t)
{
    for (QChar c : t)
        if (esControl(c.unicode()))
            return true;
    return false;
}

Veredicto veredicto(int id, const QString& mensaje, const ColumnaTexto& c)
{
    Veredicto v;
    v.id = id;
    v.mensaje = mensaje;
    v.botones = vb::OKOnly + vb::Information;
    v.control = QLatin1String(c.control);
    v.pestana = c.pestana;
    return v;
}

}  // namespace

qsizetype Caracteres(QStringView texto)
{
    qsizetype n = 0;
    for (qsizetype i = 0; i < texto.size(); ++i, ++n)
        if (texto[i].isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate())
            ++i;
    return n;
}

DefectoTexto ExaminarTexto(const QString& texto, int ancho, bool obligatorio, Blancos blancos)
{
    // A view: every save looks at each of its texts here, and the blanks are set aside
    // without a copy.
    const QStringView t = blancos == Blancos::Recortados ? QStringView(texto).trimmed()
                                                        : QStringView(texto);
    if (obligatorio && t.trimmed().isEmpty())
        return DefectoTexto::Vacio;
    if (!caracteresEnteros(t) || hayControles(t))
        return DefectoTexto::Caracteres;
    if (ancho != kAnchoDeCifras && Caracteres(t) > ancho)
        return DefectoTexto::Largo;
    return DefectoTexto::Ninguno;
}

Veredicto ComprobarTexto(const QString& texto, const ColumnaTexto& c, Blancos blancos)
{
    switch (ExaminarTexto(texto, c.ancho, c.idVacio != 0, blancos)) {
    case DefectoTexto::Ninguno:
        break;
    case DefectoTexto::Vacio:
        return veredicto(c.idVacio, Texto(c.idVacio), c);
    case DefectoTexto::Caracteres:
        return veredicto(kIdCasillaCaracteresNoGuardables,
                         Texto(kIdCasillaCaracteresNoGuardables).arg(NombreDeCampo(c.idEtiqueta)),
                         c);
    case DefectoTexto::Largo:
        return veredicto(kIdCasillaDemasiadoLarga,
                         Texto(kIdCasillaDemasiadoLarga).arg(NombreDeCampo(c.idEtiqueta),
                                                    QString::number(c.ancho)),
                         c);
    }
    return {};
}

QString NombreDeCampo(int idEtiqueta)
{
    QString nombre = Texto(idEtiqueta);
    nombre.remove(QLatin1Char('&'));
    nombre = nombre.trimmed();
    if (nombre.endsWith(QStringLiteral("...")))
        nombre.chop(3);
    else if (nombre.endsWith(QLatin1Char(':')))
        nombre.chop(1);
    return nombre.trimmed();
}
