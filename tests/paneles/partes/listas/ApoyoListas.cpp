#include "ApoyoListas.h"

#include "comun/AlmacenNuevo.h"

#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "paneles/controles/cFlexGrid.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"
#include "servicios/Conexion.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QMdiArea>
#include <QTest>

namespace {

QPoint CentroCelda(cFlexGrid* grid, int fila, int columna)
{
    const QModelIndex indice = grid->model()->index(fila - 1, columna);
    grid->scrollTo(indice);
    return grid->visualRect(indice).center();
}

}  // namespace

EntornoListas::EntornoListas(const QString& idioma)
{
    m_carpeta = AlmacenNuevo();
    Entrada().setIDI(idioma);
    ActOnline().ActOnline = 0;  // the language is chosen: no chooser at the first activation
    m_ventana = new MDIVeldo;
    m_ventana->resize(1024, 768);
    m_ventana->show();
    m_ventana->activateWindow();
    m_activa = QTest::qWaitForWindowActive(m_ventana);
    Procesar();
}

EntornoListas::~EntornoListas()
{
    ReiniciarEstado();
    m_carpeta.reset();
}

int32_t NuevoContribuyente(const QString& dni, const QString& nombre, const QString& calle,
                           const QString& municipio)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = {0,  "O", dni, nombre, "CL", calle, 1,  "", "", "", "",
                           "N", "", "77", "", "77001", municipio, "", 0.0, 0.0};
    if (svr.GuardarContribuyente(datos) != 0)
        qFatal("No se pudo guardar el contribuyente %s", qPrintable(dni));
    return svr.ObtenerCodigoContribuyente(dni);
}

int32_t NuevoPresentador(const QString& dni, const QString& nombre, const QString& calle)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = {0,  dni,  nombre,  "CL",  calle, 1,     "", "",
                           "", "",   "77",    "77001", "001", "",  "945000000"};
    if (svr.GuardarPresentador(datos) != 0)
        qFatal("No se pudo guardar el presentador %s", qPrintable(dni));
    return svr.ObtenerCodigoPresentador(dni);
}

void NuevaDeclaracion(int32_t sujeto, int32_t transmitente, int32_t presentador)
{
    auto codigo = [](int32_t c) { return c == 0 ? QVariant() : QVariant(c); };
    const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("prueba"));
    Ejecutar(db, QStringLiteral("INSERT INTO DECLARACIONES (CSSU, CSTRA, CSPR) VALUES (?, ?, ?)"),
             {codigo(sujeto), codigo(transmitente), codigo(presentador)}, QStringLiteral("prueba"));
}

bool ExisteContribuyente(int32_t csco)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    Arreglo datos;
    svr.CargarContribuyente(csco, datos);
    return !datos.isEmpty();
}

bool ExistePresentador(int32_t cspr)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    Arreglo datos;
    svr.CargarPresentador(cspr, datos);
    return !datos.isEmpty();
}

namespace ControlesLista {
QPushButton* Boton(QWidget* panel, const char* nombre)
{
    return panel->findChild<QPushButton*>(QLatin1String(nombre));
}

QLabel* Etiqueta(QWidget* panel, const char* nombre)
{
    return panel->findChild<QLabel*>(QLatin1String(nombre));
}

QLineEdit* Caja(QWidget* panel) { return panel->findChild<QLineEdit*>(QStringLiteral("txtBusqueda")); }

QString Resultado(QWidget* panel) { return Etiqueta(panel, "lblResultado")->text(); }
}  // namespace ControlesLista

QWidget* PanelAbierto(const QString& nombre)
{
    Procesar();
    MDIVeldo* ventana = VentanaMDI();
    if (!ventana)
        return nullptr;
    for (QWidget* w : ventana->findChildren<QWidget*>(nombre))
        if (w->isVisible())
            return w;
    return nullptr;
}

void Procesar()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

void ClicCabecera(cFlexGrid* grid, int columna)
{
    QHeaderView* cabecera = grid->horizontalHeader();
    const QPoint punto(cabecera->sectionViewportPosition(columna)
                           + cabecera->sectionSize(columna) / 2,
                       cabecera->height() / 2);
    QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, punto);
}

void ClicCelda(cFlexGrid* grid, int fila, int columna)
{
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, CentroCelda(grid, fila, columna));
}

void DobleClicCelda(cFlexGrid* grid, int fila, int columna)
{
    const QPoint punto = CentroCelda(grid, fila, columna);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, punto);
}

QStringList Fila(const cFlexGrid* grid, int fila)
{
    QStringList celdas;
    for (int c = 0; c < grid->Cols(); ++c)
        celdas << grid->TextMatrix(fila, c);
    return celdas;
}

bool FilaPintada(const cFlexGrid* grid, int fila, QRgb color)
{
    for (int c = 0; c < grid->Cols(); ++c)
        if (grid->CellBackColor(fila, c).rgb() != QColor::fromRgb(color).rgb())
            return false;
    return true;
}

QList<int> FilasResaltadas(const cFlexGrid* grid)
{
    QList<int> filas;
    for (int f = 1; f < grid->Rows(); ++f)
        if (FilaPintada(grid, f, 0x80C0FF))
            filas << f;
    return filas;
}
