#pragma once
// The online update check: the program's own version, read from its file at start-up, compared
// with a small INI text that the update service gives back. The program never updates itself;
// at most it opens the download page in the browser (FrmVersionCheck). This is the part without
// widgets; the check as the user sees it is in paneles/actualizacion/ActualizacionOnline.h.
#include "valores/Veredicto.h"

#include <QString>
#include <chrono>

// Reads the version record of the program's file (the program's folder + "/Veldo", whatever
// name the process runs under) into ActOnline().ActFile and ProgVer1..3, and sets
// VersionPrograma (major.minor.revision). A file without the record leaves the versions empty
// and answers the verdict of id 342 (OK only, no icon); a good one answers an empty verdict. The panel side (ObtenerVersionPrograma) shows it.
Veredicto LeerVersionPrograma();

// Deletes an earlier version.ini and downloads a new one from URLAct with the query keys
// "?Programa=" and "&idioma=". Answers 3 downloaded, 1 not downloaded, 4 unexpected failure.
int DescargarVersionIni();

// Downloads `url` into `fichero`. Answers 3 when the download succeeded and version.ini exists
// in the data folder, else 1. A server that does not answer within the download's time
// limit counts as no connection, and so does a reply above 64 KiB: the reading stops there and
// nothing of it is kept.
int DescargarFichero(const QString& url, const QString& fichero);

// Fills the offered version, address and description from version.ini and sets ComVer when the
// versions differ. Answers 4 on any failure (no three-part version, a control character in the
// version, a download address that is not an http or https address), else 3.
int LeerVersionIni();

// True for an absolute http or https address with a host.
bool EsDireccionWeb(const QString& direccion);

// One key of an INI file, read with the rules of LeerClaveIni.cpp: sections and keys
// without regard to case, blanks around keys and values dropped, a value in matching quotes
// loses them, only the first section of a name is searched, values cut at 1023 characters, and
// the default " " when the file, the section or the key is missing.
QString LeerClaveIni(const QString& seccion, const QString& clave, const QString& fichero);

// The path of the downloaded version file: the data folder + "/version.ini" (CarpetaDatos).
QString RutaVersionIni();

// The program's title, sent to the update service as "Programa".
QString TituloPrograma();

// The time a download may take before the server counts as silent (about 15 s). Tests shorten it.
void EstablecerEsperaMaximaDescarga(std::chrono::milliseconds espera);
std::chrono::milliseconds EsperaMaximaDescarga();
