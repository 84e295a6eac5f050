#pragma once
// What every test needs: a temporary program folder with the generated reference database in
// Tablas/, the application paths pointed at it, and the seams recording instead of showing.
// Nothing here needs a widget: the tests of the layers below the panels link it alone.
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

class CarpetaDePrueba {
public:
    // Creates the folder with Tablas/VELDOLEC.mdb (and no VELDOMOD.mdb: the first start, or
    // Traspaso, creates it) and sets CarpetaPrograma, mdbPath, mdbmod and mdblec.
    CarpetaDePrueba();
    ~CarpetaDePrueba();

    QString ruta() const;                      // the program folder, without closing "/"
    QString tablas() const;                    // ruta() + "/Tablas/"

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

// Starts recording every seam the test links: the failure notice and the ending of the process
// always; with the panels' support (veldo_testpaneles), every message box, file dialog and
// browser too.
void GrabarSeams();
// How the support of a higher layer adds the recording of its own seams to GrabarSeams().
void AnadirGrabacionDeSeams(void (*grabar)());

// Whether a wait recorded by the clock seam (the milliseconds left to its deadline when it
// began) is one of `ms`: not longer, and shorter only by what the work before it may have
// taken on a loaded machine (less than 900 ms), so that a deadline of another length fails.
bool EsperaDe(int medida, int ms);
// The source tree (for fixtures kept beside the tests).
QString CarpetaFuentes();
// Every file and folder under `carpeta`, sorted: compared before and after, it tells that
// nothing was written there.
QStringList Contenido(const QString& carpeta);
