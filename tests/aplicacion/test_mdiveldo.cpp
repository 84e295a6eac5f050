// The main window: menus and toolbar in both languages, the enabling rules with the counters,
// the recent declarations, the ways out, help, backup and restore from the menu.
#include "catalogo/IdsCatalogo.h"
#include "comun/ProgramaPrueba.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "comun/CapturaModal.h"
#include "comun/Entorno.h"
#include "comun/DeclaracionPrueba.h"
#include "registros/declaracion/cDecDatos.h"

#include "aplicacion/Arranque.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/Navegador.h"
#include "plataforma/Proceso.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cTraspaso.h"

#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <memory>
#include <optional>

class TestMDIVeldo : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    MDIVeldo* m_ventana = nullptr;
    // Every box of a test has its answer queued; the closing after the test is no part of it.
    std::optional<MensajesEstrictos> m_estrictos;

    QAction* accion(const char* nombre) const
    {
        return m_ventana->findChild<QAction*>(QLatin1String(nombre));
    }
    QMenu* menu(const char* nombre) const { return m_ventana->findChild<QMenu*>(QLatin1String(nombre)); }
    QAction* boton(int n) const { return m_ventana->findChild<QToolBar*>("Toolbar1")->actions().at(n - 1); }
    void desplegar(const char* nombre) const { emit menu(nombre)->aboutToShow(); }

private slots:
    void init()
    {
        m_carpeta = ProgramaConAlmacenNuevo();
        m_ventana = VentanaMDI();
        m_estrictos.emplace();
    }
    void cleanup()
    {
        m_estrictos.reset();
        ReiniciarEstado();
        m_ventana = nullptr;
        m_carpeta.reset();
    }

    void arbolDeMenusYBarra()
    {
        for (const char* n : {"mnuNuevaDeclaracion", "mnuAbrirDeclaracion", "mnuEliminarDeclaracion",
                              "separa2", "d1", "d2", "d3", "d4", "sepa2", "mnuSalir",
                              "mnuNuevoContribuyente", "mnuAbrirContribuyente",
                              "mnuEliminarContribuyente", "mnuNuevoPresentador",
                              "mnuAbrirPresentador", "mnuEliminarPresentador", "mnuExport",
                              "mnuImport", "separador", "mnuBackup", "mnuRestore", "separa0",
                              "mnuPreferencias", "mnuDescripAsisOnline", "mnuAsisOnline",
                              "mnucontind", "mnuacerca"})
            QVERIFY2(accion(n), n);
        QCOMPARE(m_ventana->windowTitle(), QStringLiteral("Veldoria"));
        QCOMPARE(menu("mnuDeclaracion")->title(), QStringLiteral("&Declaración"));
        QCOMPARE(accion("mnuBackup")->text(), QStringLiteral("Crear copia de seguridad"));
        QCOMPARE(accion("mnuacerca")->text(), QStringLiteral("&Acerca de Veldoria"));
        const QStringList tips = {"Nueva declaración", "Abrir Declaración", "Eliminar declaración",
                                  "Ayuda", "Salir de la Aplicación"};
        for (int i = 1; i <= 5; ++i) {
            QCOMPARE(boton(i)->toolTip(), tips[i - 1]);
            QVERIFY(!boton(i)->icon().isNull());
        }
        QCOMPARE(boton(1)->data().toString(), QStringLiteral("nuedec"));
        QCOMPARE(boton(5)->data().toString(), QStringLiteral("salir"));
    }

    void basaDeDatosVacia()
    {
        m_ventana->ActualizarMenus();
        for (const char* d : {"d1", "d2", "d3", "d4"})
            QVERIFY(!accion(d)->isVisible());
        QVERIFY(boton(1)->isEnabled());
        QVERIFY(!boton(2)->isEnabled());
        QVERIFY(!boton(3)->isEnabled());
        QVERIFY(boton(4)->isEnabled());
        QVERIFY(boton(5)->isEnabled());
        desplegar("mnuDeclaracion");
        QVERIFY(!accion("mnuAbrirDeclaracion")->isEnabled());
        QVERIFY(!accion("mnuEliminarDeclaracion")->isEnabled());
        QVERIFY(accion("mnuNuevaDeclaracion")->isEnabled());
        desplegar("mnuContribuyente");
        QVERIFY(!accion("mnuAbrirContribuyente")->isEnabled());
        desplegar("mnuPresentador");
        QVERIFY(!accion("mnuEliminarPresentador")->isEnabled());
        desplegar("mnuUtilidades");
        QVERIFY(!accion("mnuExport")->isEnabled());
        QVERIFY(accion("mnuImport")->isEnabled());
        QVERIFY(accion("mnuBackup")->isEnabled());
        QVERIFY(accion("mnuRestore")->isEnabled());
    }

    // Stores `n` valid returns, each with its own reference; answers their codes in order.
    static QList<int32_t> guardarDeclaraciones(int n)
    {
        QList<int32_t> codigos;
        for (int i = 0; i < n; ++i) {
            DeclaracionValida();
            DecDatos().REFERENCIA = QStringLiteral("REF-%1").arg(i + 1);
            const int32_t codigo = DecDatos().GuardarDeclaracion() ? DecDatos().CSDE : 0;
            codigos.append(codigo);
        }
        return codigos;
    }

    void unaDeclaracionSoloD1()
    {
        const QList<int32_t> codigos = guardarDeclaraciones(1);
        NuevoContribuyente(Dni(11111111), QStringLiteral("PEREZ ANA"));
        m_ventana->ActualizarMenus();
        QVERIFY(accion("d1")->isVisible());
        for (const char* d : {"d2", "d3", "d4"})
            QVERIFY(!accion(d)->isVisible());
        QCOMPARE(accion("d1")->data().toInt(), codigos[0]);
        QCOMPARE(accion("d1")->text(), QStringLiteral("%1 - REF-1").arg(codigos[0]));
        QVERIFY(boton(2)->isEnabled());
        QVERIFY(boton(3)->isEnabled());
        desplegar("mnuDeclaracion");
        QVERIFY(accion("mnuAbrirDeclaracion")->isEnabled());
        QVERIFY(accion("mnuEliminarDeclaracion")->isEnabled());
        desplegar("mnuContribuyente");
        QVERIFY(accion("mnuAbrirContribuyente")->isEnabled());
        desplegar("mnuUtilidades");
        QVERIFY(accion("mnuExport")->isEnabled());
    }

    // The Declaración menu looked at while the store holds no return leaves its Open entry off;
    // after the first return is saved the toolbar's Open, clicked with the mouse, opens the list
    // at once, and again after the list is left.
    void abrirDeLaBarraTrasLaPrimeraDeclaracion()
    {
        ActOnline().ActOnline = 0;  // the language is chosen: no chooser at the first activation
        m_ventana->ActualizarMenus();
        QMenu* dec = menu("mnuDeclaracion");
        dec->popup(m_ventana->mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(dec->isVisible());
        dec->hide();
        QVERIFY(!accion("mnuAbrirDeclaracion")->isEnabled());
        guardarDeclaraciones(1);
        m_ventana->ActualizarMenus();
        QWidget* abrir = m_ventana->findChild<QToolBar*>("Toolbar1")->widgetForAction(boton(2));
        QVERIFY(abrir && abrir->isEnabled());
        auto abiertos = [this] {
            QStringList nombres;
            for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
                if (sub->widget() && sub->isVisible())
                    nombres << sub->widget()->objectName();
            return nombres;
        };
        for (int vez = 0; vez < 2; ++vez) {
            QTest::mouseClick(abrir, Qt::LeftButton, Qt::NoModifier, abrir->rect().center());
            QTRY_COMPARE(abiertos(), QStringList{QStringLiteral("FrmDecLista")});
            for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
                sub->close();
            QTRY_COMPARE(abiertos(), QStringList());
            m_ventana->ActualizarMenus();
        }
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    void sieteDeclaracionesCuatroEntradas()
    {
        const QList<int32_t> codigos = guardarDeclaraciones(7);
        m_ventana->ActualizarMenus();
        // The most recently saved first.
        for (int i = 0; i < 4; ++i) {
            QAction* d = accion(qPrintable(QStringLiteral("d%1").arg(i + 1)));
            QVERIFY(d->isVisible());
            QCOMPARE(d->data().toInt(), codigos[6 - i]);
            QCOMPARE(d->text(), QStringLiteral("%1 - REF-%2").arg(codigos[6 - i]).arg(7 - i));
        }
    }

    void trasBorrarLaUltimaDeclaracion()
    {
        const QList<int32_t> codigos = guardarDeclaraciones(1);
        m_ventana->ActualizarMenus();
        QVERIFY(accion("d1")->isVisible());
        // A panel opens, the return is deleted through it, the panel closes.
        m_ventana->DeshabilitarMenus();
        DecDatos().CSDE = codigos[0];
        DecDatos().BorrarDeclaracion();
        m_ventana->ActualizarMenus();
        for (const char* d : {"d1", "d2", "d3", "d4"})
            QVERIFY(!accion(d)->isVisible());
        QVERIFY(!boton(2)->isEnabled());
        QVERIFY(!boton(3)->isEnabled());
        QVERIFY(boton(1)->isEnabled());
    }

    void entradaRecientePreparaLaDeclaracion()
    {
        const QList<int32_t> codigos = guardarDeclaraciones(2);
        m_ventana->ActualizarMenus();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        accion("d2")->trigger();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("A"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("C"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QString());
        QCOMPARE(DecDatos().CSDE, codigos[0]);
    }

    void conUnPanelAbiertoSoloQuedaCerrar()
    {
        m_ventana->ActualizarMenus();
        m_ventana->DeshabilitarMenus();
        for (const char* m : {"mnuDeclaracion", "mnuContribuyente", "mnuPresentador", "mnuUtilidades"})
            QVERIFY(!menu(m)->menuAction()->isEnabled());
        QVERIFY(!accion("mnuacerca")->isEnabled());
        QVERIFY(menu("mnuAyuda")->menuAction()->isEnabled());
        QVERIFY(menu("mnuAsistenciaOnline")->menuAction()->isEnabled());
        for (int i : {1, 2, 3, 5})
            QVERIFY(!boton(i)->isEnabled());
        QVERIFY(boton(4)->isEnabled());
        // mnuSalir hangs under a menu that is off, and the exit button is off too.
        QVERIFY(!menu("mnuDeclaracion")->menuAction()->isEnabled());
        m_ventana->ActualizarMenus();
        QVERIFY(menu("mnuDeclaracion")->menuAction()->isEnabled());
        QVERIFY(boton(5)->isEnabled());
    }

    void salirTerminaEnElActo()
    {
        accion("mnuSalir")->trigger();
        QCOMPARE(ProcesoSeam::finales(), 1);
        QVERIFY(MensajeSeam::registro().isEmpty());
        boton(5)->trigger();
        QCOMPARE(ProcesoSeam::finales(), 2);
    }

    void cerrarLaVentanaCierraLasDemas()
    {
        accion("mnucontind")->trigger();
        auto* visor = m_ventana->findChild<QDialog*>("VisorAyuda");
        QVERIFY(visor && visor->isVisible());
        m_ventana->close();
        QVERIFY(!visor->isVisible());
        QCOMPARE(ProcesoSeam::finales(), 1);
    }

    void ayudaEnCadaIdioma()
    {
        accion("mnucontind")->trigger();
        auto* pagina = m_ventana->findChild<QTextBrowser*>("txtAyuda");
        QVERIFY(pagina);
        QVERIFY(pagina->source().toLocalFile().endsWith("/Ayuda/Ayuda/cap.html"));
        Entrada().CambiarIdioma(Idioma::Euskera);
        boton(4)->trigger();
        QVERIFY(pagina->source().toLocalFile().endsWith("/Ayuda/Laguntza/kap.html"));
        // The pages ship with the program.
        QVERIFY(QFile::exists(QStringLiteral(VELDO_CARPETA_CONSTRUIDA) + "/Ayuda/Ayuda/cap.html"));
        QVERIFY(QFile::exists(QStringLiteral(VELDO_CARPETA_CONSTRUIDA) + "/Ayuda/Laguntza/kap.html"));
    }

    void rotulosEnEuskeraYMarcadores()
    {
        Entrada().CambiarIdioma(Idioma::Euskera);
        m_ventana->Anadir_captions();
        QCOMPARE(m_ventana->windowTitle(), QStringLiteral("Veldoriak"));
        QCOMPARE(menu("mnuDeclaracion")->title(), QStringLiteral("&Aitorpena"));
        QCOMPARE(accion("mnuSalir")->text(), QStringLiteral("I&rten"));
        QCOMPARE(boton(5)->toolTip(), QStringLiteral("Irten aplikaziotik"));
        for (int i = 0; i < 4; ++i)
            QCOMPARE(accion(qPrintable(QStringLiteral("d%1").arg(i + 1)))->text(),
                     QStringLiteral("d%1").arg(i + 1));
    }

    void unPanelTomaElIdiomaAlAbrirse()
    {
        m_ventana->ActualizarMenus();
        accion("mnuNuevoContribuyente")->trigger();
        auto* panel = m_ventana->findChild<QWidget*>("FrmConDatos");
        QVERIFY(panel);
        QCOMPARE(panel->windowTitle(), Texto(kIdDatosContribuyente));
        QVERIFY(!menu("mnuDeclaracion")->menuAction()->isEnabled());
        panel->close();
        QTRY_VERIFY(!m_ventana->findChild<QWidget*>("FrmConDatos"));
        QVERIFY(menu("mnuDeclaracion")->menuAction()->isEnabled());
        // The language changes while no panel is open; the next panel is a new one, in Basque.
        Entrada().CambiarIdioma(Idioma::Euskera);
        m_ventana->Anadir_captions();
        accion("mnuNuevoContribuyente")->trigger();
        panel = m_ventana->findChild<QWidget*>("FrmConDatos");
        QVERIFY(panel);
        QCOMPARE(panel->windowTitle(), QStringLiteral("Zergadunaren datuak"));
    }

    void acercaDeEnCadaIdioma()
    {
        QString titulo, version, boton;
        CapturaModal captura([&](QWidget* w) {
            if (w->objectName() != QLatin1String("frmAbout"))
                return;
            titulo = w->windowTitle();
            version = w->findChild<QLabel*>("lblVersion")->text();
        });
        VersionPrograma = QStringLiteral("1.0.0");
        accion("mnuacerca")->trigger();
        QCOMPARE(captura.vistos().last(), QStringLiteral("frmAbout"));
        QCOMPARE(titulo, QStringLiteral("Acerca de Veldoria"));
        QCOMPARE(version, QStringLiteral("Versión 1.0.0"));
        Entrada().CambiarIdioma(Idioma::Euskera);
        m_ventana->Anadir_captions();
        accion("mnuacerca")->trigger();
        QCOMPARE(titulo, QStringLiteral("Acerca de Veldoriak"));
        QCOMPARE(version, QStringLiteral("1.0.0 bertsioa"));
    }

    // The main window opens the online assistance and shows what the treasury's service
    // answers: the message when no browser opens, and the description of the service.
    void asistenciaOnlineDesdeElMenu()
    {
        accion("mnuAsisOnline")->trigger();
        QCOMPARE(NavegadorSeam::registro().size(), 1);
        QVERIFY(MensajeSeam::registro().isEmpty());
        NavegadorSeam::setNextResult(false);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that no browser opened
        accion("mnuAsisOnline")->trigger();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, TextoFila(kIdNavegadorNoEncontradoMensaje));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdNavegadorNoEncontrado));
        QCOMPARE(MensajeSeam::registro()[0].icono(), int(vb::Exclamation));
        MensajeSeam::setNextAnswer(vb::OK);  // the description of the service
        accion("mnuDescripAsisOnline")->trigger();
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QCOMPARE(MensajeSeam::registro()[1].titulo, TextoFila(kIdDescripcionServicio));
        QCOMPARE(MensajeSeam::registro()[1].icono(), int(vb::Information));
        QCOMPARE(NavegadorSeam::registro().size(), 2);
    }

    void copiaDeSeguridadDesdeElMenu()
    {
        const QString copia = m_carpeta->ruta() + "/backups/VELDOMod_bak.mdb";
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that the copy was made
        accion("mnuBackup")->trigger();
        QVERIFY(QFile::exists(copia));
        // No question the first time: at most the notice that the copy was made.
        for (const auto& m : MensajeSeam::registro())
            QVERIFY(m.texto != Texto(kIdCopiaSeguridadExistente));
        // A second backup replaces the first, after the question of id 337.
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that the copy was made
        accion("mnuBackup")->trigger();
        QVERIFY(!MensajeSeam::registro().isEmpty());
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdCopiaSeguridadExistente));
    }

    // A restore of a copy with fewer returns leaves no entry of a return that is gone.
    void restaurarConMenosDeclaracionesQuitaLasRecientes()
    {
        const QList<int32_t> antes = guardarDeclaraciones(1);
        MensajeSeam::setNextAnswer(vb::OK);  // "La copia de seguridad se ha realizado correctamente."
        accion("mnuBackup")->trigger();
        guardarDeclaraciones(3);
        m_ventana->ActualizarMenus();
        for (const char* d : {"d1", "d2", "d3", "d4"})
            QVERIFY2(accion(d)->isVisible(), d);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);  // the restore is told done
        accion("mnuRestore")->trigger();
        QCOMPARE(Entrada().NUMDECLA, 1);
        QVERIFY(accion("d1")->isVisible());
        QCOMPARE(accion("d1")->data().toInt(), antes[0]);
        for (const char* d : {"d2", "d3", "d4"})
            QVERIFY2(!accion(d)->isVisible(), d);
    }

    // Qt's own dialogs (the file chooser) and buttons speak the program's language.
    void dialogosDeQtEnElIdioma()
    {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancelar"));
        // Qt has no Basque of its own on this system: the Spanish stands in, not English.
        Entrada().CambiarIdioma(Idioma::Euskera);
        m_ventana->Anadir_captions();
        QVERIFY(QCoreApplication::translate("QPlatformTheme", "Cancel") != QLatin1String("Cancel"));
        Entrada().CambiarIdioma(Idioma::Castellano);
        m_ventana->Anadir_captions();
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancelar"));
    }

    void restaurarTraeElIdiomaDeLaCopia()
    {
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that the copy was made
        accion("mnuBackup")->trigger();
        Entrada().CambiarIdioma(Idioma::Euskera);
        m_ventana->Anadir_captions();
        QCOMPARE(m_ventana->windowTitle(), QStringLiteral("Veldoriak"));
        // Answered No: nothing changes.
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::No);
        accion("mnuRestore")->trigger();
        QCOMPARE(MensajeSeam::registro().value(0).texto, Texto(kIdPreguntaRestaurar));
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(m_ventana->windowTitle(), QStringLiteral("Veldoriak"));
        // Answered Yes: the copy, in Spanish, comes back with its language.
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that the store was restored
        accion("mnuRestore")->trigger();
        QCOMPARE(Entrada().IDI(), QStringLiteral("C"));
        QCOMPARE(OffsetIdioma(), int16_t(0));
        QCOMPARE(m_ventana->windowTitle(), QStringLiteral("Veldoria"));
        QCOMPARE(menu("mnuDeclaracion")->title(), QStringLiteral("&Declaración"));
    }

    // Each command and the panel it opens.
    void comandoAbrePanel_data()
    {
        QTest::addColumn<QString>("comando");
        QTest::addColumn<QString>("panel");
        const QList<std::pair<const char*, const char*>> tabla = {
            {"mnuNuevaDeclaracion", "FrmDeclaracion"}, {"d1", "FrmDeclaracion"},
            {"mnuAbrirDeclaracion", "FrmDecLista"},    {"mnuEliminarDeclaracion", "FrmDecLista"},
            {"mnuNuevoContribuyente", "FrmConDatos"},  {"mnuAbrirContribuyente", "FrmConLista"},
            {"mnuEliminarContribuyente", "FrmConLista"}, {"mnuNuevoPresentador", "FrmPreDatos"},
            {"mnuAbrirPresentador", "FrmPreLista"},    {"mnuEliminarPresentador", "FrmPreLista"},
            {"boton1", "FrmDeclaracion"},              {"boton2", "FrmDecLista"},
            {"boton3", "FrmDecLista"},                 {"mnuExport", "FrmExportar"},
            {"mnuImport", "FrmImportar"}};
        for (const auto& [comando, panel] : tabla)
            QTest::newRow(comando) << QString::fromLatin1(comando) << QString::fromLatin1(panel);
    }
    void comandoAbrePanel()
    {
        QFETCH(QString, comando);
        QFETCH(QString, panel);
        ActOnline().ActOnline = 0;
        guardarDeclaraciones(1);
        NuevoContribuyente(Dni(22222222), QStringLiteral("AGIRRE ZUBIA MIREN"));
        NuevoPresentador(Dni(33333333), QStringLiteral("GESTORIA"));
        m_ventana->ActualizarMenus();
        if (comando.startsWith(QLatin1String("boton")))
            boton(comando.right(1).toInt())->trigger();
        else
            accion(qPrintable(comando))->trigger();
        QApplication::processEvents();
        QStringList abiertos;
        for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
            if (sub->widget() && sub->isVisible())
                abiertos << sub->widget()->objectName();
        QCOMPARE(abiertos, panel.isEmpty() ? QStringList() : QStringList{panel});
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }
};

QTEST_MAIN(TestMDIVeldo)
#include "test_mdiveldo.moc"
#include "valores/EstadoNavegacion.h"
