#include "paneles/partes/CamposDatos.h"

#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "catalogo/Catalogo.h"

#include "paneles/controles/CajaNum.h"
#include "paneles/controles/Colores.h"
#include "paneles/controles/SalidaAntesDeOrden.h"
#include "valores/Val.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace {

// The width of the first column of a data panel, where labels and picker buttons stand.
constexpr int kPrimeraColumna = 120;

// A locked text field that is entered gives the focus on, forward or back as it came.
class PasoDeFoco : public QObject {
public:
    explicit PasoDeFoco(QLineEdit* campo) : QObject(campo), m_campo(campo) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto != m_campo || evento->type() != QEvent::FocusIn || !m_campo->isReadOnly())
            return false;
        const Qt::FocusReason razon = static_cast<QFocusEvent*>(evento)->reason();
        if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason)
            return false;
        QKeyEvent tab(QEvent::KeyPress, razon == Qt::BacktabFocusReason ? Qt::Key_Backtab : Qt::Key_Tab,
                      razon == Qt::BacktabFocusReason ? Qt::ShiftModifier : Qt::NoModifier);
        QApplication::sendEvent(m_campo, &tab);
        return false;
    }

private:
    QLineEdit* m_campo;
};

// The click on an icon: press and release on it, as a button takes it.
class ClicEnIcono : public QObject {
public:
    ClicEnIcono(QLabel* icono, QAbstractButton* boton) : QObject(icono), m_icono(icono), m_boton(boton) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto != m_icono || evento->type() != QEvent::MouseButtonRelease)
            return false;
        const auto* raton = static_cast<QMouseEvent*>(evento);
        // The field being typed in is left first, as a click on the button leaves it.
        if (raton->button() == Qt::LeftButton && m_icono->rect().contains(raton->position().toPoint())
            && m_boton->isEnabled() && m_boton->isVisible()
            && DejarCampoPara(m_boton, Qt::MouseFocusReason))
            m_boton->click();
        return false;
    }

private:
    QLabel* m_icono;
    QAbstractButton* m_boton;
};

}  // namespace

QLineEdit* CampoTexto(QWidget* padre, const char* nombre, int limite, TipoFiltro filtro,
                      bool cerrable)
{
    auto* campo = new QLineEdit(padre);
    campo->setObjectName(QString::fromLatin1(nombre));
    campo->setMaxLength(limite);
    AplicarFiltro(campo, filtro);
    SeleccionarAlEntrar(campo);
    ColorearCampo(campo, true);
    if (cerrable)
        campo->installEventFilter(new PasoDeFoco(campo));
    return campo;
}

CajaNum* CajaNumerica(QWidget* padre, const char* nombre, int maxlength, int enteros,
                      const QString& formato, bool bloqueada)
{
    auto* caja = new CajaNum(padre);
    caja->setObjectName(QString::fromLatin1(nombre));
    caja->setMaxlength(maxlength);
    caja->setEnteros(enteros);
    caja->setFormato(formato);
    caja->setLocked(bloqueada);
    caja->setFocusPolicy(bloqueada ? Qt::NoFocus : Qt::StrongFocus);
    ColorearCampo(caja, !bloqueada);
    return caja;
}

void AbrirCampo(QWidget* campo, bool abierto)
{
    if (!campo)
        return;
    // A panel draws itself again after every field it leaves: a field already in the state
    // asked for is left alone, which spares the style its work.
    const Qt::FocusPolicy politica = abierto ? Qt::StrongFocus : Qt::NoFocus;
    if (CampoAbierto(campo) == abierto && campo->focusPolicy() == politica
        && ColorFondo(campo) == QColor::fromRgb(abierto ? kColorAbierto : kColorBloqueado))
        return;
    if (auto* caja = qobject_cast<CajaNum*>(campo))
        caja->setLocked(!abierto);
    else if (auto* texto = qobject_cast<QLineEdit*>(campo))
        texto->setReadOnly(!abierto);
    campo->setFocusPolicy(abierto ? Qt::StrongFocus : Qt::NoFocus);
    ColorearCampo(campo, abierto);
}

bool CampoAbierto(const QWidget* campo)
{
    if (const auto* caja = qobject_cast<const CajaNum*>(campo))
        return !caja->locked();
    if (const auto* texto = qobject_cast<const QLineEdit*>(campo))
        return !texto->isReadOnly();
    return campo && campo->isEnabled();
}

QLabel* IconoDeBoton(QWidget* padre, const char* nombre, QStyle::StandardPixmap imagen,
                     QAbstractButton* boton, int lado)
{
    auto* icono = new QLabel(padre);
    icono->setObjectName(QString::fromLatin1(nombre));
    icono->setPixmap(padre->style()->standardIcon(imagen).pixmap(lado, lado));
    icono->setCursor(Qt::PointingHandCursor);
    icono->installEventFilter(new ClicEnIcono(icono, boton));
    return icono;
}

QLabel* Etiqueta(QWidget* padre, const char* nombre)
{
    auto* etiqueta = new QLabel(padre);
    etiqueta->setObjectName(QString::fromLatin1(nombre));
    return etiqueta;
}

void PonerTexto(QLineEdit* campo, const QString& texto)
{
    if (campo && campo->text() != texto)
        campo->setText(texto);
}

bool CodigoDistinto(const QString& texto, const QString& registro)
{
    const QString a = texto.trimmed();
    const QString b = registro.trimmed();
    if (a == b)
        return false;
    if (a.isEmpty() || b.isEmpty())
        return true;
    return Val(a) != Val(b);
}

void RetenerFocoAlPulsar(QWidget* panel)
{
    QObject::connect(qApp, &QApplication::focusChanged, panel, [panel](QWidget*, QWidget* ahora) {
        if (ahora && ahora != panel && panel->isAncestorOf(ahora))
            panel->setFocusProxy(ahora);
    });
}

void AnchoDeCaracteres(QWidget* campo, int caracteres)
{
    const QFontMetrics medida(campo->font());
    // The text and the field's frame and margins.
    campo->setFixedWidth(medida.horizontalAdvance(QLatin1Char('W')) * caracteres + 12);
}

void LineaDePanel(QBoxLayout* panel, const QList<QWidget*>& widgets)
{
    auto* linea = new QHBoxLayout;
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        if (i == 0 && widgets.size() > 1)
            widgets[i]->setFixedWidth(kPrimeraColumna);
        linea->addWidget(widgets[i]);
    }
    linea->addStretch();
    panel->addLayout(linea);
}

void BotonesDeDatos(QWidget* panel, QFrame* datos, QFrame* botones, QPushButton*& aceptar,
                    QPushButton*& cancelar, QLabel*& picAce, QLabel*& picCan)
{
    aceptar = new QPushButton(botones);
    aceptar->setObjectName(QStringLiteral("cmdAceptar"));
    cancelar = new QPushButton(botones);
    cancelar->setObjectName(QStringLiteral("cmdCancelar"));
    for (QPushButton* b : {aceptar, cancelar})
        b->setAutoDefault(true);  // Enter on a button presses it
    picAce = IconoDeBoton(botones, "PicAce", QStyle::SP_DialogApplyButton, aceptar);
    picCan = IconoDeBoton(botones, "PicCan", QStyle::SP_DialogCancelButton, cancelar);
    picCan->installEventFilter(panel);
    auto* linea = new QHBoxLayout(botones);
    linea->addStretch();
    linea->addWidget(picAce);
    linea->addWidget(aceptar);
    linea->addSpacing(24);
    linea->addWidget(picCan);
    linea->addWidget(cancelar);
    linea->addStretch();

    auto* todo = new QVBoxLayout(panel);
    todo->addWidget(datos);
    todo->addWidget(botones);
}

void AvisarRechazo(QWidget* panel, Veredicto rechazo)
{
    rechazo.titulo = panel->windowTitle();
    MostrarVeredicto(rechazo, panel);
}
