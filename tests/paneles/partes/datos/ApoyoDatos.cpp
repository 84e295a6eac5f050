#include "ApoyoDatos.h"

#include "aplicacion/MDIVeldo.h"
#include "comun/AlmacenPrueba.h"
#include "paneles/controles/Colores.h"
#include "plataforma/General.h"
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

int32_t GuardarEnAlmacen(const ContribuyenteDePanel& c)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    Contribuyente v;
    v.TIPODNI = c.TIPODNI;
    v.DNIC = c.DNIC;
    v.NOMBREC = c.NOMBREC;
    v.VIAC = c.VIAC;
    v.DOMICILIOC = c.DOMICILIOC;
    v.NUMEROC = c.NUMEROC;
    v.TIPODOMI = c.TIPODOMI;
    v.PAIS = c.PAIS;
    v.CODPROVC = c.CODPROVC;
    v.NOMPROVC = c.NOMPROVC;
    v.CODPOSC = c.CODPOSC;
    v.CODMUNC = c.CODMUNC;
    v.NOMMUNC = c.NOMMUNC;
    const Resultado<Contribuyente> r = svr.GuardarContribuyente(v);
    return r ? r->CSCO : 0;
}

int32_t GuardarEnAlmacen(const PresentadorDePanel& p)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    Presentador v;
    v.DNIP = p.DNIP;
    v.NOMBREP = p.NOMBREP;
    v.VIAP = p.VIAP;
    v.DOMICILIOP = p.DOMICILIOP;
    v.NUMEROP = p.NUMEROP;
    v.CODPROVP = p.CODPROVP;
    v.CODPOSP = p.CODPOSP;
    v.CODMUNP = p.CODMUNP;
    v.NOMMUNP = p.NOMMUNP;
    v.TELEFONOP = p.TELEFONOP;
    const Resultado<Presentador> r = svr.GuardarPresentador(v);
    return r ? r->CSPR : 0;
}

void DeclaracionCon(const char* columna, int32_t codigo)
{
    EjecutarEnAlmacen(QStringLiteral("INSERT INTO DECLARACIONES (%1) VALUES (?)")
                          .arg(QString::fromLatin1(columna)),
                      {codigo});
}
