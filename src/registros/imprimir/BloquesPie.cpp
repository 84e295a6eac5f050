// The date and signature block, with the date of presentation, and the bank's block.
#include "registros/imprimir/DatosImpreso.h"
#include "registros/imprimir/EtiquetasImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/Primitivas.h"
#include "registros/imprimir/cImOf.h"
#include "valores/cFecha.h"

#include <array>

namespace {
const std::array<ParEtiquetas, 5> kIngreso{{
    {54.7f, 1.5f, "Ordainketa Banku edota Aurrezki Kutxan egingo da/", 100, 1.5f,
     "El ingreso se efectuará en Bancos y/o Cajas de Ahorro"},
    {26, 12, "Zigilua eta sinadura/", 44.5f, 12, "Sello y firma"},
    {69, 12, "Entitatearen gakoa/", 86, 12, "Clave Entidad"},
    {115, 12, "Data/", 120, 12, "Fecha "},
    {153, 12, "Zenbatekoa/", 164, 12, "Importe"},
}};

// Basque first, whatever the language in use; the date form in force is put back.
QString fechaPresentacion()
{
    const QString vasca = FechaConSufijo();
    const QString castellana = cFecha::LongToString(ImOf().FECHAPRE, Idioma::Castellano);
    return vasca + QStringLiteral(" /// ") + castellana;
}
}

void DibujarBloqueFirma(cSuperficiePagina& p, float y, Dibujo rotulo)
{
    Marco(p, 5, y, 190, y + 15);
    LineaNegra(p, 20, y, 20, y + 15);
    FuenteTimes(p, 6);
    Etiquetas(p, y, {82.5f, 1.5f, "Zergakepoaren edo ordezkariaren sinadura / ", 120.1f, 1.5f,
                     "Firma del obligado tributario o representante"});
    TextoIzquierda(p, 25, y + 1.5f, QStringLiteral("Data / Fecha "));
    p.PaintPicture(rotulo, 7, y + 2);
    FuenteArial(p, 9, true);
    TextoIzquierda(p, 25, y + 5.5f, fechaPresentacion());
}

void DibujarBloqueIngreso(cSuperficiePagina& p, float y, Dibujo rotulo)
{
    Marco(p, 5, y, 190, y + 15);
    LineaNegra(p, 20, y, 20, y + 15);
    LineaNegra(p, 20, y + 4, 190, y + 4);
    FuenteTimes(p, 6);
    p.PaintPicture(rotulo, 7, y + 0.2f);
    for (const ParEtiquetas& par : kIngreso)
        Etiquetas(p, y, par);
}
