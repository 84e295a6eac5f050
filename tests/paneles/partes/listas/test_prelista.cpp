// The list of presenters: the same panel as the contributors' list with its own columns,
// counter, texts, store and data panel. These tests go through what differs, and through the
// shared behaviour once more on this panel: pages, ordering, search, deletion, the round trip.
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
#include "paneles/partes/FrmPreDatos.h"
#include "paneles/partes/FrmPreLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace {

const QString kAlonso = QStringLiteral("ALONSO GESTORIA");
const QString kGoiri = QStringLiteral("GOIRI ASESORES");
const QString kUrkia = QStringLiteral("URKIA IKER");

}  // namespace

using namespace ControlesLista;

class TestPreLista : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_entorno;
    int32_t m_alonso = 0, m_goiri = 0, m_urkia = 0;

    void Poblar()
    {
        m_urkia = NuevoPresentador("10000000A", kUrkia, "KALE NAGUSIA");
        m_goiri = NuevoPresentador("30000000B", kGoiri);
        m_alonso = NuevoPresentador("20000000C", kAlonso);
    }

    static FrmPreLista* Abrir(Navegacion::EntradaLista entrada)
    {
        Navegacion::AbrirPreLista(entrada);
        return Panel();
    }
    static FrmPreLista* Panel()
    {
        return qobject_cast<FrmPreLista*>(PanelAbierto(QStringLiteral("FrmPreLista")));
    }
    static cFlexGrid* Grid(QWidget* p) { return p->findChild<cFlexGrid*>("flxPresentadores"); }
    bool MenusActivos() const
    {
        return m_entorno->ventana()->findChild<QMenu*>("mnuPresentador")->menuAction()->isEnabled();
    }
    static void Teclear(QWidget* p, int columna, const QString& texto)
    {
        ClicCabecera(Grid(p), columna);
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
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QVERIFY(p);
        QVERIFY(!MenusActivos());
        QCOMPARE(p->windowTitle(), QStringLiteral("Abrir Presentador"));
        cFlexGrid* g = Grid(p);
        QCOMPARE(g->Cols(), 6);
        QCOMPARE(Fila(g, 0), (QStringList{"Codigo", "Apellidos y Nombre", "DNI", "Calle",
                                          "Municipio", "Nº Decla"}));
        QCOMPARE(g->ColWidth(0), 0);
        QCOMPARE(g->ColWidth(1), TwipsAPixeles(2800));
        QCOMPARE(g->ColWidth(3), TwipsAPixeles(2165));
        QCOMPARE(g->ColWidth(4), TwipsAPixeles(2200));
        QCOMPARE(g->ColWidth(5), TwipsAPixeles(750));
        QVERIFY(g->model()->index(0, 5).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
        QCOMPARE(g->Rows(), 16);
        QCOMPARE(Fila(g, 1), (QStringList{QString::number(m_alonso), kAlonso, "20000000C", "MAYOR",
                                          "ARBELGAIN", "0"}));
        QCOMPARE(g->TextMatrix(3, 1), kUrkia);
        QCOMPARE(FilasResaltadas(g), QList<int>{1});
        QCOMPARE(PreLista().CSPR, m_alonso);
        QCOMPARE(TextoResultado(p), QStringLiteral("3 presentador(es) seleccionado(s) "));
        QCOMPARE(Etiqueta(p, "lblayuda")->text(), Texto(kIdAyudaOrdenarNombreDni));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(), QStringLiteral("Datos del presentador"));
        QCOMPARE(Boton(p, "cmdNuevo")->toolTip(), QStringLiteral("Nuevo presentador"));
        QCOMPARE(Boton(p, "CmdDeclaraciones")->text(), QStringLiteral("         D&eclaraciones"));
        QVERIFY(Boton(p, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        QTest::mouseClick(Etiqueta(p, "PicAtras"), Qt::LeftButton);
        QVERIFY(!Panel());
        QVERIFY(MenusActivos());
    }

    void desdeElMenuPrincipal()
    {
        Poblar();
        MDIVeldo* v = m_entorno->ventana();
        v->ActualizarMenus();
        emit v->findChild<QMenu*>("mnuPresentador")->aboutToShow();
        v->findChild<QAction*>("mnuEliminarPresentador")->trigger();
        FrmPreLista* p = Panel();
        QVERIFY(p);
        QCOMPARE(Navegacion::Letras(PreLista().MODO), QStringLiteral("E"));
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);
        emit v->findChild<QMenu*>("mnuPresentador")->aboutToShow();
        v->findChild<QAction*>("mnuAbrirPresentador")->trigger();
        p = Panel();
        QVERIFY(p);
        QCOMPARE(Navegacion::Letras(PreLista().MODO), QStringLiteral("C"));
        QCOMPARE(p->windowTitle(), QStringLiteral("Abrir Presentador"));
    }

    void paginasYFilaElegida()
    {
        for (int i = 1; i <= 16; ++i)
            NuevoPresentador(QStringLiteral("%1P").arg(60000000 + i),
                             QStringLiteral("PRESENTADOR %1").arg(i, 2, 10, QLatin1Char('0')));
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QCOMPARE(Grid(p)->Rows(), 31);
        ClicCelda(Grid(p), 25, 1);
        QCOMPARE(PreLista().CSPR, 0);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);

        // A page of its own: the row asked for is brought to the top.
        m_entorno.reset();
        m_entorno = std::make_unique<ProgramaDePrueba>();
        Poblar();
        PreLista().CSPR = m_urkia;
        p = Abrir(Navegacion::EntradaLista::Vuelta);
        QCOMPARE(Grid(p)->Rows(), 18);
        QCOMPARE(Grid(p)->TopRow(), 3);
        QCOMPARE(FilasResaltadas(Grid(p)), QList<int>{3});
    }

    void ordenYBusqueda()
    {
        Poblar();
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        ClicCabecera(g, 4);
        QCOMPARE(PreLista().ORDEN, uint8_t(1));
        ClicCabecera(g, 2);
        QCOMPARE(PreLista().ORDEN, uint8_t(2));
        QCOMPARE(g->TextMatrix(1, 1), kUrkia);
        QCOMPARE(PreLista().CSPR, m_urkia);

        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(g->Rows(), 2);
        ClicCelda(g, 1, 5);
        QVERIFY(!Caja(p)->isVisible());
        Teclear(p, 1, "g");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(PreLista().ORDEN, uint8_t(1));
        QCOMPARE(g->TextMatrix(1, 1), kGoiri);
        QCOMPARE(g->TextMatrix(2, 1), QString());
        QCOMPARE(TextoResultado(p),
                 QStringLiteral("Nombre empieza por 'G' 1 presentador(es) seleccionado(s). "));

        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 2, "9");
        Teclear(p, 1, "A");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        QCOMPARE(TextoResultado(p), QStringLiteral("DNI empieza por '9' , Nombre empieza por 'A' ")
                                   + Texto(kIdSinDatosCondicion));
        QCOMPARE(PreLista().NUMPRESENSEL, 0);
        QVERIFY(!Boton(p, "cmdAceptar")->isEnabled());
        QTest::mouseClick(Boton(p, "cmdTodos"), Qt::LeftButton);
        QCOMPARE(TextoResultado(p), QStringLiteral("3 presentador(es) seleccionado(s) "));
    }

    void declaracionesDelPresentador()
    {
        Poblar();
        NuevaDeclaracion(0, 0, m_goiri);
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        cFlexGrid* g = Grid(p);
        QCOMPARE(g->TextMatrix(2, 5), QStringLiteral("1"));
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isEnabled());
        ClicCelda(g, 2, 2);
        QCOMPARE(PreLista().NUMDECLARACIONES, 1);
        QVERIFY(Boton(p, "CmdDeclaraciones")->isEnabled());
        // The button opens the party's declarations, with the row's name and number.
        QTest::mouseClick(Etiqueta(p, "PicDeclaraciones"), Qt::LeftButton);
        Procesar();
        QCOMPARE((QStringList{PreDeclaraciones().LBLPRESEN, PreDeclaraciones().lbldni}), (QStringList{kGoiri, "30000000B"}));
        QVERIFY(!Panel());
        QVERIFY(PanelAbierto("FrmPreDeclaraciones"));
    }

    void eliminar()
    {
        Poblar();
        NuevaDeclaracion(0, 0, m_alonso);
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        QCOMPARE(p->windowTitle(), QStringLiteral("Eliminar Presentador"));
        QCOMPARE(Boton(p, "cmdAceptar")->text(), QStringLiteral("  &Eliminar"));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(),
                 QStringLiteral("Eliminar el presentador seleccionado"));
        QVERIFY(!Boton(p, "cmdNuevo")->isVisible());
        QVERIFY(!Boton(p, "CmdDeclaraciones")->isVisible());
        QVERIFY(Etiqueta(p, "PicEliminar")->isVisible());

        // One named in a declaration is refused, without a question.
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that it cannot be deleted
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().last().texto, Texto(kIdPresentadorEnDeclaraciones));
        QCOMPARE(MensajeSeam::registro().last().titulo, QStringLiteral("Borrado del presentador"));
        QCOMPARE(MensajeSeam::registro().last().botones, int(vb::Information));
        QVERIFY(ExistePresentador(m_alonso));

        ClicCelda(Grid(p), 2, 1);
        MensajeSeam::setNextAnswer(vb::No);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("¿Está seguro que desea eliminar el presentador 30000000B - "
                                "GOIRI ASESORES ?"));
        QCOMPARE(MensajeSeam::registro().last().titulo, Texto(kIdBorradoPresentador));
        QCOMPARE(MensajeSeam::registro().last().botones, 292);
        QVERIFY(ExistePresentador(m_goiri));

        MensajeSeam::setNextAnswer(vb::Yes);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QVERIFY(!ExistePresentador(m_goiri));
        QCOMPARE(TextoResultado(p), QStringLiteral("2 presentador(es) seleccionado(s) "));
        QCOMPARE(Grid(p)->TextMatrix(2, 1), kUrkia);
        QVERIFY(Panel());
    }

    void eliminarElUltimoCierraElPanel()
    {
        const int32_t unico = NuevoPresentador("10000000A", kUrkia);
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Eliminar);
        MensajeSeam::setNextAnswer(vb::Yes);
        QTest::mouseClick(Etiqueta(p, "PicEliminar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY(!ExistePresentador(unico));
        QVERIFY(!Panel());
        QVERIFY(MenusActivos());
    }

    void idaYVueltaConElPresentador()
    {
        Poblar();
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        ClicCabecera(Grid(p), 2);
        ClicCelda(Grid(p), 3, 1);
        QCOMPARE(PreLista().CSPR, m_goiri);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QVERIFY(!Panel());
        QWidget* datos = PanelAbierto("FrmPreDatos");
        QVERIFY(datos);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaPre().modo), QStringLiteral("C"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaPre().origen), QStringLiteral("S"));
        QCOMPARE(PreDatos().CSPR, m_goiri);
        QTest::mouseClick(datos->findChild<QPushButton*>("cmdCancelar"), Qt::LeftButton);
        p = Panel();
        QVERIFY(p);
        QCOMPARE(PreLista().ORDEN, uint8_t(2));
        QCOMPARE(Grid(p)->TextMatrix(3, 1), kGoiri);
        QCOMPARE(FilasResaltadas(Grid(p)), QList<int>{3});
        QCOMPARE(PreLista().CSPR, m_goiri);

        QTest::mouseClick(Boton(p, "cmdNuevo"), Qt::LeftButton);
        QVERIFY(PanelAbierto("FrmPreDatos"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaPre().modo), QStringLiteral("A"));
        QCOMPARE(PreDatos().CSPR, 0);
    }

    void lineasEnEuskera()
    {
        m_entorno.reset();
        m_entorno = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        QVERIFY(m_entorno->activa());
        Poblar();
        FrmPreLista* p = Abrir(Navegacion::EntradaLista::Abrir);
        QCOMPARE(Fila(Grid(p), 0), (QStringList{"Codigo", "Deiturak eta izena", "NA", "Helbidea",
                                                "Udalerria", "Aitor.Zk."}));
        QCOMPARE(p->windowTitle(), QStringLiteral("Ireki aurkezlea"));
        QCOMPARE(TextoResultado(p), QStringLiteral("3 hautatutako aurkezlea(k) "));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(), QStringLiteral("Aurkezlearen datuak"));
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        Teclear(p, 1, "G");
        Teclear(p, 2, "3");
        QTest::mouseClick(Boton(p, "cmdBuscar"), Qt::LeftButton);
        // No point after the count in Basque, unlike the contributors' line.
        QCOMPARE(TextoResultado(p), QStringLiteral("Izzenaren hasierako letra 'G' , NAren hasierako "
                                              "zifra '3' 1 hautatutako aurkezlea(k) "));
        QTest::mouseClick(Boton(p, "cmdCancelar"), Qt::LeftButton);
        p = Abrir(Navegacion::EntradaLista::Eliminar);
        QCOMPARE(p->windowTitle(), QStringLiteral("Deuseztatu aurkezlea"));
        QCOMPARE(Boton(p, "cmdAceptar")->toolTip(), QStringLiteral("Deuseztatu hautatutako aurkezlea"));
        MensajeSeam::setNextAnswer(vb::No);
        QTest::mouseClick(Boton(p, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("Ziur al zaude 20000000C - ALONSO GESTORIA aurkezlea deuseztatu "
                                "nahi duzula?"));
    }
};

QTEST_MAIN(TestPreLista)
#include "test_prelista.moc"
