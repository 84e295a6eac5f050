#pragma once
// What the tests of the parties' data panels share beside the program under test
// (ProgramaPrueba.h): parties put in the store field by field, and the user's gestures on a
// panel: typing in a field, leaving it, clicking, choosing in a picker.
#include "aplicacion/Navegacion.h"
#include "comun/AlmacenPrueba.h"
#include "comun/ProgramaPrueba.h"
#include "paneles/partes/FrmConDatos.h"
#include "paneles/partes/FrmPreDatos.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/cListaClaves.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QTest>
#include <QTreeWidget>
#include <QWidget>
#include <memory>

// A control of a panel by its objectName (null when missing).
template <class T>
T* Control(QWidget* panel, const char* nombre)
{
    return panel ? panel->findChild<T*>(QString::fromLatin1(nombre)) : nullptr;
}

// The panel under test and its controls by objectName; a missing control is reported.
class ControlesDePanel {
protected:
    QPointer<QWidget> m_panel;

    template <class T>
    T* c(const char* nombre) const
    {
        T* control = Control<T>(m_panel, nombre);
        if (!control)
            qWarning("Falta el control %s", nombre);
        return control;
    }
    QLineEdit* t(const char* nombre) const { return c<QLineEdit>(nombre); }
    CajaNum* n(const char* nombre) const { return c<CajaNum>(nombre); }
    QPushButton* b(const char* nombre) const { return c<QPushButton>(nombre); }
    cListaClaves* l(const char* nombre) const { return c<cListaClaves>(nombre); }
};

// Opens a party's data panel as its openers do: the record's MODO (the reset of a new party
// with "A"), LISTA and party code first.
// Opens a data panel through the program's navigator, as the main window does.
inline QWidget* AbrirPanelDatos(FrmConDatos*) { return Navegacion::AbrirConDatos(); }
inline QWidget* AbrirPanelDatos(FrmPreDatos*) { return Navegacion::AbrirPreDatos(); }
inline Navegacion::RutaParte& RutaDe(FrmConDatos*) { return Navegacion::RutaCon(); }
inline Navegacion::RutaParte& RutaDe(FrmPreDatos*) { return Navegacion::RutaPre(); }

template <class Panel, class Registro>
QWidget* AbrirDatos(Registro& registro, int32_t& codigo, const QString& modo, const QString& lista,
                    int32_t valor)
{
    using Navegacion::Modo;
    using Navegacion::OrigenParte;
    const bool nuevo = modo == QLatin1String("A");
    if (nuevo)
        registro.IniciarNuevo();
    RutaDe(static_cast<Panel*>(nullptr)) = {nuevo ? Modo::Nuevo : Modo::Abrir,
                                            lista == QLatin1String("S") ? OrigenParte::Lista : OrigenParte::Menu};
    codigo = valor;
    QWidget* panel = AbrirPanelDatos(static_cast<Panel*>(nullptr));
    Procesar();
    return panel;
}
// Opens it on the record as it stands, as from the main menu (MODO "A" shows what is there);
// the record is named for the reader of a test: the panel finds it itself.
template <class Panel, class Registro>
QWidget* AbrirConRegistro([[maybe_unused]] Registro& registro)
{
    RutaDe(static_cast<Panel*>(nullptr)).origen = Navegacion::OrigenParte::Menu;
    QWidget* panel = AbrirPanelDatos(static_cast<Panel*>(nullptr));
    Procesar();
    return panel;
}

// An open field: not locked, white, in the tab order. A closed one: locked, grey, out of it.
bool abierto(const QWidget* campo);
bool cerrado(const QWidget* campo);
// Whether the menu `nombre` of the main window is switched off (as while a panel is open).
bool MenuApagado(const ProgramaDePrueba& prog, const char* nombre);

// Gives the focus to a field as the user does (a click), selecting its whole text.
void Entrar(QWidget* campo);
// Enters the field, types `texto` over what it held; the focus stays in the field.
void Escribir(QLineEdit* campo, const QString& texto);
// Types a text key by key into the widget, letters beyond ASCII included.
void Teclear(QWidget* w, const QString& texto);
// Leaves the field that has the focus with the Tab key.
void Tabular();
// Types and leaves with Tab.
void EscribirYSalir(QLineEdit* campo, const QString& texto);
// A click of the mouse on a widget (press and release at its centre).
void Clic(QWidget* w);
// The drag of `texto` from another program over `campo`, dropped at its end: the one way a
// user brings in text that the field's key filter never sees.
void Soltar(QLineEdit* campo, const QString& texto);
// The widget that has the focus.
QWidget* Foco();

// Pickers: the row of an item by its text, a double click on it, Enter and Escape.
int FilaDeTexto(QTreeWidget* lista, const QString& texto);
void DobleClicEnTexto(QTreeWidget* lista, const QString& texto);
void ElegirConEnter(QTreeWidget* lista, const QString& texto);
QString TextoActual(QTreeWidget* lista);

// The background of a field is that of an open one (white) or of a closed one (grey).
bool Blanco(const QWidget* campo);
bool Gris(const QWidget* campo);

// Parties in the store, through its services. Answer the new code.
struct ContribuyenteDePanel {
    QString TIPODNI = QStringLiteral("O");
    QString DNIC = QStringLiteral("12345678Z");
    QString NOMBREC = QStringLiteral("PEREZ LOPEZ JUAN");
    QString VIAC = QStringLiteral("AV");
    QString DOMICILIOC = QStringLiteral("MAYOR");
    int NUMEROC = 12;
    QString TIPODOMI = QStringLiteral("N");
    QString PAIS;
    QString CODPROVC = QStringLiteral("77");
    QString NOMPROVC;
    QString CODPOSC = QStringLiteral("77100");
    QString CODMUNC = QStringLiteral("002");
    QString NOMMUNC;
};
int32_t GuardarEnAlmacen(const ContribuyenteDePanel& c);

struct PresentadorDePanel {
    QString DNIP = QStringLiteral("87654321X");
    QString NOMBREP = QStringLiteral("GESTORIA ARBELIA");
    QString VIAP = QStringLiteral("CL");
    QString DOMICILIOP = QStringLiteral("NUEVA");
    int NUMEROP = 3;
    QString CODPROVP = QStringLiteral("77");
    QString CODPOSP = QStringLiteral("77200");
    QString CODMUNP = QStringLiteral("001");
    QString NOMMUNP;
    QString TELEFONOP = QStringLiteral("945123456");
};
int32_t GuardarEnAlmacen(const PresentadorDePanel& p);

// A declaration that names a contributor as subject or transmitter, or a presenter.
void DeclaracionCon(const char* columna, int32_t codigo);
