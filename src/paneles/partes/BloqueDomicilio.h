#pragma once
// The address of a party on its data panel: street type with its name and picker, street,
// number, letter, stairway, floor, door, province with its name and picker, postal code, and
// municipality with its name and picker. The contributor's and the presenter's panels both
// hold one; the block makes its fields inside the panel's data frame, draws them from the
// record, and writes the record when the user leaves a field or chooses in a picker.
//
// What differs between the two parties is said when the block is made:
//  - the record's fields, by reference (a presenter has no typed province name: NOMPROV null);
//  - the objectNames' party letter ("c" txtviac, "p" txtviap), the pickers' names following it;
//  - when a change counts as a change of the party: as the user types (contributor) or when a
//    field is left with a text other than the record's (presenter);
//  - the field that takes the focus after a municipality is chosen.
#include <QList>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>

class CajaNum;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
class SalidaCampos;
class cSelector;

// The province of the treasury, the default one: only there is the municipality a code of the
// treasury's list.
inline const QString kProvinciaTesoreria = QStringLiteral("77");

// The address fields of a party's record, by reference: the records are shared objects that
// outlive the panels.
struct RegistroDomicilio {
    QString& VIA;
    QString& DOMICILIO;
    int32_t& NUMERO;
    QString& LETRA;
    QString& ESCALERA;
    QString& PISO;
    QString& MANO;
    QString& CODPROV;
    QString* NOMPROV;  // null: the province's name is only ever looked up
    QString& CODPOS;
    QString& CODMUN;
    QString& NOMMUN;
};

// When the party counts as changed.
enum class MarcaCambios {
    AlTeclear,  // any key typed in a field, and any choice in a picker
    AlSalir,    // a field left with a text other than the record's, and any choice in a picker
};

// What the block asks of its panel.
struct EnlacePanel {
    SalidaCampos* salidas = nullptr;       // the watcher of the panel's fields
    std::function<void()> redibujar;       // draws the panel again from the record
    std::function<void()> modificado;      // the party has changed
    std::function<bool()> saltarValidacion;  // the user is on the way out through Cancelar
    QWidget* focoTrasMunicipio = nullptr;  // takes the focus after a municipality is chosen
    // Take the focus after a street type, a province is chosen; none: the street, the postal code.
    QWidget* focoTrasVia = nullptr;
    QWidget* focoTrasProvincia = nullptr;
    // On the way out every field of the address is left alone, not only those with a picker.
    bool saltarEnTodos = false;
};

class BloqueDomicilio : public QObject {
    Q_OBJECT
public:
    // Makes the fields in `datos`, with the party letter `parte` in their objectNames. A panel
    // that holds two blocks (the declaration form: subject and transmitter) asks for the party
    // in every name (`parteEnTodo`), the street type's name and the pickers' buttons included,
    // so that each control keeps a name of its own.
    BloqueDomicilio(QWidget* panel, QWidget* datos, const QString& parte,
                    RegistroDomicilio registro, MarcaCambios marca, bool parteEnTodo = false);
    // The pickers lie over the panel, outside the frames they switch off while open
    // (`marcos`). They are made last, after every other widget of the panel, which keeps the
    // panel's chain of focus as its tab order sets it.
    void CrearSelectores(const QList<QWidget*>& marcos);

    // Connects the leaving of the fields and the pickers' choices to the record.
    void Conectar(EnlacePanel enlace);
    // A plain text field of the panel: on leaving, a text other than `valor` is written there
    // (a change of the party when changes count on leaving) and the panel redraws.
    // `soloAbierto`: a locked field leaves the record alone. After Conectar, whose watcher it
    // uses.
    void VigilarTexto(QLineEdit* campo, QString& valor, bool soloAbierto = false);

    // The captions of the fields and picker buttons, from the catalogue.
    void Anadir_captions();
    // Fills the three pickers.
    void CargarListas();
    // The names of the record's codes: street type and province; the municipality too when
    // `municipio` (a party loaded from the store).
    void CargarNombres(bool municipio);
    // Draws the fields from the record; `enTesoreria` opens the municipality's code and closes
    // its name, and the other way round.
    void Presentar(bool enTesoreria);
    // cmdProvincia as given, cmdMunicipio in the province of the treasury, cmdVia always.
    void ActivarSelectores(bool provincia);
    bool SelectorAbierto() const;

    // The four lines of the address on the panel.
    void Lineas(QBoxLayout* lineas) const;
    // The fields and buttons in their tab order, the street type's name after its button.
    QList<QWidget*> OrdenDeTabulacion() const;
    // Each field as wide as its characters.
    void Anchos() const;

    QLineEdit* txtvia = nullptr;
    QPushButton* cmdVia = nullptr;
    QLineEdit* txtviaaux = nullptr;
    QLineEdit* txtdomicilio = nullptr;
    CajaNum* txtnumero = nullptr;
    QLineEdit* txtletra = nullptr;
    QLineEdit* txtescalera = nullptr;
    QLineEdit* txtpiso = nullptr;
    QLineEdit* txtmano = nullptr;
    CajaNum* txtcodprov = nullptr;
    QPushButton* cmdProvincia = nullptr;
    QLineEdit* txtnomprov = nullptr;
    CajaNum* txtcodpos = nullptr;
    CajaNum* txtcodmun = nullptr;
    QPushButton* cmdMunicipio = nullptr;
    QLineEdit* txtnommun = nullptr;

private:
    void Construir(QWidget* datos, bool parteEnTodo);
    void Redibujar() { m_enlace.redibujar(); }
    // A leaving that wrote a new value into the record.
    void CambioAlSalir();
    bool Saltar() const { return m_enlace.saltarValidacion && m_enlace.saltarValidacion(); }
    // The way out, for the fields that have no picker.
    bool SaltarSinSelector() const { return m_enlace.saltarEnTodos && Saltar(); }
    // A new province clears the municipality (its code too outside the treasury's province).
    void NuevaProvincia(const QString& codigo);

    void SalirCampoTexto(QLineEdit* campo, QString& valor);
    void SalirNumero();
    void SalirCodigoPostal();
    void SalirVia();
    void SalirProvincia();
    void SalirMunicipio();
    void ElegidaVia(const QString& clave, const QString& texto);
    void ElegidaProvincia(const QString& clave, const QString& texto);
    void ElegidoMunicipio(const QString& clave, const QString& texto);

    QWidget* m_panel;
    QString m_parte;
    RegistroDomicilio m_registro;
    MarcaCambios m_marca;
    EnlacePanel m_enlace;

    QLabel* lblvia = nullptr;
    QLabel* lbldomicilio = nullptr;
    QLabel* lblnumero = nullptr;
    QLabel* lblletra = nullptr;
    QLabel* lblescalera = nullptr;
    QLabel* lblpiso = nullptr;
    QLabel* lblmano = nullptr;
    QLabel* lblnomprov = nullptr;
    QLabel* lblcodpos = nullptr;
    QLabel* lblnommun = nullptr;

    cSelector* lstvia = nullptr;
    cSelector* lstcodprov = nullptr;
    cSelector* lstcodmun = nullptr;
};
