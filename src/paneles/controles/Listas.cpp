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

void CargarCombo(QComboBox* combo, const Arreglo& arreglo)
{
    if (!combo)
        return;
    combo->clear();
    if (arreglo.isEmpty()) {
        combo->setEnabled(false);
        ColorearCampo(combo, false);
        return;
    }
    for (const QVariant& elemento : arreglo)
        combo->addItem(elemento.toString());
}

void CargarListaPares(cListaClaves* lista, const Arreglo2D& arreglo, const QString& prefijoClave)
{
    if (!lista || arreglo.size() < 2)
        return;
    const QVariantList& claves = arreglo[0];
    const QVariantList& textos = arreglo[1];
    for (qsizetype i = 0; i < claves.size(); ++i) {
        const QString codigo = claves[i].toString();
        lista->Agregar(prefijoClave + codigo, textos.value(i).toString(), codigo);
    }
}

void DesplegarCombo(QComboBox* combo)
{
    if (combo)
        combo->showPopup();
}
