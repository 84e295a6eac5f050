// The online assistance as the service answers it: the address it asks to open, the verdict
// when no browser opens and the description of the service (the panels' side, with the browser
// and the message box, is tested in tests/paneles/dialogos/test_asistencia_online.cpp), and the
// department's name for the form.
#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "servicios/cMiscelaneos.h"
#include "valores/BotonesMensaje.h"

#include <QTest>

class TestMiscelaneos : public QObject {
    Q_OBJECT

private slots:
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
        QCOMPARE(cerrado.id, kIdNavegadorNoEncontradoMensaje);
        QCOMPARE(cerrado.mensaje, TextoFila(kIdNavegadorNoEncontradoMensaje));
        QCOMPARE(cerrado.botones, int(vb::Exclamation));
        QCOMPARE(cerrado.titulo, TextoFila(kIdNavegadorNoEncontrado));
        QCOMPARE(m.MostrarOnlineInfo().botones, int(vb::Information));
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

QTEST_GUILESS_MAIN(TestMiscelaneos)
#include "test_miscelaneos.moc"
