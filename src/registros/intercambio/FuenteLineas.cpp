#include "registros/intercambio/FuenteLineas.h"

#include "registros/intercambio/CsvContribuyentes.h"
#include "registros/intercambio/LectorLineas.h"

namespace {

// The fixed-width exchange file: a line is cut by the positions of its fields.
class FuenteFija : public FuenteLineas {
public:
    explicit FuenteFija(QFile& entrada)
        : m_lector(entrada, kLargoLineaIntercambio),
          m_estimado(double(entrada.size()) / kLargoLineaIntercambio)
    {
    }

    Resultado Siguiente(LineaLeida& leida, QString&) override
    {
        if (!m_lector.Siguiente(m_bytes))
            return Resultado::Fin;
        ++m_numero;
        CortarLinea(m_bytes, leida);
        return Resultado::Linea;
    }
    int Numero() const override { return m_numero; }
    double Estimado() const override { return m_estimado; }
    bool Error() const override { return m_lector.error(); }

private:
    LectorLineas m_lector;
    double m_estimado;
    QByteArray m_bytes;
    int m_numero = 0;
};

}  // namespace

bool EsFicheroCsv(const QString& fichero)
{
    return fichero.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

::Resultado<std::unique_ptr<FuenteLineas>> AbrirFuente(QFile& entrada)
{
    if (!EsFicheroCsv(entrada.fileName()))
        return std::unique_ptr<FuenteLineas>(std::make_unique<FuenteFija>(entrada));
    return CsvContribuyentes::AbrirFuente(entrada);
}
