// The address pickers on their own, as any panel uses them: the statements by language, the
// keys of the items, the names of codes, and a picker opened over a small panel: located item,
// frames switched off, choice by Enter and by double click, Escape, search by first letters.
#include "ApoyoDatos.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/controles/cListaClaves.h"
#include "paneles/partes/Selectores.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

class TestSelectores : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init()
    {
        GrabarSeams();
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }
    void cleanup()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        m_carpeta.reset();
    }

    void listasSegunIdioma()
    {
        cListaClaves vias, provincias;
        CargarVias(&vias);
        CargarProvincias(&provincias);
        QCOMPARE(TextoDeClaveEn(vias, QStringLiteral("CL")), QStringLiteral("Calle"));
        QCOMPARE(TextoDeClaveEn(provincias, QStringLiteral("c48")), QStringLiteral("Vizcaya"));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        cListaClaves kaleak, probintziak, udalerriak;
        CargarVias(&kaleak);
        CargarProvincias(&probintziak);
        CargarMunicipios(&udalerriak);
        QCOMPARE(TextoDeClaveEn(kaleak, QStringLiteral("CL")), QStringLiteral("Kalea"));
        QCOMPARE(TextoDeClaveEn(probintziak, QStringLiteral("c48")), QStringLiteral("Bizkaia"));
        QCOMPARE(TextoDeClaveEn(udalerriak, QStringLiteral("c2")), QStringLiteral("VELDORRETA"));
    }

    void clavesYCodigos()
    {
        QCOMPARE(Selectores::Clave(TipoSelector::Provincia, QStringLiteral("01")), QStringLiteral("c1"));
        QCOMPARE(Selectores::Clave(TipoSelector::Provincia, QStringLiteral("77")), QStringLiteral("c77"));
        QCOMPARE(Selectores::Clave(TipoSelector::Provincia, QString()), QStringLiteral("c0"));
        QCOMPARE(Selectores::Clave(TipoSelector::Municipio, QStringLiteral("005")), QStringLiteral("c5"));
        QCOMPARE(Selectores::Clave(TipoSelector::Municipio, QStringLiteral("5")), QStringLiteral("c5"));
        QCOMPARE(Selectores::Clave(TipoSelector::Via, QStringLiteral("CL")), QStringLiteral("CL"));
        QCOMPARE(Selectores::CodigoDeClave(TipoSelector::Provincia, QStringLiteral("c1")), QStringLiteral("1"));
        QCOMPARE(Selectores::CodigoDeClave(TipoSelector::Municipio, QStringLiteral("c 12 ")), QStringLiteral("12"));
        QCOMPARE(Selectores::CodigoDeClave(TipoSelector::Via, QStringLiteral("AV")), QStringLiteral("AV"));
    }

    void cargaDeLasTresListas()
    {
        cListaClaves vias, provincias, municipios;
        CargarVias(&vias);
        CargarProvincias(&provincias);
        CargarMunicipios(&municipios);
        QVERIFY(vias.Count() > 20);
        QCOMPARE(TextoDeClaveEn(vias, QStringLiteral("CL")), QStringLiteral("Calle"));
        QCOMPARE(TextoDeClaveEn(provincias, QStringLiteral("c1")), QStringLiteral("Álava"));
        QCOMPARE(TextoDeClaveEn(provincias, QStringLiteral("c77")), QStringLiteral("Arbelia"));
        QCOMPARE(TextoDeClaveEn(provincias, QStringLiteral("c01")), QString());
        QCOMPARE(TextoDeClaveEn(municipios, QStringLiteral("c2")), QStringLiteral("VELDORRETA"));
        // The names come in alphabetical order, accents aside.
        QCOMPARE(provincias.TextoElemento(0), QStringLiteral("Álava"));
        QCOMPARE(municipios.TextoElemento(0), QStringLiteral("ALDAMENDIKOA"));
        // The code column shows the code as stored.
        QCOMPARE(provincias.topLevelItem(0)->text(cListaClaves::kColumnaCodigo), QStringLiteral("01"));
    }

    void abrirElegirYCancelar()
    {
        QWidget panel;
        panel.resize(500, 400);
        auto* marco = new QWidget(&panel);
        auto* campo = new QLineEdit(marco);
        auto* boton = new QPushButton(QStringLiteral("..."), marco);
        auto* caja = new QVBoxLayout(&panel);
        caja->addWidget(marco);
        auto* interior = new QVBoxLayout(marco);
        interior->addWidget(campo);
        interior->addWidget(boton);
        cSelector selector(TipoSelector::Provincia, QStringLiteral("lstcodprov"), &panel);
        selector.setMarcos({marco});
        selector.Cargar();
        QCOMPARE(selector.Nombre(QStringLiteral("09")), QStringLiteral("Burgos"));
        QCOMPARE(selector.Nombre(QStringLiteral("00")), QString());
        panel.show();
        QApplication::setActiveWindow(&panel);
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        campo->setFocus();
        cListaClaves* lista = selector.lista();
        QCOMPARE(lista->objectName(), QStringLiteral("lstcodprov"));
        QVERIFY(!lista->isVisible());

        QSignalSpy elegido(&selector, &cSelector::elegido);
        QSignalSpy cancelado(&selector, &cSelector::cancelado);
        selector.Abrir(QStringLiteral("Burgos"), boton);
        QVERIFY(selector.Abierto());
        QVERIFY(lista->isVisible());
        QVERIFY(!marco->isEnabled());
        QCOMPARE(QApplication::focusWidget(), lista);
        QCOMPARE(TextoActual(lista), QStringLiteral("Burgos"));
        QVERIFY(panel.rect().contains(lista->geometry()));
        // Keys other than letters, Enter and Escape do nothing.
        QTest::keyClick(lista, Qt::Key_Space);
        QTest::keyClick(lista, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), lista);
        QCOMPARE(TextoActual(lista), QStringLiteral("Burgos"));
        QTest::keyClick(lista, Qt::Key_Return);
        QCOMPARE(elegido.size(), 1);
        QCOMPARE(elegido[0][0].toString(), QStringLiteral("c9"));
        QCOMPARE(elegido[0][1].toString(), QStringLiteral("Burgos"));
        QVERIFY(!selector.Abierto());
        QVERIFY(marco->isEnabled());
        selector.Cerrar(campo);
        QVERIFY(!lista->isVisible());
        QCOMPARE(QApplication::focusWidget(), campo);

        // No name: the first item; Escape.
        selector.Abrir(QString(), boton);
        QCOMPARE(lista->Actual(), 0);
        QTest::keyClick(lista, Qt::Key_Escape);
        QCOMPARE(cancelado.size(), 1);
        QCOMPARE(elegido.size(), 1);
        selector.Cerrar(campo);
        QVERIFY(!lista->isVisible());

        // Letters, lower case included, search the names; a double click chooses.
        selector.Abrir(QString(), boton);
        QTest::keyClicks(lista, QStringLiteral("viz"));
        QCOMPARE(TextoActual(lista), QStringLiteral("Vizcaya"));
        QTest::qWait(1100);
        QTest::keyClick(lista, Qt::Key_A);
        QCOMPARE(TextoActual(lista), QStringLiteral("Álava"));
        QTest::keyClick(lista, Qt::Key_A);
        QCOMPARE(TextoActual(lista), QStringLiteral("Albacete"));
        DobleClicEnTexto(lista, QStringLiteral("Cuenca"));
        QCOMPARE(elegido.size(), 2);
        QCOMPARE(elegido[1][0].toString(), QStringLiteral("c16"));
    }

private:
    static QString TextoDeClaveEn(const cListaClaves& lista, const QString& clave)
    {
        const int i = lista.IndiceDeClave(clave);
        return i < 0 ? QString() : lista.TextoElemento(i);
    }
};

QTEST_MAIN(TestSelectores)
#include "test_selectores.moc"
