// The import over a real store: the four counters, the paths of a new and an existing
// contributor in manual and automatic mode, short lines, the error file byte for byte, the
// closing messages, the failures and their messages (the 16-bit line counter included), and the
// same results as saving the lines one by one.
#include "ApoyoIntercambio.h"
#include "catalogo/IdsCatalogo.h"
#include "comun/AlmacenNuevo.h"
#include "comun/OtraConexion.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/Catalogo.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cContribSvr.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace ApoyoIntercambio;

namespace {

int32_t Codigo(quint32 n)
{
    return Svr().ExisteContribuyente(QString::fromLatin1(DniDe(n)));
}

QString NombreGuardado(quint32 n)
{
    const std::optional<Contribuyente> c = Svr().CargarContribuyente(Codigo(n));
    return c ? c->NOMBREC : QString();
}

}  // namespace

class TestImportar : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    QStringList m_preguntas;
    QList<bool> m_respuestas;
    QList<double> m_estimados;
    int m_finales = 0;

    QString Ruta(const QString& nombre) const { return m_carpeta->ruta() + QLatin1Char('/') + nombre; }

    // A run of the file `bytes` in the mode given; the questions are answered from
    // m_respuestas (No when none is left).
    Veredicto Importa(const QByteArray& bytes, bool automatico)
    {
        PrepararImportacion(bytes, automatico);
        cImportar::Interlocutor i = Respondiendo(m_preguntas, m_respuestas);
        i.avance = [this](int, double estimado, bool fin) {
            m_estimados << estimado;
            m_finales += fin ? 1 : 0;
        };
        return Importar().Ejecutar(i);
    }

    // The counters, and every line read counted once.
    void Contadores(int total, int imp, int inc, int sus, int ign)
    {
        ComprobarContadores(total, imp, inc, sus, ign);
        if (!QTest::currentTestFailed())
            QCOMPARE(total, imp + inc + ign);
    }

private slots:
    void init()
    {
        m_carpeta = AlmacenNuevo();
        Importar().Iniciar();
        m_preguntas.clear();
        m_respuestas.clear();
        m_estimados.clear();
        m_finales = 0;
    }
    void cleanup()
    {
        Importar() = cImportar();  // the files a failed run left open go with it
        m_carpeta.reset();
    }

    void valoresDeInicio()
    {
        QCOMPARE(Importar().FICHEROAIMPORTAR, m_carpeta->ruta() + QStringLiteral("/CONTRI.txt"));
        QCOMPARE(Importar().FICHEROERRORES, m_carpeta->ruta() + QStringLiteral("/Erorres.txt"));
        QCOMPARE(Importar().AUTOMATICO, QString());
        QCOMPARE(Importar().TERMINADA, QString());
    }

    void todoCorrecto()
    {
        const Veredicto a =
            Importa(LineaValida(1, "GARC\xCD" "A \xD1" "O\xD1" "O") + "\r\n" + LineaValida(2) + "\r\n",
                    false);
        QCOMPARE(a.id, kIdImportadosCorrectamente);
        QCOMPARE(a.mensaje, QStringLiteral("Sus datos han sido importados correctamente"));
        Contadores(2, 2, 0, 0, 0);
        QCOMPARE(Importar().TERMINADA, QStringLiteral("S"));
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
        QCOMPARE(NombreGuardado(1), QStringLiteral("GARCÍA ÑOÑO"));
        QCOMPARE(Contribuyentes(), 2);
        QCOMPARE(m_finales, 1);
        QCOMPARE(m_estimados.first(), 356.0 / 176.0);
        QVERIFY(m_preguntas.isEmpty());
    }

    void ficheroDeErroresByteAByte()
    {
        QList<QByteArray> malos = CamposValidos(3);
        malos[0] = "X";   // code 20
        malos[3] = "ZZ";  // code 22
        malos[5] = "1A";  // code 14
        const QByteArray fichero = LineaValida(1) + "\r\n" + LineaValida(2).left(100) + "\r\n"
            + Linea(malos) + "\r\n" + LineaValida(4);
        const Veredicto a = Importa(fichero, true);
        Contadores(4, 2, 2, 0, 0);
        QVERIFY(a.id == kIdHay && a.mensaje.endsWith(Texto(kIdContribuyentesErroneos)));
        QCOMPARE(a.mensaje, QStringLiteral("Hay 2 contibuyentes erróneos"));
        QByteArray esperado = "Linea 2No se han importado todos los datos\r\n";
        const QByteArray cabeza = "Linea 3 - DNI-CIF " + DniDe(3) + ": ";
        esperado += cabeza + "El n\xFAmero de portal debe ser un n\xFAmero\r\n";
        esperado += cabeza + "El tipo de DNI no tiene un valor v\xE1lido: 'O' \xF3 'N'\r\n";
        esperado += cabeza + "La sigla del domicilio no es una de las admisibles\r\n";
        esperado += "\r\nFORMATO:\r\n";
        for (const char* c : {"TIPODNI(1)", "DNI(9)", "NOMBRE(40)", "SIGLAS(2)", "DOMICILIO(20)",
                              "NUMERO(5)", "LETRA(2)", "ESCALERA(2)", "PISO(2)", "MANO(3)",
                              "TIPODOMICILIO(1)", "PAIS(20)", "CODIGO PROVINCIA(2)",
                              "NOMBRE PROVINCIA(20)", "CODIGO POSTAL(5)", "CODIGO MUNICIPIO(3)",
                              "NOMBRE MUNICIOPIO(25)", "NUMERO SUJETO PASIVO(7)",
                              "NUMERO TRANSMITENTE(7)"})
            esperado += QByteArray("         ") + c + "\r\n";
        QCOMPARE(Leer(Importar().FICHEROERRORES), esperado);
        QCOMPARE(Contribuyentes(), 2);
    }

    // Every rule a line breaks gets its line, in ascending order of code, even where one
    // rule follows from another.
    void cadaReglaRotaEnOrden()
    {
        QList<QByteArray> cpMalo = CamposValidos(1);
        cpMalo[14] = "7A01 ";  // not a number, not of five digits, of no province
        QList<QByteArray> cero = CamposValidos(2);
        cero[14] = "00000";
        QList<QByteArray> extranjero = CamposValidos(3);
        extranjero[10] = "E";
        extranjero[11] = "FRANCIA";
        extranjero[12] = "AB";  // not a number, and so not 00 either
        extranjero[13] = "PARIS";
        extranjero[14] = "75001";
        extranjero[15] = "000";
        extranjero[16] = "PARIS";
        Importa(Linea(cpMalo) + "\r\n" + Linea(cero) + "\r\n" + Linea(extranjero) + "\r\n", true);
        Contadores(3, 0, 3, 0, 0);
        const QByteArray errores = Leer(Importar().FICHEROERRORES);
        const auto linea = [](int n, quint32 dni, const QByteArray& texto) {
            return "Linea " + QByteArray::number(n) + " - DNI-CIF " + DniDe(dni) + ": " + texto
                + "\r\n";
        };
        const QByteArray otraProvincia = "El C\xF3" "digo de Provincia y el C\xF3" "digo Postal no coinciden";
        const QByteArray esperado = linea(1, 1, otraProvincia)
            + linea(1, 1, "El C\xF3" "digo Postal debe ser un n\xFA" "mero de 5 cifras")
            + linea(1, 1, "El c\xF3" "digo postal debe ser un n\xFA" "mero")
            + linea(2, 2, otraProvincia)
            + linea(2, 2, "Los tres \xFA" "ltimos d\xED" "gitos del C\xF3" "digo Postal deben ser distintos de cero")
            + linea(2, 2, "El C\xF3" "digo Postal debe ser distinto de cero")
            + linea(3, 3, "El c\xF3" "digo de provincia debe ser un n\xFA" "mero")
            + linea(3, 3, "Al ser domicilio extranjero, el c\xF3" "digo de provincia debe ser 00");
        QVERIFY2(errores.startsWith(esperado), errores.constData());
    }

    void unoMaloDeDiez()
    {
        QByteArray f;
        for (quint32 n = 1; n <= 10; ++n)
            f += (n == 5 ? QByteArray("O") : LineaValida(n)) + "\r\n";
        const Veredicto a = Importa(f, true);
        QVERIFY(a.id == kIdHay && a.mensaje.endsWith(Texto(kIdUnContribuyenteErroneo)));
        QCOMPARE(a.mensaje, QStringLiteral("Hay 1 un contibuyente erróneo"));
        Contadores(10, 9, 1, 0, 0);
        QVERIFY(QFile::exists(Importar().FICHEROERRORES));
    }

    void todosMalos()
    {
        QByteArray f;
        for (int n = 1; n <= 10; ++n)
            f += "corta\r\n";
        QCOMPARE(Importa(f, true).id, kIdTodosErroneos);
        QCOMPARE(Importar().TERMINADA, QStringLiteral("S"));
        Contadores(10, 0, 10, 0, 0);
    }

    void ficheroVacio()
    {
        const Veredicto a = Importa(QByteArray(), false);
        QVERIFY(a.vacio());
        Contadores(0, 0, 0, 0, 0);
        QCOMPARE(Importar().TERMINADA, QStringLiteral("S"));
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
        QCOMPARE(m_estimados, QList<double>{0.0});
    }

    void finesDeLinea()
    {
        // LF alone, and no end after the last line.
        Importa(LineaValida(1) + "\n" + LineaValida(2) + "\n" + LineaValida(3), true);
        Contadores(3, 3, 0, 0, 0);
        QCOMPARE(Contribuyentes(), 3);
    }

    void lineaLargaAceptada()
    {
        Importa(LineaValida(1) + "COLA IGNORADA\r\n", true);
        Contadores(1, 1, 0, 0, 0);
    }

    void manualPreguntaPorElExistente()
    {
        Importa(LineaValida(1, "VIEJO") + "\r\n" + LineaValida(2, "OTRO") + "\r\n", false);
        Importar().Iniciar();
        m_respuestas = {false, true};
        const Veredicto a = Importa(
            LineaValida(1, "NUEVO UNO") + "\r\n" + LineaValida(2, "NUEVO DOS") + "\r\n"
                + LineaValida(3) + "\r\n",
            false);
        QCOMPARE(m_preguntas, (QStringList{QString::fromLatin1(DniDe(1)),
                                           QString::fromLatin1(DniDe(2))}));
        Contadores(3, 2, 0, 1, 1);
        QCOMPARE(NombreGuardado(1), QStringLiteral("VIEJO"));
        QCOMPARE(NombreGuardado(2), QStringLiteral("NUEVO DOS"));
        QCOMPARE(a.id, kIdImportadosCorrectamente);
        QCOMPARE(cImportar::TextoPreguntaSustituir(QStringLiteral("12345678Z")),
                 QStringLiteral("El contribuyente con DNI 12345678Z ya existe.\n"
                                "¿Está seguro que desea sustituirlo?"));
    }

    void manualCortaExistentePreguntaAntes()
    {
        Importa(LineaValida(1) + "\r\n", true);
        Importar().Iniciar();
        // No: ignored, never validated.
        Importa(LineaValida(1).left(50) + "\r\n", false);
        QCOMPARE(m_preguntas.size(), 1);
        Contadores(1, 0, 0, 0, 1);
        QVERIFY(!QFile::exists(Importar().FICHEROERRORES));
        // Yes: then refused as short.
        Importar().Iniciar();
        m_respuestas = {true};
        Importa(LineaValida(1).left(50) + "\r\n", false);
        QCOMPARE(m_preguntas.size(), 2);
        Contadores(1, 0, 1, 0, 0);
        QCOMPARE(Leer(Importar().FICHEROERRORES).left(44),
                 QByteArray("Linea 1No se han importado todos los datos\r\n"));
    }

    void automaticoSustituyeSinPreguntar()
    {
        Importa(LineaValida(1, "ANTES") + "\r\n", true);
        const int32_t codigo = Codigo(1);
        Importar().Iniciar();
        Importa(LineaValida(1, "DESPUES") + "\r\n" + LineaValida(2) + "\r\n", true);
        QVERIFY(m_preguntas.isEmpty());
        Contadores(2, 2, 0, 1, 0);
        QCOMPARE(NombreGuardado(1), QStringLiteral("DESPUES"));
        // Replaced in place: the contributor keeps its code, and no second one appears.
        QCOMPARE(Codigo(1), codigo);
        QCOMPARE(Contribuyentes(), 2);
    }

    // While the question about an existing contributor stands, another running copy saves
    // that contributor: the answer Yes does not overwrite it; the line is incorrect, with its
    // message in the error file.
    void sustitucionDeLoCambiadoEntretanto()
    {
        Importa(LineaValida(1, "LEIDO") + "\r\n" + LineaValida(2, "BORRABLE") + "\r\n", true);
        const int32_t uno = Codigo(1);
        const int32_t dos = Codigo(2);
        Importar().Iniciar();
        m_respuestas = {true, true};
        int pregunta = 0;
        cImportar::Interlocutor i;
        i.sustituir = [&](const QString&) {
            // The other copy edits the first one and deletes the second.
            const bool hecho = EnOtraConexion([&] {
                if (pregunta++ == 0) {
                    Contribuyente c = Svr().CargarContribuyente(uno).value();
                    c.NOMBREC = QStringLiteral("DE LA OTRA COPIA");
                    if (!Svr().GuardarContribuyente(c))
                        throw std::runtime_error("no guardado");
                } else if (!Svr().BorrarContribuyente(dos)) {
                    throw std::runtime_error("no borrado");
                }
            });
            return hecho && m_respuestas.takeFirst();
        };
        Escribir(Importar().FICHEROAIMPORTAR,
                 LineaValida(1, "DEL FICHERO") + "\r\n" + LineaValida(2, "DEL FICHERO") + "\r\n");
        Importar().AUTOMATICO = QStringLiteral(" ");
        Importar().Ejecutar(i);
        Contadores(2, 0, 2, 0, 0);
        QCOMPARE(NombreGuardado(1), QStringLiteral("DE LA OTRA COPIA"));
        QCOMPARE(Codigo(2), 0);
        QCOMPARE(Contribuyentes(), 1);
        const QByteArray errores = Leer(Importar().FICHEROERRORES);
        QVERIFY2(errores.startsWith("Linea 1 - DNI-CIF " + DniDe(1) + ": "
                                    + Texto(kIdContribuyenteCambiado).toLatin1()),
                 errores.constData());
        QVERIFY(errores.contains("\r\nLinea 2 - DNI-CIF " + DniDe(2) + ": "));
    }

    void existenteConDatosMalosQuedaComoEstaba()
    {
        Importa(LineaValida(1, "BUENO") + "\r\n", true);
        Importar().Iniciar();
        QList<QByteArray> c = CamposValidos(1, "MALO");
        c[14] = "01001";  // postal code of another province
        Importa(Linea(c) + "\r\n", true);
        Contadores(1, 0, 1, 0, 0);
        QCOMPARE(NombreGuardado(1), QStringLiteral("BUENO"));
    }

    // A valid line with a text the store cannot keep (a control character in the letter,
    // which the line's checks do not look at): incorrect, the store's message in the error
    // file, nothing written; in both modes, for a new contributor and for one that would be
    // replaced.
    void textoQueElAlmacenNoGuarda_data()
    {
        QTest::addColumn<bool>("automatico");
        QTest::newRow("automatico") << true;
        QTest::newRow("manual") << false;
    }
    void textoQueElAlmacenNoGuarda()
    {
        QFETCH(bool, automatico);
        Importa(LineaValida(1, "BUENO") + "\r\n", true);
        Importar().Iniciar();
        m_respuestas = {true};
        QList<QByteArray> c1 = CamposValidos(1, "MALO");
        c1[6] = "\x01";
        QList<QByteArray> c2 = CamposValidos(2);
        c2[6] = "\x01";
        const Veredicto a = Importa(Linea(c1) + "\r\n" + Linea(c2) + "\r\n"
                                               + LineaValida(3) + "\r\n",
                                           automatico);
        Contadores(3, 1, 2, 0, 0);
        QVERIFY(a.id == kIdHay && a.mensaje.endsWith(Texto(kIdContribuyentesErroneos)));
        QCOMPARE(NombreGuardado(1), QStringLiteral("BUENO"));
        QCOMPARE(Codigo(2), 0);
        QCOMPARE(Contribuyentes(), 2);
        const QByteArray errores = Leer(Importar().FICHEROERRORES);
        QVERIFY2(errores.startsWith("Linea 1 - DNI-CIF " + DniDe(1) + ": La casilla "), errores.constData());
        QVERIFY(errores.contains("\r\nLinea 2 - DNI-CIF " + DniDe(2) + ": La casilla "));
        QVERIFY(errores.contains("no se pueden guardar\r\n"));
    }

    void mismoDniDosVecesComoUnoAUno()
    {
        // The second line finds the contributor the first one saved, in the same batch.
        Importa(LineaValida(1, "PRIMERO") + "\r\n" + LineaValida(1, "SEGUNDO") + "\r\n", true);
        Contadores(2, 2, 0, 1, 0);
        QCOMPARE(NombreGuardado(1), QStringLiteral("SEGUNDO"));
        QCOMPARE(Contribuyentes(), 1);
    }

    void ficheroQueNoExiste()
    {
        Importar().FICHEROAIMPORTAR = Ruta(QStringLiteral("NOESTA.txt"));
        const Veredicto a = Importar().Ejecutar({});
        QCOMPARE(a.id, kIdNoExisteFicheroImportar);
        QCOMPARE(a.mensaje, QStringLiteral("No existe el fichero que desea importar"));
        QCOMPARE(Importar().TERMINADA, QString());
    }

    void ficheroYaAbierto()
    {
        // The error file is the exchange file itself.
        Escribir(Importar().FICHEROAIMPORTAR, LineaValida(1) + "\r\n");
        Importar().FICHEROERRORES = Importar().FICHEROAIMPORTAR;
        QCOMPARE(Importar().Ejecutar({}).mensaje, QStringLiteral("El fichero ya está abierto"));
        QCOMPARE(Importar().TERMINADA, QString());
        QCOMPARE(Leer(Importar().FICHEROAIMPORTAR), LineaValida(1) + "\r\n");
        // The failed run left the exchange file open: a second run says so.
        Importar().FICHEROERRORES = Ruta(QStringLiteral("Erorres.txt"));
        QCOMPARE(Importar().Ejecutar({}).id, kIdFicheroYaAbierto);
        QCOMPARE(Contribuyentes(), 0);
    }

    void otroFallo()
    {
        Escribir(Importar().FICHEROAIMPORTAR, LineaValida(1) + "\r\n");
        Importar().FICHEROERRORES = Ruta(QStringLiteral("no/hay/carpeta/E.txt"));
        const Veredicto a = Importar().Ejecutar({});
        QCOMPARE(a.id, kIdErrorNumero);
        QCOMPARE(a.mensaje,
                 QStringLiteral("ERROR Nº: 76 : No se ha encontrado la ruta de acceso"));
        QCOMPARE(Importar().TERMINADA, QString());
    }

    void limiteDeDieciseisBits()
    {
        QByteArray f;
        f.reserve(32768 * 178);
        for (quint32 n = 1; n <= 32768; ++n)
            f += LineaValida(n) + "\r\n";
        const Veredicto a = Importa(f, true);
        QCOMPARE(a.mensaje, QStringLiteral("ERROR Nº: 6 : Desbordamiento"));
        QCOMPARE(Importar().TERMINADA, QString());
        QCOMPARE(int(Importar().LineasLeidas), 32767);
        // Every line read before the failure stays saved.
        QCOMPARE(Contribuyentes(), 32767);
        QCOMPARE(Codigo(32768), 0);
    }

    void treintaYDosMilSetecientosSesentaYSiete()
    {
        QByteArray f;
        for (quint32 n = 1; n <= 32767; ++n)
            f += LineaValida(n) + "\r\n";
        QCOMPARE(Importa(f, true).id, kIdImportadosCorrectamente);
        Contadores(32767, 32767, 0, 0, 0);
    }

    void enEuskera()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        const Veredicto a = Importa(LineaValida(1) + "\r\ncorta\r\n", true);
        QCOMPARE(a.mensaje, TextoFila(kIdHay + 10000) + QStringLiteral("1")
                 + TextoFila(kIdUnContribuyenteErroneo + 10000));
        const QByteArray corta = (TextoFila(kIdLinea + 10000) + QStringLiteral("2")
                                  + TextoFila(kIdNoImportados + 10000)).toLatin1() + "\r\n";
        QVERIFY(corta != "Linea 2No se han importado todos los datos\r\n");
        QVERIFY(Leer(Importar().FICHEROERRORES).startsWith(corta));
        QVERIFY(cImportar::TextoPreguntaSustituir(QStringLiteral("1Z"))
                    .startsWith(QStringLiteral("1Z zk.ko NA duen zergaduna lehenagotik dago.\n")));
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }
};

QTEST_MAIN(TestImportar)
#include "test_importar.moc"
