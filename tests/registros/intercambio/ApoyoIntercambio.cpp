#include "ApoyoIntercambio.h"

#include "plataforma/General.h"

#include <QFile>
#include <QTest>
#include <QtGlobal>

namespace {
// Position-independent description of the line, written again here on purpose: the tests
// must not take the layout from the code they check.
struct Campo {
    int ancho;
    bool numero;
};
const Campo kCampos[19] = {{1, false},  {9, false},  {40, false}, {2, false},  {20, false},
                           {5, true},   {2, false},  {2, false},  {2, false},  {3, false},
                           {1, false},  {20, false}, {2, true},   {20, false}, {5, true},
                           {3, true},   {25, false}, {7, true},   {7, true}};
}  // namespace

namespace ApoyoIntercambio {

QByteArray Linea(const QList<QByteArray>& campos)
{
    QByteArray linea;
    for (int i = 0; i < 19; ++i) {
        QByteArray v = campos.value(i).left(kCampos[i].ancho);
        const QByteArray relleno(kCampos[i].ancho - v.size(), kCampos[i].numero ? '0' : ' ');
        linea += kCampos[i].numero ? relleno + v : v + relleno;
    }
    Q_ASSERT(linea.size() == 176);
    return linea;
}

QByteArray DniDe(quint32 n)
{
    static const char letras[] = "TRWAGMYFPDXBNJZSQVHLCKE";
    return QByteArray::number(n).rightJustified(8, '0') + letras[n % 23];
}

QList<QByteArray> CamposValidos(quint32 n, const QByteArray& nombre)
{
    return {"O",  DniDe(n), nombre, "CL", "MAYOR",  "12", "B",  "1",  "3",  "IZ",
            "N",  "",       "77",   "",   "77001", "1",  "",   "0",  "0"};
}

QByteArray LineaValida(quint32 n, const QByteArray& nombre)
{
    return Linea(CamposValidos(n, nombre));
}

void Escribir(const QString& ruta, const QByteArray& bytes)
{
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(ruta));
}

QByteArray Leer(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

cContribSvr Svr()
{
    cContribSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

int Contribuyentes()
{
    return int(Svr().dameResultadoBusqueda({}, OrdenParte::Nombre).size());
}

void PrepararImportacion(const QByteArray& bytes, bool automatico)
{
    Escribir(Importar().FICHEROAIMPORTAR, bytes);
    Importar().AUTOMATICO = automatico ? QStringLiteral("X") : QStringLiteral(" ");
}

cImportar::Interlocutor Respondiendo(QStringList& preguntas, QList<bool>& respuestas)
{
    cImportar::Interlocutor i;
    i.sustituir = [&preguntas, &respuestas](const QString& dni) {
        preguntas << dni;
        return respuestas.isEmpty() ? false : respuestas.takeFirst();
    };
    return i;
}

void ComprobarContadores(int total, int imp, int inc, int sus, int ign)
{
    const cImportar& i = Importar();
    QCOMPARE(int(i.LineasLeidas), total);
    QCOMPARE(int(i.NUMEROIMP), imp);
    QCOMPARE(int(i.NUMEROINC), inc);
    QCOMPARE(int(i.NUMEROSUS), sus);
    QCOMPARE(int(i.NUMEROIGN), ign);
}

}  // namespace ApoyoIntercambio
