// The CSV writer and reader: quoting where needed, the separator detected, records split with
// the separator, quotes and line ends inside quoted fields, each record numbered once, and the
// records that cannot be split answered as such.
#include "valores/Csv.h"

#include <QTest>

class TestCsv : public QObject {
    Q_OBJECT

    static QList<QStringList> Todos(const QString& texto, QList<Csv::Fallo>* fallos = nullptr,
                                    QList<int>* numeros = nullptr)
    {
        Csv::Lector l(texto, Csv::DetectarSeparador(texto));
        QList<QStringList> r;
        QStringList campos;
        Csv::Fallo f;
        while (l.Siguiente(campos, f)) {
            r << campos;
            if (fallos)
                *fallos << f;
            if (numeros)
                *numeros << l.Numero();
        }
        return r;
    }

private slots:
    void escritura()
    {
        QCOMPARE(Csv::Campo(QStringLiteral("abc"), QLatin1Char(';')), QStringLiteral("abc"));
        QCOMPARE(Csv::Campo(QStringLiteral("a;b"), QLatin1Char(';')), QStringLiteral("\"a;b\""));
        QCOMPARE(Csv::Campo(QStringLiteral("a,b"), QLatin1Char(';')), QStringLiteral("a,b"));
        QCOMPARE(Csv::Campo(QStringLiteral("di \"hola\""), QLatin1Char(';')),
                 QStringLiteral("\"di \"\"hola\"\"\""));
        QCOMPARE(Csv::Campo(QStringLiteral("a\nb"), QLatin1Char(';')), QStringLiteral("\"a\nb\""));
        QCOMPARE(Csv::Registro({QStringLiteral("1"), QString(), QStringLiteral("x;y")},
                               QLatin1Char(';')),
                 QStringLiteral("1;;\"x;y\"\r\n"));
    }

    void separador()
    {
        QCOMPARE(Csv::DetectarSeparador(QStringLiteral("A;B;C\n1,5;2;3")), QLatin1Char(';'));
        QCOMPARE(Csv::DetectarSeparador(QStringLiteral("A,B,C\n1;2;3")), QLatin1Char(','));
        // Inside quotes a separator does not count.
        QCOMPARE(Csv::DetectarSeparador(QStringLiteral("\"A,B,C\";D\n")), QLatin1Char(';'));
        QCOMPARE(Csv::DetectarSeparador(QString()), QLatin1Char(';'));
    }

    void lectura()
    {
        QList<int> numeros;
        const QList<QStringList> r = Todos(
            QStringLiteral("\xFEFF" "A;B;C\r\n1;\"x;y\";\"di \"\"no\"\"\"\n\"dos\r\nlineas\";;\r\nfin;;"),
            nullptr, &numeros);
        QCOMPARE(r.size(), 4);
        QCOMPARE(r.at(0), (QStringList{"A", "B", "C"}));
        QCOMPARE(r.at(1), (QStringList{"1", "x;y", "di \"no\""}));
        QCOMPARE(r.at(2), (QStringList{"dos\r\nlineas", "", ""}));
        QCOMPARE(r.at(3), (QStringList{"fin", "", ""}));
        QCOMPARE(numeros, (QList<int>{1, 2, 3, 4}));
    }

    void ida_y_vuelta()
    {
        const QStringList campos{"a;b", "\"", "", "x\r\ny", " blancos "};
        const QString texto = Csv::Registro(campos, QLatin1Char(';'));
        QCOMPARE(Todos(texto).value(0), campos);
    }

    void fallos()
    {
        QList<Csv::Fallo> f;
        const QList<QStringList> r =
            Todos(QStringLiteral("A;B\n\"x\"y;2\nbien;3\n\"abierta;4\nno se lee;5"), &f);
        // After a quote that never closes, reading goes on at the next line.
        QCOMPARE(r.size(), 5);
        QCOMPARE(f, (QList<Csv::Fallo>{Csv::Fallo::Ninguno, Csv::Fallo::TextoTrasComillas,
                                       Csv::Fallo::Ninguno, Csv::Fallo::ComillasSinCerrar,
                                       Csv::Fallo::Ninguno}));
        QCOMPARE(r.at(2), (QStringList{"bien", "3"}));
        QCOMPARE(r.at(4), (QStringList{"no se lee", "5"}));
    }
};

QTEST_GUILESS_MAIN(TestCsv)
#include "test_csv.moc"
