#pragma once
// The cells of a flex grid: row 0 is the heading row, shown in the view's header; rows 1 and
// on are the model's rows 0 and on. Each cell keeps its text and, when it has them, its own
// background and text colours. While drawing is frozen no change is announced to the view;
// thawing announces them all at once.
#include <QAbstractTableModel>
#include <QColor>
#include <vector>

class ModeloFlexGrid : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ModeloFlexGrid(QObject* parent = nullptr);

    int rowCount(const QModelIndex& padre = QModelIndex()) const override;
    int columnCount(const QModelIndex& padre = QModelIndex()) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    // Grid rows, heading included.
    int Filas() const { return m_filas; }
    void setFilas(int filas);
    int Columnas() const { return m_columnas; }
    void setColumnas(int columnas);

    QString Texto(int fila, int columna) const;
    void setTexto(int fila, int columna, const QString& texto);
    void setFondo(int fila, int columna, const QColor& color);
    void setTinta(int fila, int columna, const QColor& color);

    QColor FondoNormal() const { return m_fondoNormal; }
    QColor TintaNormal() const { return m_tintaNormal; }
    void setAlineacion(int columna, Qt::Alignment alineacion);
    // The heading's alignment: the column's until one of its own is given.
    Qt::Alignment AlineacionFija(int columna) const;
    void setAlineacionFija(int columna, Qt::Alignment alineacion);

    void setCongelado(bool congelado);

private:
    struct Celda {
        QString texto;
        QRgb fondo = 0;
        QRgb tinta = 0;
        bool fondoPropio = false;
        bool tintaPropia = false;
    };

    bool Valida(int fila, int columna) const;
    Celda& At(int fila, int columna) { return m_celdas[size_t(fila) * m_columnas + columna]; }
    const Celda& At(int fila, int columna) const
    {
        return m_celdas[size_t(fila) * m_columnas + columna];
    }
    void Avisar(int fila, int columna, const QList<int>& roles);

    int m_filas = 2;
    int m_columnas = 2;
    std::vector<Celda> m_celdas;
    std::vector<Qt::Alignment> m_alineaciones;
    std::vector<Qt::Alignment> m_alineacionesFijas;  // none: as the column
    const QColor m_fondoNormal = QColor::fromRgb(0xFFFFFF);
    const QColor m_tintaNormal = QColor::fromRgb(0x000000);
    bool m_congelado = false;
    bool m_pendiente = false;
};
