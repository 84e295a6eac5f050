// The export over a real store: the tables and their moves, the check of the numbers and of
// what the code page can hold, the target, the file byte for byte in the order of selection,
// and the round trip: a store exported and imported into an empty one gives the same
// contributors, field by field.
#include "ApoyoIntercambio.h"
#include "comun/AlmacenNuevo.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cContribSvr.h"

#include "catalogo/IdsCatalogo.h"

#include <QFile>
#include <QTest>

using namespace ApoyoIntercambio;

namespace {

// A contributor stored through the store's own save; answers its code.
// The 19 fields in the order of the exchange line, as a contributor to save.
Contribuyente DeCampos(const QList<QVariant>& f)
{
    Contribuyente c;
    c.TIPODNI = f[0].toString();
    c.DNIC = f[1].toString();
    c.NOMBREC = f[2].toString();
    c.VIAC = f[3].toString();
    c.DOMICILIOC = f[4].toString();
    c.NUMEROC = f[5].toInt();
    c.LETRAC = f[6].toString();
    c.ESCALERAC = f[7].toString();
    c.PISOC = f[8].toString();
    c.MANOC = f[9].toString();
    c.TIPODOMI = f[10].toString();
    c.PAIS = f[11].toString();
    c.CODPROVC = f[12].toString();
    c.NOMPROVC = f[13].toString();
    c.CODPOSC = f[14].toString();
    c.CODMUNC = f[15].toString();
    c.NOMMUNC = f[16].toString();
    return c;
}

int32_t Guardar(const QList<QVariant>& campos19)
{
    const Resultado<Contribuyente> r = Svr().GuardarContribuyente(DeCampos(campos19));
    if (!r)
        qFatal("refused");
    return r->CSCO;
}

QList<QVariant> Nacional(quint32 n, const QString& nombre)
{
    return {"O", QString::fromLatin1(DniDe(n)), nombre, "CL", "MAYOR", 12, "B", "1", "3", "IZ",
            "N", "", "77", "", "77001", "001", "", 0.0, 0.0};
}

QList<QVariant> Extranjero(const QString& dni, const QString& nombre)
{
    return {"N", dni, nombre, "AV", "RUE ÇÀ ET LÀ", 0, "", "", "", "", "E", "FRANCIA", "", "ÎLE",
            "75001", "", "PARÍS", 0.0, 0.0};
}

// Every stored field of every contributor, by number, without the code.
QMap<QString, QStringList> Todo()
{
    QMap<QString, QStringList> todo;
    for (const Contribuyente& c : Svr().dameResultadoBusquedaTodo({}, OrdenParte::Nombre)) {
        const QStringList campos = {
            c.TIPODNI,  c.DNIC,     c.NOMBREC,  c.VIAC,     c.DOMICILIOC,
            QString::number(c.NUMEROC), c.LETRAC, c.ESCALERAC, c.PISOC, c.MANOC,
            c.TIPODOMI, c.PAIS,     c.CODPROVC, c.NOMPROVC, c.CODPOSC,
            c.CODMUNC,  c.NOMMUNC,  QString::number(c.NUMSP), QString::number(c.NUMTR)};
        todo.insert(c.DNIC, campos);
    }
    return todo;
}

}  // namespace

class TestExportar : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init()
    {
        m_carpeta = AlmacenNuevo();
        Exportar().Iniciar();
    }
    void cleanup() { m_carpeta.reset(); }

    void valoresDeInicio()
    {
        const cExportar& e = Exportar();
        QCOMPARE(e.FICHEROAEXPORTAR, m_carpeta->ruta() + QStringLiteral("/CONTRI.txt"));
        QCOMPARE(int(e.ORDEN), 1);
        QCOMPARE(e.BUSQUEDA, QStringLiteral("N"));
        QCOMPARE(e.SELECCIONACTUAL, QStringLiteral("0"));
        QVERIFY(!e.TABLASELECCION);
        QCOMPARE(e.NUMCONTRIEXP, 0);
        QCOMPARE(e.TablaContriExpCOUNT(), 0);
    }

    void lineasEnElOrdenDeSeleccion()
    {
        const int32_t b = Guardar(Nacional(2, "BETA"));
        const int32_t a = Guardar(Nacional(1, "ALFA"));
        cExportar& e = Exportar();
        QCOMPARE(e.CargarFlxDeclaraciones(), 2);
        QCOMPARE(e.TablaContriELEMENTO(1).CSCO, a);  // by name
        e.CSCO = b;
        QVERIFY(e.SeleccionarUno());
        QVERIFY(!e.SeleccionarUno());  // never twice
        e.CSCO = a;
        QVERIFY(e.SeleccionarUno());
        e.SeleccionarTodos();          // both there already
        QCOMPARE(e.NUMCONTRIEXP, 2);
        QCOMPARE(e.CSCOEXP, a);
        QVERIFY(e.ComprobarIdentidades());
        QVERIFY(e.ComprobarDestino());
        QVERIFY(e.EscribirFichero());
        QCOMPARE(Leer(e.FICHEROAEXPORTAR),
                 LineaValida(2, "BETA") + "\r\n" + LineaValida(1, "ALFA") + "\r\n");
    }

    void extranjeroByteAByte()
    {
        Guardar(Extranjero(QStringLiteral("X1234567L"), QStringLiteral("MUÑOZ ÇELIK ºª É")));
        cExportar& e = Exportar();
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        QVERIFY(e.EscribirFichero());
        QCOMPARE(Leer(e.FICHEROAEXPORTAR),
                 Linea({"N", "X1234567L", "MU\xD1OZ \xC7" "ELIK \xBA\xAA \xC9", "AV",
                        "RUE \xC7\xC0 ET L\xC0", "0", "", "", "", "", "E", "FRANCIA", "0",
                        "\xCELE", "75001", "0", "PAR\xCDS", "0", "0"})
                     + "\r\n");
    }

    void numerosErroneosParanLaExportacion()
    {
        Guardar(Nacional(1, "BUENO"));
        // An official number without its letter, and a non-official one of value 0.
        Guardar(Extranjero(QStringLiteral("000000000"), QStringLiteral("CERO")));
        Contribuyente a = DeCampos(Nacional(2, "SIN LETRA"));
        a.DNIC = QStringLiteral("12345678");
        // The store's own save does not judge the number; the export does.
        QVERIFY(Svr().GuardarContribuyente(a));
        cExportar& e = Exportar();
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        const Resultado<void> aviso = e.ComprobarIdentidades();
        QVERIFY(!aviso);
        QCOMPARE(aviso.veredicto().mensaje,
                 QStringLiteral("El/Los Interviniente/s con NIF: 000000000, 12345678 tiene/n un "
                                "NIF erróneo o necesita/n llevar el dígito de control"));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(e.ComprobarIdentidades().veredicto().mensaje,
                 QStringLiteral("000000000, 12345678 IFZ duten esku hartzailea(e)k IFZ okerra "
                                "du(te) edo kontrol digitua eraman behar du(te)."));
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void caracterQueElFicheroNoAdmite()
    {
        Guardar(Nacional(1, QStringLiteral("ŁUKASZ")));
        Guardar(Nacional(2, QStringLiteral("BIEN")));
        cExportar& e = Exportar();
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        const Resultado<void> aviso = e.ComprobarIdentidades();
        QVERIFY(!aviso);
        const QString noCaben = QStringLiteral("con caracteres que no caben en el fichero");
        QCOMPARE(aviso.veredicto().mensaje,
                 QStringLiteral("El/Los Interviniente/s con NIF: ") + QString::fromLatin1(DniDe(1))
                     + QStringLiteral(" tiene/n datos ") + noCaben + QStringLiteral(" de intercambio"));
        // Written all the same, it is refused whole: nothing lands in the file.
        const Resultado<void> escrito = e.EscribirFichero();
        QVERIFY(!escrito);
        QVERIFY(escrito.veredicto().mensaje.contains(noCaben));
        QVERIFY(!QFile::exists(e.FICHEROAEXPORTAR));
    }

    void destino()
    {
        cExportar& e = Exportar();
        e.FICHEROAEXPORTAR = m_carpeta->ruta() + QStringLiteral("/no/existe/F.txt");
        QCOMPARE(e.ComprobarDestino().veredicto().mensaje, QStringLiteral("         No hay disquete en la unidad"));
        e.FICHEROAEXPORTAR.clear();
        QCOMPARE(e.ComprobarDestino().veredicto().id, kIdNoHayDisquete);
        e.FICHEROAEXPORTAR = m_carpeta->ruta();
        QCOMPARE(e.ComprobarDestino().veredicto().id, kIdNoHayDisquete);
        // A file is replaced whole.
        e.FICHEROAEXPORTAR = m_carpeta->ruta() + QStringLiteral("/F.txt");
        Escribir(e.FICHEROAEXPORTAR, "ANTES");
        QVERIFY(e.DestinoExiste());
        QVERIFY(e.EscribirFichero());
        QCOMPARE(Leer(e.FICHEROAEXPORTAR), QByteArray());
        // A target that cannot be written answers its failure.
        e.FICHEROAEXPORTAR = QStringLiteral("/proc/veldoria-export.txt");
        QCOMPARE(e.EscribirFichero().veredicto().id, kIdErrorNumero);
    }

    void deseleccionar()
    {
        const int32_t a = Guardar(Nacional(1, "A"));
        const int32_t b = Guardar(Nacional(2, "B"));
        cExportar& e = Exportar();
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        QCOMPARE(e.TablaContriExpCOUNT(), 2);
        e.TablaContriExpBORRAR(1);
        QCOMPARE(e.TablaContriExpCOUNT(), 1);
        QCOMPARE(e.TablaContriExpELEMENTO(1).CSCO, b);
        QVERIFY(!e.TablaContriExpPERTENECE(a));
        e.CSCO = a;
        QVERIFY(e.SeleccionarUno());  // may come back after leaving
        e.DeseleccionarTodos();
        QCOMPARE(e.NUMCONTRIEXP, 0);
        QCOMPARE(e.CSCOEXP, 0);
    }

    void seleccionesDeVariasBusquedas()
    {
        Guardar(Nacional(1, "ALFA"));
        Guardar(Nacional(2, "BETA"));
        cExportar& e = Exportar();
        e.CambiarBusqueda();
        QVERIFY(e.ElegirColumnaBusqueda(1));
        e.AnotarBusqueda(QStringLiteral("AL"));
        e.CambiarBusqueda();
        QCOMPARE(e.CargarFlxDeclaraciones(), 1);
        e.SeleccionarTodos();
        e.CambiarBusqueda();
        QVERIFY(e.ElegirColumnaBusqueda(1));
        e.AnotarBusqueda(QStringLiteral("BE"));
        e.CambiarBusqueda();
        QCOMPARE(e.CargarFlxDeclaraciones(), 1);
        e.SeleccionarTodos();
        QCOMPARE(e.NUMCONTRIEXP, 2);
        e.CambiarBusqueda();
        QVERIFY(e.ElegirColumnaBusqueda(2));
        e.AnotarBusqueda(QStringLiteral("9"));
        e.CambiarBusqueda();
        QCOMPARE(e.CargarFlxDeclaraciones(), 0);
    }

    void idaYVuelta()
    {
        for (quint32 n = 1; n <= 40; ++n)
            Guardar(Nacional(n, QStringLiteral("NOMBRE %1 ÑÇ").arg(n)));
        Guardar(Extranjero(QStringLiteral("X1234567L"), QStringLiteral("MUÑOZ ÇELIK ºª É")));
        Guardar(Extranjero(QStringLiteral("Y7654321G"), QStringLiteral("ŠTĚPÁN")
                                                            .replace(QChar(0x011A), QChar('E'))));
        const QMap<QString, QStringList> antes = Todo();
        cExportar& e = Exportar();
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        QVERIFY(e.ComprobarIdentidades());
        QVERIFY(e.EscribirFichero());
        const QByteArray fichero = Leer(e.FICHEROAEXPORTAR);
        QCOMPARE(fichero.size(), 42 * 178);

        m_carpeta = AlmacenNuevo();  // another installation, empty
        QCOMPARE(Todo().size(), 0);
        Importar().Iniciar();
        Escribir(Importar().FICHEROAIMPORTAR, fichero);
        Importar().AUTOMATICO = QStringLiteral("X");
        QCOMPARE(Importar().Ejecutar({}).id, kIdImportadosCorrectamente);
        QCOMPARE(Todo(), antes);
    }
};

QTEST_MAIN(TestExportar)
#include "test_exportar.moc"
