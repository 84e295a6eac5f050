#pragma once
// A list of items that each carry a key: the pickers of provinces, municipalities and street
// types. Two columns, the code and the name; the name is the item's text. A double click or
// Enter chooses the current item, Escape gives up; any other key only moves through the list.
#include <QTreeWidget>

class cListaClaves : public QTreeWidget {
    Q_OBJECT
public:
    static constexpr int kColumnaCodigo = 0;
    static constexpr int kColumnaTexto = 1;

    explicit cListaClaves(QWidget* parent = nullptr);

    // Adds an item at the end. The code column shows `codigo`, or the key when none is given.
    void Agregar(const QString& clave, const QString& texto, const QString& codigo = QString());
    int Count() const { return topLevelItemCount(); }
    // Items by position, from 0.
    QString ClaveElemento(int indice) const;
    QString TextoElemento(int indice) const;
    // The position of the first item with that key or text, -1 when there is none.
    int IndiceDeClave(const QString& clave) const;
    int IndiceDeTexto(const QString& texto) const;
    // Selects the first item with that text and brings it into view; false when none has it.
    bool LocalizarTexto(const QString& texto);
    // The current item, -1 for none, and its key and text.
    int Actual() const;
    QString ClaveActual() const;
    QString TextoActual() const;

signals:
    // Double click or Enter on an item.
    void elegido(const QString& clave, const QString& texto);
    // Escape.
    void cancelado();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};
