#pragma once
// The numeric entry box of every numeric field. It takes digits only (and the decimal comma
// when it has decimals), at most `enteros` integer digits and `decimales` decimals, within
// `maxlength` characters. While the user types it shows the plain number ("1234,5"); once
// left, it shows its value in `formato`, the Spanish way ("1.234,50"). A locked box takes no
// input and cannot be stopped on: when the focus reaches it (by Tab or a click) it hands the
// focus on to the next field at once (to the previous one when coming back with Shift+Tab).
#include <QColor>
#include <QLineEdit>

class CajaNum : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int maxlength READ maxlength WRITE setMaxlength)
    Q_PROPERTY(int enteros READ enteros WRITE setEnteros)
    Q_PROPERTY(int decimales READ decimales WRITE setDecimales)
    Q_PROPERTY(QString formato READ formato WRITE setFormato)
    Q_PROPERTY(bool locked READ locked WRITE setLocked)
    Q_PROPERTY(QColor backcolor READ backcolor WRITE setBackcolor)
    Q_PROPERTY(bool fontbold READ fontbold WRITE setFontbold)

public:
    explicit CajaNum(QWidget* parent = nullptr);

    int maxlength() const { return m_maxlength; }
    void setMaxlength(int caracteres);     // 0: no limit of its own
    int enteros() const { return m_enteros; }
    void setEnteros(int digitos);          // 0: no limit of its own
    int decimales() const { return m_decimales; }
    void setDecimales(int digitos);
    const QString& formato() const { return m_formato; }
    void setFormato(const QString& formato);  // the shown text is formatted again
    bool locked() const { return m_locked; }
    void setLocked(bool bloqueada);
    QColor backcolor() const;
    void setBackcolor(const QColor& color);
    bool fontbold() const { return font().bold(); }
    void setFontbold(bool negrita);

    // The text shown (QLineEdit::text). A text that holds a number (read the Spanish way)
    // is shown in `formato`; an empty text leaves the box empty; any other text is shown
    // as it stands.
    void setText(const QString& texto);
    // The number shown, 0 when the box is empty.
    double value() const;
    void setValue(double valor);
    bool vacia() const { return text().trimmed().isEmpty(); }

signals:
    // The user changed the text (typing, pasting, deleting); not sent for setText.
    void cambiado(const QString& texto);
    // The box was left, after its text took the format again.
    void salida();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

private:
    QString TextoFormateado(const QString& texto) const;
    QString TextoDeEdicion(const QString& texto) const;
    bool Admite(const QString& texto) const;
    void PasarFoco(bool adelante);

    int m_maxlength = 0;
    int m_enteros = 0;
    int m_decimales = 0;
    QString m_formato;
    bool m_locked = true;
    bool m_editando = false;

    friend class ValidadorCajaNum;
};
