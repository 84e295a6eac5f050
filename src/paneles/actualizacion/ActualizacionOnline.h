#pragma once
// The online update check as the user meets it: the message of a program without a version
// record at start-up, and the check that ends in FrmSinConexion or FrmVersionCheck. The
// downloading and reading are in registros/actualizacion/ActualizacionOnline.h.

// Start-up: LeerVersionPrograma, and its message id 342 when the program's file has no version
// record; start-up goes on with the versions empty.
void ObtenerVersionPrograma();

// The whole check, for the splash, the first-run language chooser and the preferences: waits a
// second for a freshly shown window to paint, downloads version.ini, reads it and shows
// FrmSinConexion or FrmVersionCheck as the outcome asks. A check of a current program is silent
// unless the preferences panel (objectName "frmPreferencias") is visible.
void ComprobarActualizacion();
