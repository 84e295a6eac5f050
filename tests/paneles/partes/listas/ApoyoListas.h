#pragma once
// What the tests of the party lists share: a fresh program folder and store with the main
// window shown, parties and declarations put in the store, and the user's gestures on a grid
// (a click on a heading or a cell, a double click).
#include "comun/Entorno.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <memory>

class MDIVeldo;
class cFlexGrid;
class QLabel;
class QLineEdit;
class QPushButton;

class EntornoListas {
public:
    // Seams recording, a new folder with its store migrated, the application state loaded
    // (language `idioma`), the main window shown and active.
    explicit EntornoListas(const QString& idioma = QStringLiteral("C"));
    ~EntornoListas();

    MDIVeldo* ventana() const { return m_ventana; }
    bool activa() const { return m_activa; }

private:
    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    QPointer<MDIVeldo> m_ventana;
    bool m_activa = false;
};

// A contributor (province 77, municipality `municipio`) stored through the store of
// contributors; answers its code.
int32_t NuevoContribuyente(const QString& dni, const QString& nombre,
                           const QString& calle = QStringLiteral("MAYOR"),
                           const QString& municipio = QStringLiteral("001"));
int32_t NuevoPresentador(const QString& dni, const QString& nombre,
                         const QString& calle = QStringLiteral("MAYOR"));
// A declaration row that names the parties given (0: none), as the declarations' store keeps
// them; enough for the counters of the parties.
void NuevaDeclaracion(int32_t sujeto, int32_t transmitente, int32_t presentador = 0);
bool ExisteContribuyente(int32_t csco);
bool ExistePresentador(int32_t cspr);

// A list panel's controls by objectName (null when missing), and its result line.
namespace ControlesLista {
QPushButton* Boton(QWidget* panel, const char* nombre);
QLabel* Etiqueta(QWidget* panel, const char* nombre);
QLineEdit* Caja(QWidget* panel);  // the search box over the heading
QString Resultado(QWidget* panel);
}

// The open panel of that objectName in the main window, null when there is none.
QWidget* PanelAbierto(const QString& nombre);
// Lets deferred deletions and queued events run.
void Procesar();

// The user's gestures on a grid: through its viewport and its heading, as a mouse does.
void ClicCabecera(cFlexGrid* grid, int columna);
void ClicCelda(cFlexGrid* grid, int fila, int columna);
void DobleClicCelda(cFlexGrid* grid, int fila, int columna);
// The row's cells as they are shown, one text per column.
QStringList Fila(const cFlexGrid* grid, int fila);
// True when every cell of the row has the given background.
bool FilaPintada(const cFlexGrid* grid, int fila, QRgb color);
// The rows painted in the highlight.
QList<int> FilasResaltadas(const cFlexGrid* grid);
