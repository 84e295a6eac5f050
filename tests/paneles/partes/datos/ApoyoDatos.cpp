#include "ApoyoDatos.h"

#include "comun/AlmacenNuevo.h"

#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/controles/Colores.h"
#include "servicios/Conexion.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <QMdiArea>
#include <QMenu>
#include <QMdiSubWindow>
#include <QPalette>

ProgramaDePrueba::ProgramaDePrueba(bool euskera)
{
    m_carpeta = AlmacenNuevo();
    // The language chooser of the first run is not part of these tests.
    ActOnline().ActOnline = 0;
    OffsetIdioma = euskera ? 10000 : 0;
    m_ventana = new MDIVeldo;
    m_ventana->show();
    QApplication::setActiveWindow(m_ventana);
    if (!QTest::qWaitForWindowActive(m_ventana))
        qWarning("La ventana principal no se activó");
    m_ventana->ActualizarMenus();
}

ProgramaDePrueba::~ProgramaDePrueba()
{
    ReiniciarEstado();
    MensajeSeam::limpiar();
    m_carpeta.reset();
}

QWidget* ProgramaDePrueba::panel(const QString& nombre) const
{
    for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
        if (sub->widget() && sub->widget()->objectName() == nombre && sub->isVisible())
            return sub->widget();
    return nullptr;
}

QStringList ProgramaDePrueba::paneles() const
{
    QStringList nombres;
    for (QMdiSubWindow* sub : m_ventana->area()->subWindowList())
        if (sub->widget() && sub->isVisible())
            nombres << sub->widget()->objectName();
    return nombres;
}

void Procesar()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

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

int32_t GuardarEnAlmacen(const Contribuyente& c)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = {0,        c.TIPODNI, c.DNIC,    c.NOMBREC, c.VIAC,    c.DOMICILIOC,
                           c.NUMEROC, QString(), QString(), QString(), QString(), c.TIPODOMI,
                           c.PAIS,   c.CODPROVC, c.NOMPROVC, c.CODPOSC, c.CODMUNC, c.NOMMUNC,
                           0.0,      0.0};
    if (svr.GuardarContribuyente(datos) != 0)
        return 0;
    return svr.ObtenerCodigoContribuyente(c.DNIC);
}

int32_t GuardarEnAlmacen(const Presentador& p)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo datos = {0,         p.DNIP,    p.NOMBREP, p.VIAP,    p.DOMICILIOP,
                           p.NUMEROP, QString(), QString(), QString(), QString(),
                           p.CODPROVP, p.CODPOSP, p.CODMUNP, p.NOMMUNP, p.TELEFONOP};
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

QVariant ValorAlmacenado(const QString& sql, const QVariantList& valores)
{
    const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("prueba"));
    return Escalar(db, sql, valores, QStringLiteral("prueba"));
}

void EjecutarEnAlmacen(const QString& sql, const QVariantList& valores)
{
    const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("prueba"));
    Ejecutar(db, sql, valores, QStringLiteral("prueba"));
}
