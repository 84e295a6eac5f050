#include "comun/ServidorPostgres.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVersionNumber>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const QString kSuperusuario = QStringLiteral("veldo_admin");

QString claveNueva()
{
    return QString::number(QRandomGenerator::system()->generate64(), 16)
        + QString::number(QRandomGenerator::system()->generate64(), 16);
}

// The folder of initdb and pg_ctl: VELDO_PG_BIN, or the newest of Debian's.
QString carpetaBinarios()
{
    const QString dada = qEnvironmentVariable("VELDO_PG_BIN");
    if (!dada.isEmpty())
        return dada;
    const QDir raiz(QStringLiteral("/usr/lib/postgresql"));
    QString mejor;
    QVersionNumber mejorVersion;
    for (const QString& v : raiz.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString bin = raiz.filePath(v + QStringLiteral("/bin"));
        const QVersionNumber numero = QVersionNumber::fromString(v);
        if (QFile::exists(bin + QStringLiteral("/initdb")) && numero > mejorVersion) {
            mejor = bin;
            mejorVersion = numero;
        }
    }
    return mejor;
}

// A port of 127.0.0.1 that nobody listens on now.
int puertoLibre()
{
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    if (s < 0)
        return 0;
    sockaddr_in dir{};
    dir.sin_family = AF_INET;
    dir.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    dir.sin_port = 0;
    socklen_t largo = sizeof dir;
    int puerto = 0;
    if (::bind(s, reinterpret_cast<sockaddr*>(&dir), sizeof dir) == 0
        && ::getsockname(s, reinterpret_cast<sockaddr*>(&dir), &largo) == 0)
        puerto = ntohs(dir.sin_port);
    ::close(s);
    return puerto;
}

QString citado(const QString& texto)
{
    return QLatin1Char('\'') + QString(texto).replace(QLatin1Char('\''), QStringLiteral("''"))
        + QLatin1Char('\'');
}

}  // namespace

struct ServidorPostgres::Datos {
    QTemporaryDir carpeta{QDir::tempPath() + QStringLiteral("/veldo-pg-XXXXXX")};
    QString binarios;
    QString claveSuperusuario = claveNueva();
    bool comoPostgres = false;  // run as root: the server's commands run as `postgres`
    bool enMarcha = false;

    QString datos() const { return carpeta.path() + QStringLiteral("/datos"); }

    // One of the server's commands, waited for; false with its output in `salida` when it
    // failed.
    bool correr(const QString& programa, const QStringList& argumentos, QString& salida) const
    {
        QProcess p;
        p.setProcessChannelMode(QProcess::MergedChannels);
        const QString ruta = binarios + QLatin1Char('/') + programa;
        if (comoPostgres)
            p.start(QStringLiteral("runuser"),
                    QStringList{QStringLiteral("-u"), QStringLiteral("postgres"), QStringLiteral("--"), ruta}
                        + argumentos);
        else
            p.start(ruta, argumentos);
        if (!p.waitForFinished(120000)) {
            p.kill();
            p.waitForFinished();
            salida = programa + QStringLiteral(": ") + p.errorString();
            return false;
        }
        salida = QString::fromLocal8Bit(p.readAll());
        return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
    }
};

namespace {
QString& motivoGuardado()
{
    static QString motivo;
    return motivo;
}
}

ServidorPostgres* ServidorPostgres::Compartido()
{
    // Stopped and removed at the program's end, after its last test.
    static const std::unique_ptr<ServidorPostgres> servidor = [] {
        std::unique_ptr<ServidorPostgres> s(new ServidorPostgres);
        if (!s->arrancar(motivoGuardado()))
            s.reset();
        return s;
    }();
    return servidor.get();
}

QString ServidorPostgres::Motivo()
{
    return motivoGuardado();
}

bool ServidorPostgres::arrancar(QString& motivo)
{
    m_datos = std::make_unique<Datos>();
    Datos& d = *m_datos;
    d.binarios = carpetaBinarios();
    if (d.binarios.isEmpty() || !QFile::exists(d.binarios + QStringLiteral("/pg_ctl"))) {
        motivo = QStringLiteral("PostgreSQL's server programs (initdb, pg_ctl) are not installed "
                                "(Debian package postgresql; or set VELDO_PG_BIN)");
        return false;
    }
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) {
        motivo = QStringLiteral("Qt's PostgreSQL driver QPSQL is not installed "
                                "(Debian package libqt6sql6-psql)");
        return false;
    }
    if (!d.carpeta.isValid()) {
        motivo = QStringLiteral("no temporary folder for the server: ") + d.carpeta.errorString();
        return false;
    }
    if (::geteuid() == 0) {
        // The server refuses to run as root: its folder and commands belong to `postgres`.
        const passwd* pg = ::getpwnam("postgres");
        if (!pg) {
            motivo = QStringLiteral("run as root, and there is no `postgres` user to run the server");
            return false;
        }
        if (::chown(QFile::encodeName(d.carpeta.path()).constData(), pg->pw_uid, pg->pw_gid) != 0) {
            motivo = QStringLiteral("cannot give the server's folder to `postgres`");
            return false;
        }
        d.comoPostgres = true;
    }
    const QString claves = d.carpeta.path() + QStringLiteral("/clave");
    {
        QFile f(claves);
        if (!f.open(QIODevice::WriteOnly) || f.write(d.claveSuperusuario.toUtf8()) < 0) {
            motivo = QStringLiteral("cannot write the superuser's password for initdb");
            return false;
        }
    }
    if (d.comoPostgres) {
        const passwd* pg = ::getpwnam("postgres");
        if (::chown(QFile::encodeName(claves).constData(), pg->pw_uid, pg->pw_gid) != 0) {
            motivo = QStringLiteral("cannot give the password file to `postgres`");
            return false;
        }
    }
    QString salida;
    const bool iniciada = d.correr(QStringLiteral("initdb"),
                                   {QStringLiteral("-D"), d.datos(), QStringLiteral("-U"), kSuperusuario,
                                    QStringLiteral("--pwfile=") + claves,
                                    QStringLiteral("--auth-local=scram-sha-256"),
                                    QStringLiteral("--auth-host=scram-sha-256"),
                                    QStringLiteral("-E"), QStringLiteral("UTF8"),
                                    QStringLiteral("--locale=C.UTF-8"), QStringLiteral("--no-sync")},
                                   salida);
    QFile::remove(claves);
    if (!iniciada) {
        motivo = QStringLiteral("initdb failed: ") + salida.trimmed();
        return false;
    }
    // A free port can be taken by another program between the look and the start: a few tries.
    for (int intento = 0; intento < 5 && !d.enMarcha; ++intento) {
        m_puerto = puertoLibre();
        if (m_puerto == 0)
            continue;
        const QString opciones =
            QStringLiteral("-c listen_addresses=127.0.0.1 -p %1 -k %2 -c fsync=off "
                           "-c full_page_writes=off -c max_connections=60")
                .arg(m_puerto)
                .arg(d.carpeta.path());
        d.enMarcha = d.correr(QStringLiteral("pg_ctl"),
                              {QStringLiteral("-D"), d.datos(), QStringLiteral("-l"),
                               d.carpeta.path() + QStringLiteral("/registro"), QStringLiteral("-w"),
                               QStringLiteral("-t"), QStringLiteral("60"), QStringLiteral("-o"), opciones,
                               QStringLiteral("start")},
                              salida);
    }
    if (!d.enMarcha) {
        QFile registro(d.carpeta.path() + QStringLiteral("/registro"));
        registro.open(QIODevice::ReadOnly);
        motivo = QStringLiteral("the server did not start: ") + salida.trimmed()
            + QLatin1Char(' ') + QString::fromLocal8Bit(registro.readAll()).trimmed();
        return false;
    }
    vigilarFin();
    QString error;
    if (!Ejecutar(QString(), QStringLiteral("SELECT 1"), &error)) {
        motivo = QStringLiteral("the server does not answer: ") + error;
        return false;
    }
    return true;
}

void ServidorPostgres::vigilarFin()
{
    // A test program that dies without unwinding (a crash, an abort) does not stop its server:
    // a watcher of its own does, as soon as the program is gone, and removes the folder.
    const Datos& d = *m_datos;
    const QString orden =
        QStringLiteral("while [ -d /proc/%1 ]; do sleep 1; done; "
                       "'%2/pg_ctl' -D '%3' -m immediate -w stop >/dev/null 2>&1; rm -rf '%4'")
            .arg(QCoreApplication::applicationPid())
            .arg(d.binarios, d.datos(), d.carpeta.path());
    if (d.comoPostgres)
        QProcess::startDetached(QStringLiteral("runuser"),
                                {QStringLiteral("-u"), QStringLiteral("postgres"), QStringLiteral("--"),
                                 QStringLiteral("sh"), QStringLiteral("-c"), orden});
    else
        QProcess::startDetached(QStringLiteral("sh"), {QStringLiteral("-c"), orden});
}

ServidorPostgres::~ServidorPostgres()
{
    parar();
}

void ServidorPostgres::parar()
{
    if (!m_datos || !m_datos->enMarcha)
        return;
    QString salida;
    m_datos->correr(QStringLiteral("pg_ctl"),
                    {QStringLiteral("-D"), m_datos->datos(), QStringLiteral("-m"),
                     QStringLiteral("immediate"), QStringLiteral("-w"), QStringLiteral("stop")},
                    salida);
    m_datos->enMarcha = false;
}

bool ServidorPostgres::Ejecutar(const QString& base, const QString& sql, QString* error)
{
    const QString nombre = QStringLiteral("servidor-postgres-prueba");
    bool bien = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), nombre);
        db.setHostName(QStringLiteral("127.0.0.1"));
        db.setPort(m_puerto);
        db.setDatabaseName(base.isEmpty() ? QStringLiteral("postgres") : base);
        db.setUserName(kSuperusuario);
        db.setPassword(m_datos->claveSuperusuario);
        if (db.open()) {
            QSqlQuery q(db);
            bien = q.exec(sql);
            if (!bien && error)
                *error = q.lastError().text();
        } else if (error) {
            *error = db.lastError().text();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(nombre);
    return bien;
}

ServidorPostgres::Base ServidorPostgres::NuevaBase()
{
    const int n = ++m_bases;
    Base b;
    b.nombre = QStringLiteral("veldo_prueba_%1").arg(n);
    b.duenno = QStringLiteral("veldo_duenno_%1").arg(n);
    b.puesto = QStringLiteral("veldo_puesto_%1").arg(n);
    b.claveDuenno = claveNueva();
    b.clavePuesto = claveNueva();
    b.puerto = m_puerto;
    const QStringList enServidor{
        QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD %2").arg(b.duenno, citado(b.claveDuenno)),
        QStringLiteral("CREATE ROLE %1 LOGIN PASSWORD %2").arg(b.puesto, citado(b.clavePuesto)),
        QStringLiteral("CREATE DATABASE %1 OWNER %2").arg(b.nombre, b.duenno),
        QStringLiteral("REVOKE ALL ON DATABASE %1 FROM PUBLIC").arg(b.nombre),
        QStringLiteral("GRANT CONNECT, TEMPORARY ON DATABASE %1 TO %2, %3")
            .arg(b.nombre, b.puesto, b.duenno),
    };
    // The seats read and write the rows of whatever the owner makes, and nothing more.
    const QStringList enBase{
        QStringLiteral("REVOKE ALL ON SCHEMA public FROM PUBLIC"),
        QStringLiteral("GRANT USAGE ON SCHEMA public TO %1").arg(b.puesto),
        QStringLiteral("ALTER DEFAULT PRIVILEGES FOR ROLE %1 IN SCHEMA public "
                       "GRANT SELECT, INSERT, UPDATE, DELETE ON TABLES TO %2")
            .arg(b.duenno, b.puesto),
        QStringLiteral("ALTER DEFAULT PRIVILEGES FOR ROLE %1 IN SCHEMA public "
                       "GRANT USAGE, SELECT ON SEQUENCES TO %2")
            .arg(b.duenno, b.puesto),
    };
    for (const QString& sql : enServidor) {
        QString error;
        if (!Ejecutar(QString(), sql, &error))
            qFatal("%s: %s", qPrintable(sql), qPrintable(error));
    }
    for (const QString& sql : enBase) {
        QString error;
        if (!Ejecutar(b.nombre, sql, &error))
            qFatal("%s: %s", qPrintable(sql), qPrintable(error));
    }
    return b;
}

QString ServidorPostgres::Base::CadenaDuenno() const
{
    return QStringLiteral("host=127.0.0.1 port=%1 dbname=%2 user=%3").arg(puerto).arg(nombre, duenno);
}

QString ServidorPostgres::Base::CadenaPuesto() const
{
    return QStringLiteral("host=127.0.0.1 port=%1 dbname=%2 user=%3").arg(puerto).arg(nombre, puesto);
}

void ServidorPostgres::Base::RecordarClaves() const
{
    // The client library's own password file (PGPASSFILE), as a seat's ~/.pgpass: the program
    // passes no password, and the library finds it there.
    const QString ruta = QDir::tempPath()
        + QStringLiteral("/veldo_pgpass_%1").arg(QCoreApplication::applicationPid());
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    fichero.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    for (const auto& [usuario, clave] : {std::pair{duenno, claveDuenno}, std::pair{puesto, clavePuesto}})
        fichero.write(QStringLiteral("127.0.0.1:%1:%2:%3:%4\n")
                          .arg(puerto).arg(nombre, usuario, clave).toUtf8());
    fichero.close();
    qputenv("PGPASSFILE", QFile::encodeName(ruta));
}
