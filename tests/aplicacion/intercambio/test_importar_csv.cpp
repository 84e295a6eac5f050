// The import of contributors from a CSV file saved by a spreadsheet: headings in any order and
// with optional columns missing, both separators and both encodings, quoted fields with the
// separator, quotes and line ends inside, rows that cannot be split (refused whole, with the
// reason, in the error file), an empty file, a wrong first row; the same counters, modes and
// error file as the exchange file; and the round trip through the CSV export.
#include "ApoyoIntercambio.h"
#include "comun/AlmacenNuevo.h"

#include "plataforma/General.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cContribSvr.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

#include <QFile>
#include <QTest>

using namespace ApoyoIntercambio;

namespace {

const QStringList kNombres = {
    "TIPODNI",          "DNI",           "NOMBRE",           "SIGLAS",
    "DOMICILIO",        "NUMERO",        "LETRA",            "ESCALERA",
    "PISO",             "MANO",          "TIPODOMICILIO",    "PAIS",
    "CODIGO PROVINCIA", "NOMBRE PROVINCIA", "CODIGO POSTAL", "CODIGO MUNICIPIO",
    "NOMBRE MUNICIPIO", "NUMERO SUJETO PASIVO", "NUMERO TRANSMITENTE"};

// The stored contributor of that number (an empty one when there is none), without the
// version of its row, which every save renews.
Contribuyente Guardado(const QString& dni)
{
    Contribuyente c =
        Svr().CargarContribuyente(Svr().ExisteContribuyente(dni)).value_or(Contribuyente{});
    c.VERSION = 0;
    return c;
}

QString Dni(quint32 n) { return QString::fromLatin1(DniDe(n)); }

// A CSV field written by hand, quoted when it holds the separator, a quote or a line end.
QString Campo(const QString& v, QChar sep)
{
    if (!v.contains(sep) && !v.contains(QLatin1Char('"')) && !v.contains(QLatin1Char('\n')))
        return v;
    QString r = v;
    r.replace(QLatin1String("\""), QLatin1String("\"\""));
    return QLatin1Char('"') + r + QLatin1Char('"');
}

// The rows of a CSV file: the columns named, in this order; each contributor's values taken
// from the valid fields of the exchange tests by column.
struct Hoja {
    QStringList columnas;
    QList<QStringList> filas;  // each already in the order of `columnas`
    QChar sep = QLatin1Char(';');

    void Anadir(quint32 n, const QString& nombre = QStringLiteral("GARCIA LOPEZ JUAN"))
    {
        const QList<QByteArray> campos = CamposValidos(n);
        QStringList fila;
        for (const QString& c : columnas) {
            const int i = kNombres.indexOf(c);
            fila << (i == 2 ? nombre : QString::fromLatin1(campos.at(i)));
        }
        filas << fila;
    }
    QString Texto() const
    {
        QString t;
        const auto linea = [&](const QStringList& campos) {
            QStringList q;
            for (const QString& c : campos)
                q << Campo(c, sep);
            t += q.join(sep) + QStringLiteral("\r\n");
        };
        linea(columnas);
        for (const QStringList& f : filas)
            linea(f);
        return t;
    }
};

}  // namespace

class TestImportarCsv : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    QStringList m_preguntas;
    QList<bool> m_respuestas;

    QString Ruta(const QString& nombre) const { return m_carpeta->ruta() + QLatin1Char('/') + nombre; }

    Veredicto Importa(const QByteArray& bytes, bool automatico = true,
                             const QString& nombre = QStringLiteral("clientes.csv"))
    {
        Importar().FICHEROAIMPORTAR = Ruta(nombre);
        PrepararImportacion(bytes, automatico);
        return Importar().Ejecutar(Respondiendo(m_preguntas, m_respuestas));
    }

    // The error file's lines before its format.
    QStringList LineasDeErrores() const
    {
        const QString t = Cp1252::Decodificar(Leer(Importar().FICHEROERRORES));
        return t.left(t.indexOf(QLatin1String("\r\n\r\nFORMATO:"))).split(QStringLiteral("\r\n"));
    }

private slots:
    void init()
    {
        m_carpeta = AlmacenNuevo();
        Importar().Iniciar();
        m_preguntas.clear();
        m_respuestas.clear();
    }
    void cleanup()
    {
        Importar() = cImportar();
        m_carpeta.reset();
    }

    void separadoresYCodificaciones_data()
    {
        QTest::addColumn<QString>("separador");
        QTest::addColumn<bool>("utf8");
        QTest::addColumn<bool>("marca");
        QTest::newRow("; utf-8 con BOM") << ";" << true << true;
        QTest::newRow(", utf-8 sin BOM") << "," << true << false;
        QTest::newRow("; windows-1252") << ";" << false << false;
        QTest::newRow(", windows-1252") << "," << false << false;
    }

    // Headings in another order, optional columns missing (PAIS, NOMBRE PROVINCIA, NOMBRE
    // MUNICIPIO, the two counters), a name with accents, the separator and quotes.
    void separadoresYCodificaciones()
    {
        QFETCH(QString, separador);
        QFETCH(bool, utf8);
        QFETCH(bool, marca);
        Hoja h;
        h.sep = separador.at(0);
        h.columnas = QStringList{"nombre", "DNI", "Codigo Postal", "TIPODNI", "SIGLAS",
                                 "DOMICILIO", "NUMERO", "LETRA", "ESCALERA", "PISO", "MANO",
                                 "TIPODOMICILIO", "CODIGO PROVINCIA", "CODIGO MUNICIPIO"};
        // The heading as typed: any case; the values are taken by the canonical names.
        QStringList canon = h.columnas;
        canon[0] = "NOMBRE";
        canon[2] = "CODIGO POSTAL";
        std::swap(h.columnas, canon);
        h.Anadir(1, QStringLiteral("GARCÍA ÑOÑO"));
        h.Anadir(2, QStringLiteral("LOPEZ; \"EL CHICO\", JUAN"));
        h.Anadir(3);
        std::swap(h.columnas, canon);
        const QString texto = h.Texto();
        QByteArray bytes = utf8 ? texto.toUtf8() : *Cp1252::Codificar(texto);
        if (marca)
            bytes.prepend("\xEF\xBB\xBF");
        const Veredicto a = Importa(bytes);
        QCOMPARE(a.id, kIdImportadosCorrectamente);
        ComprobarContadores(3, 3, 0, 0, 0);
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
        QCOMPARE(Guardado(Dni(1)).NOMBREC, QStringLiteral("GARCÍA ÑOÑO"));
        QCOMPARE(Guardado(Dni(2)).NOMBREC, QStringLiteral("LOPEZ; \"EL CHICO\", JUAN"));
        // Each saved as the same line of the exchange file is.
        const Contribuyente desdeCsv = Guardado(Dni(3));
        Importar().Iniciar();
        Importar().FICHEROAIMPORTAR = Ruta(QStringLiteral("CONTRI.txt"));
        Importa(LineaValida(3), true, QStringLiteral("CONTRI.txt"));
        ComprobarContadores(1, 1, 0, 1, 0);
        const Contribuyente desdeLinea = Guardado(Dni(3));
        QVERIFY(!desdeLinea.DNIC.isEmpty());
        QVERIFY(desdeCsv == desdeLinea);
    }

    // A line end inside a quoted field keeps the row whole: the name holds it (the store
    // refuses a control character, with its message), and the rows after it keep their
    // numbers. A row with too many or too few fields, or an unclosed quote, is refused with
    // the reason, never guessed at.
    void filasQueNoSePartenYSaltos()
    {
        Hoja h;
        h.columnas = kNombres;
        h.Anadir(1);
        h.Anadir(2, QStringLiteral("PEREZ\nSEGUNDA LINEA"));
        h.Anadir(3);
        QString texto = h.Texto();
        QStringList demas = h.filas.at(0);
        demas[1] = Dni(4);
        texto += demas.join(QLatin1Char(';')) + QStringLiteral(";SOBRA\r\n");     // row 5
        QStringList menos = h.filas.at(0);
        menos[1] = Dni(5);
        menos.removeLast();
        texto += menos.join(QLatin1Char(';')) + QStringLiteral("\r\n");           // row 6
        QStringList tras = h.filas.at(0);
        tras[1] = Dni(6);
        tras[2] = QStringLiteral("\"GIL\"X");
        texto += tras.join(QLatin1Char(';')) + QStringLiteral("\r\n");            // row 7
        QStringList bien = h.filas.at(0);
        bien[1] = Dni(7);
        texto += bien.join(QLatin1Char(';')) + QStringLiteral("\r\n");            // row 8
        texto += QStringLiteral(";;;;;;;;;;;;;;;;;;\r\n");  // an empty row: passed over
        QStringList abierta = h.filas.at(0);
        abierta[1] = Dni(8);
        abierta[2] = QStringLiteral("\"SIN CERRAR");
        texto += abierta.join(QLatin1Char(';')) + QStringLiteral("\r\n");         // row 10
        const Veredicto a = Importa(texto.toUtf8());
        QVERIFY(a.id == kIdHay && a.mensaje.endsWith(Texto(kIdContribuyentesErroneos)));
        ComprobarContadores(8, 3, 5, 0, 0);
        QVERIFY(Svr().ExisteContribuyente(Dni(1)) != 0);
        QVERIFY(Svr().ExisteContribuyente(Dni(2)) == 0);
        QVERIFY(Svr().ExisteContribuyente(Dni(3)) != 0);
        QVERIFY(Svr().ExisteContribuyente(Dni(7)) != 0);
        QCOMPARE(Contribuyentes(), 3);
        const QStringList errores = LineasDeErrores();
        QCOMPARE(errores.size(), 5);
        QVERIFY2(errores.at(0).startsWith(QStringLiteral("Linea 3 - DNI-CIF ") + Dni(2) + ": "),
                 qPrintable(errores.at(0)));
        QCOMPARE(errores.at(1), QStringLiteral("Linea 5 - La fila tiene más campos que la primera fila del fichero"));
        QCOMPARE(errores.at(2), QStringLiteral("Linea 6 - La fila tiene menos campos que la primera fila del fichero"));
        QCOMPARE(errores.at(3), QStringLiteral("Linea 7 - La fila tiene texto detrás de unas comillas de cierre"));
        QCOMPARE(errores.at(4), QStringLiteral("Linea 10 - La fila tiene unas comillas sin cerrar"));
    }

    // A row that fails the checks names each of its errors with the row's number, as a line of
    // the exchange file does.
    void ficheroDeErroresConLosCodigos()
    {
        Hoja h;
        h.columnas = kNombres;
        h.Anadir(1);
        h.Anadir(3);
        h.filas[1][0] = "X";   // code 20
        h.filas[1][3] = "ZZ";  // code 22
        h.filas[1][5] = "1A";  // code 14
        h.Anadir(4);
        const Veredicto a = Importa(h.Texto().toUtf8());
        QVERIFY(a.id == kIdHay && a.mensaje.endsWith(Texto(kIdUnContribuyenteErroneo)));
        ComprobarContadores(3, 2, 1, 0, 0);
        const QString cabeza = QStringLiteral("Linea 3 - DNI-CIF ") + Dni(3) + QStringLiteral(": ");
        const QStringList errores = LineasDeErrores();
        QCOMPARE(errores, (QStringList{cabeza + "El número de portal debe ser un número",
                                       cabeza + "El tipo de DNI no tiene un valor válido: 'O' ó 'N'",
                                       cabeza + "La sigla del domicilio no es una de las admisibles"}));
        QVERIFY(Cp1252::Decodificar(Leer(Importar().FICHEROERRORES)).contains(QLatin1String("FORMATO:")));
    }

    // The manual mode asks for an existing contributor, as for a line of the exchange file.
    void modoManual()
    {
        Hoja h;
        h.columnas = kNombres;
        h.Anadir(1);
        Importa(h.Texto().toUtf8());
        h.filas.clear();
        h.Anadir(1, QStringLiteral("NUEVO NOMBRE"));
        h.Anadir(2);
        m_respuestas << true;
        Importar().Iniciar();
        const Veredicto a = Importa(h.Texto().toUtf8(), false);
        QCOMPARE(a.id, kIdImportadosCorrectamente);
        QCOMPARE(m_preguntas.size(), 1);
        QCOMPARE(m_preguntas.first().trimmed(), Dni(1));
        ComprobarContadores(2, 2, 0, 1, 0);
        QCOMPARE(Guardado(Dni(1)).NOMBREC, QStringLiteral("NUEVO NOMBRE"));
    }

    void ficheroVacioYSoloCabecera()
    {
        Veredicto a = Importa(QByteArray());
        QVERIFY(a.vacio());
        ComprobarContadores(0, 0, 0, 0, 0);
        QCOMPARE(Importar().TERMINADA, QStringLiteral("S"));
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
        Importar().Iniciar();
        a = Importa(kNombres.join(QLatin1Char(';')).toUtf8() + "\r\n");
        QVERIFY(a.vacio());
        ComprobarContadores(0, 0, 0, 0, 0);
        QCOMPARE(Importar().TERMINADA, QStringLiteral("S"));
    }

    void primeraFilaMala_data()
    {
        QTest::addColumn<QString>("cabecera");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("desconocida") << "TIPODNI;DNI;NOMBRE;TELEFONO"
                                     << "La primera fila del fichero CSV nombra una columna desconocida: TELEFONO";
        QTest::newRow("falta DNI") << "TIPODNI;NOMBRE"
                                   << "Falta en la primera fila del fichero CSV la columna DNI";
        QTest::newRow("repetida") << "TIPODNI;DNI;NOMBRE;dni"
                                  << "La primera fila del fichero CSV repite la columna DNI";
    }

    // A first row that does not name the columns stops the run before any row, with the
    // reason; nothing is saved.
    void primeraFilaMala()
    {
        QFETCH(QString, cabecera);
        QFETCH(QString, mensaje);
        const QByteArray bytes = (cabecera + QStringLiteral("\r\nO;") + Dni(1)
                                  + QStringLiteral(";GARCIA;X\r\n")).toUtf8();
        const Veredicto a = Importa(bytes);
        QCOMPARE(a.mensaje, mensaje);
        QCOMPARE(Importar().TERMINADA, QString());
        QCOMPARE(Contribuyentes(), 0);
    }

    // Exported to CSV and imported into an empty store, every contributor is equal field by
    // field, accents, separators and quotes included.
    void idaYVuelta()
    {
        QByteArray linea;
        QList<QByteArray> raro = CamposValidos(99, "D'ARTAGNAN; \"MOSQUETERO\", S\xC1NCHEZ");
        raro[6] = "C";
        raro[5] = "0";
        linea += Linea(raro) + "\r\n";
        for (quint32 n = 1; n <= 30; ++n)
            linea += LineaValida(n, "NOMBRE " + QByteArray::number(n)) + "\r\n";
        Importa(linea, true, QStringLiteral("CONTRI.txt"));
        ComprobarContadores(31, 31, 0, 0, 0);
        QList<Contribuyente> antes;
        for (quint32 n = 1; n <= 31; ++n)
            antes << Guardado(Dni(n == 31 ? 99 : n));

        cExportar& e = Exportar();
        e.Iniciar();
        const QString csv = Ruta(QStringLiteral("todos.csv"));
        e.FICHEROAEXPORTAR = csv;
        e.CargarFlxDeclaraciones();
        e.SeleccionarTodos();
        QVERIFY(e.ComprobarIdentidades());
        QVERIFY(e.EscribirFichero());
        const QByteArray escrito = Leer(csv);
        QVERIFY(escrito.startsWith("\xEF\xBB\xBFTIPODNI;DNI;NOMBRE;"));
        QVERIFY(escrito.contains("\"D'ARTAGNAN; \"\"MOSQUETERO\"\", SÁNCHEZ\""));

        // Into an empty store.
        const QByteArray copia = escrito;
        Importar() = cImportar();
        m_carpeta = AlmacenNuevo();
        Importar().Iniciar();
        QCOMPARE(Contribuyentes(), 0);
        const Veredicto a = Importa(copia, true, QStringLiteral("vuelta.csv"));
        QCOMPARE(a.id, kIdImportadosCorrectamente);
        ComprobarContadores(31, 31, 0, 0, 0);
        for (quint32 n = 1; n <= 31; ++n) {
            Contribuyente despues = Guardado(Dni(n == 31 ? 99 : n));
            const Contribuyente& a0 = antes.at(int(n - 1));
            QVERIFY(!despues.DNIC.isEmpty());
            // The code is the store's own.
            despues.CSCO = a0.CSCO;
            QVERIFY2(despues == a0, qPrintable(QStringLiteral("%1: %2 / %3")
                                                   .arg(n).arg(despues.NOMBREC, a0.NOMBREC)));
        }
    }
};

QTEST_GUILESS_MAIN(TestImportarCsv)
#include "test_importar_csv.moc"
