#include "plataforma/Idioma.h"

#include <atomic>

namespace {
// Read by the threads that paint pages in parallel while the main thread waits for them, so
// the value is atomic although only the main thread ever changes it.
std::atomic<Idioma::Lengua> g_idioma{Idioma::Castellano};
}  // namespace

Idioma Idioma::DeLetra(QStringView letra)
{
    return letra == QLatin1String("E") ? Idioma(Euskera) : Idioma(Castellano);
}

QString Idioma::letra() const
{
    return QString(QLatin1Char(static_cast<char>(m_lengua)));
}

QString Idioma::carpetaAyuda() const
{
    return esEuskera() ? QStringLiteral("Laguntza") : QStringLiteral("Ayuda");
}

Idioma IdiomaPrograma()
{
    return Idioma(g_idioma.load(std::memory_order_relaxed));
}

void EstablecerIdiomaPrograma(Idioma idioma)
{
    g_idioma.store(idioma.lengua(), std::memory_order_relaxed);
}
