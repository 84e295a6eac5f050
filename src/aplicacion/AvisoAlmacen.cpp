#include "aplicacion/AvisoAlmacen.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

#include <QDir>
#include <QFileInfo>

namespace {
using Impedimento = cTraspaso::Impedimento;

struct Aviso {
    QString es;
    QString eu;
};

// The name of the Utilities menu in one language, without its access key.
QString menuUtilidades(bool euskera)
{
    return TextoFila(kIdMenuUtilidades + (euskera ? 10000 : 0)).remove(QLatin1Char('&'));
}

// Renaming the file lets the program start on a new, empty database, where a backup can be
// restored.
Aviso apartarYRestaurar(const QString& que_es, const QString& que_eu)
{
    return {
        QStringLiteral("Cambie el nombre de %1 (o muévalo a otra carpeta) y vuelva a abrir el "
                       "programa: creará una base de datos nueva, vacía, en la que podrá "
                       "restaurar su copia de seguridad desde el menú %2.")
            .arg(que_es, menuUtilidades(false)),
        QStringLiteral("Aldatu %1 izena (edo eraman beste karpeta batera) eta ireki berriro "
                       "programa: datu base berri bat sortuko du, hutsik, eta bertan zure "
                       "segurtasun kopia leheneratu ahal izango duzu %2 menutik.")
            .arg(que_eu, menuUtilidades(true)),
    };
}

Aviso problema(Impedimento impedimento, const QString& ruta, const QString& carpeta)
{
    switch (impedimento) {
    case Impedimento::Posterior:
        return {QStringLiteral("La base de datos %1 es de una versión más moderna del programa, "
                               "y esta versión no puede usarla.").arg(ruta),
                QStringLiteral("%1 datu basea programaren bertsio berriago batekoa da, eta "
                               "bertsio honek ezin du erabili.").arg(ruta)};
    case Impedimento::Carpeta:
        return {QStringLiteral("En el lugar de la base de datos %1 hay una carpeta.").arg(ruta),
                QStringLiteral("%1 datu basearen lekuan karpeta bat dago.").arg(ruta)};
    case Impedimento::SoloLectura:
        return {QStringLiteral("La base de datos %1 es de solo lectura, y el programa necesita "
                               "guardar en ella.").arg(ruta),
                QStringLiteral("%1 datu basea irakurtzeko soilik da, eta programak bertan gorde "
                               "behar du.").arg(ruta)};
    case Impedimento::CarpetaSoloLectura:
        return {QStringLiteral("La carpeta %1 es de solo lectura, y el programa necesita escribir "
                               "en ella la base de datos y sus archivos de trabajo.").arg(carpeta),
                QStringLiteral("%1 karpeta irakurtzeko soilik da, eta programak bertan idatzi "
                               "behar ditu datu basea eta bere lan fitxategiak.").arg(carpeta)};
    case Impedimento::EnlaceRoto:
        return {QStringLiteral("En el lugar de la base de datos %1 hay un enlace a un archivo que "
                               "no existe.").arg(ruta),
                QStringLiteral("%1 datu basearen lekuan existitzen ez den fitxategi baterako "
                               "esteka bat dago.").arg(ruta)};
    case Impedimento::Ajena:
        return {QStringLiteral("El archivo %1 no es una base de datos de este programa.").arg(ruta),
                QStringLiteral("%1 fitxategia ez da programa honen datu base bat.").arg(ruta)};
    case Impedimento::Danada:
    case Impedimento::Ninguno:
        break;
    }
    return {QStringLiteral("La base de datos %1 está dañada y el programa no puede abrirla.").arg(ruta),
            QStringLiteral("%1 datu basea hondatuta dago, eta programak ezin du ireki.").arg(ruta)};
}

Aviso remedio(Impedimento impedimento)
{
    switch (impedimento) {
    case Impedimento::Posterior:
        return {QStringLiteral("Instale la versión más reciente del programa."),
                QStringLiteral("Instalatu programaren bertsiorik berriena.")};
    case Impedimento::Carpeta:
        return apartarYRestaurar(QStringLiteral("esa carpeta"), QStringLiteral("karpeta horren"));
    case Impedimento::EnlaceRoto:
        return {QStringLiteral("Devuelva a su sitio el archivo al que apunta el enlace, o borre el "
                               "enlace para que el programa cree una base de datos nueva, vacía, "
                               "en la que podrá restaurar su copia de seguridad desde el menú %1.")
                    .arg(menuUtilidades(false)),
                QStringLiteral("Itzuli estekak seinalatzen duen fitxategia bere lekura, edo ezabatu "
                               "esteka programak datu base berri bat sor dezan, hutsik, eta bertan "
                               "zure segurtasun kopia leheneratu ahal izango duzu %1 menutik.")
                    .arg(menuUtilidades(true))};
    case Impedimento::SoloLectura:
        return {QStringLiteral("Dé permiso de escritura sobre ese archivo al usuario con el que "
                               "abre el programa y vuelva a abrirlo."),
                QStringLiteral("Eman fitxategi horretan idazteko baimena programa irekitzen duen "
                               "erabiltzaileari, eta ireki berriro programa.")};
    case Impedimento::CarpetaSoloLectura:
        return {QStringLiteral("Dé permiso de escritura sobre esa carpeta al usuario con el que "
                               "abre el programa y vuelva a abrirlo."),
                QStringLiteral("Eman karpeta horretan idazteko baimena programa irekitzen duen "
                               "erabiltzaileari, eta ireki berriro programa.")};
    case Impedimento::Ajena:
    case Impedimento::Danada:
    case Impedimento::Ninguno:
        break;
    }
    return apartarYRestaurar(QStringLiteral("ese archivo"), QStringLiteral("fitxategi horren"));
}
}  // namespace

QString TextoImpedimento(Impedimento impedimento, const QString& ruta)
{
    const QString fichero = QDir::toNativeSeparators(QFileInfo(ruta).absoluteFilePath());
    const QString carpeta = QDir::toNativeSeparators(QFileInfo(ruta).absolutePath());
    const Aviso que = problema(impedimento, fichero, carpeta);
    const Aviso hacer = remedio(impedimento);
    return que.es + QLatin1Char(' ') + hacer.es + QStringLiteral(" El programa se cerrará.\n\n")
        + que.eu + QLatin1Char(' ') + hacer.eu + QStringLiteral(" Programa itxi egingo da.");
}

QString TextoReferencia(const QString& ruta)
{
    const QString fichero = QDir::toNativeSeparators(QFileInfo(ruta).absoluteFilePath());
    return QStringLiteral("No se puede leer la base de datos de referencia %1: falta, no tiene "
                          "permiso de lectura o está dañada. Vuelva a instalar el programa. El "
                          "programa se cerrará.\n\n")
               .arg(fichero)
        + QStringLiteral("Ezin da %1 erreferentziako datu basea irakurri: falta da, ez du "
                         "irakurtzeko baimenik edo hondatuta dago. Instalatu berriro programa. "
                         "Programa itxi egingo da.")
              .arg(fichero);
}
