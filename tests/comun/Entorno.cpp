#include "comun/Entorno.h"

#include "plataforma/General.h"
#include "plataforma/Proceso.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSqlDatabase>
#include <QTest>
#include <vector>

namespace {
std::vector<void (*)()>& grabaciones()
{
    static std::vector<void (*)()> lista;
    return lista;
}
}  // namespace

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

void AnadirGrabacionDeSeams(void (*grabar)())
{
    grabaciones().push_back(grabar);
}

void GrabarSeams()
{
    ProcesoSeam::grabar(true);
    for (const auto grabar : grabaciones())
        grabar();
}

QString CarpetaFuentes() { return QStringLiteral(VELDO_FUENTES); }

bool EsperaDe(int medida, int ms)
{
    return medida <= ms && medida > ms - 900;
}

QStringList Contenido(const QString& carpeta)
{
    QStringList rutas;
    QDirIterator it(carpeta, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        rutas.append(it.next());
    rutas.sort();
    return rutas;
}
