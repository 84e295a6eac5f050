#include "aplicacion/PdfEnParalelo.h"

#include "paneles/imprimir/ReproducirLlamadas.h"
#include "paneles/imprimir/cSuperficiePdf.h"

#include <QSaveFile>
#include <QThread>
#include <memory>
#include <utility>

namespace {
// Draws the recording into `fichero`; the file is in place only when every page was written.
bool escribir(const QString& fichero, const QList<LlamadaPagina>& hojas)
{
    QSaveFile destino(fichero);
    if (!destino.open(QIODevice::WriteOnly))
        return false;
    bool bien;
    {
        cSuperficiePdf pdf(&destino);
        ReproducirLlamadas(hojas, pdf);
        bien = pdf.Terminar() && pdf.Paginas() > 0;
    }
    return bien && destino.commit();
}
}

PdfEnParalelo::PdfEnParalelo()
{
    const int hilos = std::max(1, QThread::idealThreadCount());
    m_hilos.setMaxThreadCount(hilos);
    // The threads stay for the whole batch: each keeps its fonts from one file to the next.
    m_hilos.setExpiryTimeout(-1);
    m_maximo = std::size_t(hilos) * 2;
}

PdfEnParalelo::~PdfEnParalelo()
{
    m_hilos.waitForDone();
}

void PdfEnParalelo::Encargar(int32_t csde, const QString& fichero, QList<LlamadaPagina> hojas)
{
    while (m_encargos.size() >= m_maximo)
        recogerPrimero();
    auto promesa = std::make_shared<std::promise<bool>>();
    Encargo e{csde, fichero, promesa->get_future()};
    m_hilos.start([promesa, fichero, hojas = std::move(hojas)] {
        // Nothing may leave a pool's thread: a file that could not be made (memory) is one
        // that was not written.
        bool escrito = false;
        try {
            escrito = escribir(fichero, hojas);
        } catch (...) {
        }
        promesa->set_value(escrito);
    });
    m_encargos.push_back(std::move(e));
}

void PdfEnParalelo::recogerPrimero()
{
    Encargo& e = m_encargos.front();
    if (!e.escrito.get())
        m_fallidos.push_back({e.csde, e.fichero});
    m_encargos.pop_front();
}

std::vector<PdfEnParalelo::Fallido> PdfEnParalelo::Fallidos(bool esperar)
{
    while (!m_encargos.empty()
           && (esperar
               || m_encargos.front().escrito.wait_for(std::chrono::seconds(0))
                      == std::future_status::ready))
        recogerPrimero();
    return std::exchange(m_fallidos, {});
}
