// Two copies of the program on one store, each with its own connection: a record that one of
// them saves or deletes, or that a restore puts back as a backup had it, is not overwritten by
// the other's save of the copy it loaded before. Contributors, presenters and returns, single
// saves, a restore and the import's batches, and the version that every save renews.
#include "comun/AlmacenPrueba.h"
#include "comun/BaseCruda.h"
#include "comun/OtraConexion.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "servicios/Almacen.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/LoteContribuyentes.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"
#include "servicios/cSaveAsRestore.h"
#include "servicios/cTraspaso.h"
#include "servicios/VersionFila.h"

#include <QDir>
#include <QSet>
#include <QTest>

namespace {

cContribSvr contribuyentes() { return Almacen<cContribSvr>(); }
cPresenSvr presentadores() { return Almacen<cPresenSvr>(); }
cDeclaSvr declaraciones() { return Almacen<cDeclaSvr>(); }

// A contributor and a presenter as a copy loads them (with the version of the row).
Contribuyente cargarContribuyente(int32_t csco)
{
    return contribuyentes().CargarContribuyente(csco).value_or(Contribuyente{});
}

Presentador cargarPresentador(int32_t cspr)
{
    return presentadores().CargarPresentador(cspr).value_or(Presentador{});
}

// The ways a contributor's save is refused for a row no longer the version loaded.
namespace VeredictoGuardarContribuyente {
enum : int16_t { Cambiado = 4, Borrado = 5 };
}

// The save of what a copy loaded, over the version it loaded, as numbers (0 saved: the copy
// takes the row's new version; Cambiado, Borrado; -1 another refusal).
int16_t guardarCargado(Contribuyente& c)
{
    const Resultado<Contribuyente> r = contribuyentes().GuardarContribuyente(c);
    if (r) {
        c.VERSION = r->VERSION;
        return 0;
    }
    switch (r.veredicto().vigencia) {
    case Vigencia::Cambiada: return VeredictoGuardarContribuyente::Cambiado;
    case Vigencia::Borrada: return VeredictoGuardarContribuyente::Borrado;
    default: return -1;
    }
}

// As guardarCargado, for a presenter: 5 saved again since, 6 deleted since.
int16_t guardarCargado(Presentador& p)
{
    const Resultado<Presentador> r = presentadores().GuardarPresentador(p);
    if (r) {
        p.VERSION = r->VERSION;
        return 0;
    }
    switch (r.veredicto().vigencia) {
    case Vigencia::Cambiada: return 5;
    case Vigencia::Borrada: return 6;
    default: return -1;
    }
}

// A return as a copy loads it, with the version of its row (0 for an unknown code).
Declaracion cargarDeclaracion(int32_t csde)
{
    Declaracion d = declaraciones().CargarDeclaracion(csde).value_or(Declaracion());
    d.CSDE = csde;
    return d;
}

// How a copy's save of a return ended: its code, or why nothing was written.
QVariant guardarDeclaracion(const Declaracion& d)
{
    const Resultado<Declaracion> r = declaraciones().GuardarDeclaracion(d);
    if (r)
        return r->CSDE;
    return QVariant::fromValue(r.veredicto().vigencia);
}

int32_t nuevaDeclaracion(const QString& referencia)
{
    Declaracion d;
    d.REFERENCIA = referencia;
    return guardarDeclaracion(d).toInt();
}

QString almacenado(const QString& sql, const QVariantList& valores)
{
    return ValorAlmacenado(sql, valores).toString();
}

QString nombreContribuyente(int32_t csco)
{
    return almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco});
}

QString referenciaDeclaracion(int32_t csde)
{
    return almacenado(QStringLiteral("SELECT REFERENCIA FROM DECLARACIONES WHERE CSDE = ?"), {csde});
}

void renombrarContribuyente(int32_t csco, const QString& nombre)
{
    Contribuyente c = cargarContribuyente(csco);
    c.NOMBREC = nombre;
    QCOMPARE(guardarCargado(c), 0);
}

void cambiarReferencia(int32_t csde, const QString& referencia)
{
    Declaracion d = cargarDeclaracion(csde);
    d.REFERENCIA = referencia;
    QCOMPARE(guardarDeclaracion(d), QVariant(csde));
}

// The backup of the live store and its restore, as the backup panel makes them.
cSaveAsRestore copiaDeSeguridad(bool restaurar)
{
    const QString copias = CarpetaPrograma() + QStringLiteral("/backups/");
    cSaveAsRestore c;
    c.ArchivoOrigen = restaurar ? QStringLiteral("VELDOMod_bak.mdb") : QStringLiteral("VELDOMOD.mdb");
    c.ArchivoDestino = restaurar ? QStringLiteral("VELDOMOD.mdb") : QStringLiteral("VELDOMod_bak.mdb");
    c.RutaDestino = restaurar ? mdbPath : copias;
    c.RutaOrigen = restaurar ? copias : mdbPath;
    c.BDLectura = mdblec;
    c.BDTabla = QStringLiteral("T10_GENERAL");
    c.BDCampo = QStringLiteral("T10_BACKUP_TVC");
    return c;
}

}  // namespace

class TestVigencia : public QObject {
    Q_OBJECT
    std::unique_ptr<AlmacenDePrueba> m_almacen;

private slots:
    void init() { m_almacen = std::make_unique<AlmacenDePrueba>(); }
    void cleanup() { m_almacen.reset(); }

    void cadaGuardadoDaUnaVersionNueva()
    {
        const int32_t a = NuevoContribuyente(Dni(1), QStringLiteral("UNO"));
        const int32_t b = NuevoContribuyente(Dni(2), QStringLiteral("DOS"));
        Contribuyente ca = cargarContribuyente(a);
        const int64_t primera = ca.VERSION;
        QVERIFY(primera > 0);
        QVERIFY(cargarContribuyente(b).VERSION > 0);
        QVERIFY(cargarContribuyente(b).VERSION != primera);
        QCOMPARE(guardarCargado(ca), 0);
        QVERIFY(ca.VERSION > 0);
        QVERIFY(ca.VERSION != primera);
        QCOMPARE(cargarContribuyente(a).VERSION, ca.VERSION);
        // And the copy that saved goes on saving over its own save.
        ca.NOMBREC = QStringLiteral("UNO BIS");
        QCOMPARE(guardarCargado(ca), 0);
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {a}),
                 QStringLiteral("UNO BIS"));
    }

    void contribuyenteEnDosCopias()
    {
        const int32_t csco = NuevoContribuyente(Dni(10), QStringLiteral("ORIGINAL"));
        Contribuyente esta = cargarContribuyente(csco);
        QVERIFY(EnOtraConexion([csco] {
            Contribuyente otra = cargarContribuyente(csco);
            otra.NOMBREC = QStringLiteral("DE LA OTRA COPIA");
            if (guardarCargado(otra) != 0)
                throw std::runtime_error("no guardado");
        }));
        const int64_t cargada = esta.VERSION;
        esta.NOMBREC = QStringLiteral("DE ESTA COPIA");
        QCOMPARE(guardarCargado(esta),
                 int16_t(VeredictoGuardarContribuyente::Cambiado));
        QCOMPARE(esta.VERSION, cargada);
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco}),
                 QStringLiteral("DE LA OTRA COPIA"));
        // Loaded again, the same save goes through.
        const int64_t vigente = cargarContribuyente(csco).VERSION;
        esta.VERSION = vigente;
        QCOMPARE(guardarCargado(esta), 0);
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco}),
                 QStringLiteral("DE ESTA COPIA"));
    }

    void contribuyenteBorradoNoVuelve()
    {
        const int32_t csco = NuevoContribuyente(Dni(11), QStringLiteral("BORRABLE"));
        Contribuyente esta = cargarContribuyente(csco);
        QVERIFY(EnOtraConexion([csco] { contribuyentes().BorrarContribuyente(csco); }));
        QCOMPARE(guardarCargado(esta),
                 int16_t(VeredictoGuardarContribuyente::Borrado));
        QVERIFY(!ExisteContribuyente(csco));
        QCOMPARE(m_almacen->Filas(QStringLiteral("CONTRIBUYENTES")), 0);
    }

    void presentadorEnDosCopias()
    {
        const int32_t cspr = NuevoPresentador(Dni(20), QStringLiteral("GESTORIA"));
        Presentador esta = cargarPresentador(cspr);
        QVERIFY(EnOtraConexion([cspr] {
            Presentador otra = cargarPresentador(cspr);
            otra.NOMBREP = QStringLiteral("DE LA OTRA COPIA");
            if (guardarCargado(otra) != 0)
                throw std::runtime_error("no guardado");
        }));
        esta.NOMBREP = QStringLiteral("DE ESTA COPIA");
        QCOMPARE(guardarCargado(esta),
                 int16_t(5));
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREP FROM PRESENTADORES WHERE CSPR = ?"), {cspr}),
                 QStringLiteral("DE LA OTRA COPIA"));
        // Deleted meanwhile: not written back.
        Presentador otraVez = cargarPresentador(cspr);
        QVERIFY(EnOtraConexion([cspr] { presentadores().BorrarPresentador(cspr); }));
        QCOMPARE(guardarCargado(otraVez),
                 int16_t(6));
        QVERIFY(!ExistePresentador(cspr));
    }

    void declaracionEnDosCopias()
    {
        const int32_t csde = nuevaDeclaracion(QStringLiteral("ORIGINAL"));
        QVERIFY(csde > 0);
        Declaracion esta = cargarDeclaracion(csde);
        QVERIFY(esta.VERSION > 0);
        QVERIFY(EnOtraConexion([csde] {
            Declaracion otra = cargarDeclaracion(csde);
            otra.REFERENCIA = QStringLiteral("OTRA");
            if (guardarDeclaracion(otra) != QVariant(csde))
                throw std::runtime_error("no guardada");
        }));
        esta.REFERENCIA = QStringLiteral("ESTA");
        QCOMPARE(guardarDeclaracion(esta), QVariant::fromValue(Vigencia::Cambiada));
        QCOMPARE(almacenado(QStringLiteral("SELECT REFERENCIA FROM DECLARACIONES WHERE CSDE = ?"), {csde}),
                 QStringLiteral("OTRA"));
        QCOMPARE(FilasDeclaraciones(), 1);
        // Deleted meanwhile: no new row takes its place.
        const Declaracion otraVez = cargarDeclaracion(csde);
        QVERIFY(EnOtraConexion([csde] { declaraciones().BorrarDeclaracion(csde); }));
        QCOMPARE(guardarDeclaracion(otraVez), QVariant::fromValue(Vigencia::Borrada));
        QCOMPARE(FilasDeclaraciones(), 0);
    }

    // This copy holds a contributor and a return, as edited after the last backup, and a
    // contributor made after it, while another copy restores that backup: none of the three
    // saves overwrites what the restore put back, nor makes again what it took away.
    void abiertosDuranteUnaRestauracion()
    {
        const int32_t csco = NuevoContribuyente(Dni(40), QStringLiteral("EN LA COPIA"));
        const int32_t csde = nuevaDeclaracion(QStringLiteral("ANTES"));
        QVERIFY(copiaDeSeguridad(false).Copiar());
        renombrarContribuyente(csco, QStringLiteral("TRAS LA COPIA"));
        cambiarReferencia(csde, QStringLiteral("DESPUES"));
        const int32_t nuevo = NuevoContribuyente(Dni(41), QStringLiteral("NUEVO"));

        Contribuyente contribuyente = cargarContribuyente(csco);
        Declaracion declaracion = cargarDeclaracion(csde);
        Contribuyente posterior = cargarContribuyente(nuevo);
        QCOMPARE(contribuyente.NOMBREC, QStringLiteral("TRAS LA COPIA"));

        QVERIFY(EnOtraConexion([] {
            const QString copia = CarpetaPrograma() + QStringLiteral("/backups/VELDOMod_bak.mdb");
            if (!copiaDeSeguridad(true).Restaurar(copia).hecha)
                throw std::runtime_error("no restaurada");
        }));
        QCOMPARE(nombreContribuyente(csco), QStringLiteral("EN LA COPIA"));
        QVERIFY(!ExisteContribuyente(nuevo));

        contribuyente.NOMBREC = QStringLiteral("DE ESTA COPIA");
        QCOMPARE(guardarCargado(contribuyente),
                 int16_t(VeredictoGuardarContribuyente::Cambiado));
        declaracion.REFERENCIA = QStringLiteral("ESTA");
        QCOMPARE(guardarDeclaracion(declaracion), QVariant::fromValue(Vigencia::Cambiada));
        QCOMPARE(guardarCargado(posterior),
                 int16_t(VeredictoGuardarContribuyente::Borrado));

        QCOMPARE(nombreContribuyente(csco), QStringLiteral("EN LA COPIA"));
        QCOMPARE(referenciaDeclaracion(csde), QStringLiteral("ANTES"));
        QVERIFY(!ExisteContribuyente(nuevo));
        QCOMPARE(m_almacen->Filas(QStringLiteral("CONTRIBUYENTES")), 1);
        QCOMPARE(FilasDeclaraciones(), 1);
    }

    // A record left as the backup has it is the same record after the restore: its save goes
    // through.
    void restauradoSinCambiosSeGuarda()
    {
        const int32_t csco = NuevoContribuyente(Dni(42), QStringLiteral("IGUAL"));
        QVERIFY(copiaDeSeguridad(false).Copiar());
        Contribuyente contribuyente = cargarContribuyente(csco);
        QVERIFY(EnOtraConexion([] {
            const QString copia = CarpetaPrograma() + QStringLiteral("/backups/VELDOMod_bak.mdb");
            if (!copiaDeSeguridad(true).Restaurar(copia).hecha)
                throw std::runtime_error("no restaurada");
        }));
        contribuyente.NOMBREC = QStringLiteral("EDITADO");
        QCOMPARE(guardarCargado(contribuyente),
                 0);
        QCOMPARE(nombreContribuyente(csco), QStringLiteral("EDITADO"));
    }

    // A backup made before rows had versions: the restored store has them, and the copies
    // of the program go on saving into it under the same rule.
    void restauracionDeUnaCopiaSinVersiones()
    {
        const QString copia = CarpetaPrograma() + QStringLiteral("/backups/antigua.mdb");
        QVERIFY(QDir().mkpath(CarpetaPrograma() + QStringLiteral("/backups")));
        CrearLayout0(copia, QStringLiteral("C"), 0);
        {
            ConexionCruda c(copia);
            Esquema::Pasos().first().aplicar(c.db(), QStringLiteral("prueba"));
            c.ejecutar(QStringLiteral("PRAGMA user_version = 1"));
            for (int n : {50, 51})
                c.ejecutar(QStringLiteral("INSERT INTO CONTRIBUYENTES (DNIC, NOMBREC, CODPROVC, "
                                          "CODPOSC, CODMUNC) VALUES ('%1', 'ANTIGUO %2', '77', "
                                          "'77001', '001')")
                               .arg(Dni(n))
                               .arg(n));
        }
        QVERIFY(!ColumnasDe(copia, QStringLiteral("CONTRIBUYENTES")).contains(VersionFila::kColumna));
        const int32_t abierto = NuevoContribuyente(Dni(43), QStringLiteral("ABIERTO"));
        Contribuyente esta = cargarContribuyente(abierto);

        QVERIFY(copiaDeSeguridad(true).Restaurar(copia).hecha);
        QCOMPARE(VersionDeArchivo(mdbmod), Esquema::VersionActual());
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(DISTINCT VERSION) FROM CONTRIBUYENTES "
                                                "WHERE VERSION > 0")).toInt(),
                 2);
        const int32_t restaurado =
            ValorAlmacenado(QStringLiteral("SELECT MIN(CSCO) FROM CONTRIBUYENTES")).toInt();
        Contribuyente otra = cargarContribuyente(restaurado);
        QVERIFY(otra.VERSION > 0);
        otra.NOMBREC = QStringLiteral("TRAS RESTAURAR");
        QCOMPARE(guardarCargado(otra), 0);
        QCOMPARE(nombreContribuyente(restaurado), QStringLiteral("TRAS RESTAURAR"));
        // What this copy had open before the restore is not in the restored store as it was.
        QVERIFY(guardarCargado(esta) != 0);
        QCOMPARE(m_almacen->Filas(QStringLiteral("CONTRIBUYENTES")), 2);
    }

    // The import's batches: a contributor that another copy saves between the look-up and the
    // replacement is not replaced.
    void loteNoSustituyeLoCambiado()
    {
        const int32_t csco = NuevoContribuyente(Dni(30), QStringLiteral("LEIDO"));
        cLoteContribuyentes lote(mdbmod, mdblec);
        TitularParte leido = lote.ExisteContribuyente(Dni(30));
        QCOMPARE(leido.codigo, csco);
        QVERIFY(leido.version > 0);
        lote.Confirmar();
        QVERIFY(EnOtraConexion([csco] {
            Contribuyente otra = cargarContribuyente(csco);
            otra.NOMBREC = QStringLiteral("DE LA OTRA COPIA");
            if (guardarCargado(otra) != 0)
                throw std::runtime_error("no guardado");
        }));
        Contribuyente delFichero = ContribuyenteNacional(Dni(30), QStringLiteral("DEL FICHERO"), csco);
        delFichero.VERSION = leido.version;
        Resultado<void> r = lote.GuardarContribuyente(delFichero, true);
        QVERIFY(!r);
        QCOMPARE(r.veredicto().vigencia, Vigencia::Cambiada);
        lote.Confirmar();
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco}),
                 QStringLiteral("DE LA OTRA COPIA"));
        // With the version as it is now, the replacement goes through.
        leido = lote.ExisteContribuyente(Dni(30));
        QCOMPARE(leido.codigo, csco);
        delFichero.VERSION = leido.version;
        QVERIFY(lote.GuardarContribuyente(delFichero, true));
        lote.Confirmar();
        QCOMPARE(almacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco}),
                 QStringLiteral("DEL FICHERO"));
    }

    void loteNoDevuelveLoBorrado()
    {
        const int32_t csco = NuevoContribuyente(Dni(31), QStringLiteral("LEIDO"));
        cLoteContribuyentes lote(mdbmod, mdblec);
        const TitularParte leido = lote.ExisteContribuyente(Dni(31));
        QCOMPARE(leido.codigo, csco);
        lote.Confirmar();
        QVERIFY(EnOtraConexion([csco] { contribuyentes().BorrarContribuyente(csco); }));
        Contribuyente delFichero = ContribuyenteNacional(Dni(31), QStringLiteral("DEL FICHERO"), csco);
        delFichero.VERSION = leido.version;
        const Resultado<void> r = lote.GuardarContribuyente(delFichero, true);
        QVERIFY(!r);
        QCOMPARE(r.veredicto().vigencia, Vigencia::Borrada);
        lote.Confirmar();
        QVERIFY(!ExisteContribuyente(csco));
    }
};

QTEST_GUILESS_MAIN(TestVigencia)
#include "test_vigencia.moc"
