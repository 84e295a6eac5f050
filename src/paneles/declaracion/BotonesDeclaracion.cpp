// The buttons of the declaration form: Aceptar (validate, save when changed, close), Cancelar
// (close without a question), Imprimir (save first when changed, then ask for the print), and
// the closing that marks the list the form came from for a reload.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/dialogos/AvisoVigencia.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/partes/cConDeclaraciones.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QPushButton>
#include <QTimer>

namespace {

// The lists that open the form, by the first letter of LISTA.
const QString kDesdeDecLista = QStringLiteral("D");
const QString kDesdeContribuyente = QStringLiteral("C");
const QString kDesdePresentador = QStringLiteral("P");

}  // namespace

bool FrmDeclaracion::ValidarCampos()
{
    const Veredicto v =
        ::ValidarCampos(txttipoimp->locked(), windowTitle(), cmbOperacion->currentText());
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
    const QString modo = d.MODO();
    if (modo == QLatin1String("A") || modo == QLatin1String("D"))
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
    const QString origen = DecDatos().LISTA.left(1);
    if (origen == kDesdeDecLista)
        DecLista().CSDE = codigo;
    else if (origen == kDesdeContribuyente)
        ConDeclaraciones().CSDE = codigo;
    else if (origen == kDesdePresentador)
        PreDeclaraciones().CSDE = codigo;
}

void FrmDeclaracion::Aceptar()
{
    if (m_domSp->SelectorAbierto() || m_domTr->SelectorAbierto())
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
        const QString pregunta = Texto(165) + QStringLiteral("\n") + Texto(166);
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
        d.setMODO(QStringLiteral("C"));
        d.MODIFICADO = false;
    }
    d.LISTA += QStringLiteral("I");
    emit pideImpresion(d.CSDE);
}

void FrmDeclaracion::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}

void FrmDeclaracion::closeEvent(QCloseEvent* evento)
{
    QWidget::closeEvent(evento);
    if (m_cerrado)
        return;
    m_cerrado = true;
    m_cerrando = true;
    // The list the form came from is drawn again from the store when it comes back.
    const QString origen = DecDatos().LISTA.left(1);
    if (origen == kDesdeDecLista)
        DecLista().ENTRADA = QStringLiteral("P");
    else if (origen == kDesdeContribuyente)
        ConDeclaraciones().ENTRADA = QStringLiteral("P");
    else if (origen == kDesdePresentador)
        PreDeclaraciones().ENTRADA = QStringLiteral("P");
    Proceso::Protegido([this] { emit cerrado(); });
}
