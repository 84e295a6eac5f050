#pragma once
// A print server of the test's own: cupsd started in a temporary folder on a free port of the
// loopback, with its own configuration and spool, and one queue whose jobs end in files the
// test reads. Nothing of the machine's printing is touched; the daemon is stopped when the
// object goes, however the test ends.
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

class ColaCups {
public:
    // A free port on 127.0.0.1; chosen before the server starts, so that CUPS_SERVER can be
    // set before anything in the process asks for printers.
    static quint16 PuertoLibre();

    explicit ColaCups(quint16 puerto);
    ~ColaCups();
    ColaCups(const ColaCups&) = delete;
    ColaCups& operator=(const ColaCups&) = delete;

    // "127.0.0.1:PORT", the value of CUPS_SERVER for the processes that print here.
    QString Servidor() const;
    // Starts the daemon and adds the queue `cola` as the server's default. Empty when the
    // queue accepts jobs, otherwise why it could not be had (cupsd missing, not allowed to
    // run, not answering).
    QString Arrancar(const QString& cola);
    // The documents of the jobs the queue has finished, in the order they were sent; waits
    // up to `ms` for at least `cuantos` of them.
    QStringList Trabajos(int cuantos, int ms) const;
    // Forgets the jobs finished so far.
    void Vaciar() const;

private:
    QString escribirConfiguracion() const;
    QString anadirCola(const QString& cola) const;
    bool esperarPuerto(int ms);
    QString ruta(const QString& nombre) const;

    quint16 m_puerto;
    QTemporaryDir m_dir;
    std::unique_ptr<QProcess> m_cupsd;
};
