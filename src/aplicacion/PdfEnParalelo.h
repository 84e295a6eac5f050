#pragma once
// Writes the PDF files of a batch on as many threads as the machine has cores, while the main
// thread loads and records the next returns. Painting a PDF (laying out the fonts' glyphs,
// embedding them, compressing the pages) is most of what a batch costs, and each file is
// independent of the others; the store and the records stay on the main thread.
#include "paneles/imprimir/cSuperficieGrabadora.h"

#include <QString>
#include <QThreadPool>
#include <cstdint>
#include <deque>
#include <future>
#include <vector>

class PdfEnParalelo {
public:
    PdfEnParalelo();
    ~PdfEnParalelo();  // waits for the files still being written
    PdfEnParalelo(const PdfEnParalelo&) = delete;
    PdfEnParalelo& operator=(const PdfEnParalelo&) = delete;

    // Queues the file of return `csde`, drawn from `hojas`. When the threads are behind, it
    // waits for the oldest file first, so that no more than a few recordings are held.
    void Encargar(int32_t csde, const QString& fichero, QList<LlamadaPagina> hojas);

    struct Fallido {
        int32_t csde;
        QString fichero;
    };
    // The files that could not be written among those finished, in the order they were
    // queued; with `esperar`, after every queued file is finished.
    std::vector<Fallido> Fallidos(bool esperar);

private:
    struct Encargo {
        int32_t csde;
        QString fichero;
        std::future<bool> escrito;
    };

    // Takes the result of the oldest file, waiting for it if need be.
    void recogerPrimero();

    QThreadPool m_hilos;
    std::deque<Encargo> m_encargos;
    std::vector<Fallido> m_fallidos;
    std::size_t m_maximo;
};
