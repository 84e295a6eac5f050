// The import panel inside the main window: its opening from the menu with the start values,
// the choice of the file through the file dialog, the automatic mode, the question of the
// manual mode, the closing messages, the finished state with "&Salir", the failures that leave
// the panel ready, and both languages.
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
#include "registros/intercambio/cImportar.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

using namespace ApoyoIntercambio;
using namespace ControlesLista;

namespace {

QWidget* AbrirDesdeMenu(MDIVeldo* v)
{
    v->findChild<QAction*>(QStringLiteral("mnuImport"))->trigger();
    Procesar();
    return PanelAbierto(QStringLiteral("FrmImportar"));
}

QString Valor(QWidget* panel, const char* nombre)
{
    return Etiqueta(panel, nombre)->text();
}

}  // namespace

class TestFrmImportar : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_entorno;

    QWidget* Abrir(const QByteArray& contenido)
    {
        QWidget* panel = AbrirDesdeMenu(m_entorno->ventana());
        Escribir(Importar().FICHEROAIMPORTAR, contenido);
        return panel;
    }

private slots:
    void init() { m_entorno = std::make_unique<ProgramaDePrueba>(); }
    void cleanup() { m_entorno.reset(); }

    void aperturaDesdeElMenu()
    {
        QWidget* panel = AbrirDesdeMenu(m_entorno->ventana());
        QVERIFY(panel);
        QCOMPARE(panel->windowTitle(), QStringLiteral("Importación de contribuyentes"));
        QCOMPARE(Valor(panel, "LblFichero"), CarpetaDatos() + QStringLiteral("/CONTRI.txt"));
        for (const char* n : {"LblTotal", "LblImportados", "LblIncorrectos", "LblSustituidos",
                              "lblIgnorados"})
            QCOMPARE(Valor(panel, n), QStringLiteral("0"));
        QCOMPARE(Valor(panel, "Label6"), QStringLiteral("Ignorados:"));
        QVERIFY(Etiqueta(panel, "lblError")->isHidden());
        QVERIFY(Etiqueta(panel, "lblError2")->isHidden());
        QVERIFY(panel->findChild<QProgressBar*>(QStringLiteral("progreso"))->isHidden());
        QCOMPARE(Boton(panel, "cmdCancelar")->text(), QStringLiteral("&Cancelar"));
        QCOMPARE(Boton(panel, "CmdModificar")->text(), QStringLiteral("    &Modificar"));
        QCOMPARE(Boton(panel, "CmdModificar")->toolTip(), QStringLiteral("Modificar fichero"));
        QVERIFY(!panel->findChild<QCheckBox*>(QStringLiteral("ChkAutomatico"))->isChecked());
        // The menus are off while the panel is open.
        const auto utilidades = [this] {
            return m_entorno->ventana()->findChild<QMenu*>(QStringLiteral("mnuUtilidades"))->menuAction();
        };
        QVERIFY(!utilidades()->isEnabled());
        Boton(panel, "cmdCancelar")->click();
        Procesar();
        QVERIFY(!PanelAbierto(QStringLiteral("FrmImportar")));
        QVERIFY(utilidades()->isEnabled());
    }

    void elegirFichero()
    {
        QWidget* panel = AbrirDesdeMenu(m_entorno->ventana());
        const QString otro = CarpetaPrograma() + QStringLiteral("/otro.txt");
        DialogoFicheroSeam::setNextFileName(otro);
        QTest::mouseClick(Boton(panel, "CmdModificar"), Qt::LeftButton);
        QCOMPARE(DialogoFicheroSeam::registro().last().titulo, QStringLiteral("Archivo a importar ..."));
        QCOMPARE(DialogoFicheroSeam::registro().last().carpeta,
                 CarpetaDatos() + QStringLiteral("/CONTRI.txt"));
        QCOMPARE(Valor(panel, "LblFichero"), otro);
        // Cancelled: the file stays.
        DialogoFicheroSeam::setNextFileName(QString());
        Boton(panel, "CmdModificar")->click();
        QCOMPARE(Importar().FICHEROAIMPORTAR, otro);
    }

    void manualConPreguntaYMensajeFinal()
    {
        NuevoContribuyente(QString::fromLatin1(DniDe(1)), QStringLiteral("VIEJO"));
        QWidget* panel = Abrir(LineaValida(1, "NUEVO") + "\r\n" + LineaValida(2) + "\r\ncorta\r\n");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);
        QTest::mouseClick(Boton(panel, "cmdAceptar"), Qt::LeftButton);
        Procesar();
        const auto& r = MensajeSeam::registro();
        QCOMPARE(r.size(), 2);
        QCOMPARE(r[0].texto, QStringLiteral("El contribuyente con DNI ") + QString::fromLatin1(DniDe(1))
                                 + QStringLiteral(" ya existe.\n¿Está seguro que desea sustituirlo?"));
        QCOMPARE(r[0].botones, vb::Question + vb::YesNo + vb::DefaultButton2);
        QCOMPARE(r[0].titulo, QStringLiteral("Importación de contribuyentes"));
        QCOMPARE(r[1].texto, QStringLiteral("Hay 1 un contibuyente erróneo"));
        QCOMPARE(r[1].icono(), int(vb::Information));
        QCOMPARE(Valor(panel, "LblTotal"), QStringLiteral("3"));
        QCOMPARE(Valor(panel, "LblImportados"), QStringLiteral("2"));
        QCOMPARE(Valor(panel, "LblIncorrectos"), QStringLiteral("1"));
        QCOMPARE(Valor(panel, "LblSustituidos"), QStringLiteral("1"));
        QCOMPARE(Valor(panel, "lblIgnorados"), QStringLiteral("0"));
        QVERIFY(!Etiqueta(panel, "lblError")->isHidden());
        QCOMPARE(Valor(panel, "lblError2"), Importar().FICHEROERRORES);
        QVERIFY(QFile::exists(Importar().FICHEROERRORES));
        QVERIFY(panel->findChild<QProgressBar*>(QStringLiteral("progreso"))->isHidden());
        // Finished: only "&Salir" is left.
        QVERIFY(!Boton(panel, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(panel, "CmdModificar")->isEnabled());
        QCOMPARE(Boton(panel, "cmdCancelar")->text(), QStringLiteral("&Salir"));
        Boton(panel, "cmdCancelar")->click();
        Procesar();
        QVERIFY(!PanelAbierto(QStringLiteral("FrmImportar")));
    }

    // A spreadsheet's CSV chosen in the file dialog, in manual mode: the question for the
    // existing contributor, the row that cannot be split counted as incorrect and named in the
    // error file by its row.
    void hojaDeCalculoCsv()
    {
        NuevoContribuyente(QString::fromLatin1(DniDe(1)), QStringLiteral("VIEJO"));
        QWidget* panel = AbrirDesdeMenu(m_entorno->ventana());
        const QString hoja = CarpetaPrograma() + QStringLiteral("/clientes.csv");
        Escribir(hoja, "NOMBRE;DNI;TIPODNI;SIGLAS;DOMICILIO;TIPODOMICILIO;CODIGO PROVINCIA;"
                       "CODIGO POSTAL;CODIGO MUNICIPIO\r\n"
                       "\"NUEVO; NOMBRE\";" + DniDe(1) + ";O;CL;MAYOR;N;77;77001;1\r\n"
                       "OTRO;" + DniDe(2) + ";O;CL;MAYOR;N;77;77001;1;DE MAS\r\n"
                       "TERCERO;" + DniDe(3) + ";O;CL;MAYOR;N;77;77001;1\r\n");
        DialogoFicheroSeam::setNextFileName(hoja);
        QTest::mouseClick(Boton(panel, "CmdModificar"), Qt::LeftButton);
        QCOMPARE(Valor(panel, "LblFichero"), hoja);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);
        QTest::mouseClick(Boton(panel, "cmdAceptar"), Qt::LeftButton);
        Procesar();
        const auto& r = MensajeSeam::registro();
        QCOMPARE(r.size(), 2);
        QVERIFY(r[0].texto.startsWith(QStringLiteral("El contribuyente con DNI ") + QString::fromLatin1(DniDe(1))));
        QCOMPARE(r[1].texto, QStringLiteral("Hay 1 un contibuyente erróneo"));
        QCOMPARE(Valor(panel, "LblTotal"), QStringLiteral("3"));
        QCOMPARE(Valor(panel, "LblImportados"), QStringLiteral("2"));
        QCOMPARE(Valor(panel, "LblIncorrectos"), QStringLiteral("1"));
        QCOMPARE(Valor(panel, "LblSustituidos"), QStringLiteral("1"));
        QVERIFY(Leer(Importar().FICHEROERRORES)
                    .startsWith("Linea 3 - La fila tiene m\xE1s campos que la primera fila del fichero\r\n"));
    }

    void manualNoIgnora()
    {
        NuevoContribuyente(QString::fromLatin1(DniDe(1)), QStringLiteral("VIEJO"));
        QWidget* panel = Abrir(LineaValida(1, "NUEVO") + "\r\n");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::No);
        Boton(panel, "cmdAceptar")->click();
        // No closing message: every line was ignored.
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(Valor(panel, "lblIgnorados"), QStringLiteral("1"));
        QVERIFY(Etiqueta(panel, "lblError")->isHidden());
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
    }

    void automaticoSinPreguntas()
    {
        NuevoContribuyente(QString::fromLatin1(DniDe(1)), QStringLiteral("VIEJO"));
        QWidget* panel = Abrir(LineaValida(1, "NUEVO") + "\r\n" + LineaValida(2));
        auto* chk = panel->findChild<QCheckBox*>(QStringLiteral("ChkAutomatico"));
        const QPoint casilla(6, chk->height() / 2);  // on the box itself
        QTest::mouseClick(chk, Qt::LeftButton, {}, casilla);
        QCOMPARE(Importar().AUTOMATICO, QStringLiteral("X"));
        QTest::mouseClick(chk, Qt::LeftButton, {}, casilla);
        QCOMPARE(Importar().AUTOMATICO, QStringLiteral(" "));
        chk->click();
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto,
                 QStringLiteral("Sus datos han sido importados correctamente"));
        QCOMPARE(Valor(panel, "LblSustituidos"), QStringLiteral("1"));
        QVERIFY(chk->isChecked());
    }

    void todosErroneos()
    {
        QWidget* panel = Abrir("a\r\nb\r\n");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("Todos los contribuyentes que desea importar son erróneos"));
    }

    void vacioEnSilencio()
    {
        QWidget* panel = Abrir(QByteArray());
        MensajeSeam::limpiar();
        Boton(panel, "cmdAceptar")->click();
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(Valor(panel, "LblTotal"), QStringLiteral("0"));
        QCOMPARE(Boton(panel, "cmdCancelar")->text(), QStringLiteral("&Salir"));
    }

    void falloDejaElPanelListo()
    {
        QWidget* panel = AbrirDesdeMenu(m_entorno->ventana());
        Importar().FICHEROAIMPORTAR = CarpetaPrograma() + QStringLiteral("/no-esta.txt");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto,
                 QStringLiteral("No existe el fichero que desea importar"));
        QVERIFY(Boton(panel, "cmdAceptar")->isEnabled());
        QCOMPARE(Boton(panel, "cmdCancelar")->text(), QStringLiteral("&Cancelar"));
        // The error file is the exchange file: 312, and then again, as the file stays open.
        Escribir(CarpetaPrograma() + QStringLiteral("/x.txt"), LineaValida(1) + "\r\n");
        Importar().FICHEROAIMPORTAR = CarpetaPrograma() + QStringLiteral("/x.txt");
        Importar().FICHEROERRORES = Importar().FICHEROAIMPORTAR;
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().last().texto, QStringLiteral("El fichero ya está abierto"));
        QCOMPARE(Valor(panel, "LblTotal"), QStringLiteral("0"));
    }

    void enEuskera()
    {
        m_entorno.reset();
        m_entorno = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        QWidget* panel = Abrir(LineaValida(1) + "\r\n");
        QCOMPARE(panel->windowTitle(), TextoFila(kIdImportacionContribuyentes + 10000));
        QCOMPARE(Valor(panel, "Label4"), TextoFila(kIdEtiquetaTotal + 10000));
        QCOMPARE(panel->findChild<QCheckBox*>(QStringLiteral("ChkAutomatico"))->text(),
                 TextoFila(kIdAutomatico + 10000));
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Boton(panel, "cmdAceptar")->click();
        QCOMPARE(MensajeSeam::registro().last().texto,
                 TextoFila(kIdImportadosCorrectamente + 10000));
        QCOMPARE(Boton(panel, "cmdCancelar")->text(), TextoFila(kIdMenuSalir + 10000));
    }
};

QTEST_MAIN(TestFrmImportar)
#include "test_frmimportar.moc"
