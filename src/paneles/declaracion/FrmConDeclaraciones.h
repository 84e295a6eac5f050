#pragma once
// The returns of one party: a contributor's (FrmConDeclaraciones, as subject or transmitter,
// with the column "S-T") and a presenter's (FrmPreDeclaraciones). Opened from the party lists'
// CmdDeclaraciones; they show the party's name, number and counters above the grid, and lead
// to the form (open, copy, new), to the print and to the deletion of a return. Their states
// live in ConDeclaraciones() and PreDeclaraciones().
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/PanelDeclaraciones.h"

class QLabel;

class FrmConDeclaraciones final : public PanelDeclaraciones {
    Q_OBJECT
public:
    // `csco`: the contributor whose returns a fresh list shows (a list coming back keeps its own).
    explicit FrmConDeclaraciones(int32_t csco = 0, QWidget* parent = nullptr);
    void Anadir_captions() override;

protected:
    cListaDeclaraciones& estado() const override;
    void IniciarEstado() override;
    QList<FilaDeclaracion> CargarDatos() override;
    QString TextoCriterio(int campo, const QString& valor) const override;
    int idAyudaResultado() const override { return kIdAyudaOrdenarDeclaraciones; }
    int idAyudaBusqueda() const override { return kIdAyudaCriterioDeclaraciones; }
    void PresentaCabecera() override;
    void Eliminar() override;

private:
    QLabel* lbldcontribuyente = nullptr;
    QLabel* lblddni = nullptr;
    QLabel* lblnumsp = nullptr;
    QLabel* lblnumtr = nullptr;
    QList<QPair<QLabel*, int>> m_rotulos;
    int32_t m_csco = 0;
};

class FrmPreDeclaraciones final : public PanelDeclaraciones {
    Q_OBJECT
public:
    // `cspr`: the presenter whose returns a fresh list shows (a list coming back keeps its own).
    explicit FrmPreDeclaraciones(int32_t cspr = 0, QWidget* parent = nullptr);
    void Anadir_captions() override;

protected:
    cListaDeclaraciones& estado() const override;
    void IniciarEstado() override;
    QList<FilaDeclaracion> CargarDatos() override;
    QString TextoCriterio(int campo, const QString& valor) const override;
    int idAyudaResultado() const override { return kIdAyudaOrdenarDeclaracionesLista; }
    int idAyudaBusqueda() const override { return kIdAyudaCriterioDescripcionOperacion; }
    void PresentaCabecera() override;
    void Eliminar() override;

private:
    QLabel* lbldpresentador = nullptr;
    QLabel* lblddni = nullptr;
    QLabel* lblnumdecla = nullptr;
    QList<QPair<QLabel*, int>> m_rotulos;
    int32_t m_cspr = 0;
};

// The words of a condition on a party's lists (their wording differs from the list of all
// returns).
QString TextoCriterioDeParte(int campo, const QString& valor);
