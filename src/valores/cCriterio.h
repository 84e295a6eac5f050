#pragma once
// One search condition of a list: the value typed and the field (column) it applies to.
#include <QList>
#include <QString>
#include <optional>

class cCriterio {
public:
    QString CAMPOSELECCION;   // the field searched, a column number as text
    QString VALORSELECCION;   // the value searched for
};

using TablaCriterios = QList<cCriterio>;

// What a list does when its search box is left: the criterion of the field being searched
// takes the box's text; when there is none yet, a new one joins the collection at the end.
// So the collection holds at most one criterion per field, in the order first searched.
void AnotarCriterio(TablaCriterios& tabla, const QString& seleccionActual, const QString& texto);
// The same on a collection that may be absent: it is made first.
void AnotarCriterio(std::optional<TablaCriterios>& tabla, const QString& seleccionActual,
                    const QString& texto);
