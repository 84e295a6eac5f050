// The numeric box driven as a user would: typing, leaving, locked boxes that pass the focus
// on, and the Spanish display whatever the process locale.
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/Colores.h"

#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestCajaNum : public QObject {
    Q_OBJECT

    // A panel: an open box, a locked one, another open box, a button.
    struct Panel {
        QWidget ventana;
        CajaNum* primera;
        CajaNum* bloqueada;
        CajaNum* segunda;
        QPushButton* boton;
        Panel()
        {
            auto* capa = new QVBoxLayout(&ventana);
            primera = new CajaNum(&ventana);
            primera->setObjectName(QStringLiteral("txtnumerosp"));
            primera->setLocked(false);
            primera->setMaxlength(5);
            primera->setEnteros(5);
            primera->setFormato(QStringLiteral("#####"));
            bloqueada = new CajaNum(&ventana);
            bloqueada->setObjectName(QStringLiteral("txtcodmunsp"));
            bloqueada->setMaxlength(3);
            bloqueada->setEnteros(3);
            bloqueada->setFormato(QStringLiteral("###"));
            segunda = new CajaNum(&ventana);
            segunda->setObjectName(QStringLiteral("txtcodpossp"));
            segunda->setLocked(false);
            segunda->setMaxlength(5);
            segunda->setEnteros(5);
            segunda->setFormato(QStringLiteral("00000"));
            boton = new QPushButton(QStringLiteral("Aceptar"), &ventana);
            capa->addWidget(primera);
            capa->addWidget(bloqueada);
            capa->addWidget(segunda);
            capa->addWidget(boton);
            ventana.show();
        }
    };

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void valoresPorDefecto()
    {
        CajaNum caja;
        QVERIFY(caja.locked());
        QVERIFY(caja.isReadOnly());
        QCOMPARE(caja.decimales(), 0);
        QVERIFY(!caja.fontbold());
        caja.setFontbold(true);
        QVERIFY(caja.fontbold());
        caja.setBackcolor(QColor::fromRgb(kColorBloqueado));
        QCOMPARE(caja.backcolor().rgb() & 0xFFFFFF, kColorBloqueado);
        // The properties are reachable by name too, as a designer would set them.
        QVERIFY(caja.setProperty("maxlength", 5));
        QCOMPARE(caja.maxlength(), 5);
        QVERIFY(caja.setProperty("formato", QStringLiteral("00")));
        QCOMPARE(caja.formato(), QStringLiteral("00"));
    }

    void escribirSoloDigitos()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        QSignalSpy cambios(p.primera, &CajaNum::cambiado);
        p.primera->setFocus();
        QTest::keyClicks(p.primera, QStringLiteral("1a2-3,4.5 6"));
        QCOMPARE(p.primera->text(), QStringLiteral("12345"));  // and no more than 5 digits
        QCOMPARE(p.primera->value(), 12345.0);
        QVERIFY(cambios.count() >= 5);
        QTest::keyClick(p.primera, Qt::Key_Backspace);
        QCOMPARE(p.primera->text(), QStringLiteral("1234"));
    }

    void cambiadoSoloPorElUsuario()
    {
        Panel p;
        QSignalSpy cambios(p.primera, &CajaNum::cambiado);
        p.primera->setText(QStringLiteral("12"));
        p.primera->setValue(3);
        QCOMPARE(cambios.count(), 0);
    }

    void bloqueadaPasaElFocoConTab()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.primera->setFocus();
        QVERIFY(p.primera->hasFocus());
        QTest::keyClick(p.primera, Qt::Key_Tab);
        QVERIFY(!p.bloqueada->hasFocus());
        QVERIFY(p.segunda->hasFocus());
        // Coming back with Shift+Tab it passes the focus back, not forward again.
        QTest::keyClick(p.segunda, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(p.primera->hasFocus());
    }

    void bloqueadaPasaElFocoConClic()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.primera->setFocus();
        QTest::mouseClick(p.bloqueada, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(!p.bloqueada->hasFocus());
        QVERIFY(p.segunda->hasFocus());
    }

    void bloqueadaNoAdmiteTeclas()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.bloqueada->setText(QStringLiteral("12"));
        QTest::keyClicks(p.bloqueada, QStringLiteral("9"));
        QCOMPARE(p.bloqueada->text(), QStringLiteral("12"));
    }

    void todasBloqueadasNoSeAtasca()
    {
        QWidget ventana;
        auto* capa = new QVBoxLayout(&ventana);
        auto* a = new CajaNum(&ventana);
        auto* b = new CajaNum(&ventana);
        capa->addWidget(a);
        capa->addWidget(b);
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        a->setFocus();  // returns: the hand-over gives up after a round
        QVERIFY(true);
    }

    void desbloquearYBloquear()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.bloqueada->setLocked(false);
        p.primera->setFocus();
        QTest::keyClick(p.primera, Qt::Key_Tab);
        QVERIFY(p.bloqueada->hasFocus());
        QTest::keyClicks(p.bloqueada, QStringLiteral("7"));
        QCOMPARE(p.bloqueada->text(), QStringLiteral("7"));
    }

    void seleccionaAlEntrar()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.segunda->setText(QStringLiteral("1001"));
        QCOMPARE(p.segunda->text(), QStringLiteral("01001"));
        p.primera->setFocus();
        QTest::keyClick(p.primera, Qt::Key_Tab);
        QVERIFY(p.segunda->hasFocus());
        QCOMPARE(p.segunda->selectedText(), p.segunda->text());
        // Typing replaces the whole.
        QTest::keyClicks(p.segunda, QStringLiteral("48"));
        QCOMPARE(p.segunda->text(), QStringLiteral("48"));
        p.primera->setFocus();
        QTest::mouseClick(p.segunda, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QTRY_COMPARE(p.segunda->selectedText(), p.segunda->text());
    }

    void salidaFormateaYAvisa()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        QSignalSpy salidas(p.segunda, &CajaNum::salida);
        QString textoAlSalir;
        connect(p.segunda, &CajaNum::salida, this, [&] { textoAlSalir = p.segunda->text(); });
        p.segunda->setFocus();
        QTest::keyClicks(p.segunda, QStringLiteral("48"));
        QTest::keyClick(p.segunda, Qt::Key_Tab);
        QCOMPARE(salidas.count(), 1);
        QCOMPARE(p.segunda->text(), QStringLiteral("00048"));
        QCOMPARE(textoAlSalir, QStringLiteral("00048"));  // the format is in before the signal
    }

    void importeEnCastellano()
    {
        QWidget ventana;
        auto* capa = new QVBoxLayout(&ventana);
        auto* base = new CajaNum(&ventana);
        base->setObjectName(QStringLiteral("txtbasei"));
        base->setLocked(false);
        base->setEnteros(13);
        base->setDecimales(2);
        base->setFormato(QStringLiteral("#,###,###,###,##0.00"));
        auto* otro = new QPushButton(QStringLiteral("x"), &ventana);
        capa->addWidget(base);
        capa->addWidget(otro);
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        otro->setFocus();

        base->setValue(1234.5);
        QCOMPARE(base->text(), QStringLiteral("1.234,50"));
        base->setFocus();
        // While typing, the plain number.
        QCOMPARE(base->text(), QStringLiteral("1234,5"));
        QTest::keyClicks(base, QStringLiteral("10000,5"));
        QCOMPARE(base->text(), QStringLiteral("10000,5"));
        otro->setFocus();
        QCOMPARE(base->text(), QStringLiteral("10.000,50"));
        QCOMPARE(base->value(), 10000.5);
    }

    void decimalesLimitados()
    {
        QWidget ventana;
        auto* tipo = new CajaNum(&ventana);
        tipo->setLocked(false);
        tipo->setEnteros(2);
        tipo->setDecimales(2);
        tipo->setFormato(QStringLiteral("##0.00"));
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        tipo->setFocus();
        // The keypad point is the decimal comma; a second comma, a third integer digit and
        // a third decimal are refused.
        QTest::keyClicks(tipo, QStringLiteral("123.4,56"));
        QCOMPARE(tipo->text(), QStringLiteral("12,45"));
        tipo->clearFocus();
        QCOMPARE(tipo->text(), QStringLiteral("12,45"));
        QCOMPARE(tipo->value(), 12.45);
    }

    void sinDecimalesNoHayComa()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.primera->setFocus();
        QTest::keyClicks(p.primera, QStringLiteral("1,2"));
        QCOMPARE(p.primera->text(), QStringLiteral("12"));
    }

    void formatosDeLasCajas()
    {
        CajaNum caja;
        caja.setFormato(QStringLiteral("#,###,###"));
        caja.setValue(1234567);
        QCOMPARE(caja.text(), QStringLiteral("1.234.567"));
        caja.setFormato(QStringLiteral("#####"));
        caja.setValue(0);
        QCOMPARE(caja.text(), QString());  // a zero number shows an empty box
        QCOMPARE(caja.value(), 0.0);
        QVERIFY(caja.vacia());
        caja.setFormato(QStringLiteral("##,###"));
        caja.setText(QStringLiteral("1600"));
        QCOMPARE(caja.text(), QStringLiteral("1.600"));
        QCOMPARE(caja.value(), 1600.0);
        caja.setFormato(QStringLiteral("00"));
        caja.setText(QStringLiteral("1"));
        QCOMPARE(caja.text(), QStringLiteral("01"));
        caja.setText(QString());
        QCOMPARE(caja.text(), QString());
        // Without a format the box shows what it is given.
        caja.setFormato(QString());
        caja.setText(QStringLiteral("01001"));
        QCOMPARE(caja.text(), QStringLiteral("01001"));
    }

    void pegarSeFiltra()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.primera->setFocus();
        p.primera->insert(QStringLiteral("12a"));  // what a paste does: refused as a whole
        QCOMPARE(p.primera->text(), QString());
        p.primera->insert(QStringLiteral("123"));
        QCOMPARE(p.primera->text(), QStringLiteral("123"));
        p.primera->insert(QStringLiteral("456"));  // beyond 5 digits: refused
        QCOMPARE(p.primera->text(), QStringLiteral("123"));
    }
};

QTEST_MAIN(TestCajaNum)
#include "test_cajanum.moc"
