#include "paneles/declaracion/FrmConDeclaraciones.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/partes/cConDeclaraciones.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QList<ColumnaDeclaraciones> Columnas(bool contribuyente)
{
    QList<ColumnaDeclaraciones> c = {
        {"NºDecl.", "Aitor.Zk.", 900, Qt::AlignRight},
        {"Referencia", "Erreferentzia", 1600, Qt::AlignLeft},
        {"Fecha", "Data", 1000, Qt::AlignLeft},
        {"Importe", "Zenbatekoa", 1100, Qt::AlignRight},
        {"Oper.", "Erag.", contribuyente ? 750 : 800, Qt::AlignLeft},
        {"Descripción Operación", "Eragiketaren deskribapena", contribuyente ? 3200 : 3500, Qt::AlignLeft},
    };
    if (contribuyente)
        c.append({"S-T", "S-T", 400, Qt::AlignHCenter});
    return c;
}

QLabel* Rotulo(QWidget* padre, const char* nombre)
{
    auto* l = new QLabel(padre);
    l->setObjectName(QString::fromLatin1(nombre));
    return l;
}

// The captions that both panels share, with the copy's own.
void BotonesDeParte(QPushButton* aceptar, QPushButton* cancelar, QPushButton* nuevo,
                    QPushButton* copiar, int idCopiar, QPushButton* imprimir, QPushButton* eliminar,
                    QPushButton* buscar, QPushButton* todos)
{
    aceptar->setText(Texto(kIdBotonDatosDeclaracion));
    aceptar->setToolTip(Texto(kIdDatosDeLaDeclaracion));
    cancelar->setText(Texto(kIdBotonAtrasDeclaraciones));
    cancelar->setToolTip(Texto(kIdVolverPanelAnterior));
    nuevo->setText(Texto(kIdBotonNuevaDeclaracion));
    nuevo->setToolTip(Texto(kIdNuevaDeclaracion));
    copiar->setText(Texto(idCopiar));
    copiar->setToolTip(Texto(kIdCopiarDeclaracion));
    imprimir->setText(Texto(kIdBotonImprimirDeclaracion));
    imprimir->setToolTip(Texto(kIdImprimirDeclaracion));
    eliminar->setText(Texto(kIdBotonEliminarDeclaracion));
    eliminar->setToolTip(Texto(kIdEliminarDeclaracion));
    buscar->setText(Texto(kIdBusqueda));
    todos->setText(Texto(kIdTodos));
}

}  // namespace

QString TextoCriterioDeParte(int campo, const QString& valor)
{
    switch (campo) {
    case 1:
        return TextoSegunIdioma(QStringLiteral("Código Declaración"), QStringLiteral("Aitorpen kodea"))
            + QStringLiteral(" >= ") + valor + QStringLiteral(" ");
    case 2:
        return TextoSegunIdioma(QStringLiteral("Referencia empieza por"),
                                QStringLiteral("Erreferentziaren hasierako letra"))
            + QStringLiteral(" '") + valor + QStringLiteral("' ");
    case 3:
        // The closing apostrophe without an opening one is the system's text.
        return TextoSegunIdioma(QStringLiteral("Fecha"), QStringLiteral("Data")) + QStringLiteral(" >= ")
            + valor + QStringLiteral("' ");
    case 4:
        return TextoSegunIdioma(QStringLiteral("Importe"), QStringLiteral("Zenbatekoa"))
            + QStringLiteral(" >= ") + valor;
    case 5:
        return TextoSegunIdioma(QStringLiteral("Operación empieza por"),
                                QStringLiteral("Eragiketaren hasierako letra"))
            + QStringLiteral(" '") + valor + QStringLiteral("' ");
    default:
        return QString();
    }
}

// ----- A contributor's returns -----

FrmConDeclaraciones::FrmConDeclaraciones(int32_t csco, QWidget* parent)
    : PanelDeclaraciones(QStringLiteral("FrmConDeclaraciones"), Columnas(true), parent),
      m_csco(csco)
{
    cmdEliminar->show();
    PicBorrar->show();
    auto* cabecera = new QGridLayout;
    lbldcontribuyente = Rotulo(this, "lbldcontribuyente");
    lblddni = Rotulo(this, "lblddni");
    lblnumsp = Rotulo(this, "lblnumsp");
    lblnumtr = Rotulo(this, "lblnumtr");
    const QList<std::tuple<const char*, int, QLabel*>> filas = {
        {"lblcontribuyente", kIdEtiquetaContribuyente, lbldcontribuyente},
        {"lbldni", kIdEtiquetaDni, lblddni},
        {"lblsp", kIdEtiquetaContadorSujetoPasivo, lblnumsp},
        {"lbltr", kIdEtiquetaContadorTransmitente, lblnumtr}};
    int fila = 0;
    for (const auto& [nombre, id, valor] : filas) {
        QLabel* rotulo = Rotulo(this, nombre);
        m_rotulos.append({rotulo, id});
        cabecera->addWidget(rotulo, fila / 2, (fila % 2) * 2);
        cabecera->addWidget(valor, fila / 2, (fila % 2) * 2 + 1);
        ++fila;
    }
    m_cabecera->addLayout(cabecera);
}

cListaDeclaraciones& FrmConDeclaraciones::estado() const
{
    return ConDeclaraciones();
}

void FrmConDeclaraciones::IniciarEstado()
{
    ConDeclaraciones().IniciarLista(m_csco);
}

QList<FilaDeclaracion> FrmConDeclaraciones::CargarDatos()
{
    return ConDeclaraciones().CargarDeclaraciones();
}

QString FrmConDeclaraciones::TextoCriterio(int campo, const QString& valor) const
{
    return TextoCriterioDeParte(campo, valor);
}

void FrmConDeclaraciones::Anadir_captions()
{
    setWindowTitle(Texto(kIdDeclaracionesDeContribuyente));
    for (const auto& [rotulo, id] : m_rotulos)
        rotulo->setText(Texto(id));
    BotonesDeParte(cmdAceptar, cmdCancelar, cmdNuevo, cmdCopiar, kIdBotonCopiarDeclaracion,
                   cmdImprimir, cmdEliminar, cmdBuscar, cmdTodos);
}

// The counters are asked again each time: a return may have come or gone on a side trip.
void FrmConDeclaraciones::PresentaCabecera()
{
    const cConDeclaraciones& e = ConDeclaraciones();
    const cConDeclaraciones::Contadores contadores = e.ObtenerContadores();
    lblnumsp->setText(contadores.comoSujeto);
    lblnumtr->setText(contadores.comoTransmitente);
    lbldcontribuyente->setText(e.LBLCONTRI);
    lblddni->setText(e.lbldni);
}

void FrmConDeclaraciones::Eliminar()
{
    EliminarSeleccionada(kIdGuionEliminarDeclaracion);
    // A party without returns has nothing to show here.
    if (ConDeclaraciones().NUMDECLASEL == 0)
        Cerrar();
}

// ----- A presenter's returns -----

FrmPreDeclaraciones::FrmPreDeclaraciones(int32_t cspr, QWidget* parent)
    : PanelDeclaraciones(QStringLiteral("FrmPreDeclaraciones"), Columnas(false), parent),
      m_cspr(cspr)
{
    cmdEliminar->show();
    PicBorrar->show();
    auto* cabecera = new QGridLayout;
    lbldpresentador = Rotulo(this, "lbldpresentador");
    lblddni = Rotulo(this, "lblddni");
    lblnumdecla = Rotulo(this, "lblnumdecla");
    const QList<std::tuple<const char*, int, QLabel*>> filas = {
        {"lblpresentador", kIdEtiquetaPresentador, lbldpresentador},
        {"lbldni", kIdEtiquetaDni, lblddni},
        {"lblnum", kIdEtiquetaContadorDeclaraciones, lblnumdecla}};
    int fila = 0;
    for (const auto& [nombre, id, valor] : filas) {
        QLabel* rotulo = Rotulo(this, nombre);
        m_rotulos.append({rotulo, id});
        cabecera->addWidget(rotulo, fila, 0);
        cabecera->addWidget(valor, fila, 1);
        ++fila;
    }
    m_cabecera->addLayout(cabecera);
}

cListaDeclaraciones& FrmPreDeclaraciones::estado() const
{
    return PreDeclaraciones();
}

void FrmPreDeclaraciones::IniciarEstado()
{
    PreDeclaraciones().IniciarLista(m_cspr);
}

QList<FilaDeclaracion> FrmPreDeclaraciones::CargarDatos()
{
    return PreDeclaraciones().CargarDeclaraciones();
}

QString FrmPreDeclaraciones::TextoCriterio(int campo, const QString& valor) const
{
    return TextoCriterioDeParte(campo, valor);
}

void FrmPreDeclaraciones::Anadir_captions()
{
    setWindowTitle(Texto(kIdDeclaracionesDePresentador));
    for (const auto& [rotulo, id] : m_rotulos)
        rotulo->setText(Texto(id));
    BotonesDeParte(cmdAceptar, cmdCancelar, cmdNuevo, cmdCopiar, kIdBotonCopiar, cmdImprimir,
                   cmdEliminar, cmdBuscar, cmdTodos);
}

void FrmPreDeclaraciones::PresentaCabecera()
{
    const cPreDeclaraciones& e = PreDeclaraciones();
    lblnumdecla->setText(QString::number(e.ObtenerContador()));
    lbldpresentador->setText(e.LBLPRESEN);
    lblddni->setText(e.lbldni);
}

void FrmPreDeclaraciones::Eliminar()
{
    EliminarSeleccionada(kIdGuionEliminarDeclaracion);
    if (PreDeclaraciones().NUMDECLASEL == 0)
        Cerrar();
}
