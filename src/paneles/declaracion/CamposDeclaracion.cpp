// What the blocks of the declaration form ask of the form: the link that each block gets, the
// return marked as changed, the calculation of the amounts and the check of the date.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "paneles/declaracion/BloqueImportes.h"
#include "paneles/declaracion/BloqueVehiculo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"

#include <QPushButton>

EnlaceDeclaracion FrmDeclaracion::Enlace()
{
    EnlaceDeclaracion enlace;
    enlace.salidas = m_salidas;
    enlace.saltando = [this] { return m_saltarValidacion; };
    enlace.saltar = [this](bool saltar) { m_saltarValidacion = saltar; };
    enlace.modificado = [this] { Modificado(); };
    enlace.presentar = [this] { PresentarDeclaracion(); };
    enlace.redibujar = [this] { Redibujar(); };
    enlace.activarSelectores = [this] { ActivarSelectores(); };
    enlace.calcular = [this] { CalcularValores(); };
    enlace.tipoBloqueado = [this] { return m_importes->TipoBloqueado(); };
    enlace.cargarNombres = [this] { CargarNombres(); };
    enlace.mostrarPestana = [this](int pestana) { MostrarPestana(pestana); };
    enlace.domicilioCambiado = [this](bool desdeSujeto) { EspejoDomicilio(desdeSujeto); };
    enlace.elegir = [this](EleccionParte parte) { Elegir(parte); };
    enlace.aceptar = cmdAceptar;
    return enlace;
}

void FrmDeclaracion::Modificado()
{
    DecDatos().MODIFICADO = true;
}

void FrmDeclaracion::CalcularValores()
{
    ::CalcularValores();
    PresentarDeclaracion();
}

bool FrmDeclaracion::ComprobarFecha()
{
    return m_vehiculo->ComprobarFecha();
}
