#include "paneles/controles/Listas.h"

#include "paneles/controles/Colores.h"
#include "paneles/controles/cListaClaves.h"

#include <QComboBox>
#include <QLineEdit>

QString TextoDeClave(const cListaClaves* lista, const QString& clave)
{
    if (!lista)
        return QString();
    const int i = lista->IndiceDeClave(clave);
    return i < 0 ? QString() : lista->TextoElemento(i);
}

namespace {

void VaciarTexto(QComboBox* combo)
{
    combo->setCurrentIndex(-1);
    if (combo->isEditable())
        combo->clearEditText();
}

}  // namespace

void BuscarEnCombo(const QString& texto, QComboBox* combo)
{
    if (!combo)
        return;
    if (combo->count() == 0) {
        if (combo->isEditable())
            combo->setEditText(texto);
        return;
    }
    if (texto.isEmpty()) {
        VaciarTexto(combo);
        return;
    }
    const QString mayusculas = texto.toUpper();
    for (int i = 0; i < combo->count(); ++i) {
        const QString item = combo->itemText(i);
        if (item.startsWith(mayusculas, Qt::CaseSensitive)
            || item.startsWith(texto, Qt::CaseSensitive)) {
            combo->setCurrentIndex(i);
            return;
        }
    }
    VaciarTexto(combo);
}

void CargarCombo(QComboBox* combo, const QStringList& textos)
{
    if (!combo)
        return;
    combo->clear();
    if (textos.isEmpty()) {
        combo->setEnabled(false);
        ColorearCampo(combo, false);
        return;
    }
    combo->addItems(textos);
}

void CargarListaPares(cListaClaves* lista, const QList<FilaReferencia>& filas,
                      const QString& prefijoClave)
{
    if (!lista)
        return;
    for (const FilaReferencia& f : filas)
        lista->Agregar(prefijoClave + f.codigo, f.nombre, f.codigo);
}

void DesplegarCombo(QComboBox* combo)
{
    if (combo)
        combo->showPopup();
}
