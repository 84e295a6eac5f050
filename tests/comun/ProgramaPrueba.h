#pragma once
// The whole program under test: a new store loaded as start-up loads it (AlmacenNuevo.h) with
// the main window on screen, the panels open in it, and the event loop let run.
#include "aplicacion/MDIVeldo.h"
#include "comun/AlmacenNuevo.h"
#include "comun/MensajesEstrictos.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class QWidget;

// A new store (see AlmacenNuevo) and the main window shown, its first activation still to
// come. The folder lives as long as the answer.
std::unique_ptr<CarpetaDePrueba> ProgramaConAlmacenNuevo();

// One program run for a test, in the language `idioma` ("C" Spanish, "E" Basque) chosen
// already (no chooser at the first activation), its main window shown at 1024 x 768 and
// active. Messages are strict while the test runs: every box must have its answer queued.
class ProgramaDePrueba {
public:
    explicit ProgramaDePrueba(const QString& idioma = QStringLiteral("C"));
    ~ProgramaDePrueba();
    ProgramaDePrueba(const ProgramaDePrueba&) = delete;
    ProgramaDePrueba& operator=(const ProgramaDePrueba&) = delete;

    MDIVeldo* ventana() const { return m_ventana; }
    // Whether the main window became the active window.
    bool activa() const { return m_activa; }
    // The open panel of the main window with this objectName, or null.
    QWidget* panel(const QString& nombre) const;
    // The objectNames of the panels open in the main window; a frame of the main window that
    // is hidden or has lost its panel is listed too, as "sub_<panel> (oculto)" or "(vacío)".
    QStringList paneles() const;

private:
    std::optional<MensajesEstrictos> m_estrictos;
    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    QPointer<MDIVeldo> m_ventana;
    bool m_activa = false;
};

// The visible panel of that objectName among the main window's children, null when none.
QWidget* PanelAbierto(const QString& nombre);
// Lets queued events and deferred deletions run (selection after a click, closed panels).
void Procesar();
