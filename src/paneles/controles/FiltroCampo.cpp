#include "paneles/controles/FiltroCampo.h"

#include "valores/Filtros.h"
#include "paneles/controles/SeleccionarTexto.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

namespace {

int Filtrar(TipoFiltro tipo, int codigo)
{
    switch (tipo) {
    case TipoFiltro::Texto:
        return FiltroTexto(codigo);
    case TipoFiltro::Digitos:
        FiltroDigitos(codigo);
        return codigo;
    case TipoFiltro::Fecha:
        FiltroFecha(codigo);
        return codigo;
    }
    return 0;
}

class FiltroTeclas : public QObject {
public:
    FiltroTeclas(QLineEdit* campo, TipoFiltro tipo) : QObject(campo), m_campo(campo), m_tipo(tipo) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto != m_campo || evento->type() != QEvent::KeyPress || m_campo->isReadOnly())
            return false;
        auto* tecla = static_cast<QKeyEvent*>(evento);
        if (tecla->matches(QKeySequence::Paste)) {
            Pegar(QApplication::clipboard()->text());
            return true;
        }
        const QString texto = tecla->text();
        // Control keys (arrows, Tab, Enter, Delete, Backspace, shortcuts) are the field's own.
        if (texto.size() != 1 || !texto[0].isPrint()
            || (tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
            return false;
        const int codigo = Filtrar(m_tipo, texto[0].unicode());
        if (codigo == 0)
            return true;  // the key is cancelled
        if (codigo != texto[0].unicode()) {
            m_campo->insert(QString(QChar(static_cast<char16_t>(codigo))));
            return true;
        }
        return false;
    }

private:
    void Pegar(const QString& texto)
    {
        QString limpio;
        for (QChar c : texto) {
            const int codigo = Filtrar(m_tipo, c.unicode());
            if (codigo != 0 && codigo != 8)
                limpio += QChar(static_cast<char16_t>(codigo));
        }
        if (!limpio.isEmpty())
            m_campo->insert(limpio);
    }

    QLineEdit* m_campo;
    TipoFiltro m_tipo;
};

class SeleccionEntrada : public QObject {
public:
    explicit SeleccionEntrada(QLineEdit* campo) : QObject(campo), m_campo(campo) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto == m_campo && evento->type() == QEvent::FocusIn) {
            SeleccionarTexto(m_campo);
            // A click places the cursor after the focus arrives: select again once it has.
            QPointer<QLineEdit> campo = m_campo;
            QTimer::singleShot(0, m_campo, [campo] {
                if (campo && campo->hasFocus())
                    SeleccionarTexto(campo);
            });
        }
        return false;
    }

private:
    QLineEdit* m_campo;
};

}  // namespace

void AplicarFiltro(QLineEdit* campo, TipoFiltro tipo)
{
    if (campo)
        campo->installEventFilter(new FiltroTeclas(campo, tipo));
}

void SeleccionarAlEntrar(QLineEdit* campo)
{
    if (campo)
        campo->installEventFilter(new SeleccionEntrada(campo));
}
