#include "servicios/Conexion.h"

#include "plataforma/Fallo.h"
#include "plataforma/Proceso.h"
#include "servicios/MotorAlmacenes.h"

#include <QFileInfo>
#include <QSqlError>
#include <QThread>

namespace {
// The engine of a store: the reference data are always the embedded engine's file beside
// the program.
const Motor& motorDe(bool lectura)
{
    return lectura ? MotorEmbebido() : MotorDeLosAlmacenes();
}

QString nombreConexion(const QString& ruta, bool lectura)
{
    const auto hilo = reinterpret_cast<quintptr>(QThread::currentThreadId());
    return QStringLiteral("%1|%2|%3").arg(lectura ? QStringLiteral("lec") : QStringLiteral("mod"),
                                          motorDe(lectura).Clave(ruta))
        .arg(hilo);
}

[[noreturn]] void fallar(const QSqlDatabase& db, const QString& origen, const QSqlError& error,
                         const QString& contexto)
{
    throw MotorDe(db).FalloDe(db, error, contexto, origen);
}

// The stores' own connections, read/write (`mod`) or reference (`lec`).
bool esDeLosAlmacenes(const QString& nombre)
{
    const QString clase = nombre.section(QLatin1Char('|'), 0, 0);
    return nombre.count(QLatin1Char('|')) == 2
           && (clase == QLatin1String("mod") || clase == QLatin1String("lec"));
}

QSqlDatabase abrir(const QString& ruta, bool lectura, const QString& origen, bool crear)
{
    const Motor& motor = motorDe(lectura);
    const QString nombre = nombreConexion(ruta, lectura);
    if (QSqlDatabase::contains(nombre)) {
        {
            QSqlDatabase db = QSqlDatabase::database(nombre, false);
            if (db.isOpen() && motor.Existe(ruta))
                return db;
            db.close();
        }
        // Made anew, with a driver of its own: the statements kept on the former one
        // (SentenciaPreparada) are compiled again, as a server forgets them with the session.
        QSqlDatabase::removeDatabase(nombre);
    }
    if (!crear && !motor.Existe(ruta))
        throw cFallo(3024, origen, QStringLiteral("No se encuentra el archivo '%1'.").arg(ruta));
    const Acceso acceso = lectura ? Acceso::Lectura : Acceso::Escritura;
    QSqlDatabase db = motor.Definir(nombre, ruta, acceso);
    if (!db.open())
        fallar(db, origen, db.lastError(), ruta);
    // The program ends without unwinding; its journal is folded back into the file first.
    static const bool alTerminar = [] {
        Proceso::AlTerminarBien(&Conexion::CerrarTodas);
        return true;
    }();
    Q_UNUSED(alTerminar);
    // The searches' folding function, and the engine's settings of a connection that writes.
    motor.Preparar(db, acceso, origen);
    return db;
}
}

namespace Conexion {
QSqlDatabase Modificable(const QString& ruta, const QString& origen, bool crear)
{
    return abrir(ruta, false, origen, crear);
}

QSqlDatabase Lectura(const QString& ruta, const QString& origen)
{
    return abrir(ruta, true, origen, false);
}

void CerrarTodas()
{
    for (const QString& nombre : QSqlDatabase::connectionNames()) {
        if (!esDeLosAlmacenes(nombre))
            continue;
        QSqlDatabase db = QSqlDatabase::database(nombre, false);
        if (!db.isOpen())
            continue;
        // What the engine keeps aside goes into the store first, without waiting for other
        // running copies: the program's end is never held up by another copy.
        if (nombre.startsWith(QLatin1String("mod|")))
            MotorDe(db).AntesDeCerrar(db);
        // Closing finalizes the statements the stores still hold.
        db.close();
    }
}

void Cerrar(const QString& ruta)
{
    const QString absoluta = MotorDeLosAlmacenes().Clave(ruta);
    for (const QString& nombre : QSqlDatabase::connectionNames()) {
        if (nombre.section(QLatin1Char('|'), 1, 1) == absoluta) {
            QSqlDatabase::database(nombre, false).close();
            QSqlDatabase::removeDatabase(nombre);
        }
    }
}
}

QSqlQuery Ejecutar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                   const QString& origen)
{
    QSqlQuery q(db);
    q.setForwardOnly(true);
    // A statement without values is sent as it is: a server prepares only statements that
    // read or write rows, not those that make tables.
    if (valores.isEmpty()) {
        if (!q.exec(sql))
            fallar(db, origen, q.lastError(), sql);
        return q;
    }
    if (!q.prepare(sql))
        fallar(db, origen, q.lastError(), sql);
    for (const QVariant& v : valores)
        q.addBindValue(v);
    if (!q.exec())
        fallar(db, origen, q.lastError(), sql);
    return q;
}

QVariant Escalar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                 const QString& origen, const QVariant& siVacio)
{
    QSqlQuery q = Ejecutar(db, sql, valores, origen);
    return q.next() ? q.value(0) : siVacio;
}

Transaccion::Transaccion(QSqlDatabase db, QString origen)
    : m_db(std::move(db)), m_origen(std::move(origen))
{
    // The write lock is taken at once, so two instances never deadlock half-way.
    MotorDe(m_db).EmpezarEscritura(m_db, m_origen);
    m_abierta = true;
}

Transaccion::~Transaccion()
{
    if (m_abierta) {
        QSqlQuery q(m_db);
        q.exec(QStringLiteral("ROLLBACK"));
    }
}

void Transaccion::confirmar()
{
    QSqlQuery q(m_db);
    if (!q.exec(QStringLiteral("COMMIT")))
        fallar(m_db, m_origen, q.lastError(), QStringLiteral("COMMIT"));
    m_abierta = false;
}
