#include "paneles/imprimir/FuentesImpreso.h"

#include "plataforma/Estado.h"

#include <map>
#include <memory>
#include <tuple>

namespace {
// Pixel size of the font the metrics are read on; the ratio to the point size scales them.
constexpr int kPixelesReferencia = 1000;
constexpr double kMmPorPunto = 25.4 / 72.0;
// Widths kept per font before the memory is given back: far more than a sheet has texts, so
// only a long run of many returns ever empties it.
constexpr qsizetype kAnchosGuardados = 4096;

QFont aReferencia(QFont fuente)
{
    fuente.setPixelSize(kPixelesReferencia);
    return fuente;
}
}

QString FamiliaInstalada(const QString& familia)
{
    if (familia.compare(QLatin1String("Times New Roman"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Liberation Serif");
    if (familia.compare(QLatin1String("Arial"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Liberation Sans");
    return familia;
}

QFont FuenteImpreso(const QString& familia, double puntos, bool negrita, bool cursiva,
                    bool subrayado)
{
    QFont f(FamiliaInstalada(familia));
    f.setPointSizeF(puntos > 0 ? puntos : 1);
    f.setBold(negrita);
    f.setItalic(cursiva);
    f.setUnderline(subrayado);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setStyleStrategy(QFont::ForceOutline);
    return f;
}

FuenteMedida::FuenteMedida(const QString& familia, double puntos, bool negrita, bool cursiva,
                           bool subrayado)
    : m_fuente(FuenteImpreso(familia, puntos, negrita, cursiva, subrayado)),
      m_metricas(aReferencia(m_fuente)),
      m_escala(puntos * kMmPorPunto / kPixelesReferencia)
{
}

MedidaTexto FuenteMedida::Medir(const QString& texto) const
{
    auto it = m_anchos.constFind(texto);
    if (it == m_anchos.cend()) {
        if (m_anchos.size() >= kAnchosGuardados)
            m_anchos.clear();
        it = m_anchos.insert(texto, m_metricas.horizontalAdvance(texto));
    }
    return {*it * m_escala, m_metricas.height() * m_escala, m_metricas.ascent() * m_escala};
}

const FuenteMedida& FuenteDeImpreso(const QString& familia, double puntos, bool negrita,
                                    bool cursiva, bool subrayado)
{
    using Clave = std::tuple<QString, double, bool, bool, bool>;
    // One set per thread: a batch writes its PDF files on several threads at once, and a
    // font and its metrics are not to be shared between threads.
    thread_local std::map<Clave, std::unique_ptr<FuenteMedida>> hechas;
    thread_local uint64_t generacion = cEstado::Generacion();
    if (generacion != cEstado::Generacion()) {
        hechas.clear();
        generacion = cEstado::Generacion();
    }
    const Clave clave{familia, puntos, negrita, cursiva, subrayado};
    auto it = hechas.find(clave);
    if (it == hechas.end())
        it = hechas.emplace(clave, std::make_unique<FuenteMedida>(familia, puntos, negrita,
                                                                  cursiva, subrayado))
                 .first;
    return *it->second;
}
