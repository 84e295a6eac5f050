#include "servicios/RevisionAlmacen.h"

#include "servicios/MotorAlmacenes.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSysInfo>
#include <QUuid>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#endif

namespace {

// The marks of running copies beside the store at `ruta`.
QStringList marcas(const QString& ruta)
{
    const QFileInfo info(ruta);
    const QRegularExpression patron(QStringLiteral("^\\.") + QRegularExpression::escape(info.fileName())
                                    + QStringLiteral("\\.[0-9a-f]{12}\\.abierta$"));
    QStringList lista;
    const QDir dir = info.absoluteDir();
    for (const QString& f : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        if (patron.match(f).hasMatch())
            lista << dir.filePath(f);
    return lista;
}

// Whether the copy that made a mark has ended, judged without touching the mark: its process
// is gone from this machine, or the mark says nothing of it.
bool abandonada(const QString& marca)
{
    qint64 pid = 0;
    QString maquina;
    QString aplicacion;
    QLockFile cerrojo(marca);
    if (!cerrojo.getLockInfo(&pid, &maquina, &aplicacion) || pid <= 0)
        return true;
    if (!maquina.isEmpty() && maquina != QSysInfo::machineHostName())
        return false;  // a copy running on another machine over a shared folder
#ifdef Q_OS_UNIX
    return ::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH;
#else
    return false;
#endif
}

}  // namespace

namespace RevisionAlmacen {

bool Sana(const QString& ruta, bool completa)
{
    return MotorDeLosAlmacenes().Sana(ruta, completa);
}

bool ReferenciaLegible(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (!info.isFile() || !info.isReadable())
        return false;
    ConexionPropia conexion(ruta, ConexionPropia::Modo::Lectura);
    if (!conexion.abierta())
        return false;
    QSqlQuery q(conexion.db());
    return q.exec(QStringLiteral("SELECT COUNT(*) FROM T10_GENERAL")) && q.next();
}

bool FinSucio(const QString& ruta)
{
    for (const QString& m : marcas(ruta))
        if (abandonada(m))
            return true;
    return false;
}

Sesion::Sesion(const QString& ruta)
{
    for (const QString& m : marcas(ruta)) {
        if (!abandonada(m))
            continue;
        QLockFile vieja(m);
        vieja.setStaleLockTime(0);
        if (vieja.tryLock(0))
            vieja.unlock();
    }
    const QFileInfo info(ruta);
    const QString nombre = info.absolutePath() + QStringLiteral("/.") + info.fileName()
        + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128).left(12)
        + QStringLiteral(".abierta");
    m_marca = std::make_unique<QLockFile>(nombre);
    m_marca->setStaleLockTime(0);
    // A folder that cannot be written keeps no mark: the next start then makes the quick check.
    if (!m_marca->tryLock(0))
        m_marca.reset();
}

Sesion::~Sesion()
{
    if (m_marca)
        m_marca->unlock();
}

}  // namespace RevisionAlmacen
