#include "paneles/declaracion/FrmDecLista.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/declaracion/cDecLista.h"

#include <QMdiSubWindow>
#include <QPushButton>

namespace {

const QList<ColumnaDeclaraciones> kColumnas = {
    {"NºDecl.", "Aitor.Zk.", 900, Qt::AlignRight},
    {"Referencia", "Erreferentzia", 1600, Qt::AlignLeft},
    {"Fecha", "Data", 1000, Qt::AlignLeft},
    {"Importe", "Zenbatekoa", 1100, Qt::AlignRight},
    {"Oper.", "Erag.", 750, Qt::AlignLeft},
    {"Descripción Operación", "Eragiketaren deskribapena", 3350, Qt::AlignLeft},
};

}  // namespace

FrmDecLista::FrmDecLista(QWidget* parent)
    : PanelDeclaraciones(QStringLiteral("FrmDecLista"), kColumnas, parent)
{
}

cListaDeclaraciones& FrmDecLista::estado() const
{
    return DecLista();
}

void FrmDecLista::IniciarEstado()
{
    DecLista().IniciarLista();
}

QList<FilaDeclaracion> FrmDecLista::CargarDatos()
{
    return DecLista().CargarDeclaraciones();
}

bool FrmDecLista::ModoEliminar() const
{
    return DecLista().MODO == Navegacion::ModoLista::Eliminar;
}

void FrmDecLista::Anadir_captions()
{
    setWindowTitle(Texto(kIdAbrirDeclaracion));
    cmdAceptar->setText(Texto(kIdBotonDatos));
    cmdAceptar->setToolTip(TextoSegunIdioma(QStringLiteral("Datos de la declaración"),
                                            QStringLiteral("Aitorpenaren datuak")));
    cmdCancelar->setText(Texto(kIdBotonAtras));
    cmdCancelar->setToolTip(Texto(kIdVolverMenuPrincipal));
    cmdNuevo->setText(Texto(kIdBotonNueva));
    cmdNuevo->setToolTip(Texto(kIdNuevaDeclaracion));
    cmdCopiar->setText(Texto(kIdBotonCopiar));
    cmdCopiar->setToolTip(Texto(kIdCopiarDeclaracion));
    cmdImprimir->setText(Texto(kIdBotonImprimir));
    cmdImprimir->setToolTip(Texto(kIdImprimirDeclaracionConsejo));
    cmdBuscar->setText(Texto(kIdBusqueda));
    cmdTodos->setText(Texto(kIdTodos));
}

// The title and cmdAceptar follow the mode.
void FrmDecLista::PresentaCabecera()
{
    const bool eliminar = ModoEliminar();
    const QString titulo = Texto(eliminar ? kIdEliminarDeclaracion : kIdAbrirDeclaracion);
    setWindowTitle(titulo);
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->setWindowTitle(titulo);
    cmdAceptar->setText(Texto(eliminar ? kIdBotonEliminar : kIdBotonDatos));
    cmdAceptar->setToolTip(eliminar ? TextoSegunIdioma(QStringLiteral("Eliminar la declaración seleccionada"),
                                                       QStringLiteral("Deuseztatu hautatutako aitorpena"))
                                    : TextoSegunIdioma(QStringLiteral("Datos de la declaración"),
                                                       QStringLiteral("Aitorpenaren datuak")));
}

// Nothing found: the count of none without conditions, the conditions' texts alone with them.
QString FrmDecLista::ResultadoVacio() const
{
    if (!DecLista().HayCriterios())
        return QStringLiteral("0") + TextoSegunIdioma(QStringLiteral(" declaración(es) seleccionada(s) "),
                                                      QStringLiteral(" hautatutako aitorpena(k) "));
    return TextoCriterios();
}

QString FrmDecLista::TextoCriterio(int campo, const QString& valor) const
{
    switch (campo) {
    case 1:
        return TextoSegunIdioma(QStringLiteral("Código de Declaración"), QStringLiteral("Aitorpen kodea"))
            + QStringLiteral(" >= ") + valor + QStringLiteral(" ");
    case 2:
        // The system's text keeps its spelling.
        return TextoSegunIdioma(QStringLiteral("Refererencia empieza por"),
                                QStringLiteral("Erreferenztiaren hasierako letra"))
            + QStringLiteral(" '") + valor + QStringLiteral("' ");
    case 3:
        return TextoSegunIdioma(QStringLiteral("Fecha devengo"), QStringLiteral("Sortzapen data"))
            + QStringLiteral(" >= '") + valor + QStringLiteral("' ");
    case 4:
        return TextoSegunIdioma(QStringLiteral("Total a ingresar"), QStringLiteral("Ordaintzekoa, guztira"))
            + QStringLiteral(" >= ") + valor + QStringLiteral(" ");
    case 5:
        return TextoSegunIdioma(QStringLiteral("Operación empieza por"),
                                QStringLiteral("Eragiketaren hasierako letra"))
            + QStringLiteral(" '") + valor + QStringLiteral("' ");
    default:
        return QString();
    }
}

void FrmDecLista::Aceptar()
{
    if (ModoEliminar()) {
        EliminarSeleccionada(kIdGuionEliminarDeclaracionLista);
        return;
    }
    PanelDeclaraciones::Aceptar();
}
