#include "servicios/cSaveAsRestore.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/CopiaSaneada.h"
#include "servicios/Esquema.h"
#include "servicios/EstructuraAlmacen.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/sqlite/ArchivoSqlite.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSqlError>
#include <QUuid>
#include <filesystem>
#include <memory>
#include <system_error>

namespace {
const QString kOrigen = QStringLiteral("SvrNoraComunLib.cSaveAsRestore");

QString unir(const QString& ruta, const QString& archivo)
{
    if (ruta.isEmpty() || ruta.endsWith(QLatin1Char('/')) || ruta.endsWith(QLatin1Char('\\')))
        return ruta + archivo;
    return ruta + QLatin1Char('/') + archivo;
}

QString cerrojoDe(const QString& temporal)
{
    return temporal + QStringLiteral(".lock");
}

// The files SQLite may keep beside a database.
void borrarConCompanneros(const QString& ruta)
{
    for (const char* sufijo : {"", "-wal", "-shm", "-journal"})
        QFile::remove(ruta + QLatin1String(sufijo));
}

// A file name beside `destino` that nobody uses, held by a lock file for as long as this object
// lives and removed on leaving the scope unless it has been renamed into place. A copy of the
// program killed half-way leaves both behind; the stale lock tells LimpiarTemporales so.
class Temporal {
public:
    explicit Temporal(const QString& destino)
    {
        const QFileInfo info(destino);
        do {
            m_ruta = info.absolutePath() + QStringLiteral("/.") + info.fileName()
                + QStringLiteral(".") + QUuid::createUuid().toString(QUuid::Id128).left(12)
                + QStringLiteral(".tmp");
        } while (QFileInfo::exists(m_ruta) || QFileInfo::exists(cerrojoDe(m_ruta)));
        m_cerrojo = std::make_unique<QLockFile>(cerrojoDe(m_ruta));
        m_cerrojo->setStaleLockTime(0);
        if (!m_cerrojo->tryLock(0))
            throw cFallo(75, kOrigen, QStringLiteral("No se puede crear ") + cerrojoDe(m_ruta));
    }
    ~Temporal()
    {
        if (!m_colocado)
            borrarConCompanneros(m_ruta);
        m_cerrojo->unlock();
    }
    Temporal(const Temporal&) = delete;
    Temporal& operator=(const Temporal&) = delete;

    const QString& ruta() const { return m_ruta; }

    // Renames the file over `destino` in one step (the file system replaces the former one).
    void colocar(const QString& destino)
    {
        std::error_code error;
        std::filesystem::rename(std::filesystem::path(m_ruta.toStdU16String()),
                                std::filesystem::path(destino.toStdU16String()), error);
        if (error)
            throw cFallo(75, kOrigen,
                         QStringLiteral("No se puede sustituir %1: %2")
                             .arg(destino, QString::fromLocal8Bit(error.message().c_str())));
        m_colocado = true;
    }

private:
    QString m_ruta;
    std::unique_ptr<QLockFile> m_cerrojo;
    bool m_colocado = false;
};

// The engine writes a consistent copy of the database, even while other connections use it.
// The target must not exist.
void copiar(const QSqlDatabase& db, const QString& destino)
{
    MotorDe(db).CopiarEnArchivo(db, destino, kOrigen);
}

bool esIdentificador(const QString& nombre)
{
    static const QRegularExpression patron(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    return patron.match(nombre).hasMatch();
}

using Examen = cSaveAsRestore::Examen;

// The file by itself, read-only: its mark and layout number, then its shape (the program's
// objects of that layout and nothing else) and every page (integrity). A file that cannot be
// read is not a usable backup. Its rows are judged when they are carried over (CopiaSaneada).
Examen examinar(const QString& ruta, qint32 marca)
{
    try {
        const Esquema::Reconocimiento r = Esquema::Reconocer(ruta, kOrigen, marca);
        if (r.clase != Esquema::Clase::Propia)
            return Examen::Ajena;
        if (r.version > Esquema::VersionActual())
            return Examen::Posterior;
        ConexionPropia lectura(ruta, ConexionPropia::Modo::Lectura);
        lectura.ExigirAbierta(kOrigen);
        if (EstructuraAlmacen::De(lectura.db(), QStringLiteral("main"), kOrigen)
            != EstructuraAlmacen::DeReferencia(r.version, kOrigen))
            return Examen::Ajena;
        if (!ArchivoSqlite::Entero(lectura.db(), QStringLiteral("main"), kOrigen))
            return Examen::Ajena;
        return Examen::Valida;
    } catch (const cFallo&) {
        return Examen::Ajena;
    }
}

// The live database as it is now, kept under `carpeta` with the date and time in its name. The
// caller holds the live file's write lock: the copy is read through a connection of its own,
// which sees every save committed before the lock was taken and none can come after.
QString guardarCopiaPrevia(const QString& viva, const QString& carpeta)
{
    if (!QDir().mkpath(carpeta))
        throw cFallo(76, kOrigen, QStringLiteral("No se puede crear la carpeta ") + carpeta);
    const QString base = unir(carpeta, QFileInfo(viva).completeBaseName() + QLatin1Char('_')
                                           + QDateTime::currentDateTime().toString(
                                               QStringLiteral("yyyyMMdd_HHmmss")));
    QString nombre = base + QStringLiteral(".mdb");
    for (int n = 2; QFileInfo::exists(nombre); ++n)
        nombre = base + QStringLiteral("_%1.mdb").arg(n);
    ConexionPropia lectura(viva, ConexionPropia::Modo::Lectura);
    lectura.ExigirAbierta(kOrigen);
    Temporal temporal(nombre);
    copiar(lectura.db(), temporal.ruta());
    temporal.colocar(nombre);
    return nombre;
}

// A backup of an older layout is brought to the current one in its checked copy, before that
// copy replaces the live content: the running copies of the program go on writing the current
// layout (the rows' versions among it) into the restored store.
void alLayoutActual(const QString& ruta)
{
    ConexionPropia conexion(ruta, ConexionPropia::Modo::Escritura);
    conexion.ExigirAbierta(kOrigen);
    const QSqlDatabase db = conexion.db();
    const int version = Esquema::VersionDe(db, kOrigen);
    if (version >= Esquema::VersionActual())
        return;
    Transaccion transaccion(db, kOrigen);
    Esquema::Migrar(db, version, kOrigen);
    transaccion.confirmar();
}

// Under one write lock of the live file: the dated safety copy of what it holds, then its
// content replaced by the clean copy's. A second running copy of the program that saves
// meanwhile waits for the lock: what it saved before is in the safety copy, what it saves
// after is in the restored data. Answers the safety copy's name ("" when there was no live
// file); a failure leaves the live data as they were and no safety copy.
QString restaurarEnVivo(const QString& viva, const QString& copia, const QString& carpetaCopias,
                        bool conPrevia)
{
    ConexionPropia conexion(viva, ConexionPropia::Modo::Escritura);
    conexion.ExigirAbierta(kOrigen);
    const QSqlDatabase db = conexion.db();
    QString previa;
    try {
        MotorDe(db).SustituirContenido(
            db, copia,
            [&] {
                if (conPrevia)
                    previa = guardarCopiaPrevia(viva, carpetaCopias);
            },
            kOrigen);
    } catch (const cFallo&) {
        if (!previa.isEmpty())
            QFile::remove(previa);
        throw;
    }
    return previa;
}
}  // namespace

QString cSaveAsRestore::Origen() const
{
    return unir(RutaOrigen, ArchivoOrigen);
}

QString cSaveAsRestore::Destino() const
{
    return unir(RutaDestino, ArchivoDestino);
}

bool cSaveAsRestore::ExisteDestino() const
{
    return QFileInfo::exists(Destino());
}

qint32 cSaveAsRestore::marca() const
{
    if (BDLectura.isEmpty())
        return Esquema::MarcaAplicacion;
    if (!esIdentificador(BDTabla) || !esIdentificador(BDCampo))
        throw cFallo(3265, kOrigen,
                     QStringLiteral("Tabla o campo no válido: %1.%2").arg(BDTabla, BDCampo));
    const QSqlDatabase db = Conexion::Lectura(BDLectura, kOrigen);
    // Identifiers cannot be bound; both have been checked to be plain names.
    const QVariant valor = Escalar(
        db, QStringLiteral("SELECT \"%1\" FROM \"%2\"").arg(BDCampo, BDTabla), {}, kOrigen);
    bool ok = false;
    const qint64 numero = valor.toLongLong(&ok);
    if (!ok)
        throw cFallo(3021, kOrigen,
                     QStringLiteral("%1.%2 no tiene la marca de la base de datos.")
                         .arg(BDTabla, BDCampo));
    return static_cast<qint32>(numero);
}

bool cSaveAsRestore::Copiar() const
{
    const QString origen = Origen();
    const QString destino = Destino();
    try {
        if (!QDir().mkpath(QFileInfo(destino).absolutePath()))
            throw cFallo(76, kOrigen, QStringLiteral("No se puede crear la carpeta de ") + destino);
        if (!QFileInfo(origen).isFile())
            throw cFallo(53, kOrigen, QStringLiteral("No se encuentra ") + origen);
        const QSqlDatabase db = Conexion::Modificable(origen, kOrigen);
        Temporal temporal(destino);
        copiar(db, temporal.ruta());
        temporal.colocar(destino);
    } catch (const cFallo&) {
        return false;
    }
    return true;
}

cSaveAsRestore::Examen cSaveAsRestore::Examinar(const QString& archivo) const
{
    return examinar(archivo, marca());
}

cSaveAsRestore::Restauracion cSaveAsRestore::Restaurar(const QString& archivo) const
{
    const QString destino = Destino();
    Restauracion resultado;
    try {
        const Esquema::Reconocimiento r = Esquema::Reconocer(archivo, kOrigen, marca());
        if (r.clase != Esquema::Clase::Propia)
            return resultado;
        if (r.version > Esquema::VersionActual()) {
            resultado.examen = Examen::Posterior;
            return resultado;
        }
        // From here on a refusal is the work's, not the file's, unless the rows refuse it.
        resultado.examen = Examen::Valida;
        if (!QDir().mkpath(QFileInfo(destino).absolutePath()))
            throw cFallo(76, kOrigen, QStringLiteral("No se puede crear la carpeta de ") + destino);
        LimpiarTemporales(QFileInfo(destino).absolutePath());
        LimpiarTemporales(RutaOrigen);
        const QFileInfo viva(destino);
        if (viva.exists() && !viva.isFile())
            return resultado;
        // The file's rows in the program's own tables, checked: these very bytes go into the
        // live file. The long work is done here, before the live file is locked.
        Temporal temporal(destino);
        if (!CopiaSaneada::Construir(archivo, temporal.ruta(), r.version, kOrigen)) {
            resultado.examen = Examen::Ajena;
            return resultado;
        }
        // An older layout is brought to the current one in the clean copy, before the lock.
        alLayoutActual(temporal.ruta());
        resultado.copiaPrevia = restaurarEnVivo(destino, temporal.ruta(), RutaOrigen, viva.exists());
        resultado.hecha = true;
    } catch (const cFallo&) {
        resultado.hecha = false;
    }
    return resultado;
}

int cSaveAsRestore::LimpiarTemporales(const QString& carpeta)
{
    static const QRegularExpression patron(QStringLiteral("^\\..+\\.[0-9a-f]{12}\\.tmp$"));
    int quitados = 0;
    const QDir dir(carpeta);
    for (const QString& f : dir.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (!patron.match(f).hasMatch())
            continue;
        const QString ruta = dir.filePath(f);
        QLockFile cerrojo(cerrojoDe(ruta));
        cerrojo.setStaleLockTime(0);
        // A lock held by a running copy of the program cannot be taken: its file stays.
        if (!cerrojo.tryLock(0))
            continue;
        borrarConCompanneros(ruta);
        cerrojo.unlock();
        ++quitados;
    }
    return quitados;
}

QString cSaveAsRestore::FiltroDialogo(const QString& filtro)
{
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QString descripcion = partes[i];
        const qsizetype parentesis = descripcion.indexOf(QLatin1Char('('));
        if (parentesis >= 0)
            descripcion = descripcion.left(parentesis);
        QStringList patrones;
        for (QString p : partes[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            p = p.trimmed();
            if (!p.contains(QLatin1Char('*')) && !p.contains(QLatin1Char('.')))
                p = QStringLiteral("*.") + p;  // "mdb" stands for "*.mdb"
            if (!patrones.contains(p))
                patrones << p;
        }
        filtros << descripcion.trimmed() + QStringLiteral(" (") + patrones.join(QLatin1Char(' '))
                + QLatin1Char(')');
    }
    return filtros.join(QStringLiteral(";;"));
}
