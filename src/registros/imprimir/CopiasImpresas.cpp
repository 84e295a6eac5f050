#include "registros/imprimir/CopiasImpresas.h"

#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cPreDatos.h"

bool CargarParaImprimir(int32_t csde)
{
    cDecDatos& d = DecDatos();
    d.CSDE = csde;
    d.CargarDeclaracion();
    // A stored return always has its date of accrual; the empty load has none.
    if (d.FECHAD == 0)
        return false;
    d.ObtenerDatosOperacion(false);
    if (d.CSPR != 0) {
        PreDatos().CSPR = d.CSPR;
        PreDatos().CargarPresentador(d.CSPR);
    }
    return true;
}

int ImprimirCopias(cSuperficiePagina& p, bool conPresentador)
{
    const cImOf& o = ImOf();
    const QString x = QStringLiteral("X");
    if (o.TIPOIMP != QLatin1String("O")) {
        ImprimirEjemplar(p, conPresentador);
        return 1;
    }
    int hojas = 0;
    if (o.COPIAINF == x) {
        ImprimirEjemplar(p, conPresentador, Dibujo::Informatica, true);
        ++hojas;
    }
    if (o.COPIAINT == x) {
        ImprimirEjemplar(p, conPresentador, Dibujo::Interesado);
        ++hojas;
    }
    if (o.COPIAADM == x) {
        ImprimirEjemplar(p, conPresentador, Dibujo::Administracion);
        ++hojas;
    }
    if (o.COPIABAN == x) {
        ImprimirEjemplarBanco(p);
        ++hojas;
    }
    return hojas;
}
