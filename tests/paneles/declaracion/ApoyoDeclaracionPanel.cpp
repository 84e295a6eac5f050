#include "ApoyoDeclaracionPanel.h"

#include "aplicacion/MDIVeldo.h"
#include "aplicacion/Navegacion.h"
#include "paneles/declaracion/FrmDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/Almacen.h"
#include "servicios/cDeclaSvr.h"

#include "paneles/controles/cFlexGrid.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QTabBar>

int32_t DeclaracionGuardada(const QString& referencia, int32_t fecha, const QString& operacion,
                            int32_t cssu, int32_t cstra, int32_t cspr)
{
    const Arreglo datos = {
        0, referencia, cspr, cssu, cstra, fecha, QString(), QStringLiteral("SEAT"), QStringLiteral("6J"),
        QStringLiteral("IBIZA"), QStringLiteral("VSSZZZ6JZAR000001"), 1000, QStringLiteral("G"),
        1598, operacion, QString(), QString(), QString(), 1500000.0, 0.0, 4.75, 71250.0, 0.0,
        71250.0, Dni(12345678), QStringLiteral("GARCIA LOPEZ JUAN"), QStringLiteral("CL"),
        QStringLiteral("MAYOR"), 7, QString(), QString(), QString(), QString(),
        QStringLiteral("77"), QString(), QStringLiteral("77001"), QStringLiteral("001"), QString(),
        QStringLiteral("O"), Dni(87654321), QStringLiteral("AUTOS VELDO SA"), QStringLiteral("AV"),
        QStringLiteral("GASTEIZ"), 2, QString(), QString(), QString(), QString(),
        QStringLiteral("N"), QString(), QStringLiteral("77"), QString(), QStringLiteral("77002"),
        QStringLiteral("002"), QString()};
    return Almacen<cDeclaSvr>().GuardarDeclaracion(datos);
}

void Comando(const ProgramaDePrueba& prog, const char* nombre)
{
    QAction* accion = prog.ventana()->findChild<QAction*>(QString::fromLatin1(nombre));
    if (!accion) {
        qWarning("Falta el comando %s", nombre);
        return;
    }
    accion->trigger();
    Procesar();
}

int Declaraciones()
{
    return ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM DECLARACIONES")).toInt();
}

void EscribirFecha(QLineEdit* campo, const QString& cifras)
{
    Entrar(campo);
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Backspace);
    campo->setCursorPosition(0);
    Teclear(campo, cifras);
    Tabular();
}

namespace {
QPoint CentroCelda(cFlexGrid* grid, int fila, int columna)
{
    const QModelIndex indice = grid->model()->index(fila - 1, columna);
    grid->scrollTo(indice);
    return grid->visualRect(indice).center();
}
}  // namespace

void ClicEnCelda(cFlexGrid* grid, int fila, int columna)
{
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, CentroCelda(grid, fila, columna));
    Procesar();
}

void DobleClicEnCelda(cFlexGrid* grid, int fila, int columna)
{
    const QPoint punto = CentroCelda(grid, fila, columna);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, punto);
    Procesar();
}

void ClicEnCabecera(cFlexGrid* grid, int columna)
{
    QHeaderView* h = grid->horizontalHeader();
    const QPoint p(h->sectionViewportPosition(columna) + h->sectionSize(columna) / 2, h->height() / 2);
    QTest::mouseClick(h->viewport(), Qt::LeftButton, Qt::NoModifier, p);
    Procesar();
}

void CondicionDeBusqueda(cFlexGrid* grid, QLineEdit* busqueda, int columna, const QString& valor)
{
    ClicEnCelda(grid, 1, columna);
    Escribir(busqueda, valor);
    Tabular();
}

void CondicionesEnCincoColumnas(cFlexGrid* grid, QLineEdit* busqueda, int32_t desde)
{
    CondicionDeBusqueda(grid, busqueda, 0, QString::number(desde));
    CondicionDeBusqueda(grid, busqueda, 1, QStringLiteral("AB"));
    CondicionDeBusqueda(grid, busqueda, 2, QStringLiteral("01/01/2010"));
    CondicionDeBusqueda(grid, busqueda, 3, QStringLiteral("1"));
    CondicionDeBusqueda(grid, busqueda, 4, QStringLiteral("T"));
}

void ControlesDeDeclaracion::arrancar()
{
    m_prog = std::make_unique<ProgramaDePrueba>();
    MensajeSeam::limpiar();
}

void ControlesDeDeclaracion::cerrar()
{
    m_prog.reset();
    Procesar();
}

FrmDeclaracion* ControlesDeDeclaracion::frm() const
{
    return qobject_cast<FrmDeclaracion*>(m_panel.data());
}

QCheckBox* ControlesDeDeclaracion::k(const char* nombre) const
{
    return c<QCheckBox>(nombre);
}

QComboBox* ControlesDeDeclaracion::cmb() const
{
    return c<QComboBox>("cmbOperacion");
}

void ControlesDeDeclaracion::nueva()
{
    Comando(*m_prog, "mnuNuevaDeclaracion");
    m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
}

void ControlesDeDeclaracion::abrirGuardada(int32_t csde, const QString& modo)
{
    cDecDatos& d = DecDatos();
    Navegacion::RutaDeclaracion& ruta = Navegacion::RutaDec();
    ruta.entrada = Navegacion::Entrada::Inicio;
    ruta.modo = modo == QLatin1String("D") ? Navegacion::Modo::Copia : Navegacion::Modo::Abrir;
    ruta.lista = {};
    d.CSDE = csde;
    Navegacion::AbrirDeclaracion();
    Procesar();
    m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
}

void ControlesDeDeclaracion::clicCasilla(QAbstractButton* casilla)
{
    QTest::mouseClick(casilla, Qt::LeftButton, Qt::NoModifier, QPoint(6, casilla->height() / 2));
    Procesar();
}

void ControlesDeDeclaracion::pestana(int i)
{
    QTabBar* tab = c<QTabBar>("tabTerceros");
    QTest::mouseClick(tab, Qt::LeftButton, Qt::NoModifier, tab->tabRect(i).center());
    Procesar();
}

void ControlesDeDeclaracion::teclaDeAcceso(Qt::Key letra)
{
    QTest::keyClick(Foco(), letra, Qt::AltModifier);
    QTest::qWait(150);
    Procesar();
}

QStringList ControlesDeDeclaracion::mensajes() const
{
    QStringList textos;
    for (const auto& r : MensajeSeam::registro())
        textos << r.texto;
    return textos;
}

QString ControlesDeDeclaracion::almacenado(const char* columna) const
{
    return ValorAlmacenado(QStringLiteral("SELECT %1 FROM DECLARACIONES").arg(QLatin1String(columna)))
        .toString();
}
