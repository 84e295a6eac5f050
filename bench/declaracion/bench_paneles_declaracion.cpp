// The panels of returns under load, as the user meets them: 100 000 returns and 100 000
// contributors in VELDOMOD, one contributor with 1 000 returns. Measured: opening the list of
// returns (store, grid, first row marked, drawn), a one-condition search with its grid,
// opening the declaration form on a stored return, the repaint after leaving a field, and the
// list of the contributor's returns.
// Prints the figures; targets: 1 s, 200 ms, 100 ms, 5 ms, 200 ms.
#include "comun/AlmacenNuevo.h"

#include "aplicacion/Navegacion.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/declaracion/FrmConDeclaraciones.h"
#include "paneles/declaracion/FrmDecLista.h"
#include "paneles/declaracion/FrmDeclaracion.h"
#include "plataforma/General.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/partes/cConLista.h"
#include "servicios/Conexion.h"
#include "valores/EstadoNavegacion.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr int kDeclaraciones = 100000;
constexpr int kContribuyentes = 100000;
constexpr int kDelContribuyente = 1000;   // returns of contributor 1

void poblar()
{
    const QString o = QStringLiteral("bench");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion t(db, o);
    QSqlQuery c(db);
    c.prepare(QStringLiteral("INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, TIPODOMI, CODPROVC) "
                             "VALUES ('O', ?, ?, 'N', '77')"));
    for (int i = 1; i <= kContribuyentes; ++i) {
        c.addBindValue(QStringLiteral("C%1").arg(i, 8, 10, QLatin1Char('0')));
        c.addBindValue(QStringLiteral("CONTRIBUYENTE %1").arg(i));
        if (!c.exec())
            qFatal("No se pudo poblar la base");
    }
    QRandomGenerator azar(747);
    const QStringList ops{"T1", "T2", "T3", "T4", "T5", "TE", "N43", "E1", "TL"};
    QSqlQuery q(db);
    q.prepare(QStringLiteral(
        "INSERT INTO DECLARACIONES (REFERENCIA, CSSU, CSTRA, FECHAD, MARCA, TIPO, MODELO, "
        "BASTIDOR, CLASIFICACION, CILINDRADA, OPERACION, BASEI, TIPOIMP, CUOTA, TOTAL, DNISP, "
        "NOMBRESP, VIASP, DOMICILIOSP, CODPROVSP, CODPOSSP, CODMUNSP, TIPODNITR, DNITR, NOMBRETR, "
        "VIATR, DOMICILIOTR, TIPODOMITR, CODPROVTR, CODPOSTR, CODMUNTR, GRABACION) "
        "VALUES (?, ?, ?, ?, 'SEAT', '6J', 'IBIZA', 'VSS', 1000, 1598, ?, ?, 4.75, ?, ?, "
        "'12345678Z', 'SUJETO', 'CL', 'MAYOR', '77', '77001', '001', 'O', '87654321X', 'TRANS', "
        "'AV', 'GASTEIZ', 'N', '77', '77002', '002', ?)"));
    for (int i = 1; i <= kDeclaraciones; ++i) {
        const int fecha = (2008 + int(azar.bounded(19))) * 10000 + (1 + azar.bounded(12)) * 100
            + 1 + azar.bounded(28);
        const double base = 500000 + azar.bounded(9500000);
        const double cuota = base * 4.75 / 100;
        q.addBindValue(QStringLiteral("R%1").arg(i, 6, 10, QLatin1Char('0')));
        q.addBindValue(i <= kDelContribuyente ? 1 : 2 + int(azar.bounded(kContribuyentes - 1)));
        q.addBindValue(2 + int(azar.bounded(kContribuyentes - 1)));
        q.addBindValue(fecha);
        q.addBindValue(ops[azar.bounded(ops.size())]);
        q.addBindValue(base);
        q.addBindValue(cuota);
        q.addBindValue(cuota);
        q.addBindValue(i);
        if (!q.exec())
            qFatal("No se pudo poblar la base");
    }
    t.confirmar();
    Ejecutar(db, QStringLiteral("ANALYZE"), {}, o);
}

// The median and the worst of `veces` runs of `medir`, which answers milliseconds.
struct Medida {
    double mediana = 0;
    double maxima = 0;
};

Medida repetir(int veces, const std::function<double()>& medir)
{
    QList<double> ms;
    for (int i = 0; i < veces; ++i)
        ms << medir();
    std::sort(ms.begin(), ms.end());
    return {ms[ms.size() / 2], ms.last()};
}

bool informe(const char* que, const Medida& m, double limite)
{
    const bool bien = m.mediana < limite;
    std::printf("%-52s mediana %8.2f ms  maxima %8.2f ms  (limite %4.0f ms) %s\n", que, m.mediana,
                m.maxima, limite, bien ? "ok" : "LENTO");
    return bien;
}

double ms(const QElapsedTimer& reloj)
{
    return reloj.nsecsElapsed() / 1e6;
}

// Closes every panel left open.
void cerrarTodo()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        w->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

// Paints a widget now, as the screen would.
void dibujar(QWidget* w)
{
    w->repaint();
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    auto carpeta = AlmacenNuevo();
    ActOnline().ActOnline = 0;
    QElapsedTimer reloj;
    reloj.start();
    poblar();
    std::printf("%d declaraciones y %d contribuyentes cargados en %.1f s\n\n", kDeclaraciones,
                kContribuyentes, reloj.elapsed() / 1000.0);

    bool bien = true;
    bien &= informe("FrmDecLista: abrir (almacen, grid, fila, dibujo)", repetir(5, [] {
        QElapsedTimer r;
        r.start();
        FrmDecLista* lista = Navegacion::AbrirDecLista(Navegacion::EntradaLista::Abrir);
        dibujar(lista);
        const double t = ms(r);
        cerrarTodo();
        return t;
    }), 1000);

    bien &= informe("FrmDecLista: busqueda por referencia 'R0123'", repetir(5, [] {
        FrmDecLista* lista = Navegacion::AbrirDecLista(Navegacion::EntradaLista::Abrir);
        DecLista().TABLASELECCION = TablaCriterios{{QStringLiteral("2"), QStringLiteral("R0123")}};
        DecLista().ORDEN = 2;
        DecLista().BUSQUEDA = QStringLiteral("N");
        QElapsedTimer r;
        r.start();
        lista->PresentaDatos();
        lista->PresentaBotones();
        dibujar(lista);
        const double t = ms(r);
        cerrarTodo();
        DecLista().TABLASELECCION.reset();
        return t;
    }), 200);

    bien &= informe("FrmDeclaracion: abrir una guardada", repetir(7, [] {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().entrada = Navegacion::Entrada::Inicio;
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        Navegacion::RutaDec().lista = {};
        d.CSDE = kDeclaraciones / 2;
        QElapsedTimer r;
        r.start();
        FrmDeclaracion* form = Navegacion::AbrirDeclaracion();
        dibujar(form);
        const double t = ms(r);
        cerrarTodo();
        return t;
    }), 100);

    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().entrada = Navegacion::Entrada::Inicio;
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        Navegacion::RutaDec().lista = {};
        d.CSDE = kDeclaraciones / 2;
        FrmDeclaracion* form = Navegacion::AbrirDeclaracion();
        // The fields take the focus only in the active window.
        QApplication::setActiveWindow(form);
        if (!QTest::qWaitForWindowActive(form))
            std::printf("El panel no se activo: la medida no vale\n");
        auto* marca = form->findChild<QLineEdit*>(QStringLiteral("txtmarca"));
        int n = 0;
        // The leaving writes the record and draws every field of the panel from it again.
        bien &= informe("FrmDeclaracion: salir de un campo (registro y campos)", repetir(21, [&] {
            marca->setFocus(Qt::MouseFocusReason);
            marca->setText(QStringLiteral("MARCA %1").arg(++n));
            QElapsedTimer r;
            r.start();
            QTest::keyClick(marca, Qt::Key_Tab);
            const double t = ms(r);
            if (DecDatos().MARCA != marca->text())
                std::printf("El campo no se dejo: la medida no vale\n");
            return t;
        }), 5);
        // And the same with the whole panel painted at once afterwards, as a measure apart.
        informe("  ... y el panel entero pintado despues", repetir(21, [&] {
            marca->setFocus(Qt::MouseFocusReason);
            marca->setText(QStringLiteral("MARCA %1").arg(++n));
            QElapsedTimer r;
            r.start();
            QTest::keyClick(marca, Qt::Key_Tab);
            dibujar(form);
            return ms(r);
        }), 1000);
        cerrarTodo();
    }

    bien &= informe("FrmConDeclaraciones: 1 000 declaraciones", repetir(5, [] {
        QElapsedTimer r;
        r.start();
        FrmConDeclaraciones* panel = Navegacion::AbrirConDeclaraciones(
            Navegacion::EntradaLista::Abrir, 1, QStringLiteral("CONTRIBUYENTE 1"),
            QStringLiteral("C00000001"));
        dibujar(panel);
        const double t = ms(r);
        cerrarTodo();
        return t;
    }), 200);

    std::printf("\n%s\n", bien ? "Todas las medidas dentro de su limite."
                               : "Alguna medida fuera de su limite.");
    return bien ? 0 : 1;
}
