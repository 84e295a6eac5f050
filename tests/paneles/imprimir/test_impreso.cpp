// The sheets of form 747 drawn on a recording surface from a stored return: every data text
// at its place in its font, a sample of every block's labels, the pictures, the copies in
// their order, the bank sheet, the draft, with and without presenter, and the edge cases of
// the data (municipality, foreign party, numbers 0, engine, reduction key, Basque date).
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "paneles/imprimir/ReproducirLlamadas.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/DatosImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cPreDatos.h"
#include "servicios/cDatosGeneral.h"
#include "plataforma/General.h"
#include "valores/cFecha.h"

#include <QTest>
#include <tuple>

namespace {
constexpr float kTol = 1e-3f;

// The text printed with this content whose top is at y (left-placed texts: whose y lies within
// the line's upper half).
LlamadaPagina enLinea(const cSuperficieGrabadora& s, const QString& t, float y)
{
    const QList<LlamadaPagina> todos = Textos(s, t);
    for (const LlamadaPagina& l : todos)
        if (l.y1 <= y + kTol && y - l.y1 < AltoDe(l) * 0.5f)
            return l;
    qWarning() << "texto" << t << "no impreso en" << y;
    return {};
}

void centrado(const cSuperficieGrabadora& s, const QString& t, float x, float y, float ancho)
{
    const LlamadaPagina l = enLinea(s, t, y);
    QVERIFY2(qAbs((l.x1 + l.x2) / 2 - (x + ancho / 2)) < kTol, qPrintable(t));
    QVERIFY2(qAbs(l.y1 - y) < kTol, qPrintable(t));
}

void derecha(const cSuperficieGrabadora& s, const QString& t, float x, float y)
{
    const LlamadaPagina l = enLinea(s, t, y);
    QVERIFY2(qAbs(l.x2 - x) < kTol, qPrintable(t));
    QVERIFY2(qAbs(l.y1 - y) < kTol, qPrintable(t));
}

void izquierda(const cSuperficieGrabadora& s, const QString& t, float x, float y)
{
    const LlamadaPagina l = enLinea(s, t, y);
    QVERIFY2(qAbs(l.x1 - x) < kTol, qPrintable(t));
    QVERIFY2(qAbs(l.y1 - (y - AltoDe(l) * 0.35f)) < kTol, qPrintable(t));
}

void fuente(const cSuperficieGrabadora& s, const QString& t, const char* nombre, float tamano,
            bool negrita, bool cursiva)
{
    const LlamadaPagina l = UnTexto(s, t);
    QCOMPARE(l.fuente, QString::fromLatin1(nombre));
    QCOMPARE(l.tamano, tamano);
    QCOMPARE(l.negrita, negrita);
    QCOMPARE(l.cursiva, cursiva);
}

QString mayus(bool municipio, const QString& codigo)
{
    cDatosGeneral g;
    g.mdblec = mdblec;
    return (municipio ? g.ObtenNomMunicipio(codigo) : g.ObtenNomProvincia(codigo)).toUpper();
}

bool hayLinea(const cSuperficieGrabadora& s, float x1, float y1, float x2, float y2)
{
    for (const LlamadaPagina& l : s.Llamadas)
        if (l.tipo == LlamadaPagina::Tipo::Linea && l.modo == ModoLinea::Linea &&
            qAbs(l.x1 - x1) < kTol &&
            qAbs(l.y1 - y1) < kTol && qAbs(l.x2 - x2) < kTol && qAbs(l.y2 - y2) < kTol)
            return true;
    return false;
}

void hoja(cSuperficieGrabadora& s, bool conPresentador)
{
    s.ScaleMode = 1;
    s.FontName = QStringLiteral("Courier");
    ImprimirEjemplar(s, conPresentador);
}
}

class TestImpreso : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;

private slots:
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        DeclaracionLlena();
    }
    void cleanup() { m_almacen.reset(); }

    // A recording replayed on another surface makes the same calls in the same state: what a
    // batch paints from a recording is the sheet itself.
    void reproducidaIgualQueGrabada()
    {
        cSuperficieGrabadora grabada;
        QVERIFY(ImprimirCopias(grabada, true) > 0);
        grabada.FontUnderline = true;
        grabada.ForeColor = 0x123456;
        grabada.CurrentX = 3;
        grabada.Print(QStringLiteral("subrayado"));
        cSuperficieGrabadora otra;
        ReproducirLlamadas(grabada.Llamadas, otra);
        QCOMPARE(otra.Llamadas.size(), grabada.Llamadas.size());
        for (qsizetype i = 0; i < otra.Llamadas.size(); ++i) {
            const LlamadaPagina& a = grabada.Llamadas.at(i);
            const LlamadaPagina& b = otra.Llamadas.at(i);
            const auto campos = [](const LlamadaPagina& l) {
                return std::tuple(int(l.tipo), l.x1, l.y1, l.x2, l.y2, l.texto, l.fuente, l.tamano,
                                  l.negrita, l.cursiva, l.subrayado, l.grosor, l.color,
                                  int(l.modo), int(l.dibujo), l.escala);
            };
            QVERIFY2(campos(a) == campos(b), qPrintable(QString::number(i) + QLatin1Char(' ') + a.texto));
        }
        QVERIFY(otra.Llamadas.last().subrayado);
        QCOMPARE(otra.Llamadas.last().color, 0x123456u);
    }

    void datosDeLaHojaCompleta()
    {
        cSuperficieGrabadora s;
        hoja(s, true);
        const cDecDatos& d = DecDatos();
        centrado(s, QStringLiteral("2010"), 65, 46.5f, 30);
        centrado(s, QStringLiteral("Marzo / Martxoa"), 125, 46.5f, 30);
        fuente(s, QStringLiteral("2010"), "Arial", 11, true, false);
        // Obligor at 58.
        centrado(s, d.DNISP, 14, 62, 22);
        centrado(s, d.NOMBRESP, 45, 62, 130);
        fuente(s, d.NOMBRESP, "Arial", 9, true, false);
        centrado(s, d.DOMICILIOSP, 14, 70, 80);
        centrado(s, QStringLiteral("99999"), 101, 70, 10);
        centrado(s, QStringLiteral("LL"), 118, 70, 5);
        centrado(s, QStringLiteral("EE"), 131, 70, 5);
        centrado(s, QStringLiteral("PP"), 143, 70, 7);
        centrado(s, QStringLiteral("MMM"), 156, 70, 7);
        centrado(s, mayus(true, QStringLiteral("001")), 14, 78.5f, 65);
        QVERIFY(Textos(s, QStringLiteral("001")).size() == 2);  // obligor's and presenter's key
        centrado(s, QStringLiteral("77001"), 77, 78.5f, 18);
        // Transmitter at 84: foreign, free texts.
        centrado(s, d.DNITR, 14, 88, 22);
        centrado(s, d.NOMBRETR, 45, 88, 130);
        izquierda(s, QStringLiteral("CALLE DE FUERA 12345 AA BB CC DDD"), 12, 96.4f);
        izquierda(s, QStringLiteral("UUUUUUUUUUUUUUUUUUUUUUUUU   99999"), 12, 99.4f);
        centrado(s, QStringLiteral("QQQQQQQQQQQQQQQQQQQQ"), 95, 97, 51);
        centrado(s, QStringLiteral("PPPPPPPPPPPPPPPPPPPP"), 146, 97, 44);
        // Presenter at 103.4, with its telephone.
        centrado(s, PreDatos().DNIP, 14, 107.4f, 22);
        centrado(s, QStringLiteral("GESTORIA UNO"), 45, 107.4f, 130);
        centrado(s, QStringLiteral("945000000"), 167, 115.4f, 22);
        centrado(s, QStringLiteral("12"), 101, 115.4f, 10);
        // Characteristics at 133.
        izquierda(s, QStringLiteral("X"), 161.5f, 136);
        centrado(s, d.MARCA, 32, 145, 42);
        centrado(s, d.TIPO, 78, 145, 42);
        centrado(s, d.MODELO, 124, 145, 49);
        centrado(s, d.BASTIDOR, 32, 153, 75);
        centrado(s, QStringLiteral("9999"), 112, 153, 75);
        centrado(s, QStringLiteral("99998"), 144, 161, 43);
        QVERIFY(hayLinea(s, 64, 162, 66, 164) && hayLinea(s, 66, 162, 64, 164));
        QVERIFY(!hayLinea(s, 64, 158, 66, 160));
        // Amounts at 202.
        derecha(s, QStringLiteral("999.999.999,99"), 187, 204.5f);
        derecha(s, QStringLiteral("1.234,50"), 187, 211);
        derecha(s, QStringLiteral("12,00"), 187, 217);
        derecha(s, QStringLiteral("1.000,00"), 187, 223.5f);
        derecha(s, QStringLiteral("0,05"), 187, 230);
        derecha(s, QStringLiteral("999,95"), 187, 236.5f);
        izquierda(s, QStringLiteral("P9"), 78, 226.5f);
        // The reduction "Y" marks its box; not subject and exempt are not set.
        QCOMPARE(Textos(s, QStringLiteral("X")).size(), 2);
        // The date of presentation, Basque first with its suffix.
        izquierda(s, QStringLiteral("2004/03/11n /// 11/03/2004"), 25, 249.5f);
        fuente(s, QStringLiteral("2004/03/11n /// 11/03/2004"), "Arial", 9, true, false);
    }

    void provinciasYClaves()
    {
        cSuperficieGrabadora s;
        hoja(s, true);
        const QString provincia = mayus(false, QStringLiteral("77"));
        QVERIFY(!provincia.isEmpty());
        QCOMPARE(Textos(s, provincia).size(), 2);  // obligor and presenter
        QCOMPARE(Textos(s, QStringLiteral("77")).size(), 2);
        const QList<LlamadaPagina> claves = Textos(s, QStringLiteral("77"));
        QCOMPARE(claves[0].y1, 78.5f);
        QCOMPARE(claves[1].y1, 103.4f + 20.5f);
        for (const LlamadaPagina& l : claves)
            QVERIFY(qAbs((l.x1 + l.x2) / 2 - 186) < kTol);
    }

    void etiquetasDeCadaBloque()
    {
        cSuperficieGrabadora s;
        hoja(s, true);
        izquierda(s, QStringLiteral("ORGANO ESKUDUNAK BETE BEHARREKO ESPAZIOA"), 8, 8.5f);
        fuente(s, QStringLiteral("ORGANO ESKUDUNAK BETE BEHARREKO ESPAZIOA"), "Times New Roman",
               9, false, true);
        izquierda(s, QStringLiteral("EL ÓRGANO COMPETENTE"), 8, 16.5f);
        centrado(s, QStringLiteral("Zenbait Garraiobideren gaineko Zerga Berezia"), 60, 28, 105);
        fuente(s, QStringLiteral("Zenbait Garraiobideren gaineko Zerga Berezia"),
               "Times New Roman", 10, true, true);
        centrado(s, QStringLiteral("Declaración-Liquidación"), 60, 41, 105);
        izquierda(s, QStringLiteral("747"), 169, 31);
        fuente(s, QStringLiteral("747"), "Times New Roman", 31, true, false);
        centrado(s, QStringLiteral("Oficina Liquidadora"), 165, 42, 25);
        izquierda(s, QStringLiteral("Diputación Foral de Arbelia"), 25, 33);
        izquierda(s, QStringLiteral("Departamento de Hacienda y Finanzas"), 9, 48);
        izquierda(s, QStringLiteral("Ogasun eta Finantza Saila"), 9, 45);
        izquierda(s, QStringLiteral("Periodo:"), 109, 49.5f);
        izquierda(s, QStringLiteral("IDENTIFIKAZIOA/"), 71.7f, 55.6f);
        izquierda(s, QStringLiteral("IDENTIFICACIÓN"), 92, 55.6f);
        izquierda(s, QStringLiteral("3"), 76.4f, 199.6f);
        QCOMPARE(Textos(s, QStringLiteral("I.F.Z./")).size(), 3);
        fuente(s, QStringLiteral("Pais"), "Times New Roman", 5, false, false);
        izquierda(s, QStringLiteral("Pais"), 155.5f, 93.7f);
        QCOMPARE(Textos(s, QStringLiteral("Apellidos y nombre o razón social")).size(), 2);
        izquierda(s, QStringLiteral("Apellidos y Nombre o Razón Social"), 70, 85.3f);
        izquierda(s, QStringLiteral("Peso máximo despegue(kg)"), 156.5f, 190);
        fuente(s, QStringLiteral("Garraiobide berria, Espainia ez den Europako Batasuneko estatu "
                                 "batean erosia"),
               "Times New Roman", 8, false, true);
        izquierda(s, QStringLiteral("Total a ingresar(10).............................................."),
                  102, 239);
        izquierda(s, QStringLiteral("Firma del obligado tributario o representante"), 120.1f, 245.5f);
        izquierda(s, QStringLiteral("Importe"), 164, 273);
        QVERIFY(Textos(s, QStringLiteral("Total a ingresar(8)................................................")).isEmpty());
        // Frames and rules at their widths.
        bool marco = false;
        for (const LlamadaPagina& l : s.Llamadas)
            if (l.modo == ModoLinea::Caja && l.x1 == 5 && l.y1 == 58 && l.grosor == 10)
                marco = true;
        QVERIFY(marco);
        QVERIFY(hayLinea(s, 39, 58 + 8.03f, 190, 58 + 8.03f));
        // The surface's font and scale are put back; the sheet ends its document once.
        QCOMPARE(s.FontName, QStringLiteral("Courier"));
        QCOMPARE(s.ScaleMode, int16_t(1));
        QCOMPARE(FinesDeDocumento(s), 1);
        QCOMPARE(s.Llamadas.last().tipo, LlamadaPagina::Tipo::FinDoc);
    }

    // The NIF label of each party block: "I.F.Z./" italic size 6, then "N.I.F." upright size
    // 5, at 17.8 in the obligor's and the representative's blocks and at 17 in the transmitter's.
    void etiquetaNifDeCadaBloque()
    {
        cSuperficieGrabadora s;
        hoja(s, true);
        QCOMPARE(Textos(s, QStringLiteral("N.I.F.")).size(), 3);
        const struct {
            float y;
            float x;
        } bloques[] = {{58, 17.8f}, {84, 17}, {103.4f, 17.8f}};
        for (const auto& b : bloques) {
            const LlamadaPagina nif = enLinea(s, QStringLiteral("N.I.F."), b.y + 1.3f);
            QCOMPARE(nif.tamano, 5.0f);
            QVERIFY(!nif.cursiva);
            QVERIFY(!nif.negrita);
            QCOMPARE(nif.fuente, QStringLiteral("Times New Roman"));
            izquierda(s, QStringLiteral("N.I.F."), b.x, b.y + 1.3f);
            const LlamadaPagina ifz = enLinea(s, QStringLiteral("I.F.Z./"), b.y + 1.3f);
            QCOMPARE(ifz.tamano, 6.0f);
            QVERIFY(ifz.cursiva);
            izquierda(s, QStringLiteral("I.F.Z./"), 12, b.y + 1.3f);
        }
    }

    void sinPresentadorSoloEtiquetas()
    {
        cSuperficieGrabadora s;
        hoja(s, false);
        QVERIFY(Textos(s, QStringLiteral("GESTORIA UNO")).isEmpty());
        QVERIFY(Textos(s, QStringLiteral("945000000")).isEmpty());
        QCOMPARE(Textos(s, QStringLiteral("Telefonoa/")).size(), 2);
    }

    void dibujosDeLaHoja()
    {
        cSuperficieGrabadora s;
        ImprimirEjemplar(s, true, Dibujo::Informatica, true);
        const QList<LlamadaPagina> d = Dibujos(s);
        QCOMPARE(d.size(), 11);
        QCOMPARE(d.first().dibujo, Dibujo::Placa);
        QCOMPARE(d.first().x1, 87.5f);
        QCOMPARE(d.last().dibujo, Dibujo::Informatica);
        QCOMPARE(d.last().x1, 191.5f);
        QCOMPARE(d.last().y1, 80.0f);
        // Natural size at 96 pixels per inch.
        QVERIFY(qAbs(d.last().y2 - d.last().y1 - 477 * 25.4f / 96) < kTol);
    }

    void copiasEnSuOrden()
    {
        ImOf().TIPOIMP = QStringLiteral("O");
        ImOf().COPIAINF = ImOf().COPIAINT = ImOf().COPIAADM = ImOf().COPIABAN =
            QStringLiteral("X");
        cSuperficieGrabadora s;
        QCOMPARE(ImprimirCopias(s, true), 4);
        QCOMPARE(FinesDeDocumento(s), 4);
        QList<QPair<Dibujo, float>> tiras;
        for (const LlamadaPagina& l : Dibujos(s))
            if (l.x1 >= 185)
                tiras.append({l.dibujo, l.y1});
        const QList<QPair<Dibujo, float>> esperadas{{Dibujo::Informatica, 80.0f},
                                                    {Dibujo::Interesado, 105.0f},
                                                    {Dibujo::Administracion, 105.0f},
                                                    {Dibujo::Entidad, 93.0f}};
        QCOMPARE(tiras, esperadas);

        ImOf().COPIAINF = ImOf().COPIAADM = ImOf().COPIABAN = QString();
        cSuperficieGrabadora una;
        QCOMPARE(ImprimirCopias(una, true), 1);
        ImOf().COPIAINT = QString();
        cSuperficieGrabadora ninguna;
        QCOMPARE(ImprimirCopias(ninguna, true), 0);
        QVERIFY(ninguna.Llamadas.isEmpty());
    }

    void borradorSinTira()
    {
        ImOf().TIPOIMP = QStringLiteral("B");
        ImOf().COPIAINF = ImOf().COPIAINT = ImOf().COPIAADM = ImOf().COPIABAN =
            QStringLiteral("X");
        cSuperficieGrabadora s;
        QCOMPARE(ImprimirCopias(s, false), 1);
        for (const LlamadaPagina& l : Dibujos(s))
            QVERIFY(l.x1 < 185);
        QCOMPARE(Dibujos(s).size(), 10);
        centrado(s, DecDatos().NOMBRESP, 45, 62, 130);
    }

    void hojaDelBanco()
    {
        cSuperficieGrabadora s;
        ImprimirEjemplarBanco(s);
        QCOMPARE(FinesDeDocumento(s), 1);
        const QList<LlamadaPagina> d = Dibujos(s);
        QCOMPARE(d.first().dibujo, Dibujo::Entidad);
        QCOMPARE(d.first().x1, 185.0f);
        QCOMPARE(d.first().y1, 93.0f);
        izquierda(s, QStringLiteral("Total a ingresar(8)................................................"),
                  102, 239);
        fuente(s, QStringLiteral("Guztira ordaintzekoa"), "Times New Roman", 5, false, true);
        derecha(s, QStringLiteral("999,95"), 187, 237);
        centrado(s, DecDatos().NOMBRESP, 45, 62, 130);
        centrado(s, QStringLiteral("2010"), 65, 46.5f, 30);
        QVERIFY(Textos(s, QStringLiteral("Marca")).isEmpty());
        QVERIFY(Textos(s, DecDatos().MARCA).isEmpty());
        QVERIFY(Textos(s, DecDatos().NOMBRETR).isEmpty());
        QVERIFY(hayLinea(s, 145.1f, 234, 145.1f, 242));
        izquierda(s, QStringLiteral("2004/03/11n /// 11/03/2004"), 25, 249.5f);
    }

    void municipioCeroYExtranjero()
    {
        DecDatos().CODMUNSP = QStringLiteral("000");
        DecDatos().CODPOSSP = QString();
        cSuperficieGrabadora s;
        hoja(s, false);
        QVERIFY(Textos(s, mayus(true, QStringLiteral("001"))).isEmpty());
        QCOMPARE(Textos(s, mayus(false, QStringLiteral("77"))).size(), 1);
        QVERIFY(Textos(s, QStringLiteral("77001")).isEmpty());

        DecDatos().CODPROVSP = QStringLiteral("00");
        DecDatos().NOMMUNSP = QStringLiteral("BAYONNE");
        DecDatos().CODPOSSP = QStringLiteral("64100");
        cSuperficieGrabadora f;
        hoja(f, false);
        QVERIFY(Textos(f, QStringLiteral("BAYONNE")).isEmpty());
        QVERIFY(Textos(f, QStringLiteral("00")).isEmpty());
        centrado(f, QStringLiteral("64100"), 77, 78.5f, 18);

        DecDatos().CODPROVSP = QStringLiteral("48");
        cSuperficieGrabadora o;
        hoja(o, false);
        centrado(o, QStringLiteral("BAYONNE"), 14, 78.5f, 65);
        centrado(o, mayus(false, QStringLiteral("48")), 114, 78.5f, 60);
        centrado(o, QStringLiteral("48"), 181, 78.5f, 10);
    }

    void transmitenteSinNumeroYMotorVacio()
    {
        DecDatos().NUMEROTR = 0;
        DecDatos().CODPOSTR = QStringLiteral("0");
        DecDatos().MOTOR = QString();
        DecDatos().NUMEROSP = 0;
        DecDatos().CODPROVTR = QStringLiteral("77");
        DecDatos().CODMUNTR = QStringLiteral("002");
        cSuperficieGrabadora s;
        hoja(s, false);
        izquierda(s, QStringLiteral("CALLE DE FUERA AA BB CC DDD"), 12, 96.4f);
        izquierda(s, mayus(true, QStringLiteral("002")), 12, 99.4f);
        centrado(s, mayus(false, QStringLiteral("77")), 95, 97, 51);
        QVERIFY(Textos(s, QStringLiteral("0")).isEmpty());
        QVERIFY(hayLinea(s, 64, 162, 66, 164));
        DecDatos().MOTOR = QStringLiteral("G");
        cSuperficieGrabadora g;
        hoja(g, false);
        QVERIFY(hayLinea(g, 64, 158, 66, 160) && hayLinea(g, 66, 158, 64, 160));
        QVERIFY(!hayLinea(g, 64, 162, 66, 164));
    }

    void claveYSufijos()
    {
        DecDatos().REDUCCION = QStringLiteral("X");
        QCOMPARE(ClaveFundamento(), QStringLiteral("P8"));
        DecDatos().REDUCCION = QStringLiteral("Z");
        QCOMPARE(ClaveFundamento(), QStringLiteral("P10"));
        DecDatos().REDUCCION = QString();
        QVERIFY(!ClaveFundamento().isEmpty());
        QCOMPARE(ClaveFundamento(), Operacion().T_IMPR);
        const QList<QPair<int32_t, QString>> casos{{20040311, "2004/03/11n"},
                                                   {20040315, "2004/03/15an"},
                                                   {20040321, "2004/03/21ean"},
                                                   {20040301, "2004/03/01ean"},
                                                   {20040331, "2004/03/31n"},
                                                   {20040302, "2004/03/02an"}};
        // The Basque date whatever the program speaks, and the program's language untouched.
        EstablecerIdiomaPrograma(Idioma::Castellano);
        for (const auto& [fecha, texto] : casos) {
            ImOf().FECHAPRE = fecha;
            QCOMPARE(FechaConSufijo(), texto);
        }
        QCOMPARE(IdiomaPrograma(), Idioma(Idioma::Castellano));
        QCOMPARE(NombreMes(9), QStringLiteral("Septiembre / Iraila"));
        QCOMPARE(NombreMes(13), QString());
    }
};

QTEST_MAIN(TestImpreso)
#include "test_impreso.moc"
