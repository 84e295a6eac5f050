#pragma once
// The address pickers: street type, province and municipality. Each is a hidden list of
// (code, name) items that lies over its panel, filled once when the panel opens. A button (or
// an unknown code typed in a code box) opens it: the list shows, takes the focus, and the rest
// of the panel is switched off until the user chooses an item (double click or Enter) or gives
// up (Escape). Typed letters look for a name by its first letters.
//
// Keys of the items: a street type's is its code ("CL"); a province's and a municipality's are
// "c" followed by the code as a plain number ("c1" for province "01", "c5" for municipality
// "005"), so that they are never purely numeric and a code reads the same typed with or without
// its leading zeros. What a panel does with a choice is its own: the picker only hands over the
// key and the name, after it has closed.
//
// The panels of contributors, presenters and declarations all use these pickers.
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;
class cListaClaves;

enum class TipoSelector { Via, Provincia, Municipio };

namespace Selectores {
// The key of an item for a code: "c" + its numeric value for provinces and municipalities,
// the code itself for a street type. A code of value 0 (or no code) gives "c0", which no item
// has.
QString Clave(TipoSelector tipo, const QString& codigo);
// The code that an item's key stands for, before any format: the key without its first
// letter, trimmed ("c1" gives "1"); a street type's key as it stands.
QString CodigoDeClave(TipoSelector tipo, const QString& clave);
}

// The loaders of the three lists: each asks the reference store (cDatosGeneral, read-only
// database) for its rows, named in the program's language (the municipalities have one name
// only), and adds one item per row, with its key.
void CargarVias(cListaClaves* lista);
void CargarProvincias(cListaClaves* lista);
void CargarMunicipios(cListaClaves* lista);

class cSelector : public QObject {
    Q_OBJECT
public:
    // Makes the hidden list `nombreLista` (its objectName, "lstviac", "lstcodprovc"...) as a child
    // of `panel`, outside the frames it will switch off.
    cSelector(TipoSelector tipo, const QString& nombreLista, QWidget* panel);

    TipoSelector tipo() const { return m_tipo; }
    cListaClaves* lista() const { return m_lista; }
    // The frames that are switched off while the list is open.
    void setMarcos(QList<QWidget*> marcos);

    // Fills the list from the reference store, in the current language.
    void Cargar();
    // The name of a code (see Selectores::Clave), empty when no item has it.
    QString Nombre(const QString& codigo) const;
    // The name under a key as it stands.
    QString NombreDeClave(const QString& clave) const;

    // Opens the picker: the item named `nombre` (or else the first) is selected and brought into
    // view, the list shows beside `junto`, takes the focus, and the frames are switched off.
    void Abrir(const QString& nombre, QWidget* junto);
    bool Abierto() const { return m_abierto; }
    // Closes without a choice: the frames come back and the list hides. `foco`, when given,
    // takes the focus first, so that the focus never wanders while the list disappears.
    void Cerrar(QWidget* foco = nullptr);

signals:
    // An item was chosen. The frames are already back on; the list is still on screen and
    // holds the focus until the receiver moves the focus and calls Cerrar(foco).
    void elegido(const QString& clave, const QString& texto);
    // Escape. Same state as after elegido: the receiver calls Cerrar(foco).
    void cancelado();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void SituarJunto(QWidget* junto);
    void ActivarMarcos(bool activos);
    void BuscarPorLetras(const QString& letra);

    TipoSelector m_tipo;
    QPointer<QWidget> m_panel;
    cListaClaves* m_lista = nullptr;
    QList<QPointer<QWidget>> m_marcos;
    bool m_abierto = false;
    QString m_busqueda;         // the first letters typed so far
    QElapsedTimer m_ultimaTecla;
};
