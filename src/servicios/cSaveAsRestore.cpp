#include "servicios/cSaveAsRestore.h"

#include "paneles/dialogos/DialogoFichero.h"
#include "plataforma/Fallo.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QUuid>
#include <filesystem>
#include <system_error>

namespace {
const QString kOrigen = QStringLiteral("SvrNoraComunLib.cSaveAsRestore");

QString unir(const QString& ruta, const QString& archivo)
{
    if (ruta.isEmpty() || ruta.endsWith(QLatin1Char('/')) || ruta.endsWith(QLatin1Char('\\')))
        return ruta + archivo;
    return ruta + QLatin1Char('/') + archivo;
}

// A file name beside `destino` that nobody uses, removed on leaving the scope unless it has
// been renamed into place.
class Temporal {
public:
    explicit Temporal(const QString& destino)
    {
        const QFileInfo info(destino);
        do {
            m_ruta = info.absolutePath() + QStringLiteral("/.") + info.fileName()
                + QStringLiteral(".") + QUuid::createUuid().toString(QUuid::Id128).left(12)
                + QStringLiteral(".tmp");
        } while (QFileInfo::exists(m_ruta));
    }
    ~Temporal()
    {
        if (!m_colocado)
            QFile::remove(m_ruta);
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
    bool m_colocado = false;
};

// A connection of its own to a file that is only read, removed on leaving the scope, so that
// the chosen backup is never held open and never joins the stores' cache.
class Lectura {
public:
    explicit Lectura(const QString& ruta)
        : m_nombre(QStringLiteral("copia-") + QUuid::createUuid().toString(QUuid::Id128))
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_nombre);
        db.setDatabaseName(ruta);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=10000"));
        if (!db.open())
            throw cFallo(3049, kOrigen, ruta + QStringLiteral(": ") + db.lastError().text());
    }
    ~Lectura()
    {
        {
            QSqlDatabase db = QSqlDatabase::database(m_nombre, false);
            db.close();
        }
        QSqlDatabase::removeDatabase(m_nombre);
    }
    Lectura(const Lectura&) = delete;
    Lectura& operator=(const Lectura&) = delete;

    QSqlDatabase db() const { return QSqlDatabase::database(m_nombre, false); }

private:
    QString m_nombre;
};

// SQLite writes a consistent copy of the database, WAL included, even while other
// connections use it. The target must not exist.
void copiar(const QSqlDatabase& db, const QString& destino)
{
    Ejecutar(db, QStringLiteral("VACUUM INTO ?"), {destino}, kOrigen);
}

bool esIdentificador(const QString& nombre)
{
    static const QRegularExpression patron(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    return patron.match(nombre).hasMatch();
}

enum class Veredicto { Valida, Ajena, Posterior };

Veredicto examinar(const QString& ruta, qint32 marca)
{
    const Esquema::Reconocimiento r = Esquema::Reconocer(ruta, kOrigen, marca);
    if (r.clase != Esquema::Clase::Propia)
        return Veredicto::Ajena;
    if (r.version > Esquema::VersionActual())
        return Veredicto::Posterior;
    return Veredicto::Valida;
}

// Copies the chosen file to `temporal` and checks the copy: the very bytes that will be
// renamed into place are the ones checked. A file that cannot be read, or is damaged on the
// way, is not a usable backup.
Veredicto prepararCopia(const QString& origen, const QString& temporal, qint32 marca)
{
    try {
        const Veredicto previo = examinar(origen, marca);
        if (previo != Veredicto::Valida)
            return previo;
        {
            Lectura lectura(origen);
            copiar(lectura.db(), temporal);
        }
        const Veredicto copia = examinar(temporal, marca);
        if (copia != Veredicto::Valida)
            return copia;
        Lectura lectura(temporal);
        const QString integridad =
            Escalar(lectura.db(), QStringLiteral("PRAGMA integrity_check"), {}, kOrigen)
                .toString();
        return integridad == QLatin1String("ok") ? Veredicto::Valida : Veredicto::Ajena;
    } catch (const cFallo&) {
        return Veredicto::Ajena;
    }
}

// Brings everything written to the live file into the file itself and closes this program's
// connections to it. Answers false when its write-ahead log still holds data afterwards
// (another running instance is writing): replacing the file then would lose that data.
bool soltarBaseViva(const QString& ruta)
{
    if (QFileInfo::exists(ruta)) {
        try {
            const QSqlDatabase db = Conexion::Modificable(ruta, kOrigen);
            QSqlQuery q(db);
            q.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
        } catch (const cFallo&) {
            // A live file that cannot even be opened has nothing to bring in.
        }
    }
    Conexion::Cerrar(ruta);
    const QFileInfo wal(ruta + QStringLiteral("-wal"));
    if (wal.exists() && wal.size() > 0)
        return false;
    // An empty log and the shared-memory index are left over from the closed connections;
    // they must not outlive the file they belong to.
    QFile::remove(ruta + QStringLiteral("-wal"));
    QFile::remove(ruta + QStringLiteral("-shm"));
    return true;
}
}  // namespace

QString cSaveAsRestore::texto(int id) const
{
    return TextoFila(id + (Idioma != 0 ? 10000 : 0));
}

QString cSaveAsRestore::segunIdioma(const QString& es, const QString& eu) const
{
    return Idioma != 0 ? eu : es;
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

bool cSaveAsRestore::CrearBackup() const
{
    const QString origen = unir(RutaOrigen, ArchivoOrigen);
    const QString destino = unir(RutaDestino, ArchivoDestino);
    if (QFileInfo::exists(destino)
        && Mensaje(texto(337), vb::Question | vb::YesNo | vb::DefaultButton2, texto(349))
            != vb::Yes)
        return false;
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
        Mensaje(texto(338), vb::Critical, texto(339));
        return false;
    }
    Mensaje(segunIdioma(QStringLiteral("La copia de seguridad se ha realizado correctamente."),
                        QStringLiteral("Segurtasun kopia ondo egin da.")),
            vb::Information, texto(349));
    return true;
}

bool cSaveAsRestore::CrearRestore() const
{
    QString origen = unir(RutaOrigen, ArchivoOrigen);
    const QString destino = unir(RutaDestino, ArchivoDestino);
    if (!QFileInfo(origen).isFile()) {
        // No backup where this program keeps it: the user may point at a copy kept elsewhere.
        origen = DialogoAbrirFichero(Parent, texto(359), RutaOrigen, FiltroDialogo(Filtro));
        if (origen.isEmpty())
            return false;
    }
    if (!QDir().mkpath(QFileInfo(destino).absolutePath()))
        throw cFallo(76, kOrigen, QStringLiteral("No se puede crear la carpeta de ") + destino);

    Temporal temporal(destino);
    switch (prepararCopia(origen, temporal.ruta(), marca())) {
    case Veredicto::Valida:
        break;
    case Veredicto::Posterior:
        Mensaje(segunIdioma(QStringLiteral("La copia de seguridad procede de una versión más "
                                           "moderna del programa y no se puede restaurar con "
                                           "esta versión."),
                            QStringLiteral("Segurtasun kopia programaren bertsio berriago "
                                           "batekoa da, eta ezin da bertsio honekin "
                                           "leheneratu.")),
                vb::Exclamation, texto(341));
        return false;
    case Veredicto::Ajena:
        Mensaje(segunIdioma(QStringLiteral("El archivo elegido no es una copia de seguridad de "
                                           "la base de datos de este programa, o está dañado. "
                                           "No se ha restaurado nada."),
                            QStringLiteral("Aukeratutako fitxategia ez da programa honen datu "
                                           "basearen segurtasun kopia bat, edo hondatuta dago. "
                                           "Ez da ezer leheneratu.")),
                vb::Exclamation, texto(341));
        return false;
    }

    if (Mensaje(texto(340), vb::Question | vb::YesNo | vb::DefaultButton2, texto(341)) != vb::Yes)
        return false;

    const QString fallo = segunIdioma(
        QStringLiteral("No se ha podido restaurar la base de datos. Sus datos no se han "
                       "modificado."),
        QStringLiteral("Ezin izan da datu basea leheneratu. Zure datuak ez dira aldatu."));
    if (!soltarBaseViva(destino)) {
        Mensaje(fallo, vb::Critical, texto(341));
        return false;
    }
    try {
        temporal.colocar(destino);
    } catch (const cFallo&) {
        Mensaje(fallo, vb::Critical, texto(341));
        return false;
    }
    Mensaje(segunIdioma(QStringLiteral("La base de datos se ha restaurado correctamente."),
                        QStringLiteral("Datu basea ondo leheneratu da.")),
            vb::Information, texto(341));
    return true;
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
