// Texts of a return at the store's door: a text the store cannot keep as given (a NUL, half of a
// surrogate pair, a text longer than its field) is refused with the program's message, the
// field and its tab, and the store stays as it was; and the search of the list finds a
// reference whatever the case of its letters beyond ASCII.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/declaracion/Validacion.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/ImporteGuardable.h"
#include "servicios/TextoGuardable.h"
#include "servicios/cDeclaSvr.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>
#include <limits>

namespace {

const QChar kNul(u'\0');
const QChar kMitadAlta(char16_t(0xD800));

// Every value of every stored return, to see that nothing changed.
QStringList Contenido(const AlmacenDePrueba& almacen)
{
    QSqlQuery q(almacen.db());
    q.exec(QStringLiteral("SELECT * FROM DECLARACIONES ORDER BY CSDE"));
    QStringList filas;
    while (q.next()) {
        QStringList valores;
        for (int i = 0; i < q.record().count(); ++i)
            valores << q.value(i).toString();
        filas << valores.join(QLatin1Char('|'));
    }
    return filas;
}

}  // namespace

class TestDeclTextos : public QObject {
    Q_OBJECT

private slots:
    void init() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    void textoImposible_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("mensaje");
        QTest::addColumn<int>("pestana");
        QTest::newRow("marca larga") << "txtmarca" << QStringLiteral("SEAT IBIZA FR TDI 2.0 A")
                                     << QStringLiteral("La casilla Marca no puede tener más de 20 caracteres")
                                     << kSinPestana;
        QTest::newRow("referencia con NUL") << "txtreferencia" << QString(kNul) + QStringLiteral("R1")
                                            << QStringLiteral("La casilla Referencia contiene caracteres que no se pueden guardar")
                                            << kSinPestana;
        QTest::newRow("sujeto con NUL") << "txtnombresp" << QString(kNul) + QStringLiteral("GARCIA")
                                        << QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")
                                        << kPestanaSujeto;
        QTest::newRow("calle con mitad de par") << "txtdomiciliotr"
                                                << QStringLiteral("GAS") + kMitadAlta + QStringLiteral("TEIZ")
                                                << QStringLiteral("La casilla Domicilio contiene caracteres que no se pueden guardar")
                                                << kPestanaTransmitente;
        QTest::newRow("transmitente largo") << "txtnombretr" << QString(41, QLatin1Char('T'))
                                            << QStringLiteral("La casilla Apellidos y Nombre no puede tener más de 40 caracteres")
                                            << kPestanaTransmitente;
        QTest::newRow("referencia con blancos de más") << "txtreferencia" << QStringLiteral(" REF-00001 ")
                                                       << QStringLiteral("La casilla Referencia no puede tener más de 10 caracteres")
                                                       << kSinPestana;
    }

    void textoImposible()
    {
        QFETCH(QString, campo);
        QFETCH(QString, valor);
        QFETCH(QString, mensaje);
        QFETCH(int, pestana);
        AlmacenDePrueba almacen;
        DeclaracionValida();
        QVERIFY(DecDatos().GuardarDeclaracion().aceptado());
        const int32_t guardada = DecDatos().CSDE;
        const QStringList antes = Contenido(almacen);

        // The same return changed (an update) and as a new one (an insert).
        for (const int32_t codigo : {guardada, 0}) {
            DeclaracionValida();
            DecDatos().CSDE = codigo;
            cDecDatos& d = DecDatos();
            QString* destino = campo == QLatin1String("txtmarca")        ? &d.MARCA
                : campo == QLatin1String("txtreferencia")                ? &d.REFERENCIA
                : campo == QLatin1String("txtnombresp")                  ? &d.NOMBRESP
                : campo == QLatin1String("txtdomiciliotr")               ? &d.DOMICILIOTR
                                                                         : &d.NOMBRETR;
            *destino = valor;
            const Resultado<void> r = d.GuardarDeclaracion();
            QVERIFY(!r);
            const Veredicto& rechazo = r.veredicto();
            QCOMPARE(rechazo.mensaje, mensaje);
            QCOMPARE(rechazo.control, campo);
            QCOMPARE(rechazo.pestana, pestana);
            QCOMPARE(Contenido(almacen), antes);
        }
    }

    void importeNoFinito_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<double>("valor");
        QTest::addColumn<QString>("mensaje");
        QTest::addColumn<QString>("control");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        QTest::newRow("base NaN") << "BASEI" << nan
                                  << QStringLiteral("La casilla Base Imponible no contiene un importe válido")
                                  << QStringLiteral("txtbasei");
        QTest::newRow("cuota infinita") << "CUOTA" << inf
                                        << QStringLiteral("La casilla Cuota no contiene un importe válido")
                                        << QStringLiteral("txtcuota");
        QTest::newRow("total menos infinito") << "TOTAL" << -inf
                                              << QStringLiteral("La casilla Total Ingresar no contiene un importe válido")
                                              << QStringLiteral("txttotal");
        QTest::newRow("tipo NaN") << "TIPOIMP" << nan
                                  << QStringLiteral("La casilla Tipo Impositivo no contiene un importe válido")
                                  << QStringLiteral("txttipoimp");
        QTest::newRow("deducción infinita") << "DEDUCCION" << inf
                                             << QStringLiteral("La casilla Deducción no contiene un importe válido")
                                             << QStringLiteral("txtdeduccion");
        QTest::newRow("base reducida menos infinito") << "BASEIREDUCIDA" << -inf
                                                       << QStringLiteral("La casilla Base Imp Reducida no contiene un importe válido")
                                                       << QStringLiteral("txtBaseIReducida");
    }

    void importeNoFinito()
    {
        // An amount that is not a finite number is refused at the store's door with the
        // program's message, never a raw NOT NULL failure nor an infinity kept.
        QFETCH(QString, campo);
        QFETCH(double, valor);
        QFETCH(QString, mensaje);
        QFETCH(QString, control);
        AlmacenDePrueba almacen;
        DeclaracionValida();
        QVERIFY(DecDatos().GuardarDeclaracion().aceptado());
        const Declaracion guardada = DecDatos().valor();
        const QStringList antes = Contenido(almacen);
        cDeclaSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        for (const int32_t codigo : {guardada.CSDE, 0}) {
            Declaracion d = guardada;
            d.CSDE = codigo;
            if (campo == QLatin1String("TIPOIMP"))
                d.TIPOIMP = valor;
            else
                (campo == QLatin1String("BASEI")           ? d.BASEI
                 : campo == QLatin1String("BASEIREDUCIDA") ? d.BASEIREDUCIDA
                 : campo == QLatin1String("CUOTA")         ? d.CUOTA
                 : campo == QLatin1String("DEDUCCION")     ? d.DEDUCCION
                                                           : d.TOTAL) = Importe(valor);
            const Resultado<Declaracion> r = svr.GuardarDeclaracion(d);
            QVERIFY(!r);
            QCOMPARE(r.veredicto().id, kIdCasillaImporteNoValido);
            QCOMPARE(r.veredicto().mensaje, mensaje);
            QCOMPARE(r.veredicto().control, control);
            QCOMPARE(r.veredicto().vigencia, Vigencia::Vigente);
            QCOMPARE(Contenido(almacen), antes);
        }
    }

    void loQueEntraNoCambia()
    {
        // A text the store keeps is read back exactly as it was given.
        AlmacenDePrueba almacen;
        DeclaracionValida();
        DecDatos().NOMBRESP = QStringLiteral("ÑANDÚ ") + QString::fromUcs4(U"\U0001F697", 1);
        DecDatos().REFERENCIA = QStringLiteral(" ç-1 ");
        QVERIFY(DecDatos().GuardarDeclaracion().aceptado());
        const int32_t c = DecDatos().CSDE;
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        DecDatos().CSDE = c;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().NOMBRESP, QStringLiteral("ÑANDÚ ") + QString::fromUcs4(U"\U0001F697", 1));
        QCOMPARE(DecDatos().REFERENCIA, QStringLiteral(" ç-1 "));
    }

    void busquedaDeReferencia()
    {
        AlmacenDePrueba almacen;
        for (const char* referencia : {"AÑO-1", "año-2", "ANO-3", "ÇA-4"}) {
            DeclaracionValida();
            DecDatos().REFERENCIA = QString::fromUtf8(referencia);
            QVERIFY(DecDatos().GuardarDeclaracion().aceptado());
        }
        cDeclaSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        const auto buscar = [&svr](const QString& prefijo) {
            CondicionesDeclaracion c;
            c.REFERENCIA = prefijo;
            QStringList refs;
            for (const FilaDeclaracion& f : svr.dameResultadoBusqueda(c, 2, QStringLiteral("ASC"), Idioma::Castellano))
                refs << f.REFERENCIA;
            refs.sort();
            return refs;
        };
        const QStringList anos = {QStringLiteral("AÑO-1"), QStringLiteral("año-2")};
        QCOMPARE(buscar(QStringLiteral("año")), anos);
        QCOMPARE(buscar(QStringLiteral("AÑO")), anos);
        QCOMPARE(buscar(QStringLiteral("ç")), QStringList{QStringLiteral("ÇA-4")});
        QCOMPARE(buscar(QStringLiteral("an")), QStringList{QStringLiteral("ANO-3")});
    }
};

QTEST_GUILESS_MAIN(TestDeclTextos)
#include "test_decl_textos.moc"
#include "valores/EstadoNavegacion.h"
