#include "paneles/partes/Selectores.h"

#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "valores/Filtros.h"
#include "valores/Val.h"
#include "paneles/controles/cListaClaves.h"
#include "servicios/Almacen.h"
#include "servicios/cDatosGeneral.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QWidget>

namespace {

// The pause after which typed letters start a new search, as in the platform's lists.
constexpr qint64 kPausaBusquedaMs = 1000;
// Size of an open list, in pixels.
constexpr int kAnchoLista = 330;
constexpr int kAltoLista = 190;

cDatosGeneral Referencia()
{
    return Almacen<cDatosGeneral>();
}

void Rellenar(cListaClaves* lista, TipoSelector tipo, const QList<FilaReferencia>& filas)
{
    if (!lista)
        return;
    for (const FilaReferencia& f : filas)
        lista->Agregar(Selectores::Clave(tipo, f.codigo), f.nombre, f.codigo);
}

// A name as it is compared with typed letters: capitals without accents, but Ñ kept apart
// from N, since the key filter lets the user type it.
QString Plegado(const QString& texto)
{
    QString r;
    r.reserve(texto.size());
    for (const QChar c : texto) {
        if (c == QChar(0x00D1) || c == QChar(0x00F1)) {
            r += QChar(0x00D1);
            continue;
        }
        for (const QChar b : QString(c).normalized(QString::NormalizationForm_D))
            if (b.category() != QChar::Mark_NonSpacing)
                r += b.toUpper();
    }
    return r;
}

}  // namespace

namespace Selectores {

QString Clave(TipoSelector tipo, const QString& codigo)
{
    if (tipo == TipoSelector::Via)
        return codigo;
    return QStringLiteral("c") + QString::number(static_cast<long long>(Val(codigo)));
}

QString CodigoDeClave(TipoSelector tipo, const QString& clave)
{
    if (tipo == TipoSelector::Via)
        return clave;
    return clave.mid(1).trimmed();
}

}  // namespace Selectores

void CargarVias(cListaClaves* lista)
{
    Rellenar(lista, TipoSelector::Via, Referencia().CargarVias(IdiomaPrograma()));
}

void CargarProvincias(cListaClaves* lista)
{
    Rellenar(lista, TipoSelector::Provincia, Referencia().CargarProvincias(IdiomaPrograma()));
}

void CargarMunicipios(cListaClaves* lista)
{
    Rellenar(lista, TipoSelector::Municipio, Referencia().CargarMunicipios());
}

cSelector::cSelector(TipoSelector tipo, const QString& nombreLista, QWidget* panel)
    : QObject(panel), m_tipo(tipo), m_panel(panel), m_lista(new cListaClaves(panel))
{
    m_lista->setObjectName(nombreLista);
    m_lista->hide();
    m_lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lista->header()->setStretchLastSection(true);
    m_lista->setColumnWidth(cListaClaves::kColumnaCodigo, 40);
    m_lista->installEventFilter(this);
    connect(m_lista, &cListaClaves::elegido, this, [this](const QString& clave, const QString& texto) {
        if (!m_abierto)
            return;
        m_abierto = false;
        ActivarMarcos(true);
        emit elegido(clave, texto);
    });
    connect(m_lista, &cListaClaves::cancelado, this, [this] {
        if (!m_abierto)
            return;
        m_abierto = false;
        ActivarMarcos(true);
        emit cancelado();
    });
}

void cSelector::setMarcos(QList<QWidget*> marcos)
{
    m_marcos.clear();
    for (QWidget* m : marcos)
        m_marcos << m;
}

void cSelector::Cargar()
{
    m_lista->clear();
    switch (m_tipo) {
    case TipoSelector::Via:
        CargarVias(m_lista);
        break;
    case TipoSelector::Provincia:
        CargarProvincias(m_lista);
        break;
    case TipoSelector::Municipio:
        CargarMunicipios(m_lista);
        break;
    }
}

QString cSelector::Nombre(const QString& codigo) const
{
    return NombreDeClave(Selectores::Clave(m_tipo, codigo));
}

QString cSelector::NombreDeClave(const QString& clave) const
{
    const int i = m_lista->IndiceDeClave(clave);
    return i < 0 ? QString() : m_lista->TextoElemento(i);
}

void cSelector::Abrir(const QString& nombre, QWidget* junto)
{
    m_abierto = true;
    m_busqueda.clear();
    if (nombre.isEmpty() || !m_lista->LocalizarTexto(nombre)) {
        if (m_lista->Count() > 0) {
            QTreeWidgetItem* primero = m_lista->topLevelItem(0);
            m_lista->setCurrentItem(primero);
            m_lista->scrollToItem(primero);
        }
    }
    SituarJunto(junto);
    m_lista->show();
    m_lista->raise();
    // The list takes the focus before the frames go off, so that switching them off never
    // moves the focus through the panel's fields.
    m_lista->setFocus(Qt::OtherFocusReason);
    ActivarMarcos(false);
}

void cSelector::Cerrar(QWidget* foco)
{
    m_abierto = false;
    ActivarMarcos(true);
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    m_lista->hide();
}

void cSelector::ActivarMarcos(bool activos)
{
    for (const QPointer<QWidget>& m : m_marcos)
        if (m)
            m->setEnabled(activos);
}

void cSelector::SituarJunto(QWidget* junto)
{
    if (!m_panel)
        return;
    const QSize panel = m_panel->size();
    const int ancho = qMin(kAnchoLista, qMax(120, panel.width() - 8));
    const int alto = qMin(kAltoLista, qMax(80, panel.height() - 8));
    QPoint sitio(8, 8);
    if (junto) {
        const QRect r(junto->mapTo(m_panel, QPoint(0, 0)), junto->size());
        sitio = QPoint(r.left(), r.bottom() + 2);
        // Above the button when there is no room below it.
        if (sitio.y() + alto > panel.height())
            sitio.setY(qMax(0, r.top() - alto - 2));
    }
    sitio.setX(qBound(0, sitio.x(), qMax(0, panel.width() - ancho)));
    m_lista->setGeometry(QRect(sitio, QSize(ancho, alto)));
}

bool cSelector::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto != m_lista || evento->type() != QEvent::KeyPress)
        return false;
    auto* tecla = static_cast<QKeyEvent*>(evento);
    // The focus stays in an open list: only a choice or Escape takes it away.
    if (tecla->key() == Qt::Key_Tab || tecla->key() == Qt::Key_Backtab)
        return true;
    const QString texto = tecla->text();
    if (texto.size() != 1 || !texto[0].isPrint()
        || (tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;  // Enter, Escape, arrows and pages are the list's own
    const int codigo = FiltroTexto(texto[0].unicode());
    if (codigo != 0)
        BuscarPorLetras(QString(QChar(static_cast<char16_t>(codigo))));
    return true;
}

void cSelector::BuscarPorLetras(const QString& letra)
{
    if (!m_ultimaTecla.isValid() || m_ultimaTecla.elapsed() > kPausaBusquedaMs)
        m_busqueda.clear();
    m_ultimaTecla.restart();
    const int n = m_lista->Count();
    if (n == 0)
        return;
    const int actual = qMax(0, m_lista->Actual());
    auto buscar = [this, n](const QString& prefijo, int desde) {
        for (int k = 0; k < n; ++k) {
            const int i = (desde + k) % n;
            if (Plegado(m_lista->TextoElemento(i)).startsWith(prefijo))
                return i;
        }
        return -1;
    };
    // One letter moves on to the next name with it; more letters refine the current one.
    m_busqueda += letra;
    int hallado = buscar(m_busqueda, m_busqueda.size() == 1 ? actual + 1 : actual);
    if (hallado < 0 && m_busqueda.size() > 1) {
        m_busqueda = letra;
        hallado = buscar(m_busqueda, actual + 1);
    }
    if (hallado < 0)
        return;
    QTreeWidgetItem* item = m_lista->topLevelItem(hallado);
    m_lista->setCurrentItem(item);
    m_lista->scrollToItem(item);
}
