// The store's batches of saves: the same verdicts and the same rows as saving one by one, the
// look-ups that see the saves of the batch, the commit in batches and the roll-back of the
// batch under way, and the validation of the import from memory answering as from the file.
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "servicios/LoteContribuyentes.h"
#include "servicios/PosicionesImportar.h"
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

struct Paso {
    Arreglo datos;
    bool sustituir;
};

// A sequence that touches every path: new, repeated number, replace by code, replace by
// number, replace to a number held by another, replace of a code that is gone.
QList<Paso> Secuencia()
{
    QList<Paso> p;
    p << Paso{ContribuyenteNacional(Dni(1), "UNO"), false}
      << Paso{ContribuyenteNacional(Dni(2), "DOS"), false}
      << Paso{ContribuyenteNacional(Dni(1), "UNO OTRA VEZ"), false}   // verdict 1
      << Paso{ContribuyenteNacional(Dni(1), "UNO NUEVO", 1), true}      // by code
      << Paso{ContribuyenteNacional(Dni(2), "DOS NUEVO", 0), true}      // by number
      << Paso{ContribuyenteNacional(Dni(2), "CHOCA", 1), true}          // verdict 2
      << Paso{ContribuyenteExtranjero("X1234567L", "TRES", 77), true}   // a code that is gone
      << Paso{ContribuyenteExtranjero("X1234567L", "TRES BIS"), true};
    return p;
}

QStringList Filas(const AlmacenDePrueba& a)
{
    QSqlQuery q(a.db());
    q.exec(QStringLiteral("SELECT * FROM CONTRIBUYENTES ORDER BY CSCO"));
    QStringList filas;
    while (q.next()) {
        QStringList f;
        for (int i = 0; i < q.record().count(); ++i)
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
        QList<int16_t> veredictosSueltos;
        QList<int32_t> codigosSueltos;
        QStringList filasSueltas;
        {
            AlmacenDePrueba a;
            for (const Paso& p : Secuencia()) {
                veredictosSueltos << Svr().GuardarContribuyente(p.datos, p.sustituir);
                codigosSueltos << Svr().ExisteContribuyente(p.datos[PosContribuyente::DNIC].toString());
            }
            filasSueltas = Filas(a);
        }
        AlmacenDePrueba a;
        QList<int16_t> veredictos;
        QList<int32_t> codigos;
        {
            cLoteContribuyentes lote(mdbmod, mdblec);
            for (const Paso& p : Secuencia()) {
                lote.ExisteContribuyente(p.datos[PosContribuyente::DNIC].toString());
                veredictos << lote.GuardarContribuyente(p.datos, p.sustituir);
                codigos << lote.ExisteContribuyente(p.datos[PosContribuyente::DNIC].toString());
            }
            lote.Confirmar();
        }
        QCOMPARE(veredictos, veredictosSueltos);
        QCOMPARE(codigos, codigosSueltos);
        QCOMPARE(Filas(a), filasSueltas);
        QVERIFY(veredictos.contains(1));
        QVERIFY(veredictos.contains(2));
    }

    void sinConfirmarNoQueda()
    {
        AlmacenDePrueba a;
        {
            cLoteContribuyentes lote(mdbmod, mdblec);
            lote.GuardarContribuyente(ContribuyenteNacional(Dni(1), "UNO"), false);
            lote.Confirmar();
            lote.GuardarContribuyente(ContribuyenteNacional(Dni(2), "DOS"), false);
            QCOMPARE(lote.Pendientes(), 1);
            // The batch under way sees its own saves; another connection does not.
            QVERIFY(lote.ExisteContribuyente(Dni(2)) != 0);
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
        for (const QString& s : {"CL", "AV", "ZZ", "", "cl", "C"})
            QCOMPARE(enMemoria.existeVia(s), enFichero.existeVia(s));
        for (const QString& p : {"77", "01", "48", "00", "99", "7", ""})
            QCOMPARE(enMemoria.existeProvincia(p), enFichero.existeProvincia(p));
        for (const QString& m : {"001", "002", "999", "1", "000", ""})
            QCOMPARE(enMemoria.existeMunicipio(m), enFichero.existeMunicipio(m));
        cLoteContribuyentes lote(mdbmod, mdblec);
        Arreglo2D deLote, deSvr;
        Arreglo malo = ImportacionNacional();
        malo[PosImportar::VIAC] = QStringLiteral("ZZ");
        malo[PosImportar::CODMUNC] = QStringLiteral("999");
        for (const Arreglo& datos : {ImportacionNacional(), malo}) {
            lote.ValidarDatosImportar(datos, deLote);
            Svr().ValidarDatosImportar(datos, deSvr);
            QCOMPARE(deLote, deSvr);
        }
        QCOMPARE(deLote.first().size(), 3);  // two errors and the spare
    }
};

QTEST_GUILESS_MAIN(TestLoteContribuyentes)
#include "test_lote_contribuyentes.moc"
