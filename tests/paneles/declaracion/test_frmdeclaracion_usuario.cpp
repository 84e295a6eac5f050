// The declaration form as a user on a desktop meets it: the access keys of its buttons and of
// its tab strip, a stored return with a reduction opened again, the operation box opened with
// the mouse, one layout for both tabs, the pickers' focus, the ways out of a field, the print
// of a changed return, and the parties' paths (the transmitter's number, the same party on both
// tabs, the codes of an address).
#include "ApoyoDeclaracionPanel.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "aplicacion/Navegacion.h"
#include "catalogo/Catalogo.h"
#include "paneles/declaracion/FrmDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "registros/imprimir/cImOf.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTabBar>

class TestFrmDeclaracionUsuario : public QObject, ControlesDeDeclaracion {
    Q_OBJECT

    // A stored return of 2010 (operation T2, base 15.000,00) with a reduction of its base.
    int32_t guardadaConReduccion(const QString& reduccion)
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-R"));
        const double factor = reduccion == QLatin1String("X") ? 0.5
            : reduccion == QLatin1String("Y")                 ? 0.7
                                                              : 0.2;
        const double reducida = 1500000.0 * factor;
        const double cuota = 4.75 * reducida / 100;
        EjecutarEnAlmacen(QStringLiteral("UPDATE DECLARACIONES SET REDUCCION = ?, BASEIREDUCIDA = ?, "
                                         "CUOTA = ?, TOTAL = ? WHERE CSDE = ?"),
                          {reduccion, reducida, cuota, cuota, csde});
        return csde;
    }
    // The stored return as a new one in the form, with both parties typed and national.
    void partesEscritas()
    {
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtdnisp"), Dni(12345678));
        pestana(1);
        EscribirYSalir(t("txtdnitr"), Dni(87654321));
    }

private slots:
    void init() { arrancar(); }
    void cleanup() { cerrar(); }

    // ----- The buttons' access keys leave the field first -----

    // Alt+I on an unchanged stored return, with a new make typed and not left: the make is
    // written to the record, so the return is changed, the question of saving comes, and the
    // print is of the return as saved with the new make.
    void imprimirConSuTeclaGuardaLoTecleado()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde);
        Escribir(t("txtmarca"), QStringLiteral("RENAULT"));
        MensajeSeam::setNextAnswer(vb::Yes);
        teclaDeAcceso(Qt::Key_I);
        QCOMPARE(mensajes(), QStringList{Texto(kIdGuardarAntesDeImprimir) + QStringLiteral("\n")
                                         + Texto(kIdPreguntaGuardarDeclaracion)});
        QTRY_VERIFY(m_prog->panel(QStringLiteral("FrmImprimir")));
        QCOMPARE(almacenado("MARCA"), QStringLiteral("RENAULT"));
        QCOMPARE(ImOf().CSDE, csde);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("C"));
        QVERIFY(!DecDatos().MODIFICADO);
    }

    // Alt+A after a new value: saved with it. After a bad date: the date's message, and the
    // form stays open with the focus on the date; nothing is saved.
    void aceptarConSuTeclaDejaElCampoAntes()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde);
        Escribir(t("txtfechad"), QStringLiteral("31022010"));
        MensajeSeam::setNextAnswer(vb::OK);
        teclaDeAcceso(Qt::Key_A);
        QCOMPARE(mensajes(), QStringList{Texto(kIdFechaDevengoIncorrecta)});
        QVERIFY(m_prog->panel(QStringLiteral("FrmDeclaracion")));
        QCOMPARE(Foco(), t("txtfechad"));
        MensajeSeam::limpiar();
        Escribir(t("txtmodelo"), QStringLiteral("LEON"));
        teclaDeAcceso(Qt::Key_A);
        QVERIFY(MensajeSeam::registro().isEmpty());
        QTRY_VERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(almacenado("MODELO"), QStringLiteral("LEON"));
    }

    // Alt+C after a bad number: no message, the form closes.
    void cancelarConSuTeclaNoValida()
    {
        nueva();
        Escribir(t("txtdnisp"), QStringLiteral("12345678A"));
        teclaDeAcceso(Qt::Key_C);
        QVERIFY(MensajeSeam::registro().isEmpty());
        QTRY_VERIFY(m_prog->paneles().isEmpty());
    }

    // ----- A stored return keeps its reduction -----

    void reduccionDeUnaGuardada_data()
    {
        QTest::addColumn<QString>("reduccion");
        QTest::addColumn<double>("factor");
        QTest::newRow("50 %") << QStringLiteral("X") << 0.5;
        QTest::newRow("30 %") << QStringLiteral("Y") << 0.7;
        QTest::newRow("ambas") << QStringLiteral("Z") << 0.2;
    }
    void reduccionDeUnaGuardada()
    {
        QFETCH(QString, reduccion);
        QFETCH(double, factor);
        abrirGuardada(guardadaConReduccion(reduccion));
        QCOMPARE(DecDatos().REDUCCION, reduccion);
        const bool primera = reduccion != QLatin1String("Y");
        const bool segunda = reduccion != QLatin1String("X");
        QCOMPARE(k("chkReduccion1")->isChecked(), primera);
        QCOMPARE(k("chkReduccion2")->isChecked(), segunda);
        // Another date of 2011: the reduction stays, and the amounts with it.
        EscribirFecha(t("txtfechad"), QStringLiteral("15062011"));
        QCOMPARE(DecDatos().FECHAD, 20110615);
        QCOMPARE(DecDatos().REDUCCION, reduccion);
        QCOMPARE(DecDatos().BASEIREDUCIDA.centimos(), 1500000.0 * factor);
        QCOMPARE(k("chkReduccion1")->isChecked(), primera);
        QCOMPARE(k("chkReduccion2")->isChecked(), segunda);
        // Another operation: the same.
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T3"));
        QCOMPARE(DecDatos().TIPOIMP, 9.75);
        QCOMPARE(DecDatos().REDUCCION, reduccion);
        QCOMPARE(DecDatos().CUOTA.centimos(), 9.75 * 1500000.0 * factor / 100);
        // Saved so.
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QCOMPARE(almacenado("REDUCCION"), reduccion);
        QCOMPARE(almacenado("OPERACION"), QStringLiteral("T3"));
    }

    // A return without a reduction opened after one with it takes nothing from it; a copy keeps
    // its own.
    void laReduccionDeOtraNoQueda()
    {
        const int32_t conReduccion = guardadaConReduccion(QStringLiteral("X"));
        const int32_t sin = DeclaracionGuardada(QStringLiteral("REF-2"));
        abrirGuardada(conReduccion);
        Clic(b("cmdCancelar"));
        abrirGuardada(sin);
        EscribirFecha(t("txtfechad"), QStringLiteral("15062011"));
        QCOMPARE(DecDatos().REDUCCION, QString());
        QCOMPARE(DecDatos().CUOTA.centimos(), 71250.0);
        Clic(b("cmdCancelar"));
        abrirGuardada(conReduccion, QStringLiteral("D"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T4"));
        QCOMPARE(DecDatos().REDUCCION, QStringLiteral("X"));
        QCOMPARE(DecDatos().BASEIREDUCIDA.centimos(), 750000.0);
    }

    // ----- The tab strip -----

    // Alt+T and Alt+S show the tab's frame and put the focus on its number; the field being
    // typed in is left first.
    void pestanasConSusTeclas()
    {
        nueva();
        Escribir(t("txtnombresp"), QStringLiteral("GARCIA"));
        teclaDeAcceso(Qt::Key_T);
        QCOMPARE(c<QTabBar>("tabTerceros")->currentIndex(), 1);
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        QVERIFY(!c<QWidget>("FraSujetoPasivo")->isVisible());
        QCOMPARE(Foco(), t("txtdnitr"));
        QCOMPARE(DecDatos().NOMBRESP, QStringLiteral("GARCIA"));
        teclaDeAcceso(Qt::Key_S);
        QCOMPARE(c<QTabBar>("tabTerceros")->currentIndex(), 0);
        QVERIFY(c<QWidget>("FraSujetoPasivo")->isVisible());
        QVERIFY(!c<QWidget>("FraTransmitente")->isVisible());
        QCOMPARE(Foco(), t("txtdnisp"));
        // A bad number left for the other tab: its message, and the strip stays on its tab.
        Escribir(t("txtdnisp"), QStringLiteral("12345678A"));
        MensajeSeam::setNextAnswer(vb::OK);
        teclaDeAcceso(Qt::Key_T);
        QCOMPARE(mensajes(), QStringList{Texto(kIdDniCifErroneoODigitoControl)});
        QCOMPARE(c<QTabBar>("tabTerceros")->currentIndex(), 0);
        QVERIFY(c<QWidget>("FraSujetoPasivo")->isVisible());
        QCOMPARE(Foco(), t("txtdnisp"));
    }

    // The upper frames do not move when the transmitter's tab is shown.
    void unaDisposicionParaAmbasPestanas()
    {
        nueva();
        auto geometrias = [this] {
            QList<QRect> r;
            for (const char* marco : {"FraDeclaracion", "FraPresentador", "tabTerceros"}) {
                QWidget* w = c<QWidget>(marco);
                r << QRect(w->mapTo(m_panel, QPoint(0, 0)), w->size());
                for (QWidget* hijo : w->findChildren<QWidget*>())
                    r << QRect(hijo->mapTo(m_panel, QPoint(0, 0)), hijo->size());
            }
            return r;
        };
        const QList<QRect> antes = geometrias();
        pestana(1);
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        QCOMPARE(geometrias(), antes);
        const QRect sujeto(c<QWidget>("FraSujetoPasivo")->geometry());
        pestana(0);
        QCOMPARE(geometrias(), antes);
        QCOMPARE(c<QWidget>("FraSujetoPasivo")->geometry(), sujeto);
    }

    // ----- The operation box -----

    // A click on the box with no operation opens its list without a message; the entry chosen
    // there writes the code. Leaving it with nothing chosen still gives message 130.
    void clicEnLaListaDeOperaciones()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        Entrar(t("txtoperacion"));
        QComboBox* caja = cmb();
        QTest::mouseClick(caja, Qt::LeftButton, Qt::NoModifier, caja->rect().center());
        Procesar();
        QTRY_VERIFY(caja->view()->isVisible());
        QVERIFY(MensajeSeam::registro().isEmpty());
        const int t4 = caja->findText(QStringLiteral("Emisiones de CO2 desde 200 g/km: tipo 14,75 %"));
        QVERIFY(t4 > 0);
        caja->view()->setCurrentIndex(caja->model()->index(t4, 0));
        QTest::keyClick(caja->view(), Qt::Key_Return);
        Procesar();
        QTRY_VERIFY(!caja->view()->isVisible());
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(DecDatos().OPERACION, QStringLiteral("T4"));
        QCOMPARE(t("txtoperacion")->text(), QStringLiteral("T4"));
        // Emptied and left: 130, and back to the code.
        EscribirYSalir(t("txtoperacion"), QString());
        QCOMPARE(caja->currentIndex(), -1);
        Entrar(caja);
        MensajeSeam::setNextAnswer(vb::OK);
        Tabular();
        QCOMPARE(mensajes(), QStringList{Texto(kIdSeleccionarCodigoLista)});
        QCOMPARE(Foco(), t("txtoperacion"));
    }

    // The operation's entry is found as BuscarEnCombo finds it: the first that begins with its
    // description.
    void laOperacionSeBuscaPorElPrincipio()
    {
        {
            QSqlDatabase lec = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("lecprueba"));
            lec.setDatabaseName(mdblec);
            QVERIFY(lec.open());
            QSqlQuery q(lec);
            QVERIFY(q.exec(QStringLiteral(
                "INSERT INTO T11_OPERACIONES VALUES (0, 'TZ', 20080101, 99991231, "
                "'Emisiones de CO2 de más de 120 y menos de 160 g/km: tipo 4,75 % (otra)', "
                "'Beste bat', '1', '', '', 4.75, 0, 0, 0)")));
            lec.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("lecprueba"));
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        QCOMPARE(cmb()->currentIndex(), 0);
        QVERIFY(cmb()->currentText().endsWith(QStringLiteral("(otra)")));
    }

    // ----- Fields of the parties -----

    void formatosDeLosCodigos()
    {
        nueva();
        for (const char* caja : {"txtcodprovsp", "txtcodprovtr"})
            QCOMPARE(n(caja)->formato(), QStringLiteral("##"));
        QCOMPARE(n("txtcodpossp")->formato(), QStringLiteral("#####"));
        for (const char* caja : {"txtcodmunsp", "txtcodmuntr"})
            QCOMPARE(n(caja)->formato(), QStringLiteral("###"));
        // A province of one digit is shown without its zero and kept with it.
        EscribirYSalir(n("txtcodprovsp"), QStringLiteral("1"));
        QCOMPARE(n("txtcodprovsp")->text(), QStringLiteral("1"));
        QCOMPARE(t("txtnomprovsp")->text(), QStringLiteral("Álava"));
        QCOMPARE(DecDatos().CODPROVSP, QStringLiteral("01"));
        EscribirYSalir(n("txtcodpossp"), QStringLiteral("1001"));
        QCOMPARE(n("txtcodpossp")->text(), QStringLiteral("1001"));
        QCOMPARE(DecDatos().CODPOSSP, QStringLiteral("01001"));
        // Left again unchanged: nothing changes.
        DecDatos().MODIFICADO = false;
        Entrar(n("txtcodpossp"));
        Tabular();
        QVERIFY(!DecDatos().MODIFICADO);
        QCOMPARE(DecDatos().CODPOSSP, QStringLiteral("01001"));
    }

    // Zero codes are shown as empty boxes.
    void codigosCeroEnBlanco()
    {
        cDecDatos& d = DecDatos();
        nueva();
        d.CODPROVSP = QStringLiteral("00");
        d.CODPOSSP = QStringLiteral("00000");
        d.CODMUNSP = QStringLiteral("000");
        d.CODPROVTR = QStringLiteral("0");
        d.CODPOSTR = QStringLiteral("00000");
        d.CODMUNTR = QStringLiteral("0");
        frm()->PresentarDeclaracion();
        for (const char* caja : {"txtcodprovsp", "txtcodpossp", "txtcodmunsp", "txtcodprovtr",
                                 "txtcodpostr", "txtcodmuntr"})
            QVERIFY2(n(caja)->text().isEmpty(), caja);
    }

    // The transmitter's postal code: five digits with zeros for a national address, as typed
    // for a foreign one.
    void formatoDelCodigoPostalDelTransmitente()
    {
        nueva();
        pestana(1);
        QCOMPARE(n("txtcodpostr")->formato(), QStringLiteral("00000"));
        // Left for the street (a Tab would go on to the empty municipality, whose picker opens).
        Escribir(n("txtcodpostr"), QStringLiteral("1001"));
        Entrar(t("txtdomiciliotr"));
        QCOMPARE(n("txtcodpostr")->text(), QStringLiteral("01001"));
        QCOMPARE(DecDatos().CODPOSTR, QStringLiteral("01001"));
        clicCasilla(k("chktipodomitr"));
        QCOMPARE(DecDatos().TIPODOMITR, QStringLiteral("E"));
        QCOMPARE(n("txtcodpostr")->formato(), QString());
        EscribirYSalir(n("txtcodpostr"), QStringLiteral("123"));
        QCOMPARE(n("txtcodpostr")->text(), QStringLiteral("123"));
        QCOMPARE(DecDatos().CODPOSTR, QStringLiteral("123"));
        clicCasilla(k("chktipodomitr"));
        QCOMPARE(n("txtcodpostr")->formato(), QStringLiteral("00000"));
        QCOMPARE(n("txtcodpostr")->text(), QStringLiteral("00123"));
    }

    // After a street type or a province is picked, the focus goes to Aceptar.
    void elFocoTrasLosSelectores()
    {
        nueva();
        Clic(b("cmdViasp"));
        QVERIFY(l("lstviasp")->isVisible());
        ElegirConEnter(l("lstviasp"), QStringLiteral("Avenida"));
        QCOMPARE(DecDatos().VIASP, QStringLiteral("AV"));
        QCOMPARE(Foco(), b("cmdAceptar"));
        Clic(b("cmdProvinciasp"));
        DobleClicEnTexto(l("lstcodprovsp"), QStringLiteral("Álava"));
        QCOMPARE(DecDatos().CODPROVSP, QStringLiteral("01"));
        QCOMPARE(n("txtcodprovsp")->text(), QStringLiteral("1"));
        QCOMPARE(Foco(), b("cmdAceptar"));
        pestana(1);
        Clic(b("cmdViatr"));
        ElegirConEnter(l("lstviatr"), QStringLiteral("Barrio"));
        QCOMPARE(DecDatos().VIATR, QStringLiteral("BO"));
        QCOMPARE(Foco(), b("cmdAceptar"));
    }

    // A way out (the press on "Dni extranjero" or on Cancelar) leaves an address field
    // without writing it.
    void lasDireccionesRespetanLaSalida()
    {
        nueva();
        pestana(1);
        Escribir(t("txtdomiciliotr"), QStringLiteral("CALLE NUEVA"));
        QCheckBox* dni = k("chktipodnitr");
        QTest::mousePress(dni, Qt::LeftButton, Qt::NoModifier, QPoint(6, dni->height() / 2));
        QTest::mouseRelease(dni, Qt::LeftButton, Qt::NoModifier, QPoint(6, dni->height() / 2));
        Procesar();
        QCOMPARE(DecDatos().TIPODNITR, QStringLiteral("N"));
        QCOMPARE(DecDatos().DOMICILIOTR, QString());
        QCOMPARE(t("txtdomiciliotr")->text(), QString());
        pestana(0);
        Escribir(n("txtnumerosp"), QStringLiteral("15"));
        QTest::mousePress(b("cmdCancelar"), Qt::LeftButton, Qt::NoModifier, b("cmdCancelar")->rect().center());
        QTest::mouseRelease(b("cmdCancelar"), Qt::LeftButton, Qt::NoModifier, b("cmdCancelar")->rect().center());
        Procesar();
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(DecDatos().NUMEROSP, 0);
    }

    // The same number typed on both tabs without a stored contributor: the address follows
    // from one tab to the other, but the transmitter's national and foreign boxes stay on (the
    // transmitter is no stored party of the return).
    void laMismaParteEscrita()
    {
        nueva();
        EscribirYSalir(t("txtdnisp"), Dni(12345678));
        pestana(1);
        EscribirYSalir(t("txtdnitr"), Dni(12345678));
        QVERIFY(k("chktipodnitr")->isEnabled());
        QVERIFY(k("chktipodomitr")->isEnabled());
        EscribirYSalir(t("txtdomiciliotr"), QStringLiteral("MAYOR"));
        QCOMPARE(DecDatos().DOMICILIOSP, QStringLiteral("MAYOR"));
    }

    // A province changed on one tab of a party that stands on both: the other tab's province
    // follows, and its municipality goes outside the treasury's province.
    void espejoDeUnaProvincia()
    {
        ContribuyenteDePanel nacional;
        nacional.DNIC = Dni(22222222);
        const int32_t codigo = GuardarEnAlmacen(nacional);
        nueva();
        EscribirYSalir(t("txtdnisp"), Dni(22222222));
        pestana(1);
        EscribirYSalir(t("txtdnitr"), Dni(22222222));
        QCOMPARE(DecDatos().CSTRA, codigo);
        QCOMPARE(DecDatos().CODMUNSP, QStringLiteral("002"));
        pestana(0);
        EscribirYSalir(n("txtcodprovsp"), QStringLiteral("1"));
        QCOMPARE(DecDatos().CODPROVTR, QStringLiteral("01"));
        QCOMPARE(DecDatos().CODMUNTR, QString());
        QCOMPARE(DecDatos().NOMMUNTR, QString());
        QCOMPARE(t("txtnomprovtr")->text(), QStringLiteral("Álava"));
        EscribirYSalir(t("txtnommunsp"), QStringLiteral("AMURRIO"));
        QCOMPARE(DecDatos().NOMMUNTR, QStringLiteral("AMURRIO"));
        EscribirYSalir(n("txtcodprovsp"), QStringLiteral("77"));
        QCOMPARE(DecDatos().CODPROVTR, QStringLiteral("77"));
        QCOMPARE(DecDatos().NOMMUNTR, QString());
        QVERIFY(abierto(n("txtcodmuntr")));
    }

    // ----- The transmitter's number -----

    void numeroDelTransmitente()
    {
        nueva();
        pestana(1);
        // Unknown and official without its right letter: 330, its tab, the focus on it.
        MensajeSeam::setNextAnswer(vb::OK);
        Escribir(t("txtdnitr"), QStringLiteral("87654321A"));
        pestana(0);
        QCOMPARE(mensajes(), QStringList{Texto(kIdDniCifErroneoODigitoControl)});
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Datos Declaración"));
        QCOMPARE(c<QTabBar>("tabTerceros")->currentIndex(), 1);
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        QCOMPARE(Foco(), t("txtdnitr"));
        QCOMPARE(t("txtdnitr")->text(), QString());
        QCOMPARE(DecDatos().DNITR, QString());
        // A stored one is loaded; then an unknown good number asks 168.
        ContribuyenteDePanel vendedor;
        vendedor.DNIC = Dni(33333333);
        vendedor.NOMBREC = QStringLiteral("VENDEDOR SA");
        const int32_t codigo = GuardarEnAlmacen(vendedor);
        MensajeSeam::limpiar();
        EscribirYSalir(t("txtdnitr"), Dni(33333333));
        QCOMPARE(DecDatos().CSTRA, codigo);
        MensajeSeam::setNextAnswer(vb::No);
        EscribirYSalir(t("txtdnitr"), Dni(44444444));
        QCOMPARE(mensajes(), QStringList{Texto(kIdPreguntaCargarNuevoContribuyente)});
        QCOMPARE(MensajeSeam::registro().first().botones, 292);
        QCOMPARE(DecDatos().CSTRA, codigo);
        QCOMPARE(t("txtdnitr")->text(), Dni(33333333));
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        EscribirYSalir(t("txtdnitr"), Dni(44444444));
        QCOMPARE(DecDatos().CSTRA, 0);
        QCOMPARE(DecDatos().DNITR, Dni(44444444));
        QCOMPARE(DecDatos().NOMBRETR, QString());
        QCOMPARE(DecDatos().TIPODNITR, QStringLiteral("O"));
        QCOMPARE(DecDatos().TIPODOMITR, QStringLiteral("N"));
        QCOMPARE(DecDatos().CODPROVTR, QStringLiteral("77"));
        QCOMPARE(DecDatos().VIATR, QStringLiteral("CL"));
        QVERIFY(k("chktipodnitr")->isEnabled() && k("chktipodomitr")->isEnabled());
    }

    // ----- Marks -----

    void adquiridoFuera()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde);
        QVERIFY(!k("chkAdquirido")->isChecked());
        clicCasilla(k("chkAdquirido"));
        QCOMPARE(DecDatos().ADQUIRIDO, QStringLiteral("X"));
        QVERIFY(DecDatos().MODIFICADO);
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QCOMPARE(almacenado("ADQUIRIDO"), QStringLiteral("X"));
        abrirGuardada(csde);
        QVERIFY(k("chkAdquirido")->isChecked());
        clicCasilla(k("chkAdquirido"));
        QCOMPARE(DecDatos().ADQUIRIDO, QString());
        QVERIFY(!k("chkAdquirido")->isChecked());
    }

    // ----- Print of a changed return -----

    // No: nothing, the focus on Imprimir. Yes: the parties' numbers are checked before the
    // fields (the reverse of Aceptar), then the return is saved and printed as a stored one.
    void imprimirUnaCambiada()
    {
        nueva();
        partesEscritas();
        QVERIFY(DecDatos().MODIFICADO);
        MensajeSeam::setNextAnswer(vb::No);
        Clic(b("cmdImprimir"));
        QCOMPARE(mensajes(), QStringList{Texto(kIdGuardarAntesDeImprimir) + QStringLiteral("\n")
                                         + Texto(kIdPreguntaGuardarDeclaracion)});
        QCOMPARE(MensajeSeam::registro().first().botones, 68);
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Datos Declaración"));
        QCOMPARE(Foco(), b("cmdImprimir"));
        QCOMPARE(Declaraciones(), 0);
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QString());
        // A transmitter's number gone bad under the form and a vehicle still missing: Print
        // reports the number, Aceptar the vehicle.
        DecDatos().DNITR = QStringLiteral("87654321A");
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdImprimir"));
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QVERIFY2(MensajeSeam::registro()[1].texto.contains(QStringLiteral("87654321A")),
                 qPrintable(MensajeSeam::registro()[1].texto));
        QCOMPARE(Declaraciones(), 0);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY(!MensajeSeam::registro()[0].texto.contains(QStringLiteral("87654321A")));
        QCOMPARE(Declaraciones(), 0);
    }

    void imprimirUnaNuevaLaGuarda()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde, QStringLiteral("D"));
        QCOMPARE(DecDatos().CSDE, 0);
        MensajeSeam::setNextAnswer(vb::Yes);
        Clic(b("cmdImprimir"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(Declaraciones(), 2);
        QTRY_VERIFY(m_prog->panel(QStringLiteral("FrmImprimir")));
        QVERIFY(!m_prog->panel(QStringLiteral("FrmDeclaracion")));
        QVERIFY(DecDatos().CSDE > csde);
        QCOMPARE(ImOf().CSDE, DecDatos().CSDE);
        QCOMPARE(Navegacion::Letras(ImOf().ENTRADA), QStringLiteral("D"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("C"));
        QVERIFY(!DecDatos().MODIFICADO);
    }
};

QTEST_MAIN(TestFrmDeclaracionUsuario)
#include "test_frmdeclaracion_usuario.moc"
#include "valores/EstadoNavegacion.h"
