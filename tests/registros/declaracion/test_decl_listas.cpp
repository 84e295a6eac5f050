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

// Criteria with no condition: numbers 0 for the numeric slots, empty texts for the others.
Arreglo sinCriterios()
{
    return {0, QString(), 0, 0, QString()};
}

QList<int> codigos(const Arreglo2D& r)
{
    QList<int> c;
    for (const QVariant& v : r.value(0))
        c << v.toInt();
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
        d.TOTAL = f.total;
        d.CSSU = cssu;
        d.CSTRA = cstra;
        d.CSPR = cspr;
        int32_t codigo = 0;
        d.GuardarDeclaracion(d.DatosGuardar(), codigo);
        return codigo;
    }

    Arreglo2D buscar(const Arreglo& criterios, uint8_t orden, const QString& tipo,
                     int16_t offset = 0)
    {
        Arreglo2D r;
        const int32_t n = servidor().dameResultadoBusqueda(r, criterios, orden, tipo, offset);
        if (n != r.value(0).size())
            qFatal("La cuenta no coincide con las filas");
        return r;
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
        const Arreglo2D r = buscar(sinCriterios(), 1, QStringLiteral("DESC"));
        QCOMPARE(r.size(), 6);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[4], m_codigos[3], m_codigos[2], m_codigos[1],
                                         m_codigos[0]}));
        // The columns of the first row: code, reference, date, total, operation, description.
        QCOMPARE(r[1][0].toString(), QString());
        QCOMPARE(r[2][0].toInt(), 20080101);
        QCOMPARE(r[3][0].toDouble(), 500.0);
        QCOMPARE(r[4][0].toString(), QStringLiteral("TL"));
        QCOMPARE(r[5][0].toString(), QStringLiteral("Tipo a declarar, entre el 0 % y el 14,75 %"));
    }

    void descripcionSegunFechaEIdioma()
    {
        const Arreglo2D r = buscar(sinCriterios(), 1, QStringLiteral("ASC"), 10000);
        QCOMPARE(r[5][0].toString(), QStringLiteral("Tasa orokorra: % 12"));
        QCOMPARE(r[5][2].toString(), QStringLiteral("Salbuetsia: salbuespenaren beste kasu batzuk"));
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
        QTest::newRow("referencia 0") << 1 << QVariant(0) << QList<int>{0, 1, 2, 3, 4};
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
        Arreglo c = sinCriterios();
        c[hueco] = valor;
        QList<int> esperado;
        for (int i : indices)
            esperado << m_codigos[i];
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))), esperado);
    }

    void criterioDeCodigo()
    {
        Arreglo c = sinCriterios();
        c[0] = m_codigos[3];
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))),
                 (QList<int>{m_codigos[3], m_codigos[4]}));
        c[0] = QString::number(m_codigos[4]);
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))), (QList<int>{m_codigos[4]}));
    }

    void variosCriteriosA_la_vez()
    {
        Arreglo c = sinCriterios();
        c[1] = QStringLiteral("AB");
        c[2] = 20060101;
        QCOMPARE(codigos(buscar(c, 1, QStringLiteral("ASC"))),
                 (QList<int>{m_codigos[1], m_codigos[3]}));
    }

    void sinResultadosDaColumnasVacias()
    {
        Arreglo c = sinCriterios();
        c[2] = 20990101;
        Arreglo2D r;
        QCOMPARE(servidor().dameResultadoBusqueda(r, c, 1, QStringLiteral("DESC"), 0), 0);
        QCOMPARE(r.size(), 6);
        QVERIFY(r[0].isEmpty());
    }

    void declaracionesDeUnContribuyente()
    {
        Arreglo2D r;
        const int32_t n = servidor().dameDeclaracionesContribuyente(
            sinCriterios(), r, m_ana, 1, QStringLiteral("ASC"), 0);
        QCOMPARE(n, 3);
        QCOMPARE(r.size(), 7);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[0], m_codigos[1], m_codigos[2]}));
        QCOMPARE(r[6][0].toString(), QStringLiteral("S"));
        QCOMPARE(r[6][1].toString(), QStringLiteral("T"));
        QCOMPARE(r[6][2].toString(), QStringLiteral("S-T"));
        // With a criterion and another order.
        Arreglo c = sinCriterios();
        c[4] = QStringLiteral("T");
        QCOMPARE(servidor().dameDeclaracionesContribuyente(c, r, m_ana, 3, QStringLiteral("DESC"),
                                                           0),
                 3);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[1], m_codigos[2], m_codigos[0]}));
        QCOMPARE(servidor().dameDeclaracionesContribuyente(sinCriterios(), r, 0, 1,
                                                           QStringLiteral("ASC"), 0),
                 0);
    }

    void declaracionesDeUnPresentador()
    {
        Arreglo2D r;
        const int32_t n = servidor().dameDeclaracionesPresentador(
            sinCriterios(), r, m_gestor, 1, QStringLiteral("DESC"), 0);
        QCOMPARE(n, 2);
        QCOMPARE(r.size(), 6);
        QCOMPARE(codigos(r), (QList<int>{m_codigos[2], m_codigos[0]}));
        Arreglo c = sinCriterios();
        c[1] = QStringLiteral("X");
        QCOMPARE(servidor().dameDeclaracionesPresentador(c, r, m_gestor, 1, QStringLiteral("DESC"),
                                                         0),
                 1);
    }
};

QTEST_MAIN(TestListas)
#include "test_decl_listas.moc"
