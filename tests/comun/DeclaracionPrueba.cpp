#include "comun/DeclaracionPrueba.h"

#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "servicios/cDeclaSvr.h"
#include "valores/EstadoNavegacion.h"

void DeclaracionValida()
{
    cDecDatos& d = DecDatos();
    Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
    d.IniciarNuevo();
    d.FECHAD = 20100315;
    d.REFERENCIA = QStringLiteral("REF-1");
    d.MARCA = QStringLiteral("SEAT");
    d.MODELO = QStringLiteral("IBIZA");
    d.TIPO = QStringLiteral("6J");
    d.BASTIDOR = QStringLiteral("VSSZZZ6JZAR000001");
    d.CLASIFICACION = 1000;
    d.MOTOR = QStringLiteral("G");
    d.CILINDRADA = 1598;
    d.OPERACION = QStringLiteral("T2");
    d.BASEI = Importe(1500000);
    d.DNISP = Dni(12345678);
    d.NOMBRESP = QStringLiteral("GARCIA LOPEZ JUAN");
    d.DOMICILIOSP = QStringLiteral("MAYOR");
    d.CODPOSSP = QStringLiteral("77001");
    d.CODMUNSP = QStringLiteral("001");
    d.DNITR = Dni(87654321);
    d.NOMBRETR = QStringLiteral("AUTOS VELDO SA");
    d.VIATR = QStringLiteral("AV");
    d.DOMICILIOTR = QStringLiteral("GASTEIZ");
    d.CODPOSTR = QStringLiteral("77002");
    d.CODMUNTR = QStringLiteral("002");
    d.ObtenerDatosOperacion(false);
    AplicarOperacion();
}

int ReglaDe(const Veredicto& v)
{
    if (v.vacio())
        return 0;
    for (int n = 1; n <= cDeclaSvr::kUltimaRegla; ++n) {
        if (cDeclaSvr::VeredictoRegla(n).id == v.id)
            return n;
    }
    return -1;
}
