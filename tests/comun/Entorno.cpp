#include "comun/Entorno.h"

#include "paneles/dialogos/DialogoFichero.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/Navegador.h"
#include "plataforma/Proceso.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QTest>

CarpetaDePrueba::CarpetaDePrueba() : m_dir(std::make_unique<QTemporaryDir>())
{
    QDir(m_dir->path()).mkpath(QStringLiteral("Tablas"));
    const QString lec = tablas() + QStringLiteral("VELDOLEC.mdb");
    if (!QFile::copy(QStringLiteral(VELDO_LEC_GENERADA), lec))
        qFatal("No se encuentra la base de referencia generada: %s", VELDO_LEC_GENERADA);
    EstablecerCarpetaPrograma(ruta());
    mdbPath = tablas();
    mdbmod = mdbPath + QStringLiteral("VELDOMOD.mdb");
    mdblec = lec;
}

CarpetaDePrueba::~CarpetaDePrueba()
{
    // Connections kept by the stores are named after their file; drop those of this folder.
    for (const QString& nombre : QSqlDatabase::connectionNames()) {
        if (nombre.contains(m_dir->path())) {
            QSqlDatabase::database(nombre, false).close();
            QSqlDatabase::removeDatabase(nombre);
        }
    }
}

QString CarpetaDePrueba::ruta() const { return QDir::cleanPath(m_dir->path()); }
QString CarpetaDePrueba::tablas() const { return ruta() + QStringLiteral("/Tablas/"); }

void GrabarSeams()
{
    MensajeSeam::grabar(true);
    DialogoFicheroSeam::grabar(true);
    ProcesoSeam::grabar(true);
    NavegadorSeam::grabar(true);
}

QString CarpetaFuentes() { return QStringLiteral(VELDO_FUENTES); }
