#pragma once
// An office's engine: the stores' read/write data on a PostgreSQL server shared by several
// seats, reached through Qt's driver (QPSQL). The place of the store is a service name or a
// connection string (ConexionPostgres.h).
//
// The layout is the embedded store's, in the server's words (Dialecto): the codes come from
// sequences, amounts are 64-bit floats, dates whole numbers, names and numbers compare without
// regard to case through a caseless collation of the server's own. The program's mark and the
// layout's number live in a table of their own (veldo_motor_almacen), the searches' folding is
// the immutable SQL function PLEGAR with an index on it for each searched column. Every write
// transaction takes one lock of the database first, so that the seats write one after another
// as copies of the program do on the embedded store.
#include "servicios/motor/Motor.h"

class MotorPostgres final : public Motor {
public:
    QString Nombre() const override;
    QString Controlador() const override;
    QString AvisoArranque() const override;
    QString Clave(const QString& ubicacion) const override;
    bool Existe(const QString& ubicacion) const override;
    cFallo FalloDe(const QSqlDatabase& db, const QSqlError& error, const QString& contexto,
                   const QString& origen) const override;
    QSqlDatabase Definir(const QString& nombre, const QString& ubicacion,
                         Acceso acceso) const override;
    void Preparar(const QSqlDatabase& db, Acceso acceso, const QString& origen) const override;
    void AntesDeCerrar(const QSqlDatabase& db) const override;
    void EmpezarEscritura(const QSqlDatabase& db, const QString& origen) const override;
    qint32 MarcaDe(const QSqlDatabase& db, const QString& origen) const override;
    int VersionDe(const QSqlDatabase& db, const QString& origen) const override;
    void Sellar(const QSqlDatabase& db, qint32 marca, int version,
                const QString& origen) const override;
    Dialecto DialectoEsquema() const override;
    void AntesDeDisponer(const QSqlDatabase& db, const QString& origen) const override;
    void TrasDisponer(const QSqlDatabase& db, const QString& origen) const override;
    QStringList Tablas(const QSqlDatabase& db, const QString& origen) const override;
    QStringList Columnas(const QSqlDatabase& db, const QString& tabla,
                         const QString& origen) const override;
    int Objetos(const QSqlDatabase& db, const QString& origen) const override;
    void ExigirReferencias(const QSqlDatabase& db, bool exigir,
                           const QString& origen) const override;
    std::optional<ReferenciaRota> PrimeraReferenciaRota(const QSqlDatabase& db,
                                                        const QString& origen) const override;
    std::unique_ptr<SentenciaMotor> Compilar(const QSqlDatabase& db, const QString& sql,
                                             const QString& origen) const override;
    QString CondicionPrefijo(const QString& columna, const QString& prefijo,
                             QVariantList& valores) const override;
    void CopiarEnArchivo(const QSqlDatabase& db, const QString& destino,
                         const QString& origen) const override;
    void SustituirContenido(const QSqlDatabase& db, const QString& copia,
                            const std::function<void()>& antes,
                            const QString& origen) const override;
    bool Sana(const QString& ubicacion, bool completa) const override;
};
