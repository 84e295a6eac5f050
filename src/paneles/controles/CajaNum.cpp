#include "paneles/controles/CajaNum.h"

#include "paneles/controles/Colores.h"
#include "plataforma/Estado.h"
#include "valores/Filtros.h"
#include "paneles/controles/SeleccionarTexto.h"
#include "valores/Formato.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QValidator>

// Keeps out of the box what does not fit its digits, typed or pasted alike.
class ValidadorCajaNum : public QValidator {
public:
    explicit ValidadorCajaNum(CajaNum* caja) : QValidator(caja), m_caja(caja) {}
    State validate(QString& texto, int&) const override
    {
        return m_caja->Admite(texto) ? Acceptable : Invalid;
    }

private:
    CajaNum* m_caja;
};

namespace {
// How many locked boxes may hand the focus on in a row before giving up: a panel whose
// every field is locked must not spin.
struct PasesDeFoco {
    int enCurso = 0;
};
constexpr int kMaximoPases = 64;
}

CajaNum::CajaNum(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new ValidadorCajaNum(this));
    setReadOnly(m_locked);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, &CajaNum::cambiado);
}

void CajaNum::setMaxlength(int caracteres)
{
    m_maxlength = std::max(0, caracteres);
}

void CajaNum::setEnteros(int digitos)
{
    m_enteros = std::max(0, digitos);
}

void CajaNum::setDecimales(int digitos)
{
    m_decimales = std::max(0, digitos);
}

void CajaNum::setFormato(const QString& formato)
{
    m_formato = formato;
    if (!m_editando)
        QLineEdit::setText(TextoFormateado(text()));
}

void CajaNum::setLocked(bool bloqueada)
{
    m_locked = bloqueada;
    setReadOnly(bloqueada);
}

QColor CajaNum::backcolor() const
{
    return ColorFondo(this);
}

void CajaNum::setBackcolor(const QColor& color)
{
    PonerColorFondo(this, color);
}

void CajaNum::setFontbold(bool negrita)
{
    QFont letra = font();
    letra.setBold(negrita);
    setFont(letra);
}

void CajaNum::setText(const QString& texto)
{
    QLineEdit::setText(m_editando ? TextoDeEdicion(texto) : TextoFormateado(texto));
}

double CajaNum::value() const
{
    return NumeroDeTexto(text());
}

void CajaNum::setValue(double valor)
{
    const QString texto = Formato(valor, m_formato);
    QLineEdit::setText(m_editando ? TextoDeEdicion(texto) : texto);
}

QString CajaNum::TextoFormateado(const QString& texto) const
{
    if (m_formato.isEmpty())
        return texto;
    return Formato(texto, m_formato);
}

QString CajaNum::TextoDeEdicion(const QString& texto) const
{
    // The same number without group marks, so that the user edits digits only.
    bool esNumero = false;
    const double valor = NumeroDeTexto(texto, &esNumero);
    if (!esNumero || m_formato.isEmpty())
        return texto;
    QString plano = Formato(valor, QString());
    return Admite(plano) ? plano : texto;
}

bool CajaNum::Admite(const QString& texto) const
{
    if (m_maxlength > 0 && texto.size() > m_maxlength)
        return false;
    int enteros = 0, decimales = 0;
    bool coma = false;
    for (QChar c : texto) {
        if (c == QLatin1Char(',')) {
            if (coma || m_decimales == 0)
                return false;
            coma = true;
        } else if (c.unicode() >= '0' && c.unicode() <= '9') {
            ++(coma ? decimales : enteros);
        } else {
            return false;
        }
    }
    if (m_enteros > 0 && enteros > m_enteros)
        return false;
    return decimales <= m_decimales;
}

void CajaNum::keyPressEvent(QKeyEvent* evento)
{
    const QString texto = evento->text();
    const bool escrito = texto.size() == 1 && texto[0].isPrint()
        && !(evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (escrito && !m_locked) {
        // The decimal comma (also from the keypad's point) passes when there are decimals.
        if (m_decimales > 0 && (texto == QLatin1String(",") || texto == QLatin1String("."))) {
            insert(QStringLiteral(","));
            evento->accept();
            return;
        }
        int codigo = texto[0].unicode();
        FiltroDigitos(codigo);
        if (codigo == 0) {
            evento->accept();
            return;
        }
    }
    QLineEdit::keyPressEvent(evento);
}

void CajaNum::focusInEvent(QFocusEvent* evento)
{
    QLineEdit::focusInEvent(evento);
    if (m_locked) {
        PasarFoco(evento->reason() != Qt::BacktabFocusReason);
        return;
    }
    // Back from a menu or another window: the edit goes on as it was.
    if (m_editando)
        return;
    m_editando = true;
    QLineEdit::setText(TextoDeEdicion(text()));
    SeleccionarTexto(this);
    // A click places the cursor once the focus has arrived: select again after it.
    QPointer<CajaNum> yo = this;
    QTimer::singleShot(0, this, [yo] {
        if (yo && yo->hasFocus() && !yo->m_locked)
            SeleccionarTexto(yo);
    });
}

void CajaNum::focusOutEvent(QFocusEvent* evento)
{
    QLineEdit::focusOutEvent(evento);
    // A context menu or a switch to another window does not leave the field.
    if (!m_editando || evento->reason() == Qt::PopupFocusReason
        || evento->reason() == Qt::ActiveWindowFocusReason)
        return;
    m_editando = false;
    QLineEdit::setText(TextoFormateado(text()));
    emit salida();
}

void CajaNum::PasarFoco(bool adelante)
{
    int& pases = Estado().de<PasesDeFoco>().enCurso;
    if (pases >= kMaximoPases)
        return;
    ++pases;
    focusNextPrevChild(adelante);
    --pases;
}
