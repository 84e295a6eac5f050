// The store of returns under load: 100 000 returns in VELDOMOD, then the declaration list's
// search with one criterion of each kind (and in each order), the lists of a contributor and
// of a presenter, the recent returns, and saves of new and stored returns.
// Prints the figures; the targets are a search under 200 ms and a save under 5 ms.
#include "comun/Entorno.h"

#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/Conexion.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cTraspaso.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int kDeclaraciones = 100000;
constexpr int kContribuyentes = 500;
constexpr int kPresentadores = 20;

cDeclaSvr servidor()
{
    cDeclaSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    return svr;
}

// Contributors, presenters and returns written straight into the file, in one transaction:
// the load is the setting of the measure, not what is measured.
void poblar()
{
    const QString o = QStringLiteral("bench");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion t(db, o);
    for (int i = 1; i <= kContribuyentes; ++i)
        Ejecutar(db,
                 QStringLiteral("INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC) "
                                "VALUES ('O', ?, ?)"),
                 {QStringLiteral("C%1").arg(i, 8, 10, QLatin1Char('0')),
                  QStringLiteral("CONTRIBUYENTE %1").arg(i)},
                 o);
    for (int i = 1; i <= kPresentadores; ++i)
        Ejecutar(db, QStringLiteral("INSERT INTO PRESENTADORES (DNIP, NOMBREP) VALUES (?, ?)"),
                 {QStringLiteral("P%1").arg(i, 8, 10, QLatin1Char('0')),
                  QStringLiteral("PRESENTADOR %1").arg(i)},
                 o);
    QRandomGenerator azar(747);
    const QStringList antes{"T7", "TN", "P6", "P7", "TE", "N43", "E1", "TL"};
    const QStringList despues{"T1", "T2", "T3", "T4", "T5", "TE", "N43", "E1", "TL"};
    QSqlQuery q(db);
    q.prepare(QStringLiteral(
        "INSERT INTO DECLARACIONES (REFERENCIA, CSPR, CSSU, CSTRA, FECHAD, MARCA, TIPO, MODELO, "
        "BASTIDOR, CLASIFICACION, CILINDRADA, OPERACION, BASEI, TIPOIMP, CUOTA, TOTAL, DNISP, "
        "NOMBRESP, DOMICILIOSP, CODPROVSP, CODPOSSP, CODMUNSP, DNITR, NOMBRETR, DOMICILIOTR, "
        "CODPROVTR, CODPOSTR, CODMUNTR, GRABACION) "
        "VALUES (?, ?, ?, ?, ?, 'SEAT', '6J', 'IBIZA', 'VSS', 1000, 1598, ?, ?, ?, ?, ?, "
        "'12345678Z', 'SUJETO', 'MAYOR', '77', '77001', '001', '87654321X', 'TRANS', 'AV', "
        "'77', '77002', '002', ?)"));
    for (int i = 1; i <= kDeclaraciones; ++i) {
        const int ano = 1993 + static_cast<int>(azar.bounded(35));
        const int fecha = ano * 10000 + (1 + azar.bounded(12)) * 100 + 1 + azar.bounded(28);
        const QStringList& ops = ano < 2008 ? antes : despues;
        const double base = 500000 + azar.bounded(9500000);
        const double tipo = 12;
        const double cuota = base * tipo / 100;
        q.addBindValue(QStringLiteral("R%1").arg(i, 6, 10, QLatin1Char('0')));
        q.addBindValue(azar.bounded(3) == 0 ? QVariant(1 + azar.bounded(kPresentadores))
                                            : QVariant(QMetaType(QMetaType::LongLong)));
        q.addBindValue(1 + azar.bounded(kContribuyentes));
        q.addBindValue(1 + azar.bounded(kContribuyentes));
        q.addBindValue(fecha);
        q.addBindValue(ops[azar.bounded(ops.size())]);
        q.addBindValue(base);
        q.addBindValue(tipo);
        q.addBindValue(cuota);
        q.addBindValue(cuota);
        q.addBindValue(i);
        if (!q.exec())
            qFatal("No se pudo poblar la base");
    }
    t.confirmar();
    Ejecutar(db, QStringLiteral("ANALYZE"), {}, o);
}

struct Medida {
    double mediana = 0;
    double maxima = 0;
    int filas = 0;
};

Medida buscar(const CondicionesDeclaracion& criterios, uint8_t orden, const QString& tipo)
{
    QList<double> ms;
    int filas = 0;
    for (int i = 0; i < 7; ++i) {
        QElapsedTimer reloj;
        reloj.start();
        filas = int(servidor().dameResultadoBusqueda(criterios, orden, tipo, Idioma::Castellano).size());
        ms << reloj.nsecsElapsed() / 1e6;
    }
    std::sort(ms.begin(), ms.end());
    return {ms[ms.size() / 2], ms.last(), filas};
}

bool informe(const char* que, const Medida& m, double limite)
{
    const bool bien = m.maxima < limite;
    std::printf("%-44s %8d filas  mediana %8.2f ms  maxima %8.2f ms  %s\n", que, m.filas,
                m.mediana, m.maxima, bien ? "ok" : "LENTO");
    return bien;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    CarpetaDePrueba carpeta;
    cTraspaso traspaso;
    traspaso.mdbmod = mdbmod;
    traspaso.mdbPath = mdbPath;
    if (traspaso.Traspaso())
        return 1;
    QElapsedTimer reloj;
    reloj.start();
    poblar();
    std::printf("%d declaraciones cargadas en %.1f s\n\n", kDeclaraciones,
                reloj.elapsed() / 1000.0);

    bool bien = true;
    const CondicionesDeclaracion nada;
    std::printf("Busqueda de la lista de declaraciones (limite 200 ms):\n");
    bien &= informe("sin criterio, por codigo desc", buscar(nada, 1, "DESC"), 200);
    CondicionesDeclaracion c = nada;
    c.CSDE = QString::number(kDeclaraciones - 500);
    bien &= informe("codigo >= N-500", buscar(c, 1, "DESC"), 200);
    c = nada;
    c.CSDE = QString::number(kDeclaraciones / 2);
    bien &= informe("codigo >= N/2", buscar(c, 1, "DESC"), 200);
    c = nada;
    c.REFERENCIA = QStringLiteral("R0123");
    bien &= informe("referencia empieza por R0123", buscar(c, 2, "ASC"), 200);
    c = nada;
    c.FECHAD = 20250101;
    bien &= informe("fecha >= 01/01/2025, por fecha", buscar(c, 3, "DESC"), 200);
    c = nada;
    c.FECHAD = 20100101;
    bien &= informe("fecha >= 01/01/2010, por fecha", buscar(c, 3, "DESC"), 200);
    c = nada;
    c.TOTAL = QStringLiteral("11.000");
    bien &= informe("total >= 11.000,00, por total", buscar(c, 4, "DESC"), 200);
    c = nada;
    c.OPERACION = QStringLiteral("T2");
    bien &= informe("operacion empieza por T2, por operacion", buscar(c, 5, "ASC"), 200);
    c = nada;
    c.REFERENCIA = QStringLiteral("R09");
    bien &= informe("referencia R09, por total", buscar(c, 4, "DESC"), 200);

    {
        QList<double> ms;
        int filas = 0;
        for (int i = 0; i < 7; ++i) {
            QElapsedTimer t;
            t.start();
            filas = int(servidor().dameDeclaracionesContribuyente(nada, 17, 1, "DESC", Idioma::Castellano).size());
            ms << t.nsecsElapsed() / 1e6;
        }
        std::sort(ms.begin(), ms.end());
        bien &= informe("declaraciones de un contribuyente", {ms[3], ms.last(), filas}, 200);
        ms.clear();
        for (int i = 0; i < 7; ++i) {
            QElapsedTimer t;
            t.start();
            filas = int(servidor().dameDeclaracionesPresentador(nada, 3, 1, "DESC", Idioma::Castellano).size());
            ms << t.nsecsElapsed() / 1e6;
        }
        std::sort(ms.begin(), ms.end());
        bien &= informe("declaraciones de un presentador", {ms[3], ms.last(), filas}, 200);
    }

    // Saves through the record, as the form makes them.
    cDecDatos& d = DecDatos();
    d.CSDE = 1234;
    d.CargarDeclaracion();
    QList<double> nuevas, cambios;
    for (int i = 0; i < 300; ++i) {
        d.CSDE = 0;
        d.REFERENCIA = QStringLiteral("B%1").arg(i);
        QElapsedTimer t;
        t.start();
        d.GuardarDeclaracion();
        nuevas << t.nsecsElapsed() / 1e6;
        d.MARCA = QStringLiteral("CUPRA");
        t.restart();
        d.GuardarDeclaracion();
        cambios << t.nsecsElapsed() / 1e6;
    }
    for (auto* lista : {&nuevas, &cambios})
        std::sort(lista->begin(), lista->end());
    std::printf("\nGuardado (limite 5 ms):\n");
    auto guardado = [&](const char* que, const QList<double>& ms) {
        const double p95 = ms[ms.size() * 95 / 100];
        std::printf("%-44s mediana %6.2f ms  p95 %6.2f ms  maxima %6.2f ms  %s\n", que,
                    ms[ms.size() / 2], p95, ms.last(), p95 < 5 ? "ok" : "LENTO");
        return p95 < 5;
    };
    bien &= guardado("declaracion nueva", nuevas);
    bien &= guardado("declaracion guardada de nuevo", cambios);

    QList<double> ultimas;
    for (int i = 0; i < 50; ++i) {
        QElapsedTimer t;
        t.start();
        const QList<UltimaDeclaracion> l = d.ObtenerUltimasDeclaraciones();
        ultimas << t.nsecsElapsed() / 1e6;
    }
    std::sort(ultimas.begin(), ultimas.end());
    std::printf("%-44s mediana %6.2f ms  maxima %6.2f ms\n", "ultimas declaraciones",
                ultimas[25], ultimas.last());
    Conexion::Cerrar(mdbmod);
    Conexion::Cerrar(mdblec);
    std::printf("\n%s\n", bien ? "Todas las medidas dentro de los limites."
                                 : "Alguna medida fuera de los limites.");
    return bien ? 0 : 2;
}
