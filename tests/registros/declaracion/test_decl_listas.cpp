// The lists of returns: the search of the declaration list (lower bounds on code, date and
// total, starts of reference and operation), its orders in both directions, the description
// of the operation on the return's date, and the lists of one contributor (with its S-T
// column) and of one presenter.
#include "comun/DeclaracionPrueba.h"

#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/cDeclaSvr.h"

#include <QTest>

namespace {

cDeclaSvr servidor()
{
    cDeclaSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    return svr;
}

struct Fila {
    QString referencia;
    int32_t fecha;
    double total;
    QString operacion;
};

// Conditions with no condition.
CondicionesDeclaracion sinCriterios()
{
    return {};
}

// One condition, by the column of the list it searches (0 code, 1 reference, 2 date, 3 total,
// 4 operation), with the value as the search box gives it.
void poner(CondicionesDeclaracion& c, int hueco, const QVariant& valor)
{
    switch (hueco) {
    case 0:
        c.CSDE = valor.toString();
        break;
    case 1:
        c.REFERENCIA = valor.toString();
        break;
    case 2:
        c.FECHAD = valor.toInt();
        break;
    case 3:
        c.TOTAL = valor.toString();
        break;
    default:
        c.OPERACION = valor.toString();
        break;
    }
}

QList<int> codigos(const QList<FilaDeclaracion>& r)
{
    QList<int> c;
    for (const FilaDeclaracion& f : r)
        c << f.CSDE;
    return c;
}

}  // namespace

class TestListas : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QList<int32_t> m_codigos;  // of the returns below, in their order
    int32_t m_ana = 0, m_luis = 0, m_gestor = 0;

    int32_t guardar(const Fila& f, int32_t cssu, int32_t cstra, int32_t cspr)
    {
        DeclaracionValida();
        cDecDatos& d = DecDatos();
        d.REFERENCIA = f.referencia;
        d.FECHAD = f.fecha;
        d.OPERACION = f.operacion;
        d.TOTAL = Importe(f.total);
        d.CSSU = cssu;
        d.CSTRA = cstra;
        d.CSPR = cspr;
        const int32_t codigo = d.GuardarDeclaracion() ? d.CSDE : 0;
        return codigo;
    }

    QList<FilaDeclaracion> buscar(const CondicionesDeclaracion& criterios, uint8_t orden,
                                  const QString& tipo, Idioma idioma = Idioma::Castellano)
    {
        return servidor().dameResultadoBusqueda(criterios, orden, tipo, idioma);
    }

private slots:
    void initTestCase()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        m_ana = NuevoContribuyente(Dni(40000001), QStringLiteral("ANA"));
        m_luis = NuevoContribuyente(Dni(40000002), QStringLiteral("LUIS"));
        m_gestor = NuevoPresentador(Dni(40000003), QStringLiteral("GESTOR"));
        const QList<Fila> filas{
            {QStringLiteral("ABC1"), 20050310, 120000, QStringLiteral("TN")},
            {QStringLiteral("ABD2"), 20100101, 47500, QStringLiteral("T2")},
            {QStringLiteral("XYZ"), 20070101, 0, QStringLiteral("TE")},
            {QStringLiteral("abc4"), 20150601, 123456.78, QStringLiteral("T3")},
            {QString(), 20080101, 500, QStringLiteral("TL")},
        };
        m_codigos << guardar(filas[0], m_ana, m_luis, m_gestor);
        m_codigos << guardar(filas[1], m_luis, m_ana, 0);
        m_codigos << guardar(filas[2], m_ana, m_ana, m_gestor);
        m_codigos << guardar(filas[3], 0, 0, 0);
        m_codigos << guardar(filas[4], m_luis, m_luis, 0);
    }

    void cleanupTestCase() { m_almacen.reset(); }

    void todasPorCodigoDescendente()
    {
        const QList<FilaDeclaracion> r = buscar(sinCriterios(), 1, QStringLiteral("DESC"));
        QCOMPARE(codigos(r), (QList<int>{m_codigos[4], m_codigos[3], m_codigos[2], m_codigos[1],
                                         m_codigos[0]}));
        // The columns of the first row: code, reference, date, total, operation, description.
        QCOMPARE(r[0].REFERENCIA, QString());
        QCOMPARE(r[0].FECHAD, 20080101);
        QCOMPARE(r[0].TOTAL.centimos(), 500.0);
        QCOMPARE(r[0].OPERACION, QStringLiteral("TL"));
        QCOMPARE(r[0].DESCRIPCION, QStringLiteral("Tipo a declarar, entre el 0 % y el 14,75 %"));
        QVERIFY(r[0].PARTE.isEmpty());
    }

    void descripcionSegunFechaEIdioma()
    {
        const QList<FilaDeclaracion> r = buscar(sinCriterios(), 1, QStringLiteral("ASC"), Idioma::Euskera);
        QCOMPARE(r[0].DESCRIPCION, QStringLiteral("Tasa orokorra: % 12"));
        QCOMPARE(r[2].DESCRIPCION, QStringLiteral("Salbuetsia: salbuespenaren beste kasu batzuk"));
    }

    void ordenes_data()
    {
        QTest::addColumn<int>("orden");
        QTest::addColumn<QString>("tipo");
        QTest::addColumn<QList<int>>("indices");
        QTest::newRow("codigo asc") << 1 << "ASC" << QList<int>{0, 1, 2, 3, 4};
        QTest::newRow("referencia asc") << 2 << "ASC" << QList<int>{4, 0, 3, 1, 2};
        QTest::newRow("referencia desc") << 2 << "DESC" << QList<int>{2, 1, 3, 0, 4};
        QTest::newRow("fecha desc") << 3 << "DESC" << QList<int>{3, 1, 4, 2, 0};
        QTest::newRow("fecha asc") << 3 << "ASC" << QList<int>{0, 2, 4, 1, 3};
        QTest::newRow("total desc") << 4 << "DESC" << QList<int>{3, 0, 1, 4, 2};
        QTest::newRow("operacion asc") << 5 << "ASC" << QList<int>{1, 3, 2, 4, 0};
        QTest::newRow("descripcion no ordena") << 6 << "ASC" << QList<int>{0, 1, 2, 3, 4};
    }

    void ordenes()
    {
        QFETCH(int, orden);
        QFETCH(QString, tipo);
        QFETCH(QList<int>, indices);
        QList<int> esperado;
        for (int i : indices)
            esperado << m_codigos[i];
        QCOMPARE(codigos(buscar(sinCriterios(), static_cast<uint8_t>(orden), tipo)), esperado);
    }

    void criterios_data()
    {
        QTest::addColumn<int>("hueco");
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<QList<int>>("indices");
        QTest::newRow("codigo") << 0 << QVariant(QString()) << QList<int>{0, 1, 2, 3, 4};
        QTest::newRow("referencia AB") << 1 << QVariant(QStringLiteral("AB"))
                                       << QList<int>{0, 1, 3};
        QTest::newRow("referencia abc") << 1 << QVariant(QStringLiteral("abc"))
                                        << QList<int>{0, 3};
        QTest::newRow("referencia vacia") << 1 << QVariant(QString()) << QList<int>{0, 1, 2, 3, 4};
        QTest::newRow("referencia que no hay") << 1 << QVariant(QStringLiteral("Q"))
                                               << QList<int>{};
        QTest::newRow("fecha") << 2 << QVariant(20080101) << QList<int>{1, 3, 4};
        QTest::newRow("total euros") << 3 << QVariant(QStringLiteral("475"))
                                     << QList<int>{0, 1, 3};
        QTest::newRow("total con coma") << 3 << QVariant(QStringLiteral("1.200,00"))
                                        << QList<int>{0, 3};
        QTest::newRow("total numero") << 3 << QVariant(5.0) << QList<int>{0, 1, 3, 4};
        QTest::newRow("operacion T") << 4 << QVariant(QStringLiteral("T"))
                                     << QList<int>{0, 1, 2, 3, 4};
        QTest::newRow("operacion t2") << 4 << QVariant(QStringLiteral("t2")) << QList<int>{1};
    }

    void criterios()
    {
        QFETCH(int, hueco);
        QFETCH(QVariant, valor);
        QFETCH(QList<int>, indices);
        CondicionesDeclaracion c = sinCriterios();
        poner(c, hueco, valor);
        QList<int> esperado;
        for (int i : indices)
            esperado << m_codigos[i];
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))), esperado);
    }

    void criterioDeCodigo()
    {
        CondicionesDeclaracion c = sinCriterios();
        c.CSDE = QString::number(m_codigos[3]);
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))),
                 (QList<int>{m_codigos[3], m_codigos[4]}));
        c.CSDE = QString::number(m_codigos[4]);
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))), (QList<int>{m_codigos[4]}));
    }

    void variosCriteriosA_la_vez()
    {
        CondicionesDeclaracion c = sinCriterios();
        c.REFERENCIA = QStringLiteral("AB");
        c.FECHAD = 20060101;
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))),
                 (QList<int>{m_codigos[1], m_codigos[3]}));
    }

    void sinResultadosDaListaVacia()
    {
        CondicionesDeclaracion c = sinCriterios();
        c.FECHAD = 20990101;
        QVERIFY(servidor().dameResultadoBusqueda(c, 1, QStringLiteral("DESC"), Idioma::Castellano).isEmpty());
    }

    void declaracionesDeUnContribuyente()
    {
        QList<FilaDeclaracion> r = servidor().dameDeclaracionesContribuyente(
            sinCriterios(), m_ana, 1, QStringLiteral("ASC"), Idioma::Castellano);
        QCOMPARE(r.size(), 3);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[0], m_codigos[1], m_codigos[2]}));
        QCOMPARE(r[0].PARTE, QStringLiteral("S"));
        QCOMPARE(r[1].PARTE, QStringLiteral("T"));
        QCOMPARE(r[2].PARTE, QStringLiteral("S-T"));
        // With a criterion and another order.
        CondicionesDeclaracion c = sinCriterios();
        c.OPERACION = QStringLiteral("T");
        r = servidor().dameDeclaracionesContribuyente(c, m_ana, 3, QStringLiteral("DESC"), Idioma::Castellano);
        QCOMPARE(r.size(), 3);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[1], m_codigos[2], m_codigos[0]}));
        QVERIFY(servidor()
                    .dameDeclaracionesContribuyente(sinCriterios(), 0, 1, QStringLiteral("ASC"), Idioma::Castellano)
                    .isEmpty());
    }

    void declaracionesDeUnPresentador()
    {
        const QList<FilaDeclaracion> r = servidor().dameDeclaracionesPresentador(
            sinCriterios(), m_gestor, 1, QStringLiteral("DESC"), Idioma::Castellano);
        QCOMPARE(r.size(), 2);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[2], m_codigos[0]}));
        QVERIFY(r[0].PARTE.isEmpty());
        CondicionesDeclaracion c = sinCriterios();
        c.REFERENCIA = QStringLiteral("X");
        QCOMPARE(servidor()
                     .dameDeclaracionesPresentador(c, m_gestor, 1, QStringLiteral("DESC"), Idioma::Castellano)
                     .size(),
                 1);
    }
};

QTEST_MAIN(TestListas)
#include "test_decl_listas.moc"
