#include "aplicacion/CopiaSeguridad.h"

#include "catalogo/Catalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "servicios/cSaveAsRestore.h"

#include <QFileInfo>

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

bool CopiaSeguridad::CrearBackup() const
{
    const cSaveAsRestore s = almacen();
    if (s.ExisteDestino()
        && Mensaje(texto(337), vb::Question | vb::YesNo | vb::DefaultButton2, texto(349))
            != vb::Yes)
        return false;
    if (!s.Copiar()) {
        Mensaje(texto(338), vb::Critical, texto(339));
        return false;
    }
    Mensaje(segunIdioma(QStringLiteral("La copia de seguridad se ha realizado correctamente."),
                        QStringLiteral("Segurtasun kopia ondo egin da.")),
            vb::Information, texto(349));
    return true;
}

bool CopiaSeguridad::CrearRestore() const
{
    const cSaveAsRestore s = almacen();
    QString origen = s.Origen();
    if (!QFileInfo(origen).isFile()) {
        // No backup where this program keeps it: the user may point at a copy kept elsewhere.
        origen = DialogoAbrirFichero(Parent, texto(359), RutaOrigen,
                                     cSaveAsRestore::FiltroDialogo(Filtro));
        if (origen.isEmpty())
            return false;
    }

    switch (s.Examinar(origen)) {
    case cSaveAsRestore::Examen::Valida:
        break;
    case cSaveAsRestore::Examen::Posterior:
        Mensaje(segunIdioma(QStringLiteral("La copia de seguridad procede de una versión más "
                                           "moderna del programa y no se puede restaurar con "
                                           "esta versión."),
                            QStringLiteral("Segurtasun kopia programaren bertsio berriago "
                                           "batekoa da, eta ezin da bertsio honekin "
                                           "leheneratu.")),
                vb::Exclamation, texto(341));
        return false;
    case cSaveAsRestore::Examen::Ajena:
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

    if (!s.Restaurar(origen).hecha) {
        Mensaje(segunIdioma(QStringLiteral("No se ha podido restaurar la base de datos. Sus "
                                           "datos no se han modificado."),
                            QStringLiteral("Ezin izan da datu basea leheneratu. Zure datuak ez "
                                           "dira aldatu.")),
                vb::Critical, texto(341));
        return false;
    }
    Mensaje(segunIdioma(QStringLiteral("La base de datos se ha restaurado correctamente."),
                        QStringLiteral("Datu basea ondo leheneratu da.")),
            vb::Information, texto(341));
    return true;
}
