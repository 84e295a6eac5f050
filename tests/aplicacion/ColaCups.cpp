#include "ColaCups.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTest>
#include <QTextStream>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
const QStringList kCarpetasSistema{QStringLiteral("/usr/sbin"), QStringLiteral("/sbin"),
                                   QStringLiteral("/usr/local/sbin"), QStringLiteral("/usr/bin")};

QString programa(const QString& nombre)
{
    const QString enPath = QStandardPaths::findExecutable(nombre);
    return enPath.isEmpty() ? QStandardPaths::findExecutable(nombre, kCarpetasSistema) : enPath;
}

bool escribir(const QString& fichero, const QString& texto, QFile::Permissions permisos = {})
{
    QFile f(fichero);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    f.write(texto.toUtf8());
    f.close();
    return permisos == QFile::Permissions{} || f.setPermissions(permisos);
}

constexpr auto kLectura = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto kEntrada = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
}

quint16 ColaCups::PuertoLibre()
{
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in direccion{};
    direccion.sin_family = AF_INET;
    direccion.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    direccion.sin_port = 0;
    socklen_t largo = sizeof direccion;
    quint16 puerto = 0;
    if (s >= 0 && ::bind(s, reinterpret_cast<sockaddr*>(&direccion), sizeof direccion) == 0
        && ::getsockname(s, reinterpret_cast<sockaddr*>(&direccion), &largo) == 0)
        puerto = ntohs(direccion.sin_port);
    if (s >= 0)
        ::close(s);
    return puerto;
}

ColaCups::ColaCups(quint16 puerto) : m_puerto(puerto)
{
    // The daemon hands filters to its unprivileged user when it runs as root: the folder must
    // be open to it, and the folder of the finished jobs writable by it.
    QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner | kLectura | kEntrada);
}

ColaCups::~ColaCups()
{
    // VELDO_CUPS_GUARDAR keeps the folder (configuration, logs, jobs) to look at a failure.
    if (qEnvironmentVariableIsSet("VELDO_CUPS_GUARDAR"))
        m_dir.setAutoRemove(false);
    if (!m_cupsd || m_cupsd->state() == QProcess::NotRunning)
        return;
    m_cupsd->terminate();
    if (!m_cupsd->waitForFinished(10000)) {
        m_cupsd->kill();
        m_cupsd->waitForFinished(5000);
    }
}

QString ColaCups::Servidor() const { return QStringLiteral("127.0.0.1:%1").arg(m_puerto); }

QString ColaCups::ruta(const QString& nombre) const { return m_dir.filePath(nombre); }

QString ColaCups::escribirConfiguracion() const
{
    for (const char* c : {"conf", "spool", "spool/tmp", "cache", "state", "log", "filtro"})
        QDir(m_dir.path()).mkpath(QLatin1String(c));
    QDir(m_dir.path()).mkpath(QStringLiteral("trabajos"));
    QFile::setPermissions(ruta(QStringLiteral("trabajos")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                              | QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
                              | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
    QFile::setPermissions(ruta(QStringLiteral("filtro")),
                          QFile::ReadOwner | QFile::WriteOwner | kLectura | kEntrada);
    const QString d = m_dir.path();
    const bool bien =
        escribir(ruta(QStringLiteral("conf/cupsd.conf")),
                 QStringLiteral("Listen 127.0.0.1:%1\n"
                                "DefaultAuthType None\nWebInterface No\nBrowsing No\n"
                                "LogLevel debug\nMaxLogSize 0\n"
                                "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                                "<Location /admin>\n  Order allow,deny\n  Allow all\n</Location>\n"
                                "<Policy default>\n  <Limit All>\n    Order deny,allow\n"
                                "  </Limit>\n</Policy>\n")
                     .arg(m_puerto))
        && escribir(ruta(QStringLiteral("conf/cups-files.conf")),
                    QStringLiteral("FileDevice Yes\nServerRoot %1/conf\nRequestRoot %1/spool\n"
                                   "TempDir %1/spool/tmp\nCacheDir %1/cache\nStateDir %1/state\n"
                                   "AccessLog %1/log/access_log\nErrorLog %1/log/error_log\n"
                                   "PageLog %1/log/page_log\nPrintcap %1/printcap\n"
                                   "ServerBin /usr/lib/cups\nDataDir /usr/share/cups\n")
                        .arg(d))
        // The queue's one filter keeps each document, named by its job number, and passes it
        // on unchanged to the file device. It is written under another name and renamed, so a
        // document the test sees is whole.
        && escribir(ruta(QStringLiteral("filtro/guardar")),
                    QStringLiteral("#!/bin/sh\n"
                                   "n=$(printf %05d \"$1\")\n"
                                   "if [ -n \"$6\" ]; then cat \"$6\"; else cat; fi > %1/trabajos/.$n\n"
                                   "mv %1/trabajos/.$n %1/trabajos/$n.doc\n"
                                   "exec cat %1/trabajos/$n.doc\n")
                        .arg(d),
                    QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | kLectura | kEntrada)
        && escribir(ruta(QStringLiteral("cola.ppd")),
                    QStringLiteral("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n"
                                   "*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
                                   "*LanguageEncoding: ISOLatin1\n*PCFileName: \"VELDO.PPD\"\n"
                                   "*Manufacturer: \"Veldoria\"\n*Product: \"(Veldoria)\"\n"
                                   "*ModelName: \"Veldoria prueba\"\n"
                                   "*ShortNickName: \"Veldoria prueba\"\n"
                                   "*NickName: \"Veldoria prueba\"\n"
                                   "*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n"
                                   "*ColorDevice: False\n*DefaultColorSpace: Gray\n"
                                   "*FileSystem: False\n*Throughput: \"1\"\n"
                                   "*LandscapeOrientation: Plus90\n*TTRasterizer: Type42\n"
                                   "*cupsFilter: \"application/pdf 0 %1/filtro/guardar\"\n"
                                   "*cupsFilter: \"application/postscript 0 %1/filtro/guardar\"\n"
                                   "*OpenUI *PageSize/Media Size: PickOne\n"
                                   "*OrderDependency: 10 AnySetup *PageSize\n"
                                   "*DefaultPageSize: A4\n"
                                   "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
                                   "*CloseUI: *PageSize\n"
                                   "*OpenUI *PageRegion: PickOne\n"
                                   "*OrderDependency: 10 AnySetup *PageRegion\n"
                                   "*DefaultPageRegion: A4\n"
                                   "*PageRegion A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
                                   "*CloseUI: *PageRegion\n"
                                   "*DefaultImageableArea: A4\n"
                                   "*ImageableArea A4/A4: \"0 0 595 842\"\n"
                                   "*DefaultPaperDimension: A4\n"
                                   "*PaperDimension A4/A4: \"595 842\"\n")
                        .arg(d));
    return bien ? QString() : QStringLiteral("cannot write the server's files in ") + d;
}

bool ColaCups::esperarPuerto(int ms)
{
    const QDeadlineTimer plazo(ms);
    while (!plazo.hasExpired()) {
        if (m_cupsd->state() == QProcess::NotRunning)
            return false;
        QTcpSocket s;
        s.connectToHost(QStringLiteral("127.0.0.1"), m_puerto);
        if (s.waitForConnected(500))
            return true;
        QTest::qWait(100);
    }
    return false;
}

QString ColaCups::anadirCola(const QString& cola) const
{
    const QString lpadmin = programa(QStringLiteral("lpadmin"));
    if (lpadmin.isEmpty())
        return QStringLiteral("lpadmin is not installed (Debian package cups-client)");
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("CUPS_SERVER"), Servidor());
    const auto ejecutar = [&](const QStringList& argumentos) -> QString {
        QProcess p;
        p.setProcessEnvironment(entorno);
        p.start(lpadmin, argumentos);
        if (!p.waitForFinished(30000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
            return QStringLiteral("lpadmin %1 failed: %2")
                .arg(argumentos.join(QLatin1Char(' ')),
                     QString::fromLocal8Bit(p.readAllStandardError()).trimmed());
        return QString();
    };
    QString r = ejecutar({QStringLiteral("-p"), cola, QStringLiteral("-E"), QStringLiteral("-v"),
                          QStringLiteral("file://") + ruta(QStringLiteral("salida.prn")),
                          QStringLiteral("-P"), ruta(QStringLiteral("cola.ppd"))});
    if (r.isEmpty())
        r = ejecutar({QStringLiteral("-d"), cola});
    return r;
}

QString ColaCups::Arrancar(const QString& cola)
{
    const QString cupsd = programa(QStringLiteral("cupsd"));
    if (cupsd.isEmpty())
        return QStringLiteral("cupsd is not installed (Debian package cups-daemon)");
    if (m_puerto == 0 || !m_dir.isValid())
        return QStringLiteral("no free port or no temporary folder");
    if (const QString fallo = escribirConfiguracion(); !fallo.isEmpty())
        return fallo;
    m_cupsd = std::make_unique<QProcess>();
    m_cupsd->setProcessChannelMode(QProcess::MergedChannels);
    m_cupsd->setStandardOutputFile(ruta(QStringLiteral("log/cupsd.out")));
    // -f: in the foreground, a child of the test, so that it ends with it.
    m_cupsd->start(cupsd, {QStringLiteral("-f"), QStringLiteral("-c"),
                           ruta(QStringLiteral("conf/cupsd.conf")), QStringLiteral("-s"),
                           ruta(QStringLiteral("conf/cups-files.conf"))});
    if (!m_cupsd->waitForStarted(10000) || !esperarPuerto(20000)) {
        QFile registro(ruta(QStringLiteral("log/error_log")));
        registro.open(QIODevice::ReadOnly);
        const QString ultimas = QString::fromLocal8Bit(registro.readAll()).right(600).trimmed();
        return QStringLiteral("cupsd did not start on port %1: %2").arg(m_puerto).arg(ultimas);
    }
    return anadirCola(cola);
}

QStringList ColaCups::Trabajos(int cuantos, int ms) const
{
    const QDeadlineTimer plazo(ms);
    QStringList hechos;
    do {
        hechos.clear();
        const QDir carpeta(ruta(QStringLiteral("trabajos")));
        for (const QString& f : carpeta.entryList({QStringLiteral("*.doc")}, QDir::Files, QDir::Name))
            hechos << carpeta.filePath(f);
        if (hechos.size() >= cuantos)
            break;
        QTest::qWait(100);
    } while (!plazo.hasExpired());
    return hechos;
}

void ColaCups::Vaciar() const
{
    const QDir carpeta(ruta(QStringLiteral("trabajos")));
    for (const QString& f : carpeta.entryList({QStringLiteral("*.doc")}, QDir::Files))
        QFile::remove(carpeta.filePath(f));
}
