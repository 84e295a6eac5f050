#include "servicios/Conexion.h"

#include "plataforma/Fallo.h"
#include "plataforma/Proceso.h"
#include "servicios/MotorAlmacenes.h"

#include <QFileInfo>
#include <QSqlError>
#include <QThread>

namespace {
QString nombreConexion(const QString& ruta, bool lectura)
{
    const auto hilo = reinterpret_cast<quintptr>(QThread::currentThreadId());
    return QStringLiteral("%1|%2|%3").arg(lectura ? QStringLiteral("lec") : QStringLiteral("mod"),
                                          QFileInfo(ruta).absoluteFilePath())
        .arg(hilo);
}

[[noreturn]] void fallar(const QString& origen, const QSqlError& error, const QString& contexto)
{
    const int numero = error.nativeErrorCode().toInt();
    throw cFallo(numero ? numero : 3001, origen,
                 contexto.isEmpty() ? error.text() : contexto + QStringLiteral(": ") + error.text());
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
    const QString nombre = nombreConexion(ruta, lectura);
    if (QSqlDatabase::contains(nombre)) {
        QSqlDatabase db = QSqlDatabase::database(nombre, false);
        if (db.isOpen() && QFileInfo::exists(ruta))
            return db;
        db.close();
    }
    if (!crear && !QFileInfo::exists(ruta))
        throw cFallo(3024, origen, QStringLiteral("No se encuentra el archivo '%1'.").arg(ruta));
    const Motor& motor = MotorDeLosAlmacenes();
    const Acceso acceso = lectura ? Acceso::Lectura : Acceso::Escritura;
    QSqlDatabase db = motor.Definir(nombre, ruta, acceso);
    if (!db.open())
        fallar(origen, db.lastError(), ruta);
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
            MotorDeLosAlmacenes().AntesDeCerrar(db);
        // Closing finalizes the statements the stores still hold.
        db.close();
    }
}

void Cerrar(const QString& ruta)
{
    const QString absoluta = QFileInfo(ruta).absoluteFilePath();
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
    if (!q.prepare(sql))
        fallar(origen, q.lastError(), sql);
    for (const QVariant& v : valores)
        q.addBindValue(v);
    if (!q.exec())
        fallar(origen, q.lastError(), sql);
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
    QSqlQuery q(m_db);
    if (!q.exec(MotorDeLosAlmacenes().InicioEscritura()))
        fallar(m_origen, q.lastError(), QStringLiteral("BEGIN"));
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
        fallar(m_origen, q.lastError(), QStringLiteral("COMMIT"));
    m_abierta = false;
}
