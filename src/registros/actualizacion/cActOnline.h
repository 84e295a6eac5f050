#pragma once
// The state of the online update: the outcome of the last check, the version offered by the
// server, the running version, and the user's setting whether to check at every start.
// One shared instance, ActOnline(), lives for the whole run.
#include <QString>
#include <cstdint>

class cActOnline {
public:
    int16_t ComVer = 0;      // 1 once a check found the versions different; never cleared in a run
    int16_t SitAct = 0;      // outcome of the last check: 1 no connection, 3 file read, 4 bad file
    QString ActDescripcion;  // the description offered by the server
    QString ActVer1;         // the three parts of the version offered
    QString ActVer2;
    QString ActVer3;
    QString ProgVer3;        // the three parts of the running version
    QString ProgVer2;
    QString ProgVer1;
    QString ActDownloadURL;  // the download address offered by the server
    QString ActFile;         // full path of the program's file
    int16_t ActOnline = -1;  // the setting: -1 undecided (first run), 0 off, 1 on
    QString URLAct;          // address of the update service

    // Loads URLAct from the reference database (mdblec).
    void ObtenerURLAct();
    // Stores the setting ActOnline in the read/write database (mdbmod).
    void GuardarActOnline();
    // Loads the setting ActOnline from the read/write database (mdbmod).
    void LeerActOnline();
};

cActOnline& ActOnline();

// What SitAct and the download routines answer.
namespace SitActualizacion {
inline constexpr int16_t SinConexion = 1;     // no file came back
inline constexpr int16_t FicheroLeido = 3;    // the file came back (and was read)
inline constexpr int16_t FicheroErroneo = 4;  // unexpected failure, or a file without a version
}
