// The hand-over between panels as types: each value is its letter, and the form's list of
// origin keeps its origin across one side trip and forgets it when nothing was under way.
#include "plataforma/Estado.h"
#include "valores/EstadoNavegacion.h"

#include <QTest>

using namespace Navegacion;

class TestEstadoNavegacion : public QObject {
    Q_OBJECT
private slots:
    void cadaValorEsSuLetra()
    {
        QCOMPARE(Letras(Entrada::Inicio), QStringLiteral("A"));
        QCOMPARE(Letras(Entrada::Sujeto), QStringLiteral("S"));
        QCOMPARE(Letras(Entrada::Transmitente), QStringLiteral("T"));
        QCOMPARE(Letras(Entrada::Vuelta), QStringLiteral("P"));
        QCOMPARE(Letras(Entrada::SinCarga), QStringLiteral("R"));
        QCOMPARE(Letras(Modo::Nuevo), QStringLiteral("A"));
        QCOMPARE(Letras(Modo::Abrir), QStringLiteral("C"));
        QCOMPARE(Letras(Modo::Copia), QStringLiteral("D"));
        QCOMPARE(Letras(OrigenParte::Lista), QStringLiteral("S"));
        QCOMPARE(Letras(OrigenParte::Menu), QString());
    }

    void listaDeOrigenConSusViajes()
    {
        ListaOrigen lista(Origen::DeclaracionesContribuyente);
        QCOMPARE(lista.letras(), QStringLiteral("C"));
        QCOMPARE(lista.listaDeVuelta(), std::optional<Origen>(Origen::DeclaracionesContribuyente));
        lista.salirDeViaje(Viaje::Impresion);
        QCOMPARE(lista.letras(), QStringLiteral("CI"));
        QVERIFY(lista.enViaje());
        QCOMPARE(lista.listaDeVuelta(), std::nullopt);
        lista.volverDeViaje();
        QCOMPARE(lista.letras(), QStringLiteral("C"));
        QVERIFY(!lista.enViaje());
    }

    void desdeElMenuNoHayListaALaQueVolver()
    {
        ListaOrigen lista;
        QCOMPARE(lista.letras(), QString());
        QCOMPARE(lista.listaDeVuelta(), std::nullopt);
        lista.salirDeViaje(Viaje::Seleccion);
        QCOMPARE(lista.letras(), QStringLiteral("T"));
        lista.volverDeViaje();
        QCOMPARE(lista.letras(), QString());
    }

    void volverSinViajeOlvidaElOrigen()
    {
        // As a trip's panel that hands back when the form was on none: only the first of two
        // letters stays, a lone letter goes.
        ListaOrigen lista(Origen::ListaDeclaraciones);
        lista.volverDeViaje();
        QCOMPARE(lista.letras(), QString());
    }

    void lasRutasSeReinicianConLosRegistros()
    {
        RutaDec().modo = Modo::Copia;
        RutaDec().lista.salirDeViaje(Viaje::Seleccion);
        RutaCon().origen = OrigenParte::Lista;
        Estado().Reiniciar();
        QCOMPARE(RutaDec().lista.letras(), QString());
        QCOMPARE(Letras(RutaDec().modo), QStringLiteral("C"));
        QCOMPARE(RutaCon().origen, OrigenParte::Menu);
    }
};

QTEST_GUILESS_MAIN(TestEstadoNavegacion)
#include "test_estado_navegacion.moc"
