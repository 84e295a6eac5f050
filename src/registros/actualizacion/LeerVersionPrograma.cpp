// The running program's version, read from the version record inside its executable file. The
// file read is always the program's folder + "/Veldo", whatever name the process runs under.
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/FormatoRegistroVersion.h"
#include "registros/actualizacion/LectorRegistroVersion.h"
#include "registros/actualizacion/cActOnline.h"

#include "catalogo/Catalogo.h"
#include "plataforma/General.h"

#include <QStringList>

namespace {

QString unir(const RegistroVersion::Numeros& n, std::initializer_list<int> indices)
{
    QStringList partes;
    for (int i : indices)
        partes.append(QString::number(n[static_cast<std::size_t>(i)]));
    return partes.join(QLatin1Char('.'));
}

}  // namespace

Veredicto LeerVersionPrograma()
{
    cActOnline& act = ActOnline();
    act.ActFile = CarpetaPrograma() + QStringLiteral("/Veldo");
    const std::optional<RegistroVersion::Version> version = LeerRegistroVersion(act.ActFile);
    if (!version) {
        Veredicto sinVersion;
        sinVersion.id = 342;
        sinVersion.mensaje = Texto(342);
        return sinVersion;
    }
    // major.minor.revision: the third number of the record is not part of the program's
    // version, so a file version 1.28.0.1 is the program 1.28.1.
    const RegistroVersion::Numeros& f = version->fichero;
    VersionPrograma = unir(f, {0, 1, 3});
    act.ProgVer1 = QString::number(f[0]);
    act.ProgVer2 = QString::number(f[1]);
    act.ProgVer3 = QString::number(f[3]);
    VersionProducto = unir(version->producto, {0, 1, 2, 3});
    return {};
}
