// The online assistance: the address handed to the browser in each language, the message when
// no browser opens, the description of the service, and the department's name for the form.
#include "comun/Entorno.h"

#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Navegador.h"
#include "catalogo/Catalogo.h"
#include "servicios/cMiscelaneos.h"

#include <QTest>
#include <QUrlQuery>

class TestMiscelaneos : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        GrabarSeams();
        NavegadorSeam::grabar(true);
    }
    void cleanup() { NavegadorSeam::grabar(false); }

    void abreLaAsistenciaEnCastellano()
    {
        cMiscelaneos m;
        m.Idioma = 0;
        MostrarVeredicto(m.AccesoAyuOnline(AbrirEnNavegador));
        QCOMPARE(NavegadorSeam::registro().size(), 1);
        const QUrl url = NavegadorSeam::registro()[0];
        QVERIFY(url.host().endsWith(QLatin1String(".example")));
        QCOMPARE(url.scheme(), QStringLiteral("http"));
        QCOMPARE(QUrlQuery(url).queryItemValue(QStringLiteral("idioma")), QStringLiteral("c"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void abreLaAsistenciaEnEuskera()
    {
        cMiscelaneos m;
        m.Idioma = 10000;
        MostrarVeredicto(m.AccesoAyuOnline(AbrirEnNavegador));
        QCOMPARE(NavegadorSeam::registro().size(), 1);
        QCOMPARE(QUrlQuery(NavegadorSeam::registro()[0]).queryItemValue(QStringLiteral("idioma")),
                 QStringLiteral("e"));
    }

    void sinNavegador()
    {
        NavegadorSeam::setNextResult(false);
        cMiscelaneos m;
        MostrarVeredicto(m.AccesoAyuOnline(AbrirEnNavegador));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, TextoFila(335));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(336));

        NavegadorSeam::setNextResult(false);
        m.Idioma = 10000;
        MostrarVeredicto(m.AccesoAyuOnline(AbrirEnNavegador));
        QCOMPARE(MensajeSeam::registro()[1].texto, TextoFila(10335));
        QCOMPARE(MensajeSeam::registro()[1].titulo, TextoFila(10336));
    }

    void descripcionDelServicio()
    {
        cMiscelaneos m;
        MostrarVeredicto(m.MostrarOnlineInfo());
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& r = MensajeSeam::registro()[0];
        QCOMPARE(r.titulo, TextoFila(361));
        QCOMPARE(r.icono(), int(vb::Information));
        QVERIFY(r.texto.contains(cMiscelaneos::DireccionAyuOnline(0).toString()));
        QVERIFY(r.texto.contains(QLatin1String("asistencia on-line")));
        QVERIFY(NavegadorSeam::registro().isEmpty());

        m.Idioma = 10000;
        MostrarVeredicto(m.MostrarOnlineInfo());
        const auto& e = MensajeSeam::registro()[1];
        QCOMPARE(e.titulo, TextoFila(10361));
        QVERIFY(e.texto.contains(cMiscelaneos::DireccionAyuOnline(10000).toString()));
        QVERIFY(e.texto.contains(QLatin1String("laguntza")));
    }

    // The service answers what to show and never shows it: the browser is the caller's.
    void laLogicaNoMuestraNada()
    {
        cMiscelaneos m;
        QUrl pedida;
        const Veredicto abierto = m.AccesoAyuOnline([&](const QUrl& url) {
            pedida = url;
            return true;
        });
        QVERIFY(abierto.vacio());
        QCOMPARE(pedida, cMiscelaneos::DireccionAyuOnline(0));
        const Veredicto cerrado = m.AccesoAyuOnline([](const QUrl&) { return false; });
        QCOMPARE(cerrado.id, 335);
        QCOMPARE(cerrado.mensaje, TextoFila(335));
        QCOMPARE(cerrado.botones, int(vb::Exclamation));
        QCOMPARE(cerrado.titulo, TextoFila(336));
        QCOMPARE(m.MostrarOnlineInfo().botones, int(vb::Information));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(NavegadorSeam::registro().isEmpty());
    }

    // The form asks for the Basque name with Idioma 1000 and for the Spanish one with 0.
    void nombreDelDepartamento()
    {
        cMiscelaneos m;
        m.Idioma = 1000;
        const QString eu = m.HaciendaFiscalidad();
        m.Idioma = 0;
        const QString es = m.HaciendaFiscalidad();
        QCOMPARE(es, QStringLiteral("Departamento de Hacienda y Finanzas"));
        QCOMPARE(eu, QStringLiteral("Ogasun eta Finantza Saila"));
    }
};

QTEST_MAIN(TestMiscelaneos)
#include "test_miscelaneos.moc"
