#include "paneles/controles/cListaClaves.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace {
constexpr int kRolClave = Qt::UserRole;
}

cListaClaves::cListaClaves(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->hide();
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (item)
            emit elegido(item->data(kColumnaCodigo, kRolClave).toString(),
                         item->text(kColumnaTexto));
    });
}

void cListaClaves::Agregar(const QString& clave, const QString& texto, const QString& codigo)
{
    auto* item = new QTreeWidgetItem(this);
    item->setData(kColumnaCodigo, kRolClave, clave);
    item->setText(kColumnaCodigo, codigo.isNull() ? clave : codigo);
    item->setText(kColumnaTexto, texto);
}

QString cListaClaves::ClaveElemento(int indice) const
{
    const QTreeWidgetItem* item = topLevelItem(indice);
    return item ? item->data(kColumnaCodigo, kRolClave).toString() : QString();
}

QString cListaClaves::TextoElemento(int indice) const
{
    const QTreeWidgetItem* item = topLevelItem(indice);
    return item ? item->text(kColumnaTexto) : QString();
}

int cListaClaves::IndiceDeClave(const QString& clave) const
{
    for (int i = 0; i < Count(); ++i)
        if (ClaveElemento(i) == clave)
            return i;
    return -1;
}

int cListaClaves::IndiceDeTexto(const QString& texto) const
{
    for (int i = 0; i < Count(); ++i)
        if (TextoElemento(i) == texto)
            return i;
    return -1;
}

bool cListaClaves::LocalizarTexto(const QString& texto)
{
    const int i = IndiceDeTexto(texto);
    if (i < 0)
        return false;
    QTreeWidgetItem* item = topLevelItem(i);
    setCurrentItem(item);
    item->setSelected(true);
    scrollToItem(item, QAbstractItemView::PositionAtCenter);
    return true;
}

int cListaClaves::Actual() const
{
    return currentItem() ? indexOfTopLevelItem(currentItem()) : -1;
}

QString cListaClaves::ClaveActual() const
{
    return ClaveElemento(Actual());
}

QString cListaClaves::TextoActual() const
{
    return TextoElemento(Actual());
}

void cListaClaves::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (Actual() >= 0)
            emit elegido(ClaveActual(), TextoActual());
        evento->accept();
        return;
    case Qt::Key_Escape:
        emit cancelado();
        evento->accept();
        return;
    default:
        QTreeWidget::keyPressEvent(evento);
    }
}
