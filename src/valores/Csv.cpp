#include "valores/Csv.h"

namespace Csv {

QString Campo(const QString& valor, QChar separador)
{
    const bool comillas = valor.contains(separador) || valor.contains(QLatin1Char('"'))
        || valor.contains(QLatin1Char('\n')) || valor.contains(QLatin1Char('\r'));
    if (!comillas)
        return valor;
    QString r = valor;
    r.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + r + QLatin1Char('"');
}

QString Registro(const QStringList& campos, QChar separador)
{
    QString r;
    for (qsizetype i = 0; i < campos.size(); ++i) {
        if (i > 0)
            r += separador;
        r += Campo(campos.at(i), separador);
    }
    return r + QStringLiteral("\r\n");
}

QChar DetectarSeparador(const QString& texto)
{
    int puntoYComa = 0;
    int comas = 0;
    bool dentro = false;
    for (const QChar c : texto) {
        if (c == QLatin1Char('"'))
            dentro = !dentro;
        else if (!dentro && (c == QLatin1Char('\n') || c == QLatin1Char('\r')))
            break;
        else if (!dentro && c == QLatin1Char(';'))
            ++puntoYComa;
        else if (!dentro && c == QLatin1Char(','))
            ++comas;
    }
    return comas > puntoYComa ? QLatin1Char(',') : QLatin1Char(';');
}

Lector::Lector(const QString& texto, QChar separador) : m_texto(texto), m_separador(separador)
{
    // A byte-order mark opens the text of many spreadsheets; it is no part of the first field.
    if (m_texto.startsWith(QChar(0xFEFF)))
        m_pos = 1;
}

void Lector::SaltarFinDeLinea()
{
    const qsizetype n = m_texto.size();
    while (m_pos < n && m_texto.at(m_pos) != QLatin1Char('\n'))
        ++m_pos;
    if (m_pos < n)
        ++m_pos;
}

bool Lector::Siguiente(QStringList& campos, Fallo& fallo)
{
    campos.clear();
    fallo = Fallo::Ninguno;
    const qsizetype n = m_texto.size();
    if (m_pos >= n)
        return false;
    ++m_numero;
    const QChar* t = m_texto.constData();
    QString campo;
    for (;;) {
        if (m_pos < n && t[m_pos] == QLatin1Char('"')) {
            // A quoted field: up to the quote that is not doubled.
            const qsizetype inicio = m_pos;
            ++m_pos;
            bool cerrado = false;
            while (m_pos < n) {
                const QChar c = t[m_pos];
                if (c == QLatin1Char('"')) {
                    if (m_pos + 1 < n && t[m_pos + 1] == QLatin1Char('"')) {
                        campo += QLatin1Char('"');
                        m_pos += 2;
                        continue;
                    }
                    ++m_pos;
                    cerrado = true;
                    break;
                }
                campo += c;
                ++m_pos;
            }
            if (!cerrado) {
                // The quote opened here never closes: the rest of the text is this field.
                // Nothing after it can be told apart, so the reader goes on after the line
                // where the quote opened.
                m_pos = inicio;
                SaltarFinDeLinea();
                campos.append(campo);
                fallo = Fallo::ComillasSinCerrar;
                return true;
            }
            if (m_pos < n && t[m_pos] != m_separador && t[m_pos] != QLatin1Char('\r')
                && t[m_pos] != QLatin1Char('\n')) {
                SaltarFinDeLinea();
                campos.append(campo);
                fallo = Fallo::TextoTrasComillas;
                return true;
            }
        } else {
            const qsizetype inicio = m_pos;
            while (m_pos < n && t[m_pos] != m_separador && t[m_pos] != QLatin1Char('\n')
                   && t[m_pos] != QLatin1Char('\r'))
                ++m_pos;
            campo = m_texto.mid(inicio, m_pos - inicio);
        }
        campos.append(campo);
        campo.clear();
        if (m_pos >= n)
            return true;
        const QChar c = t[m_pos++];
        if (c == m_separador)
            continue;
        // CR LF, a lone LF or a lone CR ends the record.
        if (c == QLatin1Char('\r') && m_pos < n && t[m_pos] == QLatin1Char('\n'))
            ++m_pos;
        return true;
    }
}

}  // namespace Csv
