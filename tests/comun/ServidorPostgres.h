#pragma once
// A real PostgreSQL server for the tests of the office database, started in a folder of its
// own under the temporary folder, listening on a free port of 127.0.0.1 only, and stopped and
// removed when the last test of the program is done.
//
// The server is made with the machine's own initdb and pg_ctl (Debian's postgresql package;
// VELDO_PG_BIN names another folder of them). Run as root, as CI runs, they run as the
// `postgres` user, who owns the folder. Its superuser serves the fixture alone. Each new
// database (NuevaBase) belongs to a role of its own that lays out the program's schema, as an
// office's administrator does once; the seats reach it through a second role that can only
// read and write the rows of the program's tables and take their codes. Both log in with a
// password over TCP; the passwords live in memory only.
//
// A test that needs the server starts with EXIGIR_POSTGRES(): where the server cannot run (no
// binaries, no driver, a start that fails) the test is SKIPPED with the reason, never passed.
#include <QString>
#include <memory>

class ServidorPostgres {
public:
    // The one server of this test program, started on first use; null, with the reason in
    // Motivo(), when it cannot run here.
    static ServidorPostgres* Compartido();
    static QString Motivo();

    ~ServidorPostgres();
    ServidorPostgres(const ServidorPostgres&) = delete;
    ServidorPostgres& operator=(const ServidorPostgres&) = delete;

    int Puerto() const { return m_puerto; }

    // A database of its own: its owner and the seats' role made, nothing in it yet.
    struct Base {
        QString nombre;
        QString duenno;        // the owner's role: lays out the schema
        QString claveDuenno;
        QString puesto;        // the seats' role: reads and writes rows
        QString clavePuesto;
        int puerto = 0;
        // "host=127.0.0.1 port=... dbname=... user=...": the connection string without the
        // password, of the owner or of the seats.
        QString CadenaDuenno() const;
        QString CadenaPuesto() const;
        // The passwords of both roles in the client library's password file of this test
        // (PGPASSFILE), as a seat keeps them in ~/.pgpass.
        void RecordarClaves() const;
    };
    Base NuevaBase();

    // A statement run by the server's superuser on `base` ("" for the server's own database);
    // false, with the reason in `error`, when it failed.
    bool Ejecutar(const QString& base, const QString& sql, QString* error = nullptr);

private:
    ServidorPostgres() = default;
    bool arrancar(QString& motivo);
    void vigilarFin();
    void parar();

    struct Datos;
    std::unique_ptr<Datos> m_datos;
    int m_puerto = 0;
    int m_bases = 0;
};

// Skips the running test, with the reason, when the office database's server cannot run here.
#define EXIGIR_POSTGRES()                                                                        \
    do {                                                                                         \
        if (!ServidorPostgres::Compartido())                                                     \
            QSKIP(qPrintable(ServidorPostgres::Motivo()));                                       \
    } while (false)
