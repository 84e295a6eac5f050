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
    Declaracion d;
    d.REFERENCIA = referencia;
    d.CSPR = cspr;
    d.CSSU = cssu;
    d.CSTRA = cstra;
    d.FECHAD = fecha;
    d.MARCA = QStringLiteral("SEAT");
    d.TIPO = QStringLiteral("6J");
    d.MODELO = QStringLiteral("IBIZA");
    d.BASTIDOR = QStringLiteral("VSSZZZ6JZAR000001");
    d.CLASIFICACION = 1000;
    d.MOTOR = QStringLiteral("G");
    d.CILINDRADA = 1598;
    d.OPERACION = operacion;
    d.BASEI = Importe(1500000.0);
    d.TIPOIMP = 4.75;
    d.CUOTA = Importe(71250.0);
    d.TOTAL = Importe(71250.0);
    d.DNISP = Dni(12345678);
    d.NOMBRESP = QStringLiteral("GARCIA LOPEZ JUAN");
    d.VIASP = QStringLiteral("CL");
    d.DOMICILIOSP = QStringLiteral("MAYOR");
    d.NUMEROSP = 7;
    d.CODPROVSP = QStringLiteral("77");
    d.CODPOSSP = QStringLiteral("77001");
    d.CODMUNSP = QStringLiteral("001");
    d.TIPODNITR = QStringLiteral("O");
    d.DNITR = Dni(87654321);
    d.NOMBRETR = QStringLiteral("AUTOS VELDO SA");
    d.VIATR = QStringLiteral("AV");
    d.DOMICILIOTR = QStringLiteral("GASTEIZ");
    d.NUMEROTR = 2;
    d.TIPODOMITR = QStringLiteral("N");
    d.CODPROVTR = QStringLiteral("77");
    d.CODPOSTR = QStringLiteral("77002");
    d.CODMUNTR = QStringLiteral("002");
    const Resultado<Declaracion> r = Almacen<cDeclaSvr>().GuardarDeclaracion(d);
    return r ? r->CSDE : 0;
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
