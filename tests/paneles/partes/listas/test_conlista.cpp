// The list of contributors, driven as a user does on the real panel inside the main window:
// opening in each mode, the pages of rows, the selection, ordering by a click on a heading,
// the search typed over a heading, the buttons and their icons, deletion with its refusal and
// question, the hand-over to the contributor panel and back, both languages.
#include "aplicacion/Navegacion.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/partes/cConDeclaraciones.h"
#include "ApoyoListas.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Twips.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/controles/cUtilidadesGrid.h"
#include "paneles/partes/FrmConDatos.h"
#include "paneles/partes/FrmConLista.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace {

const QString kAbad = QStringLiteral("ABAD RUIZ JON");
const QString kGarcia = QStringLiteral("GARCIA LOPEZ ANA");
const QString kGil = QStringLiteral("GIL SANZ IKER");
const QString kGomez = QStringLiteral("GOMEZ PEREZ LUIS");
const QString kZubiri = QStringLiteral("ZUBIRI MARTIN ANE");

QString Nombre(int i)
{
    return QStringLiteral("CONTRIBUYENTE %1").arg(i, 3, 10, QLatin1Char('0'));
}

QString Dni(int i)
{
    return QStringLiteral("%1X").arg(50000000 + i);
}

}  // namespace

using namespace ControlesLista;

class TestConLista : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_entorno;
    // Codes of the five contributors of Poblar().
    int32_t m_abad = 0, m_garcia = 0, m_gil = 0, m_gomez = 0, m_zubiri = 0;

    void Poblar()
    {
        m_garcia = NuevoContribuyente("30000000A", kGarcia, "NAGUSIA");
        m_abad = NuevoContribuyente("20000000B", kAbad, "MAYOR", "002");
        m_zubiri = NuevoContribuyente("10000000C", kZubiri);
        m_gomez = NuevoContribuyente("11000000D", kGomez);
        m_gil = NuevoContribuyente("12000000E", kGil);
    }

    static FrmConLista* Abrir(Navegacion::EntradaLista entrada)
    {
        Navegacion::AbrirConLista(entrada);
        return Panel();
    }
    static FrmConLista* Panel()
    {
        return qobject_cast<FrmConLista*>(PanelAbierto(QStringLiteral("FrmConLista")));
    }
    static cFlexGrid* Grid(QWidget* p) { return p->findChild<cFlexGrid*>("flxContribuyentes"); }
    bool MenusActivos() const
    {
        return m_entorno->ventana()->findChild<QMenu*>("mnuContribuyente")->menuAction()->isEnabled();
    }
    // The search state, then a click on a heading and a prefix typed in the box over it.
    static void Teclear(QWidget* p, int columna, const QString& texto)
    {
        ClicCabecera(Grid(p), columna);
        QVERIFY(Caja(p)->isVisible());
        QVERIFY(Caja(p)->hasFocus());
        QTest::keyClicks(Caja(p), texto);
    }

private slots:
    void init()
    {
        m_entorno = std::make_unique<ProgramaDePrueba>();
        QVERIFY(m_entorno->activa());
    }
    void cleanup() { m_entorno.reset(); }

    void aperturaEnModoAbrir()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QVERIFY(p);
        QCOMPARE(p->windowTitle(), QStringLiteral("Abrir Contribuyente"));
        QCOMPARE(qobject_cast<QMdiSubWindow*>(p->parentWidget())->pos(), QPoint(0, 0));
        QVERIFY(!MenusActivos());

        cFlexGrid* g = Grid(p);
        QCOMPARE(Fila(g, 0), (QStringList{"Codigo", "Apellidos y Nombre", "DNI", "Calle",
                                          "Municipio", "S.P.", "Tr."}));
        QCOMPARE(g->ColWidth(0), 0);
        QCOMPARE(g->ColWidth(1), TwipsAPixeles(2700));
        QCOMPARE(g->ColWidth(2), TwipsAPixeles(1000));
        QCOMPARE(g->ColWidth(3), TwipsAPixeles(2000));
        QCOMPARE(g->ColWidth(5), TwipsAPixeles(600));
        QVERIFY(g->model()->index(0, 5).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
        QVERIFY(g->model()->index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignLeft);

        // Five contributors by name, in one page of 15 rows.
        QCOMPARE(g->Rows(), 16);
        QCOMPARE(Fila(g, 1), (QStringList{QString::number(m_abad), kAbad, "20000000B", "MAYOR",
                                          "VELDORRETA", "0", "0"}));
        QCOMPARE(g->TextMatrix(2, 1), kGarcia);
        QCOMPARE(g->TextMatrix(2, 4), QStringLiteral("ARBELGAIN"));
        QCOMPARE(g->TextMatrix(5, 1), kZubiri);
        QCOMPARE(g->TextMatrix(6, 1), QString());
        QCOMPARE(FilasResaltadas(g), QList<int>{1});
        QCOMPARE(ConLista().CSCO, m_abad);
        QCOMPARE(ConLista().NUMCONTRISEL, 5);
        QCOMPARE(Navegacion::Letras(ConLista().MODO), QStringLiteral("C"));

        QCOMPARE(TextoResultado(p), QStringLiteral("5 contribuyente(s) seleccionado(s) "));
        QCOMPARE(Etiqueta(p, "lblayuda")->text(), Texto(kIdAyudaOrdenarNombreDni));
        QVERIFY(Etiqueta(p, "lblayuda")->isVisible());
        QCOMPARE(Boton(p, "cmdAceptar")->text(), QStringLiteral("  &Datos"));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(), Texto(kIdDatosContribuyente));
        QCOMPARE(Boton(p, "cmdCancelar")->text(), QStringLiteral("  &Atrás"));
        QCOMPARE(Boton(p, "cmdCancelar")->toolTip(), QStringLiteral("Volver al Menú Principal"));
        QCOMPARE(Boton(p, "cmdNuevo")->text(), QStringLiteral("   &Nuevo"));
        QCOMPARE(Boton(p, "cmdNuevo")->toolTip(), QStringLiteral("Nuevo contribuyente"));
        QCOMPARE(Boton(p, "CmdDeclaraciones")->text(), QStringLiteral("       D&eclaraciones"));
        QCOMPARE(Boton(p, "CmdDeclaraciones")->toolTip(), QStringLiteral("Ver Declaraciones"));
        QCOMPARE(Boton(p, "cmdBuscar")->text(), QStringLiteral("Búsqueda"));
        QCOMPARE(Boton(p, "cmdTodos")->text(), QStringLiteral("Todos"));
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(Boton(p, "cmdNuevo")->isEnabled());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        QVERIFY(Boton(p, "cmdBuscar")->isEnabled());
        QVERIFY(!Boton(p, "cmdTodos")->isEnabled());
        QVERIFY(Etiqueta(p, "PicDatos")->isVisible() && Etiqueta(p, "PicDatos")->isEnabled());
        QVERIFY(Etiqueta(p, "PicAtras")->isVisible());
        QVERIFY(!Etiqueta(p, "PicDeclaraciones")->isEnabled());
        QVERIFY(!Etiqueta(p, "PicEliminar")->isVisible());
        QVERIFY(!Etiqueta(p, "PicCancelar")->isVisible());
        QVERIFY(!Caja(p)->isVisible());

        // The arrow stands in the heading of the name, near its right edge.
        QLabel* flecha = Etiqueta(p, "picasc");
        QVERIFY(flecha->isVisible());
        const QRect celda = g->Celda(0, 1);
        QCOMPARE(flecha->x(), g->x() + celda.right() + 1 - TwipsAPixeles(250));
        QCOMPARE(flecha->y(), g->y() + TwipsAPixeles(65));

        // Closing gives the commands back.
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);
        QVERIFY(!Panel());
        QVERIFY(MenusActivos());
    }

    void desdeElMenuPrincipal()
    {
        Poblar();
        MDIVeldo* v = m_entorno->ventana();
        v->ActualizarMenus();
        emit v->findChild<QMenu*>("mnuContribuyente")->aboutToShow();
        v->findChild<QAction*>("mnuAbrirContribuyente")->trigger();
        FrmConLista* p = Panel();
        QVERIFY(p);
        QCOMPARE(Navegacion::Letras(ConLista().MODO), QStringLiteral("C"));
        QCOMPARE(p->windowTitle(), QStringLiteral("Abrir Contribuyente"));
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);
        QVERIFY(!Panel());
        emit v->findChild<QMenu*>("mnuContribuyente")->aboutToShow();
        v->findChild<QAction*>("mnuEliminarContribuyente")->trigger();
        p = Panel();
        QVERIFY(p);
        QCOMPARE(Navegacion::Letras(ConLista().MODO), QStringLiteral("E"));
        QCOMPARE(p->windowTitle(), QStringLiteral("Eliminar Contribuyente"));
    }

    // Enter on a focused button presses it, as Space does.
    void enterPulsaElBotonConFoco()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QVERIFY(p);
        QPushButton* cancelar = Boton(p, "cmdCancelar");
        cancelar->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(cancelar->hasFocus());
        QTest::keyClick(cancelar, Qt::Key_Return);
        QTRY_VERIFY(!Panel());
        QVERIFY(MenusActivos());
    }

    void paginasDeQuinceFilas()
    {
        for (int i = 1; i <= 15; ++i)
            NuevoContribuyente(Dni(i), Nombre(i));
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QCOMPARE(Grid(p)->Rows(), 16);
        QCOMPARE(TextoResultado(p), QStringLiteral("15 contribuyente(s) seleccionado(s) "));
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);

        NuevoContribuyente(Dni(16), Nombre(16));
        p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QCOMPARE(g->Rows(), 31);
        QCOMPARE(g->TextMatrix(16, 1), Nombre(16));
        QCOMPARE(g->TextMatrix(17, 1), QString());
        // An empty row beyond the data takes no selection: its code reads 0.
        ClicCelda(g, 20, 1);
        QCOMPARE(ConLista().CSCO, 0);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Etiqueta(p, "PicDatos")->isEnabled());
        ClicCelda(g, 16, 1);
        QCOMPARE(ConLista().CSCO, int32_t(g->TextMatrix(16, 0).toInt()));
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
        QCOMPARE(FilasResaltadas(g), QList<int>{16});
    }

    void laFilaElegidaSubeArriba()
    {
        NuevoContribuyente("10000001A", "ALFA");
        NuevoContribuyente("10000002B", "BETA");
        const int32_t gamma = NuevoContribuyente("10000003C", "GAMMA");
        ConLista().CSCO = gamma;
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Vuelta);
        cFlexGrid* g = Grid(p);
        // The single page grows by two rows so that row 3 can stand at the top.
        QCOMPARE(g->Rows(), 18);
        QCOMPARE(g->TopRow(), 3);
        QCOMPARE(FilasResaltadas(g), QList<int>{3});
        QCOMPARE(g->TextMatrix(3, 1), QStringLiteral("GAMMA"));
        QCOMPARE(ConLista().CSCO, gamma);
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
    }

    void ordenarConUnClicEnLaCabecera()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        ClicCelda(g, 4, 2);
        QCOMPARE(ConLista().CSCO, m_gomez);
        QCOMPARE(FilasResaltadas(g), QList<int>{4});

        // "Calle" and the counters do not sort: nothing changes.
        for (int columna : {3, 4, 5, 6}) {
            ClicCabecera(g, columna);
            QCOMPARE(ConLista().ORDEN, uint8_t(1));
            QCOMPARE(ConLista().CSCO, m_gomez);
            QCOMPARE(FilasResaltadas(g), QList<int>{4});
            QCOMPARE(g->TextMatrix(1, 1), kAbad);
        }

        // "DNI" orders by number and the selection falls on row 1.
        ClicCabecera(g, 2);
        QCOMPARE(ConLista().ORDEN, uint8_t(2));
        QCOMPARE(g->TextMatrix(1, 1), kZubiri);
        QCOMPARE(g->TextMatrix(2, 1), kGomez);
        QCOMPARE(g->TextMatrix(5, 1), kGarcia);
        QCOMPARE(ConLista().CSCO, m_zubiri);
        QCOMPARE(FilasResaltadas(g), QList<int>{1});
        QCOMPARE(g->TopRow(), 1);
        const QRect dni = g->Celda(0, 2);
        QCOMPARE(Etiqueta(p, "picasc")->x(), g->x() + dni.right() + 1 - TwipsAPixeles(250));

        // A second click only reloads; the name orders again.
        ClicCelda(g, 3, 1);
        ClicCabecera(g, 2);
        QCOMPARE(ConLista().CSCO, m_zubiri);
        ClicCabecera(g, 1);
        QCOMPARE(ConLista().ORDEN, uint8_t(1));
        QCOMPARE(g->TextMatrix(1, 1), kAbad);
        QCOMPARE(TextoResultado(p), QStringLiteral("5 contribuyente(s) seleccionado(s) "));
    }

    void elTecladoMueveLaSeleccion()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        g->setFocus();
        QTest::keyClick(g, Qt::Key_Down);
        QTest::keyClick(g, Qt::Key_Down);
        QCOMPARE(FilasResaltadas(g), QList<int>{3});
        QCOMPARE(ConLista().CSCO, m_gil);
        QTest::keyClick(g, Qt::Key_Up);
        QCOMPARE(ConLista().CSCO, m_garcia);
        // Enter on the grid is Datos.
        QTest::keyClick(g, Qt::Key_Return);
        QVERIFY(!Panel());
        QVERIFY(PanelAbierto("FrmConDatos"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaCon().modo), QStringLiteral("C"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaCon().origen), QStringLiteral("S"));
        QCOMPARE(ConDatos().CSCO, m_garcia);
    }

    void dobleClicAbreLosDatos()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        // A double click on a heading is not a double click on a row.
        QTest::mouseDClick(Grid(p)->horizontalHeader()->viewport(), Qt::LeftButton, {},
                           QPoint(Grid(p)->horizontalHeader()->sectionViewportPosition(4) + 5, 5));
        QVERIFY(Panel());
        DobleClicCelda(Grid(p), 5, 1);
        QVERIFY(!Panel());
        QVERIFY(PanelAbierto("FrmConDatos"));
        QCOMPARE(ConDatos().CSCO, m_zubiri);
    }

    void estadoDeBusqueda()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(ConLista().BUSQUEDA, QStringLiteral("B"));
        QCOMPARE(g->Rows(), 2);
        QCOMPARE(Fila(g, 1), QStringList(7));
        QCOMPARE(Etiqueta(p, "lblayuda")->text(), Texto(kIdAyudaCriterioNombreDni));
        QCOMPARE(TextoResultado(p), QString());
        QVERIFY(!Etiqueta(p, "picasc")->isVisible());
        QVERIFY(!Caja(p)->isVisible());
        QVERIFY(!Boton(p, "cmdBuscar")->isEnabled());
        QVERIFY(Boton(p, "cmdTodos")->isEnabled());
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(p, "cmdNuevo")->isEnabled());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        QVERIFY(!Etiqueta(p, "PicNuevo")->isEnabled());
        QCOMPARE(ConLista().CSCO, 0);
        QCOMPARE(ConLista().NUMCONTRISEL, 0);

        // Column 3 takes no prefix, neither by its heading nor by its cell.
        ClicCabecera(g, 3);
        ClicCelda(g, 1, 3);
        QCOMPARE(ConLista().SELECCIONACTUAL, QStringLiteral("0"));
        QVERIFY(!Caja(p)->isVisible());
        QVERIFY(!Boton(p, "cmdBuscar")->isEnabled());

        // Under DNI the box lies over the heading, as wide as the name column, and has the focus.
        ClicCelda(g, 1, 2);
        QCOMPARE(ConLista().SELECCIONACTUAL, QStringLiteral("2"));
        QLineEdit* caja = Caja(p);
        QVERIFY(caja->isVisible());
        QVERIFY(caja->hasFocus());
        const QRect cabecera = g->Celda(0, 2);
        QCOMPARE(caja->x(), g->x() + cabecera.left());
        QCOMPARE(caja->y(), g->y() + cabecera.top() + cUtilidadesGrid::kDesplazamiento);
        QCOMPARE(caja->width(), g->ColWidth(1));
        QVERIFY(Boton(p, "cmdBuscar")->isEnabled());
        QCOMPARE(Boton(p, "cmdBuscar")->text(), QStringLiteral("Resultado"));
        // Text fields hold capitals only.
        QTest::keyClicks(caja, "1a#");
        QCOMPARE(caja->text(), QStringLiteral("1A"));
    }

    void dosCriteriosYElOrdenDelSegundo()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 2, "1");
        // Leaving the box for the name's heading keeps the DNI's prefix under its heading.
        Teclear(p, 1, "g");
        QVERIFY(ConLista().TABLASELECCION.has_value());
        QCOMPARE(ConLista().TABLASELECCION->size(), 1);
        QCOMPARE(ConLista().TABLASELECCION->at(0).CAMPOSELECCION, QStringLiteral("2"));
        QCOMPARE(ConLista().TABLASELECCION->at(0).VALORSELECCION, QStringLiteral("1"));
        QCOMPARE(g->TextMatrix(1, 2), QStringLiteral("1"));
        QCOMPARE(Caja(p)->text(), QStringLiteral("G"));

        // "Resultado": the box is left first, then the list comes with both criteria.
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(ConLista().BUSQUEDA, QStringLiteral("N"));
        QCOMPARE(ConLista().TABLASELECCION->size(), 2);
        QCOMPARE(ConLista().TABLASELECCION->at(1).CAMPOSELECCION, QStringLiteral("1"));
        QCOMPARE(ConLista().TABLASELECCION->at(1).VALORSELECCION, QStringLiteral("G"));
        QCOMPARE(ConLista().ORDEN, uint8_t(1));
        QCOMPARE(g->Rows(), 16);
        QCOMPARE(g->TextMatrix(1, 1), kGil);
        QCOMPARE(g->TextMatrix(2, 1), kGomez);
        QCOMPARE(g->TextMatrix(3, 1), QString());
        QCOMPARE(TextoResultado(p), QStringLiteral("DNI empieza por '1' , Nombre empieza por 'G' "
                                              "2 contribuyente(s) seleccionado(s). "));
        QCOMPARE(FilasResaltadas(g), QList<int>{1});
        QCOMPARE(ConLista().CSCO, m_gil);
        QVERIFY(!Caja(p)->isVisible());
        QVERIFY(Etiqueta(p, "picasc")->isVisible());
        QVERIFY(Boton(p, "cmdTodos")->isEnabled());
        QCOMPARE(Boton(p, "cmdBuscar")->text(), QStringLiteral("Búsqueda"));

        // Back to the search: the criteria are dropped.
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QVERIFY(!ConLista().TABLASELECCION.has_value());
        QCOMPARE(Fila(g, 1), QStringList(7));
    }

    void elOrdenEsElDeLaUltimaColumnaTecleada()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "G");
        Teclear(p, 2, "");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        // The emptied DNI prefix stays as a criterion, left out of the text; order by DNI.
        QCOMPARE(ConLista().TABLASELECCION->size(), 2);
        QCOMPARE(ConLista().ORDEN, uint8_t(2));
        cFlexGrid* g = Grid(p);
        QCOMPARE(g->TextMatrix(1, 1), kGomez);
        QCOMPARE(g->TextMatrix(2, 1), kGil);
        QCOMPARE(g->TextMatrix(3, 1), kGarcia);
        QCOMPARE(TextoResultado(p),
                 QStringLiteral("Nombre empieza por 'G' 3 contribuyente(s) seleccionado(s). "));
    }

    void laCajaVuelveConSuPrefijo()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "GO");
        ClicCabecera(Grid(p), 3);  // leaves the box, and column 3 takes none
        QVERIFY(!Caja(p)->isVisible());
        QCOMPARE(Grid(p)->TextMatrix(1, 1), QStringLiteral("GO"));
        ClicCabecera(Grid(p), 1);
        QCOMPARE(Caja(p)->text(), QStringLiteral("GO"));
        QCOMPARE(Caja(p)->selectedText(), QStringLiteral("GO"));
        // Enter moves the focus on, which leaves the box.
        QTest::keyClick(Caja(p), Qt::Key_Return);
        QVERIFY(!Caja(p)->hasFocus());
        QCOMPARE(QApplication::focusWidget(), Boton(p, "cmdBuscar"));
        QTest::keyClick(Boton(p, "cmdBuscar"), Qt::Key_Space);
        QCOMPARE(ConLista().BUSQUEDA, QStringLiteral("N"));
        QCOMPARE(Grid(p)->TextMatrix(1, 1), kGomez);
        QCOMPARE(TextoResultado(p),
                 QStringLiteral("Nombre empieza por 'GO' 1 contribuyente(s) seleccionado(s). "));
    }

    void criteriosSinResultado()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "X");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(ConLista().NUMCONTRISEL, 0);
        QCOMPARE(Grid(p)->Rows(), 2);
        QCOMPARE(Fila(Grid(p), 1), QStringList(7));
        QCOMPARE(TextoResultado(p), QStringLiteral("Nombre empieza por 'X' ")
                 + Texto(kIdSinDatosCondicion));
        QCOMPARE(ConLista().CSCO, 0);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        QVERIFY(Boton(p, "cmdNuevo")->isEnabled());
        QVERIFY(Boton(p, "cmdTodos")->isEnabled());
    }

    void listaVaciaSinCriterios()
    {
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QCOMPARE(Grid(p)->Rows(), 2);
        QCOMPARE(TextoResultado(p), QStringLiteral("0 contribuyente(s) seleccionado(s) "));
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        QVERIFY(Boton(p, "cmdNuevo")->isEnabled());
        // A click on the empty row selects nobody.
        ClicCelda(Grid(p), 1, 1);
        QCOMPARE(ConLista().CSCO, 0);
    }

    void todosVuelveALaListaEntera()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 2, "3");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(ConLista().ORDEN, uint8_t(2));
        QCOMPARE(g->TextMatrix(1, 1), kGarcia);
        QTest::mouseClick(Boton(p, "cmdTodos"), Qt::LeftButton);
        QVERIFY(!ConLista().TABLASELECCION.has_value());
        QCOMPARE(ConLista().ORDEN, uint8_t(1));
        QCOMPARE(g->TextMatrix(1, 1), kAbad);
        QCOMPARE(ConLista().CSCO, m_abad);
        QCOMPARE(TextoResultado(p), QStringLiteral("5 contribuyente(s) seleccionado(s) "));
        // The buttons stay as they were until the next click.
        QVERIFY(Boton(p, "cmdTodos")->isEnabled());
        ClicCelda(g, 2, 1);
        QVERIFY(!Boton(p, "cmdTodos")->isEnabled());

        // From the search state too: the list comes, the buttons of the search stay.
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QTest::mouseClick(Boton(p, "cmdTodos"), Qt::LeftButton);
        QCOMPARE(ConLista().BUSQUEDA, QStringLiteral("N"));
        QCOMPARE(g->TextMatrix(1, 1), kAbad);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        ClicCelda(g, 1, 1);
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
    }

    void declaracionesSoloConContadores()
    {
        Poblar();
        NuevaDeclaracion(m_gomez, m_garcia);
        NuevaDeclaracion(m_gomez, 0);
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QCOMPARE(Fila(g, 3).mid(5), (QStringList{"0", "0"}));   // GIL
        QCOMPARE(Fila(g, 4).mid(5), (QStringList{"2", "0"}));   // GOMEZ
        QCOMPARE(Fila(g, 2).mid(5), (QStringList{"0", "1"}));   // GARCIA
        // Row 1, with both counters at 0: no declarations to see.
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        ClicCelda(g, 2, 1);
        QCOMPARE(ConLista().NUMTR, 1);
        QCOMPARE(ConLista().NUMSP, 0);
        QVERIFY(Boton(p, "CmdDeclaraciones")->isEnabled());
        QVERIFY(Etiqueta(p, "PicDeclaraciones")->isEnabled());
        ClicCelda(g, 3, 1);
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        ClicCelda(g, 4, 1);
        QCOMPARE(ConLista().NUMSP, 2);
        QVERIFY(Boton(p, "CmdDeclaraciones")->isEnabled());

        // The button hands the row's name and number to the declarations' panel.
        // The button opens the party's declarations, with the row's name and number.
        QTest::mouseClick(Boton(p, "CmdDeclaraciones"), Qt::LeftButton);
        Procesar();
        QCOMPARE((QStringList{ConDeclaraciones().LBLCONTRI, ConDeclaraciones().lbldni}), (QStringList{kGomez, "11000000D"}));
        QVERIFY(!Panel());
        QVERIFY(PanelAbierto("FrmConDeclaraciones"));
    }

    void losIconosSonSusBotones()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        // The grey icon of a disabled button does nothing.
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QVERIFY(!Etiqueta(p, "PicDatos")->isEnabled());
        QTest::mouseClick(Etiqueta(p, "PicDatos"), Qt::LeftButton);
        QVERIFY(Panel());
        QVERIFY(!PanelAbierto("FrmConDatos"));
        QTest::mouseClick(Boton(p, "cmdTodos"), Qt::LeftButton);
        ClicCelda(Grid(p), 1, 1);
        // The icon of Nuevo is Nuevo.
        QTest::mouseClick(Etiqueta(p, "PicNuevo"), Qt::LeftButton);
        QVERIFY(!Panel());
        QVERIFY(PanelAbierto("FrmConDatos"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaCon().modo), QStringLiteral("A"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaCon().origen), QStringLiteral("S"));
        QCOMPARE(ConDatos().CSCO, 0);
    }

    void elIconoAtrasCierra()
    {
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Etiqueta(p, "PicAtras"), Qt::LeftButton);
        QVERIFY(!Panel());
        QVERIFY(MenusActivos());
    }

    void modoEliminar()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        QCOMPARE(Navegacion::Letras(ConLista().MODO), QStringLiteral("E"));
        QCOMPARE(p->windowTitle(), QStringLiteral("Eliminar Contribuyente"));
        QCOMPARE(Boton(p, "cmdAceptar")->text(), QStringLiteral("  &Eliminar"));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(),
                 QStringLiteral("Eliminar el contribuyente seleccionado"));
        QVERIFY(Boton(p, "cmdAceptar")->isVisible());
        QVERIFY(Boton(p, "cmdCancelar")->isVisible());
        for (const char* oculto : {"cmdNuevo", "CmdDeclaraciones"})
            QVERIFY2(!Boton(p, oculto)->isVisible(), oculto);
        for (const char* oculto : {"PicNuevo", "PicDeclaraciones", "PicDatos", "PicAtras"})
            QVERIFY2(!Etiqueta(p, oculto)->isVisible(), oculto);
        QVERIFY(Etiqueta(p, "PicEliminar")->isVisible());
        QVERIFY(Etiqueta(p, "PicCancelar")->isVisible());
        QVERIFY(Etiqueta(p, "PicEliminar")->isEnabled());
        // Its search works as in the open mode.
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Etiqueta(p, "PicEliminar")->isEnabled());
        QVERIFY(Boton(p, "cmdTodos")->isEnabled());
        QCOMPARE(p->windowTitle(), QStringLiteral("Eliminar Contribuyente"));
        QTest::mouseClick(Etiqueta(p, "PicCancelar"), Qt::LeftButton);
        QVERIFY(!Panel());
    }

    void eliminarPreguntaYBorra()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        cFlexGrid* g = Grid(p);
        ClicCelda(g, 3, 1);   // GIL
        MensajeSeam::setNextAnswer(vb::No);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const MensajeSeam::Registro pregunta = MensajeSeam::registro().first();
        QCOMPARE(pregunta.texto, Texto(kIdPreguntaEliminarContribuyente) + "12000000E"
                 + Texto(kIdGuionEliminarContribuyente) + kGil
                 + Texto(kIdInterrogacionEliminarContribuyente));
        QCOMPARE(pregunta.texto, QStringLiteral("¿Está seguro que desea eliminar el contribuyente "
                                                "12000000E - GIL SANZ IKER ?"));
        QCOMPARE(pregunta.titulo, QStringLiteral("Borrado del contribuyente"));
        QCOMPARE(pregunta.botones, vb::Question + vb::YesNo + vb::DefaultButton2);
        QVERIFY(ExisteContribuyente(m_gil));
        QVERIFY(Panel());
        QVERIFY(g->hasFocus());

        // The icon asks the same; Yes deletes and the list stays with the rest.
        MensajeSeam::setNextAnswer(vb::Yes);
        QTest::mouseClick(Etiqueta(p, "PicEliminar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QVERIFY(!ExisteContribuyente(m_gil));
        QVERIFY(Panel());
        QCOMPARE(ConLista().NUMCONTRISEL, 4);
        QCOMPARE(TextoResultado(p), QStringLiteral("4 contribuyente(s) seleccionado(s) "));
        QCOMPARE(g->TextMatrix(3, 1), kGomez);
        QCOMPARE(FilasResaltadas(g), QList<int>{1});
        QCOMPARE(ConLista().CSCO, m_abad);
        QVERIFY(g->hasFocus());
    }

    void eliminarElUltimoCierraElPanel()
    {
        const int32_t unico = NuevoContribuyente("20000000B", kAbad);
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        QVERIFY(!MenusActivos());
        MensajeSeam::setNextAnswer(vb::Yes);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QVERIFY(!ExisteContribuyente(unico));
        QVERIFY(!Panel());
        QVERIFY(MenusActivos());
        QCOMPARE(MensajeSeam::registro().size(), 1);
    }

    void noSeBorraUnContribuyenteDeUnaDeclaracion()
    {
        Poblar();
        NuevaDeclaracion(m_zubiri, m_abad);
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        cFlexGrid* g = Grid(p);
        QCOMPARE(ConLista().CSCO, m_abad);
        QCOMPARE(ConLista().NUMTR, 1);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that it cannot be deleted
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const MensajeSeam::Registro aviso = MensajeSeam::registro().first();
        QCOMPARE(aviso.texto, Texto(kIdContribuyenteEnDeclaraciones));
        QCOMPARE(aviso.titulo, Texto(kIdBorradoContribuyente));
        QCOMPARE(aviso.botones, int(vb::Information));
        QVERIFY(ExisteContribuyente(m_abad));
        QVERIFY(g->hasFocus());
        // As subject too.
        ClicCelda(g, 5, 1);
        QCOMPARE(ConLista().NUMSP, 1);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that it cannot be deleted
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QCOMPARE(MensajeSeam::registro().last().texto, Texto(kIdContribuyenteEnDeclaraciones));
        QVERIFY(ExisteContribuyente(m_zubiri));
        QCOMPARE(ConLista().NUMCONTRISEL, 5);
    }

    void idaYVueltaConservaOrdenCriteriosYSeleccion()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "G");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        ClicCabecera(Grid(p), 2);             // by DNI: GOMEZ, GIL, GARCIA
        ClicCelda(Grid(p), 2, 1);
        QCOMPARE(ConLista().CSCO, m_gil);
        const QString resultado = TextoResultado(p);

        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QVERIFY(!Panel());
        QWidget* datos = PanelAbierto("FrmConDatos");
        QVERIFY(datos);
        QCOMPARE(ConDatos().CSCO, m_gil);
        QCOMPARE(datos->findChild<QLineEdit*>("txtnombrec")->text(), kGil);
        QVERIFY(!MenusActivos());

        QTest::mouseClick(datos->findChild<QPushButton*>("cmdCancelar"), Qt::LeftButton);
        QVERIFY(!PanelAbierto("FrmConDatos"));
        p = Panel();
        QVERIFY(p);
        QVERIFY(!MenusActivos());
        cFlexGrid* g = Grid(p);
        QCOMPARE(ConLista().ORDEN, uint8_t(2));
        QCOMPARE(ConLista().TABLASELECCION->size(), 1);
        QCOMPARE(ConLista().CSCO, m_gil);
        QCOMPARE(g->TextMatrix(1, 1), kGomez);
        QCOMPARE(g->TextMatrix(2, 1), kGil);
        QCOMPARE(g->TextMatrix(3, 1), kGarcia);
        QCOMPARE(FilasResaltadas(g), QList<int>{2});
        QCOMPARE(TextoResultado(p), resultado);
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
        const QRect dni = g->Celda(0, 2);
        QCOMPARE(Etiqueta(p, "picasc")->x(), g->x() + dni.right() + 1 - TwipsAPixeles(250));
    }

    void unNuevoContribuyenteVuelveElegido()
    {
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QTest::mouseClick(Boton(p, "cmdNuevo"), Qt::LeftButton);
        QWidget* datos = PanelAbierto("FrmConDatos");
        QVERIFY(datos);
        auto teclear = [&](const char* campo, const QString& texto) {
            QLineEdit* c = datos->findChild<QLineEdit*>(campo);
            QVERIFY2(c, campo);
            c->setFocus();
            QTest::keyClicks(c, texto);
        };
        teclear("txtdnic", "12345678Z");
        teclear("txtnombrec", "HERRERO ALBA");
        teclear("txtdomicilioc", "PLAZA");
        teclear("txtcodposc", "77001");
        teclear("txtcodmunc", "001");
        QTest::mouseClick(datos->findChild<QPushButton*>("cmdAceptar"), Qt::LeftButton);
        QVERIFY2(MensajeSeam::registro().isEmpty(),
                 qPrintable(MensajeSeam::registro().value(0).texto));
        QVERIFY(!PanelAbierto("FrmConDatos"));
        p = Panel();
        QVERIFY(p);
        cFlexGrid* g = Grid(p);
        QCOMPARE(ConLista().NUMCONTRISEL, 6);
        QCOMPARE(g->TextMatrix(5, 1), QStringLiteral("HERRERO ALBA"));
        QCOMPARE(FilasResaltadas(g), QList<int>{5});
        QCOMPARE(g->TextMatrix(g->Row(), 0), QString::number(ConLista().CSCO));
        QCOMPARE(g->TopRow(), 5);
        QCOMPARE(g->Rows(), 20);
    }

    void lineasEnEuskera()
    {
        m_entorno.reset();
        m_entorno = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        QVERIFY(m_entorno->activa());
        Poblar();
        FrmConLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QCOMPARE(Fila(g, 0), (QStringList{"Codigo", "Deiturak eta izena", "NA", "Helbidea",
                                          "Udalerria", "S.P.", "Tr."}));
        QCOMPARE(p->windowTitle(), QStringLiteral("Ireki zergaduna"));
        QCOMPARE(TextoResultado(p), QStringLiteral("5 hautatutako zergaduna(k) "));
        QCOMPARE(Etiqueta(p, "lblayuda")->text(), TextoFila(kIdAyudaOrdenarNombreDni + 10000));
        QCOMPARE(Boton(p, "cmdAceptar")->text(), QStringLiteral("  &Datuak"));
        QCOMPARE(Boton(p, "cmdBuscar")->text(), QStringLiteral("Bilaketa"));
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(Etiqueta(p, "lblayuda")->text(), TextoFila(kIdAyudaCriterioNombreDni + 10000));
        Teclear(p, 2, "1");
        QCOMPARE(Boton(p, "cmdBuscar")->text(), QStringLiteral("Emaitza"));
        Teclear(p, 1, "G");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(TextoResultado(p), QStringLiteral("NAren hasierako zifra '1' , Izenaren hasierako "
                                              "letra 'G' 2 hautatutako zergaduna(k). "));
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "X");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(TextoResultado(p), QStringLiteral("Izenaren hasierako letra 'X' ")
                 + TextoFila(kIdSinDatosCondicion + 10000));
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);

        p = Abrir(Navegacion::EntradaLista::Eliminar);
        QCOMPARE(p->windowTitle(), QStringLiteral("Deuseztatu zergaduna"));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(), QStringLiteral("Deuseztatu hautatutako zergaduna"));
        MensajeSeam::setNextAnswer(vb::No);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("Ziur al zaude 20000000B - ABAD RUIZ JON zergaduna deuseztatu nahi "
                                "duzula?"));
        QCOMPARE(MensajeSeam::registro().last().titulo, QStringLiteral("Ezabatu zergaduna"));
    }
};

QTEST_MAIN(TestConLista)
#include "test_conlista.moc"
