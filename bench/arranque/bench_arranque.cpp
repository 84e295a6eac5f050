// Start-up time to the main window, less the splash's deliberate wait: the first run (which
// creates the database) and a later run, each from a fresh process state on a temporary
// program folder; then the same later run on a store of 100 000 contributors and 100 000
// returns, with the cost of the check of its pages alone (the quick check of every start, and
// the full check made after an unclean end). Prints the figures; the target is under 300 ms.
#include "comun/Entorno.h"

#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/Arranque.h"
#include "aplicacion/MDIVeldo.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"
#include "servicios/Conexion.h"
#include "servicios/RevisionAlmacen.h"
#include "servicios/cGeneralSvr.h"

#include "plataforma/Estado.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <algorithm>
#include <cstdio>

namespace {
double medirArranque()
{
    delete VentanaMDI();
    // A new process opens its databases anew.
    Conexion::Cerrar(mdbmod);
    Conexion::Cerrar(mdblec);
    Estado().Reiniciar();
    QElapsedTimer reloj;
    reloj.start();
    Main();
    QApplication::processEvents();
    return reloj.nsecsElapsed() / 1e6;
}

// 100 000 contributors and 100 000 returns naming them, in one transaction.
void poblar()
{
    const QString o = QStringLiteral("bench");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion t(db, o);
    QSqlQuery c(db);
    c.prepare(QStringLiteral("INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, TIPODOMI, CODPROVC) "
                             "VALUES ('O', ?, ?, 'N', '77')"));
    for (int i = 1; i <= 100000; ++i) {
        c.addBindValue(QStringLiteral("C%1").arg(i, 8, 10, QLatin1Char('0')));
        c.addBindValue(QStringLiteral("CONTRIBUYENTE %1").arg(i));
        if (!c.exec())
            qFatal("No se pudo poblar la base");
    }
    QSqlQuery q(db);
    q.prepare(QStringLiteral(
        "INSERT INTO DECLARACIONES (REFERENCIA, CSSU, CSTRA, FECHAD, MARCA, TIPO, MODELO, "
        "BASTIDOR, CLASIFICACION, CILINDRADA, OPERACION, BASEI, TIPOIMP, CUOTA, TOTAL, DNISP, "
        "NOMBRESP, VIASP, DOMICILIOSP, CODPROVSP, CODPOSSP, CODMUNSP, TIPODNITR, DNITR, NOMBRETR, "
        "VIATR, DOMICILIOTR, TIPODOMITR, CODPROVTR, CODPOSTR, CODMUNTR, GRABACION) "
        "VALUES (?, ?, ?, 20240115, 'SEAT', '6J', 'IBIZA', 'VSS', 1000, 1598, 'T1', 1000000, "
        "4.75, 47500, 47500, '12345678Z', 'SUJETO', 'CL', 'MAYOR', '77', '77001', '001', 'O', "
        "'87654321X', 'TRANS', 'AV', 'GASTEIZ', 'N', '77', '77002', '002', ?)"));
    for (int i = 1; i <= 100000; ++i) {
        q.addBindValue(QStringLiteral("R%1").arg(i, 6, 10, QLatin1Char('0')));
        q.addBindValue(i);
        q.addBindValue(1 + (i * 7) % 100000);
        q.addBindValue(i);
        if (!q.exec())
            qFatal("No se pudo poblar la base");
    }
    t.confirmar();
    Conexion::Cerrar(mdbmod);
}

// The median of `veces` runs of `medir`, in milliseconds.
template <typename F>
double mediana(int veces, F medir)
{
    std::vector<double> ms;
    for (int i = 0; i < veces; ++i)
        ms.push_back(medir());
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

double medirRevision(bool completa)
{
    QElapsedTimer reloj;
    reloj.start();
    if (!RevisionAlmacen::Sana(mdbmod, completa))
        qFatal("La base poblada no está sana");
    return reloj.nsecsElapsed() / 1e6;
}
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    GrabarSeams();             // message boxes are recorded, not shown
    RelojSeam::grabar(true);   // the splash's wait is left out of the figure
    CarpetaDePrueba carpeta;
    // The program's own file, whose version record start-up reads.
    QFile::copy(QStringLiteral(VELDO_CARPETA_CONSTRUIDA) + "/Veldo", carpeta.ruta() + "/Veldo");
    const double primera = medirArranque();
    // Later runs: the language already chosen, no update check.
    cGeneralSvr ajustes;
    ajustes.mdbmod = mdbmod;
    ajustes.GuardarActOnline(0);
    double mejor = 1e9, suma = 0;
    const int veces = 10;
    for (int i = 0; i < veces; ++i) {
        const double t = medirArranque();
        suma += t;
        mejor = std::min(mejor, t);
    }
    std::printf("arranque hasta la ventana principal (sin la espera de la pantalla inicial)\n");
    std::printf("  primera ejecución (crea VELDOMOD.mdb): %.1f ms\n", primera);
    std::printf("  ejecuciones posteriores: media %.1f ms, mejor %.1f ms (%d veces)\n",
                suma / veces, mejor, veces);
    std::printf("  objetivo: menos de 300 ms\n");

    delete VentanaMDI();
    Conexion::Cerrar(mdbmod);
    poblar();
    const double rapida = mediana(7, [] { return medirRevision(false); });
    const double completa = mediana(5, [] { return medirRevision(true); });
    const double poblado = mediana(7, medirArranque);
    std::printf("con 100 000 contribuyentes y 100 000 declaraciones (VELDOMOD.mdb de %.1f MB), medianas:\n",
                QFileInfo(mdbmod).size() / 1e6);
    std::printf("  revision rapida de las paginas (cada arranque): %.1f ms\n", rapida);
    std::printf("  revision completa (tras un final sin cerrar): %.1f ms\n", completa);
    std::printf("  arranque hasta la ventana principal, con la revision rapida: %.1f ms\n", poblado);
    std::printf("  objetivo: menos de 300 ms\n");
    delete VentanaMDI();
    return 0;
}
