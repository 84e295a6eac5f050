#pragma once
// The embedded engine: each store is one SQLite file, reached through Qt's driver and, where
// the driver costs too much or cannot go, through SQLite's own C interface on the same
// connection.
#include "servicios/motor/Motor.h"

class MotorSqlite final : public Motor {
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
