#pragma once
// What the data panels of a contributor (FrmConDatos) and of a presenter (FrmPreDatos) do
// alike: a frame of fields above a frame with Aceptar and Cancelar, the address block, the
// watcher of the fields' leaving, the opening in a fixed order, Aceptar (validate, save when
// something changed, close) and Cancelar (close without a question), and the closing that
// gives the menus back and hands over to the party's list when the panel came from it.
//
// Each panel works straight on its own shared record and says what is its own: its fields,
// captions, loading and drawing, the store's verdicts, and the list it hands back to.
#include "paneles/dialogos/PanelNavegado.h"
#include "paneles/dialogos/Ventanas.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Vigencia.h"

#include <cstdint>
#include <memory>

class BloqueDomicilio;
class QFrame;
class QLabel;
class QPushButton;
class SalidaCampos;

class PanelDatos : public PanelNavegado {
    Q_OBJECT
public:
    // Asks the store whether the record is valid; shows the verdict's message and puts the
    // focus on the field concerned when it is not.
    virtual bool ValidarCampos() = 0;

    bool Modificado() const { return m_modificado; }
    bool SaltarValidacion() const { return m_saltarValidacion; }

protected:
    void AlCerrar() override { m_cerrando = true; }
    // Makes the two frames; the panel then makes its fields and its address block in fraDatos
    // and calls Pie(). `ruta` is how the navigator opened it; it outlives the panel.
    PanelDatos(const QString& nombre, const Navegacion::RutaParte& ruta, QWidget* parent);

    // The buttons under the fields, the panel's layout of the two frames, and the address
    // pickers over them.
    void Pie();
    // The watcher of the fields' leaving, held back while a picker is open or the panel
    // closes; the buttons' actions; Enter as Tab. The panel then watches its own fields.
    void ConectarPanel();

    // Builds a panel, opens it (Iniciar), shows it in the main window and gives the focus to
    // its first field.
    template <class Panel, class Campo>
    static Panel* Mostrar(const Navegacion::RutaParte& ruta, Campo* Panel::*primerCampo)
    {
        auto panel = std::make_unique<Panel>(ruta);
        panel->Iniciar();
        Panel* abierto = panel.release();
        AbrirPanel(abierto);
        (abierto->*primerCampo)->setFocus(Qt::OtherFocusReason);
        return abierto;
    }

    // Opening: captions, pickers filled, record loaded, panel drawn, flags cleared.
    void Iniciar();

    // The panel's own steps.
    virtual void Anadir_captions() = 0;
    virtual void CargarDatos() = 0;
    // Draws the panel from the record and enables the pickers' buttons.
    virtual void Redibujar() = 0;
    // Saves the record and shows the message of a refusal; answers whether it was saved.
    virtual bool Guardar() = 0;
    // After a save: a new party made from its list is the one the list selects on coming back.
    virtual void AnotarEnLista() = 0;

    // A save the store refused because the stored party is no longer the one loaded: the
    // message, and, when the user asks for it, the stored party loaded into the record and the
    // panel drawn again from it. Otherwise the record and the panel keep what was typed.
    void TratarVigencia(Vigencia vigencia);

    // Fills the address pickers.
    void CargarListas();
    bool SelectorAbierto() const;
    void MarcarModificado() { m_modificado = true; }
    bool Saltando() const { return m_saltarValidacion; }

    bool eventFilter(QObject* objeto, QEvent* evento) override;

    QFrame* fraDatos = nullptr;
    QFrame* fraBotones = nullptr;
    QPushButton* cmdAceptar = nullptr;
    QPushButton* cmdCancelar = nullptr;
    QLabel* PicAce = nullptr;
    QLabel* PicCan = nullptr;
    BloqueDomicilio* m_domicilio = nullptr;  // street type to municipality, with the pickers
    SalidaCampos* m_salidas = nullptr;
    // A stored party (loaded by its code) or a new one, opened from the menu or its list.
    const Navegacion::RutaParte& m_ruta;
    bool Consulta() const { return m_ruta.modo == Navegacion::Modo::Abrir; }
    // A new party made from its list, which on coming back selects it.
    bool NuevoDesdeLista() const
    {
        return m_ruta.modo == Navegacion::Modo::Nuevo && m_ruta.origen == Navegacion::OrigenParte::Lista;
    }

private:
    void Aceptar();
    void Cerrar();

    bool m_modificado = false;
    bool m_saltarValidacion = false;
    bool m_cerrando = false;
};
