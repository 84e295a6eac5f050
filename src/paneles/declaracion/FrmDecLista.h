#pragma once
// The list of all returns: the doorway from the main menu to a stored return (open, copy,
// print, or a new one) or, in the delete mode, to its deletion. Its state lives in DecLista(),
// whose ENTRADA the navigator sets before opening it (Abrir, Eliminar, or Vuelta back from the
// declaration form or the print), shows it in the main window and then calls Iniciar().
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/PanelDeclaraciones.h"

class FrmDecLista final : public PanelDeclaraciones {
    Q_OBJECT
public:
    explicit FrmDecLista(QWidget* parent = nullptr);

    void Anadir_captions() override;

protected:
    cListaDeclaraciones& estado() const override;
    void IniciarEstado() override;
    QList<FilaDeclaracion> CargarDatos() override;
    QString TextoCriterio(int campo, const QString& valor) const override;
    QString ResultadoVacio() const override;
    int idAyudaResultado() const override { return kIdAyudaOrdenarDeclaracionesLista; }
    int idAyudaBusqueda() const override { return kIdAyudaCriterioDescripcionOperacion; }
    bool ModoEliminar() const override;
    void PresentaCabecera() override;
    void Aceptar() override;
};
