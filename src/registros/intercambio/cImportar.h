#pragma once
// The import of contributors (one instance, Importar()): the state of a run and the run itself.
// Each line of the exchange file is cut into its fields, looked up by its identity number,
// validated by the store, and saved as a new contributor or over the one that has the number;
// what became of each line goes into four counters and, for a refused line, into the error
// file. The run asks nothing and shows nothing itself: the question of the manual mode and the
// progress go through the Interlocutor that the caller gives, and the run answers the message
// that ends it.
#include "valores/Veredicto.h"

#include <QFile>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class cImportar {
public:
    QString FICHEROAIMPORTAR;   // full name of the exchange file
    QString FICHEROERRORES;     // full name of the error file
    int16_t NUMEROIMP = 0;      // lines written to the store, new or replacing
    int16_t NUMEROINC = 0;      // lines refused
    int16_t NUMEROSUS = 0;      // of those written, lines that replaced a contributor
    QString AUTOMATICO;         // "X" automatic mode on, " " switched off, "" at the start
    QString TERMINADA;          // "S" once a run has ended, else ""
    int16_t NUMEROIGN = 0;      // existing contributors the user chose not to replace
    // Lines read by the run. 16 bits wide, as the file format has always been read: a run
    // stops with an overflow at a 32 768th line.
    int16_t LineasLeidas = 0;

    // The start values of an opening: counters 0, the default file names beside the program.
    void Iniciar();

    struct Interlocutor {
        // Manual mode: the contributor of this number (as read) exists; true replaces it.
        std::function<bool(const QString& dni)> sustituir;
        // After each line: lines read, the estimate of the lines of the file (its length over
        // 176, 0 for an empty file), and whether the file has ended.
        std::function<void(int lineas, double estimado, bool fin)> avance;
    };
    // Runs the import of FICHEROAIMPORTAR into the store. A finished run sets TERMINADA "S"
    // and answers its closing message (an empty verdict when every line was ignored, or for an
    // empty file). A run that cannot go on answers why (no such file, a file already open, a
    // CSV heading that is wrong, or a failure of the disk as message 277) and leaves TERMINADA
    // as it was; what was saved before it stays saved, and the files it had open stay open
    // until the program ends, so that a second run on them answers that the file is already
    // open.
    Veredicto Ejecutar(const Interlocutor& interlocutor);

    // The question of the manual mode for the number `dni` as read.
    static QString TextoPreguntaSustituir(const QString& dni);

private:
    struct Ejecucion;
    bool Abierto(const QString& ruta) const;
    Veredicto Fallar(Ejecucion& run, const Veredicto& motivo);
    Veredicto Cierre() const;

    std::vector<std::unique_ptr<QFile>> m_dejadosAbiertos;
};

cImportar& Importar();
