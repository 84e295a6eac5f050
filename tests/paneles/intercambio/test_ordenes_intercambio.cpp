// The exchange from the command line, with the real program in a folder of its own and no
// display: the import in automatic mode with its counters, closing message and status, the
// export of all and of some in the order given, and the refusals.
#include "ApoyoIntercambio.h"
#include "comun/Entorno.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

using namespace ApoyoIntercambio;

class TestOrdenesIntercambio : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    QString m_programa;
    QString m_salida;
    QString m_errores;

    int Veldo(const QStringList& argumentos)
    {
        QProcess p;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.remove(QStringLiteral("DISPLAY"));
        entorno.remove(QStringLiteral("WAYLAND_DISPLAY"));
        entorno.remove(QStringLiteral("QT_QPA_PLATFORM"));
        entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        p.setProcessEnvironment(entorno);
        p.setWorkingDirectory(m_carpeta->ruta());
        p.start(m_programa, argumentos);
        if (!p.waitForFinished(60000))
            return -1;
        m_salida = QString::fromUtf8(p.readAllStandardOutput());
        m_errores = QString::fromUtf8(p.readAllStandardError());
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    }

    QString Ruta(const QString& nombre) const { return m_carpeta->ruta() + QLatin1Char('/') + nombre; }

private slots:
    void initTestCase()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        m_programa = Ruta(QStringLiteral("Veldo"));
        QVERIFY(QFile::copy(QStringLiteral(VELDO_PROGRAMA), m_programa));
    }
    void cleanupTestCase() { m_carpeta.reset(); }

    void importarYExportar()
    {
        Escribir(Ruta(QStringLiteral("in.txt")),
                 LineaValida(1, "ALFA \xD1") + "\r\n" + LineaValida(2, "BETA") + "\r\ncorta\r\n"
                     + LineaValida(3, "GAMMA"));
        QCOMPARE(Veldo({QStringLiteral("--importar"), QStringLiteral("in.txt")}), 1);
        QVERIFY2(m_salida.contains(QStringLiteral("Total: 4\nImportados: 3\nIncorrectos: 1\n"
                                                  "Sustituidos: 0\nIgnorados: 0\n"
                                                  "Hay 1 un contibuyente erróneo\n")),
                 qPrintable(m_salida + m_errores));
        QCOMPARE(Leer(Ruta(QStringLiteral("Erorres.txt"))).left(44),
                 QByteArray("Linea 3No se han importado todos los datos\r\n"));

        // Again, into a named error file: all replaced, nothing wrong, status 0.
        Escribir(Ruta(QStringLiteral("in.txt")), LineaValida(1, "ALFA \xD1") + "\r\n");
        QCOMPARE(Veldo({QStringLiteral("--importar"), QStringLiteral("in.txt"),
                        QStringLiteral("--errores"), QStringLiteral("e.txt")}),
                 0);
        QVERIFY(m_salida.contains(QStringLiteral("Sustituidos: 1\n")));
        QVERIFY(m_salida.contains(QStringLiteral("Sus datos han sido importados correctamente")));
        QVERIFY(!QFile::exists(Ruta(QStringLiteral("e.txt"))));

        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("todos.txt"),
                        QStringLiteral("--todos")}),
                 0);
        QCOMPARE(Leer(Ruta(QStringLiteral("todos.txt"))),
                 LineaValida(1, "ALFA \xD1") + "\r\n" + LineaValida(2, "BETA") + "\r\n"
                     + LineaValida(3, "GAMMA") + "\r\n");
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("dos.txt"),
                        QString::fromLatin1(DniDe(3)), QString::fromLatin1(DniDe(1))}),
                 0);
        QCOMPARE(Leer(Ruta(QStringLiteral("dos.txt"))),
                 LineaValida(3, "GAMMA") + "\r\n" + LineaValida(1, "ALFA \xD1") + "\r\n");
    }

    // A spreadsheet's CSV (Windows-1252, "," between fields, headings in another order, a
    // missing column) imported by --importar, a row it cannot split named in the error file;
    // --exportar to a .csv writes the CSV the import reads.
    void csv()
    {
        const QByteArray hoja = "DNI,nombre,TIPODNI,SIGLAS,DOMICILIO,TIPODOMICILIO,CODIGO PROVINCIA,CODIGO POSTAL,CODIGO MUNICIPIO\r\n"
                                + DniDe(11) + ",\"PE\xD1" "A, ANA\",O,CL,MAYOR,N,77,77001,1\r\n"
                                + DniDe(12) + ",SOBRA,O,CL,MAYOR,N,77,77001,1,X\r\n";
        Escribir(Ruta(QStringLiteral("hoja.csv")), hoja);
        QCOMPARE(Veldo({QStringLiteral("--importar"), QStringLiteral("hoja.csv"),
                        QStringLiteral("--errores"), QStringLiteral("errores-csv.txt")}),
                 1);
        QVERIFY2(m_salida.contains(QStringLiteral("Total: 2\nImportados: 1\nIncorrectos: 1\n")),
                 qPrintable(m_salida + m_errores));
        QVERIFY(Leer(Ruta(QStringLiteral("errores-csv.txt")))
                    .startsWith("Linea 3 - La fila tiene m\xE1s campos que la primera fila del fichero\r\n"));
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("uno.csv"),
                        QString::fromLatin1(DniDe(11))}),
                 0);
        QCOMPARE(Leer(Ruta(QStringLiteral("uno.csv"))),
                 QByteArray("\xEF\xBB\xBFTIPODNI;DNI;NOMBRE;SIGLAS;DOMICILIO;NUMERO;LETRA;ESCALERA;PISO;"
                            "MANO;TIPODOMICILIO;PAIS;CODIGO PROVINCIA;NOMBRE PROVINCIA;CODIGO POSTAL;"
                            "CODIGO MUNICIPIO;NOMBRE MUNICIPIO;NUMERO SUJETO PASIVO;NUMERO TRANSMITENTE\r\n"
                            "O;")
                     + DniDe(11) + ";PE\xC3\x91" "A, ANA;CL;MAYOR;0;;;;;N;;77;;77001;001;;0;0\r\n");
    }

    void rechazos()
    {
        QCOMPARE(Veldo({QStringLiteral("--importar"), QStringLiteral("no-esta.txt")}), 2);
        QVERIFY(m_errores.contains(QStringLiteral("No existe el fichero que desea importar")));
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("x.txt"),
                        QStringLiteral("99999999R")}),
                 2);
        QVERIFY(!QFile::exists(Ruta(QStringLiteral("x.txt"))));
        QCOMPARE(Veldo({QStringLiteral("--exportar")}), 2);
        QVERIFY2(m_errores.contains(QStringLiteral("--exportar")), qPrintable(m_errores));
        QVERIFY(m_errores.contains(QStringLiteral("--help")));
        // Both ways of choosing, or neither: the form of the command.
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("x.txt"),
                        QStringLiteral("--todos"), QString::fromLatin1(DniDe(1))}),
                 2);
        QVERIFY2(m_errores.contains(QStringLiteral("--exportar FICHERO --todos")), qPrintable(m_errores));
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("x.txt")}), 2);
        QVERIFY(!QFile::exists(Ruta(QStringLiteral("x.txt"))));
        QCOMPARE(Veldo({QStringLiteral("--exportar"), QStringLiteral("no/hay/x.txt"),
                        QStringLiteral("--todos")}),
                 2);
    }

    void ayuda()
    {
        QCOMPARE(Veldo({QStringLiteral("--help")}), 0);
        QVERIFY2(m_salida.contains(QStringLiteral("--importar FICHERO")), qPrintable(m_salida));
        QVERIFY(m_salida.contains(QStringLiteral("--errores FICHERO")));
        QVERIFY(m_salida.contains(QStringLiteral("--exportar FICHERO [DNI...]")));
        QVERIFY(m_salida.contains(QStringLiteral("--todos")));
    }
};

QTEST_GUILESS_MAIN(TestOrdenesIntercambio)
#include "test_ordenes_intercambio.moc"
