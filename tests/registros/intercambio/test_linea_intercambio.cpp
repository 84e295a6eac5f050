// The exchange line byte by byte: the code page (bytes 0x80 to 0x9F, Ñ, Ç, º, ª, accented
// capitals), the cutting of a line into its fields, the writing of a line with its fills and
// masks, the reading of lines whatever their ends, and the lines of the error file.
#include "ApoyoIntercambio.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/FicheroErrores.h"
#include "registros/intercambio/LectorLineas.h"
#include "registros/intercambio/LineaIntercambio.h"

#include <QBuffer>
#include <QTemporaryFile>
#include <QTest>

using C = CampoIntercambio;

namespace {

QList<QByteArray> LeerTodas(const QByteArray& contenido, qsizetype largo = 176)
{
    QTemporaryFile f;
    f.open();
    f.write(contenido);
    f.flush();
    f.seek(0);
    LectorLineas lector(f, largo);
    QList<QByteArray> lineas;
    QByteArray l;
    while (lector.Siguiente(l))
        lineas << l;
    return lineas;
}

ValoresLinea Valores()
{
    ValoresLinea v;
    v.textos[Indice(C::TIPODNI)] = QStringLiteral("N");
    v.textos[Indice(C::DNI)] = QStringLiteral("X1234567L");
    v.textos[Indice(C::NOMBRE)] = QStringLiteral("IBÁÑEZ ÇA ºª ÉÍÓÚ");
    v.textos[Indice(C::SIGLAS)] = QStringLiteral("AV");
    v.textos[Indice(C::DOMICILIO)] = QStringLiteral("RUE DE LA PAIX");
    v.textos[Indice(C::TIPODOMICILIO)] = QStringLiteral("E");
    v.textos[Indice(C::PAIS)] = QStringLiteral("FRANCIA");
    v.textos[Indice(C::NOMBREPROVINCIA)] = QStringLiteral("PARIS");
    v.textos[Indice(C::NOMBREMUNICIPIO)] = QStringLiteral("PARIS");
    v.numeros[Indice(C::NUMERO)] = 0;
    v.numeros[Indice(C::CODIGOPROVINCIA)] = 0;
    v.numeros[Indice(C::CODIGOPOSTAL)] = 75001;
    v.numeros[Indice(C::CODIGOMUNICIPIO)] = 0;
    v.numeros[Indice(C::NUMEROSUJETOPASIVO)] = 3;
    v.numeros[Indice(C::NUMEROTRANSMITENTE)] = 1234567;
    return v;
}

}  // namespace

class TestLineaIntercambio : public QObject {
    Q_OBJECT

private slots:
    void codigoDePagina()
    {
        // Every byte reads as one character and writes back as the same byte.
        QByteArray todos;
        for (int b = 0; b < 256; ++b)
            todos += char(b);
        const QString texto = Cp1252::Decodificar(todos);
        QCOMPARE(texto.size(), 256);
        QCOMPARE(*Cp1252::Codificar(texto), todos);
        QCOMPARE(texto[0x80], QChar(0x20AC));  // €
        QCOMPARE(texto[0x8A], QChar(0x0160));  // Š
        QCOMPARE(texto[0x9F], QChar(0x0178));  // Ÿ
        QCOMPARE(texto[0x81], QChar(0x0081));  // undefined: itself
        QCOMPARE(texto[0xD1], QChar(0x00D1));  // Ñ
        QCOMPARE(*Cp1252::Codificar(QStringLiteral("ÑÇºªÁÉÍÓÚÜ")),
                 QByteArray("\xD1\xC7\xBA\xAA\xC1\xC9\xCD\xD3\xDA\xDC"));
        QCOMPARE(*Cp1252::Codificar(QStringLiteral("€…")), QByteArray("\x80\x85"));
        // What the code page cannot hold is refused, not replaced.
        QVERIFY(!Cp1252::Codificar(QStringLiteral("AŁB")));
        QVERIFY(!Cp1252::Codificar(QStringLiteral("日")));
        QVERIFY(!Cp1252::Representable(QStringLiteral("ő")));
    }

    void formatos()
    {
        QCOMPARE(FormatoTexto(QStringLiteral("AB"), 5), QStringLiteral("AB   "));
        QCOMPARE(FormatoTexto(QStringLiteral("ABCDEF"), 5), QStringLiteral("ABCDEF"));
        QCOMPARE(FormatoNumero(0, 5), QStringLiteral("00000"));
        QCOMPARE(FormatoNumero(77, 2), QStringLiteral("77"));
        QCOMPARE(FormatoNumero(1, 3), QStringLiteral("001"));
    }

    void escribirUnaLinea()
    {
        const std::optional<QByteArray> linea = ComponerLinea(Valores());
        QVERIFY(linea);
        const QByteArray esperada = ApoyoIntercambio::Linea(
            {"N", "X1234567L", "IB\xC1\xD1" "EZ \xC7" "A \xBA\xAA \xC9\xCD\xD3\xDA", "AV",
             "RUE DE LA PAIX", "0", "", "", "", "", "E", "FRANCIA", "0", "PARIS", "75001", "0",
             "PARIS", "3", "1234567"});
        QCOMPARE(*linea, esperada);
        QCOMPARE(linea->size(), 176);
        // NUMERO 0 is "00000"; the province of a foreign address "00".
        QCOMPARE(linea->mid(72, 5), QByteArray("00000"));
        QCOMPARE(linea->mid(107, 2), QByteArray("00"));
        QCOMPARE(linea->mid(162, 7), QByteArray("0000003"));
    }

    void nombreLargoCortado()
    {
        ValoresLinea v = Valores();
        v.textos[Indice(C::NOMBRE)] = QString(40, QLatin1Char('A')) + QStringLiteral("BBBBB");
        const QByteArray linea = *ComponerLinea(v);
        QCOMPARE(linea.mid(10, 40), QByteArray(40, 'A'));
        QCOMPARE(linea.size(), 176);
    }

    void escrituraImposible()
    {
        ValoresLinea v = Valores();
        v.textos[Indice(C::NOMBRE)] = QStringLiteral("ŁUKASZ");
        FalloLinea fallo = FalloLinea::Ninguno;
        QVERIFY(!ComponerLinea(v, &fallo));
        QCOMPARE(fallo, FalloLinea::CaracterNoRepresentable);
        v = Valores();
        v.textos[Indice(C::DOMICILIO)] = QStringLiteral("A\nB");
        QVERIFY(!ComponerLinea(v, &fallo));
        v = Valores();
        v.numeros[Indice(C::NUMERO)] = 123456;
        QVERIFY(!ComponerLinea(v, &fallo));
        QCOMPARE(fallo, FalloLinea::NumeroDemasiadoLargo);
    }

    void cortarLinea()
    {
        const QByteArray linea = ApoyoIntercambio::Linea(
            {"O", "12345678Z", "\x80\x9F\xD1\xC7", "CL", "MAYOR", "5", "A", "1", "2", "IZQ", "N",
             "", "77", "", "77001", "1", "", "12", "7"});
        const LineaLeida l = CortarLinea(linea);
        QVERIFY(!l.corta);
        QCOMPARE(l[C::TIPODNI], QStringLiteral("O"));
        QCOMPARE(l[C::DNI], QStringLiteral("12345678Z"));
        QCOMPARE(l[C::NOMBRE], QStringLiteral("€ŸÑÇ").leftJustified(40));
        QCOMPARE(l[C::NUMERO], QStringLiteral("00005"));
        QCOMPARE(l[C::MANO], QStringLiteral("IZQ"));
        QCOMPARE(l[C::CODIGOMUNICIPIO], QStringLiteral("001"));
        QCOMPARE(l[C::NUMEROTRANSMITENTE], QStringLiteral("0000007"));
        // A longer line: the tail is ignored.
        const LineaLeida larga = CortarLinea(linea + "TAIL");
        QVERIFY(!larga.corta);
        QCOMPARE(larga.campos, l.campos);
        // A shorter one is short, and its fields are what it holds of them.
        const LineaLeida corta = CortarLinea(linea.left(20));
        QVERIFY(corta.corta);
        QCOMPARE(corta[C::DNI], QStringLiteral("12345678Z"));
        QCOMPARE(corta[C::NOMBRE], QStringLiteral("€ŸÑÇ      "));
        QCOMPARE(corta[C::SIGLAS], QString());
        QVERIFY(CortarLinea(QByteArray()).corta);
    }

    void idaYVuelta()
    {
        const QByteArray linea = *ComponerLinea(Valores());
        const LineaLeida l = CortarLinea(linea);
        ValoresLinea v;
        for (int i = 0; i < kCamposIntercambio; ++i) {
            if (Definicion(static_cast<C>(i)).numero)
                v.numeros[i] = l.campos[i].toLongLong();
            else
                v.textos[i] = l.campos[i];
        }
        QCOMPARE(*ComponerLinea(v), linea);
    }

    void leerLineas()
    {
        const QByteArray a(176, 'a');
        const QByteArray b(176, 'b');
        // CR LF, LF alone, no end after the last line.
        QCOMPARE(LeerTodas(a + "\r\n" + b + "\r\n"), (QList<QByteArray>{a, b}));
        QCOMPARE(LeerTodas(a + "\n" + b + "\n"), (QList<QByteArray>{a, b}));
        QCOMPARE(LeerTodas(a + "\r\n" + b), (QList<QByteArray>{a, b}));
        // An empty file has no line; an empty line between two ends is a line.
        QCOMPARE(LeerTodas(QByteArray()), QList<QByteArray>());
        QCOMPARE(LeerTodas(a + "\r\n\r\n" + b), (QList<QByteArray>{a, QByteArray(), b}));
        // A long line keeps its first 176 bytes; a CR inside a line stays.
        QCOMPARE(LeerTodas(a + "xyz\r\n" + b), (QList<QByteArray>{a, b}));
        QCOMPARE(LeerTodas("ab\rcd\r\n"), (QList<QByteArray>{"ab\rcd"}));
        // Lines longer than the read block.
        const QByteArray enorme(600000, 'z');
        QCOMPARE(LeerTodas(enorme + "\n" + a), (QList<QByteArray>{QByteArray(176, 'z'), a}));
    }

    void lineasDelFicheroDeErrores()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QCOMPARE(FicheroErrores::LineaCorta(7),
                 QByteArray("Linea 7No se han importado todos los datos\r\n"));
        const QList<HallazgoImportacion> errores{
            {CampoContribuyente::DNIC, kIdDniCifErroneoODigitoControl},
            {CampoContribuyente::VIAC, kIdSiglaNoAdmisible}};
        QCOMPARE(FicheroErrores::LineasErrores(errores, 7, QStringLiteral("1234Z    ")),
                 QByteArray("Linea 7 - DNI-CIF 1234Z    : El campo DNI-CIF es err\xF3neo o carece "
                            "de d\xEDgito de control.\r\n"
                            "Linea 7 - DNI-CIF 1234Z    : La sigla del domicilio no es una de "
                            "las admisibles\r\n"));
        QCOMPARE(FicheroErrores::LineasErrores({}, 7, QStringLiteral("1234Z    ")), QByteArray());
        QByteArray formato = "\r\nFORMATO:\r\n";
        for (const char* campo :
             {"TIPODNI(1)", "DNI(9)", "NOMBRE(40)", "SIGLAS(2)", "DOMICILIO(20)", "NUMERO(5)",
              "LETRA(2)", "ESCALERA(2)", "PISO(2)", "MANO(3)", "TIPODOMICILIO(1)", "PAIS(20)",
              "CODIGO PROVINCIA(2)", "NOMBRE PROVINCIA(20)", "CODIGO POSTAL(5)",
              "CODIGO MUNICIPIO(3)", "NOMBRE MUNICIOPIO(25)", "NUMERO SUJETO PASIVO(7)",
              "NUMERO TRANSMITENTE(7)"})
            formato += QByteArray("         ") + campo + "\r\n";
        QCOMPARE(FicheroErrores::Formato(), formato);
        // In Basque the words change; the format stays in Spanish.
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QVERIFY(!FicheroErrores::LineaCorta(7).startsWith("Linea 7No"));
        QVERIFY(FicheroErrores::Formato().endsWith("         NUMERO TRANSMITENTE(7)\r\n"));
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }
};

QTEST_GUILESS_MAIN(TestLineaIntercambio)
#include "test_linea_intercambio.moc"
