// The buttons of the declaration form: Aceptar (validate, save when changed, close), Cancelar
// (close without a question), Imprimir (save first when changed, then ask for the print), and
// the closing that marks the list the form came from for a reload.
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "paneles/declaracion/BloqueImportes.h"
#include "paneles/declaracion/BloqueVehiculo.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/dialogos/AvisoVigencia.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Ventanas.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/partes/cConDeclaraciones.h"

#include <QFrame>
#include <QPushButton>
#include <QTimer>

bool FrmDeclaracion::ValidarCampos()
{
    const Veredicto v =
        ::ValidarCampos(m_importes->TipoBloqueado(), windowTitle(), m_vehiculo->TextoOperacion());
    if (v.vacio())
        return true;
    if (v.pestana != kPestanaNinguna)
        MostrarPestana(v.pestana);
    if (auto* campo = findChild<QWidget*>(v.control)) {
        campo->setFocus(Qt::OtherFocusReason);
        // Under a window manager the panel gets the activation back only after the box.
        QTimer::singleShot(0, campo, [campo] { campo->setFocus(Qt::OtherFocusReason); });
    }
    return false;
}

bool FrmDeclaracion::Guardar()
{
    cDecDatos& d = DecDatos();
    const Resultado<void> guardado = d.GuardarDeclaracion();
    if (!guardado) {
        // A text the store cannot keep (dropped or pasted into a field past its key filter):
        // the store's message under the form's title, and the field with the focus.
        Veredicto rechazo = guardado.veredicto();
        if (!rechazo.vacio()) {
            if (rechazo.titulo.isEmpty())
                rechazo.titulo = windowTitle();
            MostrarVeredicto(rechazo, this);
        }
        // The stored return is no longer the one loaded: nothing was written; the form keeps
        // what was typed unless the user asks for the stored return.
        if (AvisarVigencia(rechazo.vigencia, windowTitle()))
            CargarGuardada();
        return false;
    }
    if (m_ruta.modo == Navegacion::Modo::Nuevo || m_ruta.modo == Navegacion::Modo::Copia)
        AnotarEnLista(d.CSDE);
    return true;
}

void FrmDeclaracion::CargarGuardada()
{
    cDecDatos& d = DecDatos();
    d.CargarDeclaracion();
    SeleccionarOperacion();
    CargarNombres();
    d.MODIFICADO = false;
    PresentarDeclaracion();
    ActivarSelectores();
}

void FrmDeclaracion::AnotarEnLista(int32_t codigo)
{
    // The list that opened the form comes back with the new return selected.
    switch (m_ruta.lista.origen()) {
    case Navegacion::Origen::ListaDeclaraciones:
        DecLista().CSDE = codigo;
        break;
    case Navegacion::Origen::DeclaracionesContribuyente:
        ConDeclaraciones().CSDE = codigo;
        break;
    case Navegacion::Origen::DeclaracionesPresentador:
        PreDeclaraciones().CSDE = codigo;
        break;
    case Navegacion::Origen::Menu:
        break;
    }
}

void FrmDeclaracion::Aceptar()
{
    if (SelectorAbierto())
        return;
    // An unchanged return is not sent to the store.
    if (DecDatos().MODIFICADO) {
        if (!ValidarCampos())
            return;
        if (ValidarNifIntervinientes(windowTitle()) == -1)
            return;
        if (!Guardar())
            return;
    }
    Cerrar();
}

void FrmDeclaracion::Imprimir()
{
    cDecDatos& d = DecDatos();
    if (d.MODIFICADO) {
        const QString pregunta = Texto(kIdGuardarAntesDeImprimir) + QStringLiteral("\n")
            + Texto(kIdPreguntaGuardarDeclaracion);
        if (Mensaje(pregunta, vb::YesNo + vb::Information, windowTitle()) != vb::Yes) {
            cmdImprimir->setFocus(Qt::OtherFocusReason);
            return;
        }
        // The checks in the reverse order of Aceptar's.
        if (ValidarNifIntervinientes(windowTitle()) == -1)
            return;
        if (!ValidarCampos())
            return;
        if (!Guardar())
            return;
        // Stored now: from here on the form works on the stored return.
        m_ruta.modo = Navegacion::Modo::Abrir;
        d.MODIFICADO = false;
    }
    emit pideImpresion(d.CSDE);
}

void FrmDeclaracion::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}
