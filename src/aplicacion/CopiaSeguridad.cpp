#include "aplicacion/CopiaSeguridad.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/cSaveAsRestore.h"

#include <QFileInfo>

namespace {
const QString kFiltro = QStringLiteral("archivos mdb (*.mdb;*.mdb)|*.mdb;mdb");
const QString kCopia = QStringLiteral("VELDOMod_bak.mdb");
const QString kViva = QStringLiteral("VELDOMOD.mdb");

QString carpetaCopias()
{
    return CarpetaDatos() + QStringLiteral("/backups/");
}

CopiaSeguridad comun()
{
    CopiaSeguridad c;
    c.Filtro = kFiltro;
    c.Idioma = OffsetIdioma();
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}
}  // namespace

CopiaSeguridad CopiaSeguridad::ParaBackup()
{
    CopiaSeguridad c = comun();
    c.ArchivoOrigen = kViva;
    c.ArchivoDestino = kCopia;
    c.RutaDestino = carpetaCopias();
    c.RutaOrigen = mdbPath;
    return c;
}

CopiaSeguridad CopiaSeguridad::ParaRestore()
{
    CopiaSeguridad c = comun();
    c.ArchivoOrigen = kCopia;
    c.ArchivoDestino = kViva;
    c.RutaDestino = mdbPath;
    c.RutaOrigen = carpetaCopias();
    return c;
}

cSaveAsRestore CopiaSeguridad::almacen() const
{
    cSaveAsRestore s;
    s.ArchivoOrigen = ArchivoOrigen;
    s.ArchivoDestino = ArchivoDestino;
    s.RutaDestino = RutaDestino;
    s.RutaOrigen = RutaOrigen;
    s.BDLectura = BDLectura;
    s.BDTabla = BDTabla;
    s.BDCampo = BDCampo;
    return s;
}

QString CopiaSeguridad::texto(int id) const
{
    return TextoFila(id + (Idioma != 0 ? 10000 : 0));
}

QString CopiaSeguridad::segunIdioma(const QString& es, const QString& eu) const
{
    return Idioma != 0 ? eu : es;
}

QString CopiaSeguridad::TextoRechazo(cSaveAsRestore::Examen examen) const
{
    if (examen == cSaveAsRestore::Examen::Posterior)
        return segunIdioma(QStringLiteral("La copia de seguridad procede de una versión más "
                                          "moderna del programa y no se puede restaurar con "
                                          "esta versión."),
                           QStringLiteral("Segurtasun kopia programaren bertsio berriago "
                                          "batekoa da, eta ezin da bertsio honekin "
                                          "leheneratu."));
    return segunIdioma(QStringLiteral("El archivo elegido no es una copia de seguridad de "
                                      "la base de datos de este programa, o está dañado. "
                                      "No se ha restaurado nada."),
                       QStringLiteral("Aukeratutako fitxategia ez da programa honen datu "
                                      "basearen segurtasun kopia bat, edo hondatuta dago. "
                                      "Ez da ezer leheneratu."));
}

QString CopiaSeguridad::textoBackupHecho() const
{
    return segunIdioma(QStringLiteral("La copia de seguridad se ha realizado correctamente."),
                       QStringLiteral("Segurtasun kopia ondo egin da."));
}

QString CopiaSeguridad::textoRestoreFallido() const
{
    return segunIdioma(QStringLiteral("No se ha podido restaurar la base de datos. Sus "
                                      "datos no se han modificado."),
                       QStringLiteral("Ezin izan da datu basea leheneratu. Zure datuak ez "
                                      "dira aldatu."));
}

QString CopiaSeguridad::textoRestoreHecho() const
{
    return segunIdioma(QStringLiteral("La base de datos se ha restaurado correctamente."),
                       QStringLiteral("Datu basea ondo leheneratu da."));
}

bool CopiaSeguridad::avisarRechazo(cSaveAsRestore::Examen examen) const
{
    if (examen == cSaveAsRestore::Examen::Valida)
        return true;
    Mensaje(TextoRechazo(examen), vb::Exclamation, texto(kIdRestaurarBaseDatos));
    return false;
}

bool CopiaSeguridad::CrearBackup() const
{
    const cSaveAsRestore s = almacen();
    if (s.ExisteDestino()
        && Mensaje(texto(kIdCopiaSeguridadExistente), vb::Question | vb::YesNo | vb::DefaultButton2,
                   texto(kIdCopiaSeguridad)) != vb::Yes)
        return false;
    if (!s.Copiar()) {
        Mensaje(texto(kIdErrorCopiaSeguridad), vb::Critical, texto(kIdCopiaSeguridadFallida));
        return false;
    }
    Mensaje(textoBackupHecho(), vb::Information, texto(kIdCopiaSeguridad));
    return true;
}

bool CopiaSeguridad::CrearRestore() const
{
    const cSaveAsRestore s = almacen();
    QString origen = s.Origen();
    if (!QFileInfo(origen).isFile()) {
        // No backup where this program keeps it: the user may point at a copy kept elsewhere.
        origen = DialogoAbrirFichero(Parent, texto(kIdRestaurarCopiaSeguridad), RutaOrigen,
                                     cSaveAsRestore::FiltroDialogo(Filtro));
        if (origen.isEmpty())
            return false;
    }

    if (!avisarRechazo(s.Examinar(origen)))
        return false;

    if (Mensaje(texto(kIdPreguntaRestaurar), vb::Question | vb::YesNo | vb::DefaultButton2,
                texto(kIdRestaurarBaseDatos)) != vb::Yes)
        return false;

    const cSaveAsRestore::Restauracion r = s.Restaurar(origen);
    if (!r.hecha) {
        // Rows that break the program's rules are found only while they are carried over.
        if (!avisarRechazo(r.examen))
            return false;
        Mensaje(textoRestoreFallido(), vb::Critical, texto(kIdRestaurarBaseDatos));
        return false;
    }
    Mensaje(textoRestoreHecho(), vb::Information, texto(kIdRestaurarBaseDatos));
    return true;
}

CopiaSeguridad::Resultado CopiaSeguridad::HacerBackup() const
{
    if (!almacen().Copiar())
        return {false, texto(kIdErrorCopiaSeguridad) + QLatin1Char(' ')
                + texto(kIdCopiaSeguridadFallida), {}};
    return {true, textoBackupHecho(), almacen().Destino()};
}

CopiaSeguridad::Resultado CopiaSeguridad::HacerRestore(const QString& origen) const
{
    const cSaveAsRestore s = almacen();
    if (!QFileInfo(origen).isFile())
        return {false, TextoRechazo(cSaveAsRestore::Examen::Ajena), {}};
    const cSaveAsRestore::Examen examen = s.Examinar(origen);
    if (examen != cSaveAsRestore::Examen::Valida)
        return {false, TextoRechazo(examen), {}};
    const cSaveAsRestore::Restauracion r = s.Restaurar(origen);
    if (!r.hecha)
        return {false,
                r.examen == cSaveAsRestore::Examen::Valida ? textoRestoreFallido()
                                                           : TextoRechazo(r.examen),
                {}};
    return {true, textoRestoreHecho(), r.copiaPrevia};
}
