#include "ApoyoDatos.h"

#include "aplicacion/MDIVeldo.h"
#include "comun/AlmacenPrueba.h"
#include "comun/ArregloPrueba.h"
#include "paneles/controles/Colores.h"
#include "plataforma/General.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPalette>

QWidget* Foco()
{
    return QApplication::focusWidget();
}

void Entrar(QWidget* campo)
{
    if (Foco() != campo)
        campo->setFocus(Qt::MouseFocusReason);
    Procesar();
}

void Escribir(QLineEdit* campo, const QString& texto)
{
    Entrar(campo);
    campo->selectAll();
    if (!campo->text().isEmpty())
        QTest::keyClick(campo, Qt::Key_Backspace);
    Teclear(campo, texto);
}

void Teclear(QWidget* w, const QString& texto)
{
    for (const QChar c : texto) {
        if (c.unicode() < 0x80) {
            QTest::keyClick(w, c.toLatin1());
            continue;
        }
        // Letters beyond ASCII ("ñ", "á") arrive as the keyboard sends them: their key and text.
        const auto tecla = static_cast<Qt::Key>(c.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Press, w, tecla, QString(c), Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Release, w, tecla, QString(c), Qt::NoModifier);
    }
}

void Tabular()
{
    QWidget* w = Foco();
    if (w)
        QTest::keyClick(w, Qt::Key_Tab);
    Procesar();
}

void EscribirYSalir(QLineEdit* campo, const QString& texto)
{
    Escribir(campo, texto);
    Tabular();
}

void Clic(QWidget* w)
{
    QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, w->rect().center());
    Procesar();
}

void Soltar(QLineEdit* campo, const QString& texto)
{
    QMimeData datos;
    datos.setText(texto);
    const QPointF punto(campo->width() - 4, campo->height() / 2.0);
    QDragEnterEvent entra(punto.toPoint(), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(campo, &entra);
    QDragMoveEvent mueve(punto.toPoint(), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(campo, &mueve);
    QDropEvent suelta(punto, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(campo, &suelta);
    Procesar();
}

int FilaDeTexto(QTreeWidget* lista, const QString& texto)
{
    for (int i = 0; i < lista->topLevelItemCount(); ++i)
        if (lista->topLevelItem(i)->text(1) == texto)
            return i;
    return -1;
}

void DobleClicEnTexto(QTreeWidget* lista, const QString& texto)
{
    const int fila = FilaDeTexto(lista, texto);
    if (fila < 0)
        return;
    QTreeWidgetItem* item = lista->topLevelItem(fila);
    lista->scrollToItem(item);
    const QRect r = lista->visualItemRect(item);
    // As the platform delivers a double click: press, release, double click, release.
    QTest::mousePress(lista->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    QTest::mouseRelease(lista->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    QTest::mouseRelease(lista->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    Procesar();
}

void ElegirConEnter(QTreeWidget* lista, const QString& texto)
{
    const int fila = FilaDeTexto(lista, texto);
    if (fila >= 0)
        lista->setCurrentItem(lista->topLevelItem(fila));
    QTest::keyClick(lista, Qt::Key_Return);
    Procesar();
}

QString TextoActual(QTreeWidget* lista)
{
    return lista->currentItem() ? lista->currentItem()->text(1) : QString();
}

bool Blanco(const QWidget* campo)
{
    return ColorFondo(campo) == QColor::fromRgb(kColorAbierto);
}

bool Gris(const QWidget* campo)
{
    return ColorFondo(campo) == QColor::fromRgb(kColorBloqueado);
}

bool abierto(const QWidget* campo)
{
    if (const auto* caja = qobject_cast<const CajaNum*>(campo))
        return !caja->locked() && Blanco(campo) && (campo->focusPolicy() & Qt::TabFocus);
    const auto* texto = qobject_cast<const QLineEdit*>(campo);
    return texto && !texto->isReadOnly() && Blanco(campo) && (campo->focusPolicy() & Qt::TabFocus);
}

bool cerrado(const QWidget* campo)
{
    if (const auto* caja = qobject_cast<const CajaNum*>(campo))
        return caja->locked() && Gris(campo) && !(campo->focusPolicy() & Qt::TabFocus);
    const auto* texto = qobject_cast<const QLineEdit*>(campo);
    return texto && texto->isReadOnly() && Gris(campo) && !(campo->focusPolicy() & Qt::TabFocus);
}

bool MenuApagado(const ProgramaDePrueba& prog, const char* nombre)
{
    return !prog.ventana()->findChild<QMenu*>(QString::fromLatin1(nombre))->menuAction()->isEnabled();
}

int32_t GuardarEnAlmacen(const ContribuyenteDePrueba& c)
{
    namespace C = PosContribuyente;
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = ArregloPorPosiciones(C::Tamano, {{C::CSCO, 0},
                                                           {C::TIPODNI, c.TIPODNI},
                                                           {C::DNIC, c.DNIC},
                                                           {C::NOMBREC, c.NOMBREC},
                                                           {C::VIAC, c.VIAC},
                                                           {C::DOMICILIOC, c.DOMICILIOC},
                                                           {C::NUMEROC, c.NUMEROC},
                                                           {C::LETRAC, QString()},
                                                           {C::ESCALERAC, QString()},
                                                           {C::PISOC, QString()},
                                                           {C::MANOC, QString()},
                                                           {C::TIPODOMI, c.TIPODOMI},
                                                           {C::PAIS, c.PAIS},
                                                           {C::CODPROVC, c.CODPROVC},
                                                           {C::NOMPROVC, c.NOMPROVC},
                                                           {C::CODPOSC, c.CODPOSC},
                                                           {C::CODMUNC, c.CODMUNC},
                                                           {C::NOMMUNC, c.NOMMUNC},
                                                           {C::NUMSP, 0.0},
                                                           {C::NUMTR, 0.0}});
    if (svr.GuardarContribuyente(datos) != 0)
        return 0;
    return svr.ObtenerCodigoContribuyente(c.DNIC);
}

int32_t GuardarEnAlmacen(const Presentador& p)
{
    namespace P = PosPresentador;
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = ArregloPorPosiciones(P::Tamano, {{P::CSPR, 0},
                                                           {P::DNIP, p.DNIP},
                                                           {P::NOMBREP, p.NOMBREP},
                                                           {P::VIAP, p.VIAP},
                                                           {P::DOMICILIOP, p.DOMICILIOP},
                                                           {P::NUMEROP, p.NUMEROP},
                                                           {P::LETRAP, QString()},
                                                           {P::ESCALERAP, QString()},
                                                           {P::PISOP, QString()},
                                                           {P::MANOP, QString()},
                                                           {P::CODPROVP, p.CODPROVP},
                                                           {P::CODPOSP, p.CODPOSP},
                                                           {P::CODMUNP, p.CODMUNP},
                                                           {P::NOMMUNP, p.NOMMUNP},
                                                           {P::TELEFONOP, p.TELEFONOP}});
    if (svr.GuardarPresentador(datos) != 0)
        return 0;
    return svr.ObtenerCodigoPresentador(p.DNIP);
}

void DeclaracionCon(const char* columna, int32_t codigo)
{
    EjecutarEnAlmacen(QStringLiteral("INSERT INTO DECLARACIONES (%1) VALUES (?)")
                          .arg(QString::fromLatin1(columna)),
                      {codigo});
}
