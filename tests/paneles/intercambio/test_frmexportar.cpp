// The export panel inside the main window: opening from the menu, the grids in pages of 13,
// selecting one, all and again, deselecting, the search typed over a heading and its result
// lines, ordering by a heading, the file chosen through the file dialog, the check of the
// numbers and its warning, the target, the question 250 whose No still overwrites, the file in
// the order of selection, and both languages.
#include "ApoyoIntercambio.h"
#include "ApoyoListas.h"
#include "catalogo/IdsCatalogo.h"
#include "comun/PartesPrueba.h"
#include "comun/ProgramaPrueba.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "registros/intercambio/cExportar.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace ApoyoIntercambio;
using namespace ControlesLista;

namespace {

cFlexGrid* Grid(QWidget* panel, const char* nombre)
{
    return panel->findChild<cFlexGrid*>(QString::fromLatin1(nombre));
}

QString NumeroDni(quint32 n)
{
    return QString::fromLatin1(DniDe(n));
}

}  // namespace

class TestFrmExportar : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_entorno;

    QWidget* AbrirDesdeMenu()
    {
        m_entorno->ventana()->ActualizarMenus();
        m_entorno->ventana()->findChild<QAction*>(QStringLiteral("mnuExport"))->trigger();
        Procesar();
        return PanelAbierto(QStringLiteral("FrmExportar"));
    }

    // n contributors ALFA 01, ALFA 02... with valid numbers 1..n; answers their codes.
    QList<int32_t> Poblar(int n, const QString& nombre = QStringLiteral("ALFA"))
    {
        QList<int32_t> codigos;
        for (int i = 1; i <= n; ++i)
            codigos << NuevoContribuyente(NumeroDni(quint32(i)),
                                          QStringLiteral("%1 %2").arg(nombre).arg(i, 2, 10, QLatin1Char('0')));
        return codigos;
    }

private slots:
    void init() { m_entorno = std::make_unique<ProgramaDePrueba>(); }
    void cleanup() { m_entorno.reset(); }

    void aperturaYPaginas()
    {
        Poblar(13);
        QWidget* panel = AbrirDesdeMenu();
        QVERIFY(panel);
        QCOMPARE(panel->windowTitle(), QStringLiteral("Exportación de contribuyentes"));
        QCOMPARE(Etiqueta(panel, "lblTitulo")->text(), Texto(kIdAyudaSeleccionExportar));
        cFlexGrid* encontrados = Grid(panel, "flxDeclaraciones");
        QCOMPARE(encontrados->Rows(), 14);
        QCOMPARE(Fila(encontrados, 0),
                 (QStringList{QStringLiteral("NºCon."), QStringLiteral("Apellidos y Nombre"),
                              QStringLiteral("DNI")}));
        QCOMPARE(Fila(encontrados, 1).mid(1), (QStringList{QStringLiteral("ALFA 01"), NumeroDni(1)}));
        QCOMPARE(Etiqueta(panel, "lblResultado1")->text(),
                 QStringLiteral("13 contribuyente(s) en la lista "));
        QCOMPARE(Etiqueta(panel, "LblResultado2")->text(),
                 QStringLiteral("0 contribuyente(s) seleccionado(s) para exportar "));
        QCOMPARE(Etiqueta(panel, "LblFichero")->text(), CarpetaDatos() + QStringLiteral("/CONTRI.txt"));
        // The first row is selected; nothing to export yet.
        QCOMPARE(FilasResaltadas(encontrados), QList<int>{1});
        QVERIFY(Boton(panel, "CmdSelUno")->isEnabled());
        QVERIFY(Boton(panel, "CmdSelTodos")->isEnabled());
        QVERIFY(!Boton(panel, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(panel, "CmdDeselUno")->isEnabled());
        QVERIFY(!Boton(panel, "CmdDeselTodos")->isEnabled());
        QCOMPARE(Grid(panel, "FlxSeleccionados")->Rows(), 2);
        Boton(panel, "cmdCancelar")->click();
        Procesar();
        QVERIFY(!PanelAbierto(QStringLiteral("FrmExportar")));
        NuevoContribuyente(NumeroDni(14), QStringLiteral("ALFA 14"));
        QCOMPARE(Grid(AbrirDesdeMenu(), "flxDeclaraciones")->Rows(), 27);
    }

    void seleccionarUnoYTodos()
    {
        const QList<int32_t> c = Poblar(3);
        QWidget* panel = AbrirDesdeMenu();
        cFlexGrid* encontrados = Grid(panel, "flxDeclaraciones");
        cFlexGrid* elegidos = Grid(panel, "FlxSeleccionados");
        ClicCelda(encontrados, 2, 1);
        QCOMPARE(Exportar().CSCO, c[1]);
        QTest::mouseClick(Boton(panel, "CmdSelUno"), Qt::LeftButton);
        // The selection moves on to the next row.
        QCOMPARE(Exportar().CSCO, c[2]);
        QCOMPARE(FilasResaltadas(encontrados), QList<int>{3});
        QCOMPARE(Fila(elegidos, 1).first(), QString::number(c[1]));
        // The same one again: still one line.
        ClicCelda(encontrados, 2, 1);
        Boton(panel, "CmdSelUno")->click();
        QCOMPARE(Exportar().NUMCONTRIEXP, 1);
        Boton(panel, "CmdSelTodos")->click();
        QCOMPARE(Exportar().NUMCONTRIEXP, 3);
        QCOMPARE(Fila(elegidos, 2).first(), QString::number(c[0]));
        QCOMPARE(Fila(elegidos, 3).first(), QString::number(c[2]));
        QCOMPARE(Etiqueta(panel, "LblResultado2")->text(),
                 QStringLiteral("3 contribuyente(s) seleccionado(s) para exportar "));
        QVERIFY(Boton(panel, "cmdAceptar")->isEnabled());
        // Deselect the one clicked, then all.
        ClicCelda(elegidos, 2, 1);
        QCOMPARE(Exportar().CSCOEXP, c[0]);
        Boton(panel, "CmdDeselUno")->click();
        QCOMPARE(Exportar().NUMCONTRIEXP, 2);
        QCOMPARE(Fila(elegidos, 2).first(), QString::number(c[2]));
        QCOMPARE(Exportar().CSCOEXP, c[1]);
        Boton(panel, "CmdDeselTodos")->click();
        QCOMPARE(Exportar().NUMCONTRIEXP, 0);
        QVERIFY(!Boton(panel, "cmdAceptar")->isEnabled());
    }

    void busquedaYOrden()
    {
        Poblar(3, QStringLiteral("ALFA"));
        NuevoContribuyente(NumeroDni(20), QStringLiteral("BETA 20"));
        QWidget* panel = AbrirDesdeMenu();
        cFlexGrid* encontrados = Grid(panel, "flxDeclaraciones");
        // Select one first: it stays selected across searches.
        Boton(panel, "CmdSelUno")->click();
        Boton(panel, "cmdBuscar")->click();
        QCOMPARE(Exportar().BUSQUEDA, QStringLiteral("B"));
        QVERIFY(!Boton(panel, "cmdBuscar")->isEnabled());
        QVERIFY(!Boton(panel, "CmdSelTodos")->isEnabled());
        QCOMPARE(Etiqueta(panel, "lblayuda")->text().trimmed(),
                 Texto(kIdAyudaCriterioSeleccion).trimmed());
        ClicCelda(encontrados, 1, 1);
        QLineEdit* caja = Caja(panel);
        QVERIFY(caja->isVisible());
        QTest::keyClicks(caja, QStringLiteral("BE"));
        Boton(panel, "cmdBuscar")->setFocus(Qt::MouseFocusReason);  // leaving the box
        Procesar();
        QVERIFY(Boton(panel, "cmdBuscar")->isEnabled());
        QCOMPARE(Boton(panel, "cmdBuscar")->text(), QStringLiteral("Resultado"));
        Boton(panel, "cmdBuscar")->click();
        QCOMPARE(Etiqueta(panel, "lblResultado1")->text(),
                 QStringLiteral("Nombre empieza por, 'BE' 1 contribuyente(s) seleccionado(s). "));
        QCOMPARE(Fila(encontrados, 1).at(1), QStringLiteral("BETA 20"));
        Boton(panel, "CmdSelTodos")->click();
        QCOMPARE(Exportar().NUMCONTRIEXP, 2);
        // A search without result.
        Boton(panel, "cmdBuscar")->click();
        ClicCelda(encontrados, 1, 2);
        QTest::keyClicks(Caja(panel), QStringLiteral("9"));
        Boton(panel, "cmdBuscar")->setFocus(Qt::MouseFocusReason);
        Procesar();
        Boton(panel, "cmdBuscar")->click();
        QCOMPARE(Etiqueta(panel, "lblResultado1")->text(),
                 QStringLiteral("DNI empieza por '9' ") + Texto(kIdSinDatosCondicion));
        QVERIFY(!Boton(panel, "CmdSelUno")->isEnabled());
        QVERIFY(!Boton(panel, "CmdSelTodos")->isEnabled());
        QCOMPARE(Exportar().NUMCONTRIEXP, 2);
        // All again, ordered by number with a click on its heading.
        Boton(panel, "cmdTodos")->click();
        QCOMPARE(encontrados->Rows(), 14);
        ClicCabecera(encontrados, 2);
        QCOMPARE(int(Exportar().ORDEN), 2);
        QCOMPARE(Fila(encontrados, 4).at(2), NumeroDni(20));
    }

    void exportarConPregunta250()
    {
        const QList<int32_t> c = Poblar(2);
        QWidget* panel = AbrirDesdeMenu();
        const QString destino = CarpetaPrograma() + QStringLiteral("/salida");
        DialogoFicheroSeam::setNextFileName(destino);
        Boton(panel, "CmdModificar")->click();
        QCOMPARE(DialogoFicheroSeam::registro().last().titulo, QStringLiteral("Exportar a ..."));
        QVERIFY(DialogoFicheroSeam::registro().last().guardar);
        QCOMPARE(Etiqueta(panel, "LblFichero")->text(), destino + QStringLiteral(".txt"));
        Escribir(destino + QStringLiteral(".txt"), "ANTES");
        ClicCelda(Grid(panel, "flxDeclaraciones"), 2, 1);
        Boton(panel, "CmdSelUno")->click();
        ClicCelda(Grid(panel, "flxDeclaraciones"), 1, 1);
        Boton(panel, "CmdSelUno")->click();
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::No);
        QTest::mouseClick(Boton(panel, "cmdAceptar"), Qt::LeftButton);
        Procesar();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdPreguntaReemplazarArchivo));
        QCOMPARE(MensajeSeam::registro()[0].titulo, QStringLiteral("Confirmación ..."));
        QCOMPARE(MensajeSeam::registro()[0].botones, vb::YesNo + vb::Question);
        // No all the same: the file is overwritten, in the order of selection, and the panel
        // closes without a word.
        const QByteArray bytes = Leer(destino + QStringLiteral(".txt"));
        QCOMPARE(bytes, Linea({"O", DniDe(2), "ALFA 02", "CL", "MAYOR", "7", "B", "1", "2", "IZQ", "N",
                               "", "77", "", "77001", "1", "", "0", "0"})
                            + "\r\n"
                            + Linea({"O", DniDe(1), "ALFA 01", "CL", "MAYOR", "7", "B", "1", "2", "IZQ",
                                     "N", "", "77", "", "77001", "1", "", "0", "0"})
                            + "\r\n");
        QVERIFY(!PanelAbierto(QStringLiteral("FrmExportar")));
        Q_UNUSED(c);
    }

    void numeroErroneoParaLaExportacion()
    {
        NuevoContribuyente(QStringLiteral("12345678"), QStringLiteral("SIN LETRA"));
        Poblar(1);
        QWidget* panel = AbrirDesdeMenu();
        Boton(panel, "CmdSelTodos")->click();
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto,
                 QStringLiteral("El/Los Interviniente/s con NIF: 12345678 tiene/n un NIF erróneo "
                                "o necesita/n llevar el dígito de control"));
        QCOMPARE(MensajeSeam::registro()[0].titulo, panel->windowTitle());
        QVERIFY(!QFile::exists(Exportar().FICHEROAEXPORTAR));
        QVERIFY(PanelAbierto(QStringLiteral("FrmExportar")));
    }

    void noHayDisquete()
    {
        Poblar(1);
        QWidget* panel = AbrirDesdeMenu();
        Boton(panel, "CmdSelTodos")->click();
        Exportar().FICHEROAEXPORTAR = CarpetaPrograma() + QStringLiteral("/no/hay/F.txt");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("         No hay disquete en la unidad"));
        QVERIFY(PanelAbierto(QStringLiteral("FrmExportar")));
    }

    void enEuskera()
    {
        m_entorno.reset();
        m_entorno = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        Poblar(2);
        QWidget* panel = AbrirDesdeMenu();
        QCOMPARE(panel->windowTitle(), TextoFila(kIdExportacionContribuyentes + 10000));
        QCOMPARE(Fila(Grid(panel, "flxDeclaraciones"), 0).mid(1),
                 (QStringList{QStringLiteral("Deiturak eta izena"), QStringLiteral("NA")}));
        QCOMPARE(Etiqueta(panel, "lblResultado1")->text(), QStringLiteral("2")
                 + TextoFila(kIdContribuyentesEnLista + 10000));
        QCOMPARE(Boton(panel, "cmdAceptar")->toolTip(),
                 TextoFila(kIdExportarSeleccionados + 10000));
    }
};

QTEST_MAIN(TestFrmExportar)
#include "test_frmexportar.moc"
