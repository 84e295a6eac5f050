#include "aplicacion/TraduccionesQt.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QStringList>
#include <QTranslator>
#include <memory>

namespace {
std::unique_ptr<QTranslator>& instalada()
{
    static std::unique_ptr<QTranslator> traductor;
    return traductor;
}
}  // namespace

QString CargarTraduccionesQt()
{
    if (instalada()) {
        QCoreApplication::removeTranslator(instalada().get());
        instalada().reset();
    }
    const QString carpeta = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const QStringList candidatas = IdiomaPrograma().esEuskera()
        ? QStringList{QStringLiteral("qtbase_eu"), QStringLiteral("qtbase_es")}
        : QStringList{QStringLiteral("qtbase_es")};
    for (const QString& nombre : candidatas) {
        auto traductor = std::make_unique<QTranslator>();
        if (traductor->load(nombre, carpeta)) {
            QCoreApplication::installTranslator(traductor.get());
            instalada() = std::move(traductor);
            return nombre;
        }
    }
    return {};
}
