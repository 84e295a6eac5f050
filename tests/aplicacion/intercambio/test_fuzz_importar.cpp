// 100 000 generated lines imported in automatic mode, in four files of 25 000 (a run reads at
// most 32 767 lines): random bytes, short, long, empty lines, bad numbers, bad codes, valid
// lines and numbers repeated. Nothing crashes; Total = Importados + Incorrectos + Ignorados;
// every refused line is named in the error file, the short ones as short and the others with
// exactly the messages of the codes that the store's own single validation gives for them; and
// every accepted line is in the store with the data of its last occurrence.
#include "ApoyoIntercambio.h"
#include "comun/AlmacenNuevo.h"

#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "registros/intercambio/Cp1252.h"
#include "registros/intercambio/FicheroErrores.h"
#include "registros/intercambio/LineaIntercambio.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cContribSvr.h"

#include <QHash>
#include <QRandomGenerator>
#include <QTest>

using namespace ApoyoIntercambio;
using C = CampoIntercambio;

namespace {

constexpr int kPorFichero = 25000;
constexpr int kFicheros = 4;

// One line of content (no line feed inside).
QByteArray Generar(QRandomGenerator& azar, int i)
{
    const quint32 n = 1000 + azar.bounded(3000);  // numbers repeat across the file
    QList<QByteArray> c = CamposValidos(n, "FUZZ " + QByteArray::number(i));
    switch (azar.bounded(10)) {
    case 0: {  // random bytes of any length, no line feed
        QByteArray b(azar.bounded(260), Qt::Uninitialized);
        for (char& x : b) {
            x = char(azar.bounded(256));
            if (x == '\n')
                x = 'n';
        }
        return b;
    }
    case 1: return LineaValida(n).left(azar.bounded(176));       // short
    case 2: return LineaValida(n) + QByteArray(azar.bounded(1, 80), 'T');  // long
    case 3: return QByteArray();                                   // empty line
    case 4: {  // a bad number somewhere
        const int campos[] = {5, 12, 14, 15, 17, 18};
        c[campos[azar.bounded(6)]] = "1X";
        return Linea(c);
    }
    case 5: {  // a bad code somewhere
        const int k = azar.bounded(5);
        if (k == 0) c[0] = "Z";
        if (k == 1) c[10] = "Q";
        if (k == 2) c[3] = "??";
        if (k == 3) c[12] = "99";
        if (k == 4) c[15] = "999";
        return Linea(c);
    }
    case 6: {  // random bytes inside the fields of a well-formed line
        QByteArray l = LineaValida(n);
        for (int k = 0; k < 3; ++k) {
            char x = char(0x80 + azar.bounded(0x80));
            l[azar.bounded(176)] = x;
        }
        return l;
    }
    default: return LineaValida(n, "FUZZ " + QByteArray::number(i) + " \xD1\xC7\xBA\xAA");
    }
}

}  // namespace

class TestFuzzImportar : public QObject {
    Q_OBJECT

private slots:
    void fuzz()
    {
        auto carpeta = AlmacenNuevo();
        cContribSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        QRandomGenerator azar(20261123);
        int total = 0;
        for (int f = 0; f < kFicheros; ++f) {
            QList<QByteArray> lineas;
            QByteArray contenido;
            for (int i = 0; i < kPorFichero; ++i) {
                lineas << Generar(azar, f * kPorFichero + i);
                contenido += lineas.last();
                contenido += azar.bounded(2) ? "\r\n" : "\n";
            }
            Importar().Iniciar();
            Escribir(Importar().FICHEROAIMPORTAR, contenido);
            Importar().AUTOMATICO = QStringLiteral("X");
            Importar().Ejecutar({});
            const cImportar& r = Importar();
            QCOMPARE(r.TERMINADA, QStringLiteral("S"));
            QCOMPARE(int(r.LineasLeidas), kPorFichero);
            QCOMPARE(int(r.LineasLeidas), r.NUMEROIMP + r.NUMEROINC + r.NUMEROIGN);
            QVERIFY(r.NUMEROINC > 0);
            QVERIFY(r.NUMEROIMP > 0);
            total += r.LineasLeidas;

            // What the error file must say, line by line, from the store's single validation.
            QByteArray esperado;
            QHash<QString, QString> ultimo;  // number -> name of its last accepted line
            int refusadas = 0;
            for (int i = 0; i < lineas.size(); ++i) {
                // A CR before the line feed is part of the end, not of the line.
                QByteArray bytes = lineas[i];
                if (bytes.endsWith('\r'))
                    bytes.chop(1);
                const LineaLeida l = CortarLinea(bytes);
                if (l.corta) {
                    esperado += FicheroErrores::LineaCorta(i + 1);
                    ++refusadas;
                    continue;
                }
                LineaContribuyente v;
                v.TIPODNI = l[C::TIPODNI];
                v.DNIC = l[C::DNI];
                v.NOMBREC = l[C::NOMBRE];
                v.VIAC = l[C::SIGLAS];
                v.DOMICILIOC = l[C::DOMICILIO];
                v.NUMEROC = l[C::NUMERO];
                v.LETRAC = l[C::LETRA];
                v.ESCALERAC = l[C::ESCALERA];
                v.PISOC = l[C::PISO];
                v.MANOC = l[C::MANO];
                v.TIPODOMI = l[C::TIPODOMICILIO];
                v.PAIS = l[C::PAIS];
                v.CODPROVC = l[C::CODIGOPROVINCIA];
                v.NOMPROVC = l[C::NOMBREPROVINCIA];
                v.CODPOSC = l[C::CODIGOPOSTAL];
                v.CODMUNC = l[C::CODIGOMUNICIPIO];
                v.NOMMUNC = l[C::NOMBREMUNICIPIO];
                v.NUMSP = l[C::NUMEROSUJETOPASIVO];
                v.NUMTR = l[C::NUMEROTRANSMITENTE];
                const QList<HallazgoImportacion> errores = svr.ValidarDatosImportar(v);
                if (!errores.isEmpty()) {
                    ++refusadas;
                    QByteArray lineasError;
                    for (const HallazgoImportacion& e : errores) {
                        QVERIFY(e.id != 0);
                        lineasError += "Linea " + QByteArray::number(i + 1) + " - DNI-CIF "
                            + *Cp1252::Codificar(l[C::DNI]) + ": " + *Cp1252::Codificar(Texto(e.id))
                            + "\r\n";
                    }
                    esperado += lineasError;
                } else {
                    ultimo.insert(l[C::DNI].trimmed(), l[C::NOMBRE].trimmed());
                }
            }
            QCOMPARE(int(r.NUMEROINC), refusadas);
            esperado += FicheroErrores::Formato();
            QCOMPARE(Leer(r.FICHEROERRORES), esperado);
            for (auto it = ultimo.cbegin(); it != ultimo.cend(); ++it) {
                const std::optional<Contribuyente> c =
                    svr.CargarContribuyente(svr.ExisteContribuyente(it.key()));
                QVERIFY(c.has_value());
                QCOMPARE(c->NOMBREC, it.value());
            }
        }
        QCOMPARE(total, 100000);
    }
};

QTEST_MAIN(TestFuzzImportar)
#include "test_fuzz_importar.moc"
