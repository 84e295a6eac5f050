#pragma once
// The panel on which one presenter is entered or changed: the contributor's panel for a party
// that is always national and official, so without kinds of document or domicile, country,
// typed province or counters, and with a telephone. It works straight on the shared record
// PreDatos(): a field left with a text other than the record's writes it there (and only that
// marks the presenter as changed), and the panel redraws itself from the record
// (PresentarPresentador). Opened from the main menu or from the list of presenters, to which
// the navigator hands back on closing.
#include "paneles/partes/PanelDatos.h"

class QLineEdit;

class FrmPreDatos final : public PanelDatos {
    Q_OBJECT
public:
    // Builds the panel for PreDatos() as `ruta` and CSPR stand, and shows it.
    static FrmPreDatos* Abrir(const Navegacion::RutaParte& ruta);

    explicit FrmPreDatos(const Navegacion::RutaParte& ruta, QWidget* parent = nullptr);

    bool ValidarCampos() override;
    // Saves the record; shows the message of a refusal. Answers whether it was saved.
    bool GuardarPresentador();

private:
    void Construir();
    void OrdenDeTabulacion();
    void Conectar();
    void Anadir_captions() override;
    void CargarDatos() override { CargarDatosPresentador(); }
    void CargarDatosPresentador();
    void Redibujar() override;
    void PresentarPresentador();
    void ActivarSelectores();
    bool Guardar() override { return GuardarPresentador(); }
    void AnotarEnLista() override;

    QLineEdit* txtdnip = nullptr;
    QLineEdit* txtnombrep = nullptr;
    QLineEdit* txttelefonop = nullptr;

    QLabel* lbldnip = nullptr;
    QLabel* lblnombrep = nullptr;
    QLabel* lbltelefonop = nullptr;
};
