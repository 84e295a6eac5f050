#include "paneles/controles/ModeloFlexGrid.h"

#include <QBrush>
#include <algorithm>

ModeloFlexGrid::ModeloFlexGrid(QObject* parent) : QAbstractTableModel(parent)
{
    m_celdas.resize(size_t(m_filas) * m_columnas);
    m_alineaciones.assign(m_columnas, Qt::AlignLeft | Qt::AlignVCenter);
    m_alineacionesFijas.assign(m_columnas, Qt::Alignment());
}

int ModeloFlexGrid::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : m_filas - 1;
}

int ModeloFlexGrid::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : m_columnas;
}

QVariant ModeloFlexGrid::data(const QModelIndex& indice, int rol) const
{
    if (!indice.isValid())
        return QVariant();
    const int fila = indice.row() + 1;
    const int columna = indice.column();
    if (!Valida(fila, columna))
        return QVariant();
    const Celda& c = At(fila, columna);
    switch (rol) {
    case Qt::DisplayRole:
        return c.texto;
    case Qt::BackgroundRole:
        return QBrush(c.fondoPropio ? QColor::fromRgb(c.fondo) : m_fondoNormal);
    case Qt::ForegroundRole:
        return QBrush(c.tintaPropia ? QColor::fromRgb(c.tinta) : m_tintaNormal);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(m_alineaciones[columna]);
    default:
        return QVariant();
    }
}

QVariant ModeloFlexGrid::headerData(int seccion, Qt::Orientation orientacion, int rol) const
{
    if (orientacion == Qt::Horizontal && seccion >= 0 && seccion < m_columnas) {
        if (rol == Qt::DisplayRole)
            return At(0, seccion).texto;
        if (rol == Qt::TextAlignmentRole)
            return QVariant::fromValue(AlineacionFija(seccion));
    }
    if (orientacion == Qt::Vertical && rol == Qt::DisplayRole)
        return seccion + 1;
    return QVariant();
}

Qt::ItemFlags ModeloFlexGrid::flags(const QModelIndex& indice) const
{
    return indice.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void ModeloFlexGrid::setFilas(int filas)
{
    filas = std::max(1, filas);  // the heading row always stays
    if (filas == m_filas)
        return;
    if (filas > m_filas) {
        beginInsertRows(QModelIndex(), m_filas - 1, filas - 2);
        m_filas = filas;
        m_celdas.resize(size_t(m_filas) * m_columnas);
        endInsertRows();
    } else {
        beginRemoveRows(QModelIndex(), filas - 1, m_filas - 2);
        m_filas = filas;
        m_celdas.resize(size_t(m_filas) * m_columnas);
        endRemoveRows();
    }
}

void ModeloFlexGrid::setColumnas(int columnas)
{
    columnas = std::max(1, columnas);
    if (columnas == m_columnas)
        return;
    beginResetModel();
    std::vector<Celda> nuevas(size_t(m_filas) * columnas);
    const int comunes = std::min(columnas, m_columnas);
    for (int f = 0; f < m_filas; ++f)
        for (int c = 0; c < comunes; ++c)
            nuevas[size_t(f) * columnas + c] = std::move(At(f, c));
    m_celdas = std::move(nuevas);
    m_columnas = columnas;
    m_alineaciones.resize(columnas, Qt::AlignLeft | Qt::AlignVCenter);
    m_alineacionesFijas.resize(columnas, Qt::Alignment());
    endResetModel();
}

bool ModeloFlexGrid::Valida(int fila, int columna) const
{
    return fila >= 0 && fila < m_filas && columna >= 0 && columna < m_columnas;
}

QString ModeloFlexGrid::Texto(int fila, int columna) const
{
    return Valida(fila, columna) ? At(fila, columna).texto : QString();
}

void ModeloFlexGrid::setTexto(int fila, int columna, const QString& texto)
{
    if (!Valida(fila, columna))
        return;
    At(fila, columna).texto = texto;
    Avisar(fila, columna, {Qt::DisplayRole});
}

void ModeloFlexGrid::setFondo(int fila, int columna, const QColor& color)
{
    if (!Valida(fila, columna))
        return;
    Celda& c = At(fila, columna);
    c.fondo = color.rgb();
    c.fondoPropio = true;
    Avisar(fila, columna, {Qt::BackgroundRole});
}

void ModeloFlexGrid::setTinta(int fila, int columna, const QColor& color)
{
    if (!Valida(fila, columna))
        return;
    Celda& c = At(fila, columna);
    c.tinta = color.rgb();
    c.tintaPropia = true;
    Avisar(fila, columna, {Qt::ForegroundRole});
}

void ModeloFlexGrid::setAlineacion(int columna, Qt::Alignment alineacion)
{
    if (columna < 0 || columna >= m_columnas)
        return;
    m_alineaciones[columna] = alineacion;
    Avisar(-1, -1, {Qt::TextAlignmentRole});
}

Qt::Alignment ModeloFlexGrid::AlineacionFija(int columna) const
{
    if (columna < 0 || columna >= m_columnas)
        return Qt::Alignment();
    const Qt::Alignment propia = m_alineacionesFijas[columna];
    return propia ? propia : m_alineaciones[columna];
}

void ModeloFlexGrid::setAlineacionFija(int columna, Qt::Alignment alineacion)
{
    if (columna < 0 || columna >= m_columnas)
        return;
    m_alineacionesFijas[columna] = alineacion;
    emit headerDataChanged(Qt::Horizontal, columna, columna);
}

void ModeloFlexGrid::setCongelado(bool congelado)
{
    m_congelado = congelado;
    if (!congelado && m_pendiente) {
        m_pendiente = false;
        emit headerDataChanged(Qt::Horizontal, 0, m_columnas - 1);
        if (m_filas > 1)
            emit dataChanged(index(0, 0), index(m_filas - 2, m_columnas - 1));
    }
}

// One changed cell (or all, with -1), told to the view now or when drawing thaws.
void ModeloFlexGrid::Avisar(int fila, int columna, const QList<int>& roles)
{
    if (m_congelado) {
        m_pendiente = true;
        return;
    }
    if (fila < 0) {
        emit headerDataChanged(Qt::Horizontal, 0, m_columnas - 1);
        if (m_filas > 1)
            emit dataChanged(index(0, 0), index(m_filas - 2, m_columnas - 1), roles);
    } else if (fila == 0) {
        emit headerDataChanged(Qt::Horizontal, columna, columna);
    } else {
        const QModelIndex i = index(fila - 1, columna);
        emit dataChanged(i, i, roles);
    }
}
