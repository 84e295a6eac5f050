// The hand-over between panels as types: each value is its letter, the form's list of origin
// keeps its origin across one side trip and forgets it when nothing was under way, and a
// party's returns carry their side trip after their way in.
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

    void lasListasYLaImpresionPorSusLetras()
    {
        QCOMPARE(Letras(EntradaLista::Abrir), QStringLiteral("A"));
        QCOMPARE(Letras(EntradaLista::Eliminar), QStringLiteral("E"));
        QCOMPARE(Letras(EntradaLista::Vuelta), QStringLiteral("P"));
        QCOMPARE(Letras(EntradaLista::Ninguna), QString());
        QCOMPARE(Letras(ModoLista::Abrir), QStringLiteral("C"));
        QCOMPARE(Letras(ModoLista::Eliminar), QStringLiteral("E"));
        QCOMPARE(Letras(OrigenImpresion::Declaracion), QStringLiteral("D"));
        QCOMPARE(Letras(OrigenImpresion::ListaDeclaraciones), QStringLiteral("L"));
        QCOMPARE(Letras(OrigenImpresion::DeclaracionesContribuyente), QStringLiteral("C"));
        QCOMPARE(Letras(OrigenImpresion::DeclaracionesPresentador), QStringLiteral("P"));
    }

    void laEntradaDeLasDeclaracionesLlevaSuViaje()
    {
        EntradaDeclaraciones e(EntradaLista::Abrir);
        QCOMPARE(e.letras(), QStringLiteral("A"));
        QVERIFY(!e.enViaje());
        e.salirDeViaje(ViajeLista::Declaracion);
        QCOMPARE(e.letras(), QStringLiteral("AD"));
        QVERIFY(e.enViaje());
        QCOMPARE(e.entrada(), EntradaLista::Abrir);
        // The panel that brings the list back enters it anew: no trip any more.
        e = EntradaLista::Vuelta;
        QCOMPARE(e.letras(), QStringLiteral("P"));
        QVERIFY(!e.enViaje());
        // After an order or a search the way in is empty, and a trip still shows.
        e = EntradaLista::Ninguna;
        QCOMPARE(e.letras(), QString());
        e.salirDeViaje(ViajeLista::Impresion);
        QCOMPARE(e.letras(), QStringLiteral("I"));
        QVERIFY(e.enViaje());
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
