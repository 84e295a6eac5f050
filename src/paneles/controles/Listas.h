#pragma once
// Filling and searching the lists and combos of the panels.
#include "servicios/cDatosGeneral.h"

#include <QString>
#include <QStringList>

class QComboBox;
class cListaClaves;

// The text of the first item whose key is `clave`, or an empty text.
QString TextoDeClave(const cListaClaves* lista, const QString& clave);
// Selects the first item that starts with the text (as typed, or in upper case); with no
// items the combo just takes the text; an empty text or no match leaves nothing selected and
// the combo's text empty.
void BuscarEnCombo(const QString& texto, QComboBox* combo);
// Empties the combo and adds each text in order; no texts leave it locked, grey.
void CargarCombo(QComboBox* combo, const QStringList& textos);
// One item per row of a reference list: its code the key, its name the text. A prefix, when
// given, goes in front of each key (the code column shows the code without it).
void CargarListaPares(cListaClaves* lista, const QList<FilaReferencia>& filas,
                      const QString& prefijoClave = QString());
// Opens the combo's drop-down list.
void DesplegarCombo(QComboBox* combo);
