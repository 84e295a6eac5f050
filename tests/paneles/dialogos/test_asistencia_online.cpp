// The online assistance through the panels' seams: the service's answer opened in the browser
// in each language, and shown as a message when no browser opens; the description of the
// service shown as a message.
#include "catalogo/IdsCatalogo.h"
#include "comun/Entorno.h"

#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Navegador.h"
#include "catalogo/Catalogo.h"
#include "servicios/cMiscelaneos.h"

#include <QTest>
#include <QUrlQuery>

class TestAsistenciaOnline : public QObject {
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
        QCOMPARE(MensajeSeam::registro()[0].texto, TextoFila(kIdNavegadorNoEncontradoMensaje));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdNavegadorNoEncontrado));

        NavegadorSeam::setNextResult(false);
        m.Idioma = 10000;
        MostrarVeredicto(m.AccesoAyuOnline(AbrirEnNavegador));
        QCOMPARE(MensajeSeam::registro()[1].texto,
                 TextoFila(kIdNavegadorNoEncontradoMensaje + 10000));
        QCOMPARE(MensajeSeam::registro()[1].titulo, TextoFila(kIdNavegadorNoEncontrado + 10000));
    }

    void descripcionDelServicio()
    {
        cMiscelaneos m;
        MostrarVeredicto(m.MostrarOnlineInfo());
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& r = MensajeSeam::registro()[0];
        QCOMPARE(r.titulo, TextoFila(kIdDescripcionServicio));
        QCOMPARE(r.icono(), int(vb::Information));
        QVERIFY(r.texto.contains(cMiscelaneos::DireccionAyuOnline(0).toString()));
        QVERIFY(r.texto.contains(QLatin1String("asistencia on-line")));
        QVERIFY(NavegadorSeam::registro().isEmpty());

        m.Idioma = 10000;
        MostrarVeredicto(m.MostrarOnlineInfo());
        const auto& e = MensajeSeam::registro()[1];
        QCOMPARE(e.titulo, TextoFila(kIdDescripcionServicio + 10000));
        QVERIFY(e.texto.contains(cMiscelaneos::DireccionAyuOnline(10000).toString()));
        QVERIFY(e.texto.contains(QLatin1String("laguntza")));
    }
};

QTEST_MAIN(TestAsistenciaOnline)
#include "test_asistencia_online.moc"
