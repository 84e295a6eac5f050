// How the list of contributors copes with a large file: 100 000 contributors in the store,
// then the panel is opened, reordered by a click on a heading, searched by a prefix, given
// the whole list back and walked with the keyboard, as a user does. Prints the times.
// Run with QT_QPA_PLATFORM=offscreen when there is no screen.
#include "comun/Entorno.h"

#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/Arranque.h"
#include "aplicacion/MDIVeldo.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/partes/FrmConLista.h"
#include "registros/partes/cConLista.h"
#include "servicios/Conexion.h"
#include "servicios/cContribSvr.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>
#include <cstdio>

namespace {

constexpr int kContribuyentes = 100000;

void Imprimir(const char* que, qint64 ns, int veces = 1)
{
    std::printf("%-56s %10.2f ms", que, ns / 1e6);
    if (veces > 1)
        std::printf("   (%.3f ms each, %d times)", ns / 1e6 / veces, veces);
    std::printf("\n");
}

void Procesar()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// The file of contributors, written in one transaction (the program's own save takes one
// transaction each, which is not what is measured here).
void Poblar()
{
    const QString origen = QStringLiteral("bench");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, origen);
    Transaccion t(db, origen);
    QSqlQuery q(db);
    q.prepare(QStringLiteral("INSERT INTO CONTRIBUYENTES (DNIC, NOMBREC, DOMICILIOC, CODPROVC, "
                             "CODPOSC, CODMUNC) VALUES (?, ?, ?, '77', '77001', ?)"));
    for (int i = 0; i < kContribuyentes; ++i) {
        // Names spread over the alphabet, so that a prefix finds a slice of the file.
        const int n = (i * 7919) % kContribuyentes;
        q.addBindValue(QStringLiteral("%1X").arg(10000000 + i));
        q.addBindValue(QStringLiteral("%1%2 APELLIDO NOMBRE %3")
                           .arg(QChar(u'A' + n % 26))
                           .arg(QChar(u'A' + (n / 26) % 26))
                           .arg(n));
        q.addBindValue(QStringLiteral("CALLE MAYOR"));
        q.addBindValue(QStringLiteral("%1").arg(1 + i % 3, 3, 10, QLatin1Char('0')));
        q.exec();
    }
    t.confirmar();
}

void ClicCabecera(cFlexGrid* grid, int columna)
{
    QHeaderView* cabecera = grid->horizontalHeader();
    QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {},
                      QPoint(cabecera->sectionViewportPosition(columna) + 10, cabecera->height() / 2));
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    GrabarSeams();
    RelojSeam::grabar(true);
    CarpetaDePrueba carpeta;
    cTraspaso traspaso;
    traspaso.mdbmod = mdbmod;
    traspaso.mdbPath = mdbPath;
    if (traspaso.Traspaso())
        return 1;
    InicializarAplicacion();
    ActOnline().ActOnline = 0;
    auto* ventana = new MDIVeldo;
    ventana->resize(1024, 768);
    ventana->show();
    ventana->activateWindow();
    if (!QTest::qWaitForWindowActive(ventana))
        std::printf("the main window did not become active\n");

    QElapsedTimer t;
    t.start();
    Poblar();
    Imprimir("store: 100 000 contributors written", t.nsecsElapsed());

    {
        cContribSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        t.start();
        const auto n = int(svr.dameResultadoBusqueda({}, OrdenParte::Nombre).size());
        Imprimir("store alone: dameResultadoBusqueda, whole file, first", t.nsecsElapsed());
        std::printf("  rows: %d\n", n);
        t.start();
        svr.dameResultadoBusqueda({}, OrdenParte::Nombre);
        Imprimir("store alone: the same again", t.nsecsElapsed());
        t.start();
        svr.dameResultadoBusqueda({}, OrdenParte::Dni);
        Imprimir("store alone: by number", t.nsecsElapsed());
    }

    ConLista().ENTRADA = Navegacion::EntradaLista::Abrir;
    t.start();
    FrmConLista* panel = FrmConLista::Abrir();
    Procesar();
    Imprimir("open the list (store, grid filled, row marked, drawn)", t.nsecsElapsed());
    auto* grid = panel->findChild<cFlexGrid*>(QStringLiteral("flxContribuyentes"));
    std::printf("  grid rows: %d\n", grid->Rows());

    {
        cContribSvr svr;
        svr.mdbmod = mdbmod;
        svr.mdblec = mdblec;
        qint64 almacen = 0, total = 0;
        constexpr int kVeces = 3;
        for (int i = 0; i < kVeces; ++i) {
            t.start();
            svr.dameResultadoBusqueda({}, OrdenParte::Nombre);
            almacen += t.nsecsElapsed();
            t.start();
            panel->CargarFlxContribuyentes();
            total += t.nsecsElapsed();
        }
        Imprimir("store alone (warm)", almacen, kVeces);
        Imprimir("CargarFlxContribuyentes: store and grid filled", total, kVeces);
        Imprimir("  so the panel's own fill takes about", total - almacen, kVeces);
    }

    t.start();
    ClicCabecera(grid, 2);
    Procesar();
    Imprimir("click on the DNI heading (reload by number)", t.nsecsElapsed());

    constexpr int kTeclas = 200;
    grid->setFocus();
    t.start();
    for (int i = 0; i < kTeclas; ++i) {
        QTest::keyClick(grid, Qt::Key_PageDown);
        Procesar();
    }
    Imprimir("PageDown: a page further, row marked and read", t.nsecsElapsed(), kTeclas);

    auto* buscar = panel->findChild<QPushButton*>(QStringLiteral("cmdBuscar"));
    t.start();
    QTest::mouseClick(buscar, Qt::LeftButton);
    Procesar();
    Imprimir("cmdBuscar: to the search state", t.nsecsElapsed());
    ClicCabecera(grid, 1);
    QTest::keyClicks(panel->findChild<QLineEdit*>(QStringLiteral("txtBusqueda")), "QF");
    t.start();
    QTest::mouseClick(buscar, Qt::LeftButton);
    Procesar();
    Imprimir("Resultado: name prefix \"QF\"", t.nsecsElapsed());
    std::printf("  found: %d\n", ConLista().NUMCONTRISEL);

    t.start();
    QTest::mouseClick(panel->findChild<QPushButton*>(QStringLiteral("cmdTodos")), Qt::LeftButton);
    Procesar();
    Imprimir("cmdTodos: the whole file again", t.nsecsElapsed());

    t.start();
    QTest::mouseClick(panel->findChild<QPushButton*>(QStringLiteral("cmdCancelar")), Qt::LeftButton);
    Procesar();
    Imprimir("close the panel", t.nsecsElapsed());
    delete ventana;
    return 0;
}
