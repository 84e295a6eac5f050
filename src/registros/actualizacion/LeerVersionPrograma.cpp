// The running program's version, read from the version record inside its executable file. The
// file read is always the program's folder + "/Veldo", whatever name the process runs under.
#include "catalogo/IdsCatalogo.h"
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/FormatoRegistroVersion.h"
#include "registros/actualizacion/LectorRegistroVersion.h"
#include "registros/actualizacion/cActOnline.h"

#include "catalogo/Catalogo.h"
#include "plataforma/General.h"

Veredicto LeerVersionPrograma()
{
    cActOnline& act = ActOnline();
    act.ActFile = CarpetaPrograma() + QStringLiteral("/Veldo");
    const std::optional<RegistroVersion::Version> version = LeerRegistroVersion(act.ActFile);
    if (!version) {
        Veredicto sinVersion;
        sinVersion.id = kIdSinInformacionVersion;
        sinVersion.mensaje = Texto(kIdSinInformacionVersion);
        return sinVersion;
    }
    const RegistroVersion::Numeros& f = version->fichero;
    VersionPrograma = VersionDelPrograma(f);
    act.ProgVer1 = QString::number(f[0]);
    act.ProgVer2 = QString::number(f[1]);
    act.ProgVer3 = QString::number(f[3]);
    return {};
}
