// The store's batches of saves: the same verdicts and the same rows as saving one by one, the
// look-ups that see the saves of the batch, the commit in batches and the roll-back of the
// batch under way, and the validation of the import from memory answering as from the file.
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "catalogo/IdsCatalogo.h"
#include "servicios/LoteContribuyentes.h"
#include "servicios/SentenciaNativa.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/cContribSvr.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

cContribSvr Svr()
{
    cContribSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

// What became of a save, as a number: 0 saved, 1 an insert of a number in the store, 2 an
// update to a number held by another, 3 any other refusal (a text the store cannot keep).
template <typename T>
int Numero(const Resultado<T>& r)
{
    if (r)
        return 0;
    if (r.veredicto().id == kIdAltaContribuyenteDniExistente)
        return 1;
    if (r.veredicto().id == kIdModificarContribuyenteDniExistente)
        return 2;
    return 3;
}

// The store's single save, by the same numbers.
int GuardarSuelto(const Contribuyente& c, bool sustituir)
{
    return Numero(Svr().GuardarContribuyente(c, sustituir, Sobrescritura::CualquierVersion));
}

// The batch's save, by the same numbers.
int GuardarEnLote(cLoteContribuyentes& lote, const Contribuyente& c, bool sustituir)
{
    return Numero(lote.GuardarContribuyente(c, sustituir, Sobrescritura::CualquierVersion));
}

struct Paso {
    Contribuyente datos;
    bool sustituir;
};

// A sequence that touches every path: new, repeated number, replace by code, replace by
// number, replace to a number held by another, replace of a code that is gone.
QList<Paso> Secuencia()
{
    QList<Paso> p;
    p << Paso{(ContribuyenteNacional(Dni(1), "UNO")), false}
      << Paso{(ContribuyenteNacional(Dni(2), "DOS")), false}
      << Paso{(ContribuyenteNacional(Dni(1), "UNO OTRA VEZ")), false}   // verdict 1
      << Paso{(ContribuyenteNacional(Dni(1), "UNO NUEVO", 1)), true}      // by code
      << Paso{(ContribuyenteNacional(Dni(2), "DOS NUEVO", 0)), true}      // by number
      << Paso{(ContribuyenteNacional(Dni(2), "CHOCA", 1)), true}          // verdict 2
      << Paso{(ContribuyenteExtranjero("X1234567L", "TRES", 77)), true}   // a code that is gone
      << Paso{(ContribuyenteExtranjero("X1234567L", "TRES BIS")), true};
    return p;
}

// The stored rows, every column but the version (each save draws a new one at random).
QStringList Filas(const AlmacenDePrueba& a)
{
    QSqlQuery q(a.db());
    q.exec(QStringLiteral("SELECT * FROM CONTRIBUYENTES ORDER BY CSCO"));
    const int version = q.record().indexOf(QStringLiteral("VERSION"));
    QStringList filas;
    while (q.next()) {
        QStringList f;
        for (int i = 0; i < q.record().count(); ++i)
            if (i != version)
                f << q.value(i).toString();
        filas << f.join(QLatin1Char('|'));
    }
    return filas;
}

}  // namespace

class TestLoteContribuyentes : public QObject {
    Q_OBJECT

private slots:
    void comoUnoAUno()
    {
        QList<int> veredictosSueltos;
        QList<int32_t> codigosSueltos;
        QStringList filasSueltas;
        {
            AlmacenDePrueba a;
            for (const Paso& p : Secuencia()) {
                veredictosSueltos << GuardarSuelto(p.datos, p.sustituir);
                codigosSueltos << Svr().ExisteContribuyente(p.datos.DNIC);
            }
            filasSueltas = Filas(a);
        }
        AlmacenDePrueba a;
        QList<int> veredictos;
        QList<int32_t> codigos;
        {
            cLoteContribuyentes lote(mdbmod, mdblec);
            for (const Paso& p : Secuencia()) {
                lote.ExisteContribuyente(p.datos.DNIC);
                veredictos << GuardarEnLote(lote, p.datos, p.sustituir);
                codigos << lote.ExisteContribuyente(p.datos.DNIC).codigo;
            }
            lote.Confirmar();
        }
        QCOMPARE(veredictos, veredictosSueltos);
        QCOMPARE(codigos, codigosSueltos);
        QCOMPARE(Filas(a), filasSueltas);
        QVERIFY(veredictos.contains(1));
        QVERIFY(veredictos.contains(2));
    }

    void anadirSiNuevo()
    {
        AlmacenDePrueba a;
        const int32_t uno = GuardarSuelto(ContribuyenteNacional(Dni(1), "UNO"), false) == 0
            ? Svr().ExisteContribuyente(Dni(1))
            : 0;
        QVERIFY(uno != 0);
        cLoteContribuyentes lote(mdbmod, mdblec);
        // A new number is added, as GuardarContribuyente(c, false) adds it: nobody held it.
        Resultado<TitularParte> r = lote.AnadirSiNuevo(ContribuyenteNacional(Dni(2), "DOS"));
        QVERIFY(r);
        QCOMPARE(r->codigo, 0);
        QCOMPARE(lote.Pendientes(), 1);
        const int32_t dos = lote.ExisteContribuyente(Dni(2)).codigo;
        QVERIFY(dos != 0 && dos != uno);
        // A number in the store, with blanks around it, writes nothing and names its holder,
        // whether the holder was committed before or saved in this batch.
        r = lote.AnadirSiNuevo(ContribuyenteNacional(QStringLiteral(" ") + Dni(1) + QStringLiteral(" "), "OTRO"));
        QVERIFY(r);
        QCOMPARE(r->codigo, uno);
        QVERIFY(r->version != 0);
        r = lote.AnadirSiNuevo(ContribuyenteNacional(Dni(2), "DOS BIS"));
        QVERIFY(r);
        QCOMPARE(r->codigo, dos);
        QCOMPARE(lote.Pendientes(), 1);
        // A text the store cannot keep stops at the door, as it stops GuardarContribuyente.
        const Contribuyente control = ContribuyenteNacional(Dni(4), "CON\tTABULADOR");
        r = lote.AnadirSiNuevo(control);
        QVERIFY(!r);
        QVERIFY(!r.veredicto().vacio());
        QCOMPARE(Numero(r), 3);
        QCOMPARE(GuardarEnLote(lote, control, false), 3);
        QCOMPARE(lote.Pendientes(), 1);
        // The save of the holder that follows replaces it in place.
        QCOMPARE(GuardarEnLote(lote, ContribuyenteNacional(Dni(1), "UNO NUEVO", uno), true), 0);
        lote.Confirmar();
        QCOMPARE(a.Filas(QStringLiteral("CONTRIBUYENTES")), 2);
        QCOMPARE(a.Valor(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {uno})
                     .toString(),
                 QStringLiteral("UNO NUEVO"));
        QCOMPARE(a.Valor(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {dos})
                     .toString(),
                 QStringLiteral("DOS"));
    }

    void sustituyeAlTitularHallado()
    {
        // After AnadirSiNuevo names the holder, a replacement without a code replaces that
        // holder over the version found.
        AlmacenDePrueba a;
        const int32_t uno = Svr().GuardarContribuyente(ContribuyenteNacional(Dni(1), "UNO"))->CSCO;
        cLoteContribuyentes lote(mdbmod, mdblec);
        const Resultado<TitularParte> r = lote.AnadirSiNuevo(ContribuyenteNacional(Dni(1), "OTRO"));
        QVERIFY(r);
        QCOMPARE(r->codigo, uno);
        QVERIFY(lote.GuardarContribuyente(ContribuyenteNacional(Dni(1), "OTRO"), true));
        lote.Confirmar();
        QCOMPARE(a.Filas(QStringLiteral("CONTRIBUYENTES")), 1);
        QCOMPARE(a.Valor(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {uno})
                     .toString(),
                 QStringLiteral("OTRO"));
    }

    void anadirSiNuevoRechazaComoGuardar()
    {
        // A value that cannot be stored stops the save as it stops GuardarContribuyente, and
        // nothing is written.
        AlmacenDePrueba a;
        cLoteContribuyentes lote(mdbmod, mdblec);
        Contribuyente malo = ContribuyenteNacional(Dni(3), "TRES");
        malo.TIPODOMI = QStringLiteral("Q");
        QVERIFY_THROWS_EXCEPTION(cFallo, lote.AnadirSiNuevo(malo));
        lote.Confirmar();
        QCOMPARE(a.Filas(QStringLiteral("CONTRIBUYENTES")), 0);
    }

    void codigosEnSuFormaGuardada()
    {
        // Codes are kept at their width whatever zeros or blanks come with them; one with more
        // significant digits than the width cannot be kept.
        AlmacenDePrueba a;
        cLoteContribuyentes lote(mdbmod, mdblec);
        const struct {
            QString provincia, municipio, provinciaGuardada, municipioGuardado;
        } casos[] = {
            {"77", "001", "77", "001"},     {"0077", "0001", "77", "001"},
            {" 77 ", "1", "77", "001"},     {"7", "01", "07", "001"},
            {"00077", "000001", "77", "001"},
        };
        quint32 n = 10;
        for (const auto& c : casos) {
            Contribuyente d = ContribuyenteNacional(Dni(++n), "CODIGOS");
            d.CODPROVC = c.provincia;
            d.CODMUNC = c.municipio;
            const Resultado<TitularParte> r = lote.AnadirSiNuevo(d);
            QVERIFY(r);
            QCOMPARE(r->codigo, 0);
            const int32_t codigo = lote.ExisteContribuyente(Dni(n)).codigo;
            lote.Confirmar();
            QCOMPARE(a.Valor(QStringLiteral("SELECT CODPROVC FROM CONTRIBUYENTES WHERE CSCO = ?"),
                             {codigo}).toString(),
                     c.provinciaGuardada);
            QCOMPARE(a.Valor(QStringLiteral("SELECT CODMUNC FROM CONTRIBUYENTES WHERE CSCO = ?"),
                             {codigo}).toString(),
                     c.municipioGuardado);
        }
        Contribuyente ancho = ContribuyenteNacional(Dni(99), "ANCHO");
        ancho.CODMUNC = QStringLiteral("01001");
        QVERIFY_THROWS_EXCEPTION(cFallo, lote.AnadirSiNuevo(ancho));
    }

    void textosDeLasSentenciasNativas()
    {
        // The batch's statements hand SQLite every text whole: a NUL inside it, characters
        // beyond ASCII, and a half character at the end of one text that must not join the
        // next one.
        AlmacenDePrueba a;
        const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("t"));
        QSqlQuery(db).exec(QStringLiteral("CREATE TEMP TABLE T (A TEXT, B TEXT)"));
        SentenciaNativa insertar(db, QStringLiteral("INSERT INTO T VALUES (?, ?)"), QStringLiteral("t"));
        const QString conNul = QStringLiteral("A") + QChar(u'\0') + QStringLiteral("B");
        const QString acentos = QStringLiteral("MUÑOZ ÇÁÉ €");
        QCOMPARE(insertar.Ejecutar({conNul, acentos}), 1);
        QCOMPARE(insertar.Ejecutar({QStringLiteral("X") + QChar(0xD800), QChar(0xDC00) + QStringLiteral("Y")}), 1);
        QCOMPARE(insertar.Ejecutar({QString(), QVariant()}), 1);
        QSqlQuery q(db);
        QVERIFY(q.exec(QStringLiteral("SELECT hex(A), hex(B), typeof(A), typeof(B) FROM T ORDER BY rowid")));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toString(), QStringLiteral("410042"));
        QCOMPARE(q.value(1).toString(), QString::fromLatin1(acentos.toUtf8().toHex().toUpper()));
        QVERIFY(q.next());
        QCOMPARE(q.value(0).toString(), QStringLiteral("58EFBFBD"));
        QCOMPARE(q.value(1).toString(), QStringLiteral("EFBFBD59"));
        QVERIFY(q.next());
        QCOMPARE(q.value(2).toString(), QStringLiteral("text"));  // an empty text stays a text
        QCOMPARE(q.value(3).toString(), QStringLiteral("null"));
        QSqlQuery(db).exec(QStringLiteral("DROP TABLE T"));
    }

    void sinConfirmarNoQueda()
    {
        AlmacenDePrueba a;
        {
            cLoteContribuyentes lote(mdbmod, mdblec);
            QVERIFY(lote.GuardarContribuyente(ContribuyenteNacional(Dni(1), "UNO"), false));
            lote.Confirmar();
            QVERIFY(lote.GuardarContribuyente(ContribuyenteNacional(Dni(2), "DOS"), false));
            QCOMPARE(lote.Pendientes(), 1);
            // The batch under way sees its own saves; another connection does not.
            QVERIFY(lote.ExisteContribuyente(Dni(2)).codigo != 0);
        }
        QCOMPARE(a.Filas(QStringLiteral("CONTRIBUYENTES")), 1);
    }

    void confirmaPorLotes()
    {
        AlmacenDePrueba a;
        cLoteContribuyentes lote(mdbmod, mdblec);
        for (int i = 1; i <= cLoteContribuyentes::kFilasPorLote + 5; ++i)
            lote.GuardarContribuyente(ContribuyenteNacional(Dni(quint32(i)), "N"), false);
        QVERIFY(lote.Pendientes() < cLoteContribuyentes::kFilasPorLote);
        QVERIFY(a.Filas(QStringLiteral("CONTRIBUYENTES")) >= cLoteContribuyentes::kFilasPorLote);
    }

    void validacionEnMemoria()
    {
        AlmacenDePrueba a;
        const ConsultasReferencia enMemoria =
            ReferenciaPartes::ConsultasEnMemoria(mdblec, QStringLiteral("t"));
        const ConsultasReferencia enFichero = ReferenciaPartes::Consultas(mdblec, QStringLiteral("t"));
        for (const QString& s : QStringList{"CL", "AV", "ZZ", "", "cl", "C"})
            QCOMPARE(enMemoria.existeVia(s), enFichero.existeVia(s));
        for (const QString& p : QStringList{"77", "01", "48", "00", "99", "7", ""})
            QCOMPARE(enMemoria.existeProvincia(p), enFichero.existeProvincia(p));
        for (const QString& m : QStringList{"001", "002", "999", "1", "000", ""})
            QCOMPARE(enMemoria.existeMunicipio(m), enFichero.existeMunicipio(m));
        cLoteContribuyentes lote(mdbmod, mdblec);
        QList<HallazgoImportacion> deLote, deSvr;
        LineaContribuyente malo = ImportacionNacional();
        malo.VIAC = QStringLiteral("ZZ");
        malo.CODMUNC = QStringLiteral("999");
        for (const LineaContribuyente& datos : {ImportacionNacional(), malo}) {
            deLote = lote.ValidarDatosImportar(datos);
            deSvr = Svr().ValidarDatosImportar(datos);
            QCOMPARE(deLote, deSvr);
        }
        QCOMPARE(deLote.size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestLoteContribuyentes)
#include "test_lote_contribuyentes.moc"
