// The date of presentation is checked once, here, for the print panel and the command line: a
// date from 01/12/2003 on is taken into ImOf().FECHAPRE, an earlier one or no date comes back
// as a verdict (message, icon, title, control) in the language in use, with the limit written
// as the shared Fecha writes dates, and ImOf() left as it was. Nothing is shown.
#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/imprimir/FechaPresentacion.h"
#include "registros/imprimir/cImOf.h"
#include "valores/cFecha.h"

#include <QTest>

namespace {
// The program speaks `euskera`; the answer is the layout the date texts are written in.
Idioma idioma(bool euskera, bool fechasEnEuskera)
{
    EstablecerIdiomaPrograma(euskera ? Idioma::Euskera : Idioma::Castellano);
    return fechasEnEuskera ? Idioma::Euskera : Idioma::Castellano;
}

void comprobarAviso(const Veredicto& v)
{
    QCOMPARE(v.botones, int(vb::OKOnly | vb::Exclamation));
    QCOMPARE(v.titulo, Texto(kIdErrorIntroduccionDatos));
    QCOMPARE(v.control, QStringLiteral("txtFechaPresentacion"));
}
}

class TestFechaPresentacion : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        idioma(false, false);
        ImOf().FECHAPRE = 20100101;
    }
    void cleanup()
    {
        idioma(false, false);
    }

    void desdeElLimite_data()
    {
        QTest::addColumn<bool>("euskera");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<int>("numero");
        QTest::newRow("el limite") << false << QStringLiteral("01/12/2003") << 20031201;
        QTest::newRow("sin tope") << false << QStringLiteral("31/12/2099") << 20991231;
        QTest::newRow("muga") << true << QStringLiteral("2003/12/01") << 20031201;
        QTest::newRow("bisiesto") << true << QStringLiteral("2004/02/29") << 20040229;
    }
    void desdeElLimite()
    {
        QFETCH(bool, euskera);
        QFETCH(QString, texto);
        QFETCH(int, numero);
        const Idioma formato = idioma(euskera, euskera);
        QVERIFY(VeredictoFechaPresentacion(texto, formato).vacio());
        QCOMPARE(ImOf().FECHAPRE, 20100101);
        QVERIFY(FijarFechaPresentacion(texto).vacio());
        QCOMPARE(ImOf().FECHAPRE, numero);
    }

    void antesDelLimite_data()
    {
        QTest::addColumn<bool>("euskera");
        QTest::addColumn<bool>("fechasEnEuskera");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("castellano")
            << false << false << QStringLiteral("30/11/2003")
            << QStringLiteral("La Fecha de presentación no puede ser anterior al 01/12/2003");
        QTest::newRow("euskera")
            << true << true << QStringLiteral("2003/11/30")
            << QStringLiteral("Aurkezpen data ezin da 2003/12/01 baino lehenagokoa izan");
        // The command line reads dates day first whatever the language of its messages.
        QTest::newRow("euskera, fecha castellana")
            << true << false << QStringLiteral("01/01/1999")
            << QStringLiteral("Aurkezpen data ezin da 01/12/2003 baino lehenagokoa izan");
        // An empty date is a date for the check, and lies before the limit.
        QTest::newRow("vacía")
            << false << false << QStringLiteral("__/__/____")
            << QStringLiteral("La Fecha de presentación no puede ser anterior al 01/12/2003");
        QTest::newRow("vacía en euskera")
            << true << true << QStringLiteral("____/__/__")
            << QStringLiteral("Aurkezpen data ezin da 2003/12/01 baino lehenagokoa izan");
    }
    void antesDelLimite()
    {
        QFETCH(bool, euskera);
        QFETCH(bool, fechasEnEuskera);
        QFETCH(QString, texto);
        QFETCH(QString, mensaje);
        const Idioma formato = idioma(euskera, fechasEnEuskera);
        const Veredicto v = VeredictoFechaPresentacion(texto, formato);
        QCOMPARE(v.mensaje, mensaje);
        comprobarAviso(v);
        if (euskera == fechasEnEuskera) {
            const Veredicto fijado = FijarFechaPresentacion(texto);
            QCOMPARE(fijado.mensaje, mensaje);
            comprobarAviso(fijado);
        }
        QCOMPARE(ImOf().FECHAPRE, 20100101);
    }

    void noEsFecha_data()
    {
        QTest::addColumn<bool>("euskera");
        QTest::addColumn<QString>("texto");
        QTest::newRow("31 de febrero") << false << QStringLiteral("31/02/2010");
        QTest::newRow("vacia") << false << QStringLiteral("//");
        QTest::newRow("letras") << false << QStringLiteral("ab/cd/efgh");
        QTest::newRow("orden castellano en euskera") << true << QStringLiteral("11/03/2004");
    }
    void noEsFecha()
    {
        QFETCH(bool, euskera);
        QFETCH(QString, texto);
        idioma(euskera, euskera);
        const Veredicto v = FijarFechaPresentacion(texto);
        QCOMPARE(v.id, kIdFechaPresentacionIncorrecta);
        QCOMPARE(v.mensaje, Texto(kIdFechaPresentacionIncorrecta));
        QVERIFY(!v.mensaje.isEmpty());
        comprobarAviso(v);
        QCOMPARE(ImOf().FECHAPRE, 20100101);
    }
};

QTEST_GUILESS_MAIN(TestFechaPresentacion)
#include "test_fecha_presentacion.moc"
