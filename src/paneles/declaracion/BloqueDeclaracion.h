#pragma once
// One block of the declaration form: a part of its controls and of the return they edit. The
// block makes its controls inside the frame it is given, lays them out with their labels,
// draws them from the record, writes the record when one of its fields is left (after the
// checks of that field) and tells the form, through its link, what must follow.
//
// The controls are made in the constructor and the labels in Disponer, so that a form made of
// blocks creates its widgets in the order its chain of focus and its tab order rely on.
#include "paneles/declaracion/EnlaceDeclaracion.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QWidget;
class cDecDatos;

class BloqueDeclaracion : public QObject {
    Q_OBJECT
public:
    // `panel` is the form (the parent of the block); `registro` the return the block edits.
    BloqueDeclaracion(QWidget* panel, cDecDatos& registro);

    // The block's labels, and its lines added to `lineas`.
    virtual void Disponer(QBoxLayout* lineas) = 0;
    // The fields connected to the record: what leaving each one, or a click, does.
    void Conectar(EnlaceDeclaracion enlace);
    // The captions of the labels and of the block's own controls, from the catalogue.
    virtual void Anadir_captions();
    // The controls drawn from the record. Drawing ticks boxes and options: meanwhile their
    // click handlers do not take it for the user.
    void Presentar();
    // The buttons of the block's pickers and lists enabled from the record.
    virtual void ActivarSelectores() {}
    // The block's controls that take the focus, in their tab order.
    virtual QList<QWidget*> OrdenDeTabulacion() const = 0;

protected:
    virtual void ConectarCampos() = 0;
    virtual void PresentarCampos() = 0;

    // A label captioned by Anadir_captions with the text `id`.
    QLabel* Etiqueta(QWidget* padre, const char* nombre, int id);
    bool Saltando() const { return m_enlace.saltando && m_enlace.saltando(); }
    bool Presentando() const { return m_presentando; }
    void Modificado();
    // A plain text field left: a text other than the record's is written there, and the form
    // is drawn again.
    void SalirTexto(QLineEdit* campo, QString& valor);
    // `campo` watched: SalirTexto on each leaving.
    void VigilarTexto(QLineEdit* campo, QString& valor);

    QWidget* m_panel;
    cDecDatos& m_registro;
    EnlaceDeclaracion m_enlace;

private:
    QList<QPair<QLabel*, int>> m_etiquetas;
    bool m_presentando = false;
};
