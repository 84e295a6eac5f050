// Texts at the stores' door: what a column cannot keep as given (a name of blanks, a NUL, half
// of a surrogate pair, a text too long, a control character) is refused by the stores of
// contributors and presenters with the program's own message and the field to focus, and the
// store stays as it was; nothing is changed silently. And the searches of the lists find names
// whatever the case of their letters beyond ASCII.
#include "catalogo/IdsCatalogo.h"
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/BusquedaTexto.h"
#include "servicios/TextoGuardable.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

cContribSvr Contribuyentes()
{
    cContribSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

// The refusal of a save; an empty verdict when it was saved.
template <typename T>
Veredicto Rechazo(const Resultado<T>& r)
{
    return r ? Veredicto{} : r.veredicto();
}

// The text field of a contributor by its name.
QString& Campo(Contribuyente& c, const QString& nombre)
{
    if (nombre == QLatin1String("DNIC"))
        return c.DNIC;
    if (nombre == QLatin1String("DOMICILIOC"))
        return c.DOMICILIOC;
    if (nombre == QLatin1String("MANOC"))
        return c.MANOC;
    if (nombre == QLatin1String("NOMMUNC"))
        return c.NOMMUNC;
    if (nombre == QLatin1String("CODPOSC"))
        return c.CODPOSC;
    qFatal("Campo sin caso: %s", qPrintable(nombre));
}

cPresenSvr Presentadores()
{
    cPresenSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

const QChar kNul(u'\0');
const QChar kMitadAlta(char16_t(0xD800));  // the first half of a surrogate pair, alone
const QChar kMitadBaja(char16_t(0xDC00));  // the second half, alone

// The names a store cannot keep, each with the message and the field it answers.
struct Caso {
    const char* nombre;
    QString valor;
    int id;
    QString mensaje;
};

QList<Caso> NombresImposibles()
{
    return {
        {"blancos", QStringLiteral("     "), 30, QStringLiteral("La casilla Nombre debe tener algún valor")},
        {"NUL delante", QString(kNul) + QStringLiteral("GARCIA"), kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"solo NUL", QString(kNul), kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"mitad alta sola", QStringLiteral("GAR") + kMitadAlta + QStringLiteral("CIA"),
         kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"mitad baja sola", QStringLiteral("GARCIA") + kMitadBaja, kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"U+FFFE", QStringLiteral("GARCIA\uFFFE"), kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"U+FFFF", QStringLiteral("GAR\uFFFFCIA"), kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"tabulador", QStringLiteral("GARCIA\tLOPEZ"), kIdCasillaCaracteresNoGuardables,
         QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que no se pueden guardar")},
        {"41 letras", QString(41, QLatin1Char('N')), kIdCasillaDemasiadoLarga,
         QStringLiteral("La casilla Apellidos y Nombre no puede tener más de 40 caracteres")},
    };
}

void DatosDeNombres()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("mensaje");
    for (const Caso& c : NombresImposibles())
        QTest::newRow(c.nombre) << c.valor << c.id << c.mensaje;
}

// Every contributor of the store as (code, number, name), in the order of the codes.
QStringList Contenido(const AlmacenDePrueba& almacen, const QString& tabla, const QString& codigo,
                      const QString& dni, const QString& nombre)
{
    QSqlQuery q(almacen.db());
    q.exec(QStringLiteral("SELECT %1, %2, %3 FROM %4 ORDER BY %1").arg(codigo, dni, nombre, tabla));
    QStringList filas;
    while (q.next())
        filas << q.value(0).toString() + QLatin1Char('|') + q.value(1).toString()
                + QLatin1Char('|') + q.value(2).toString();
    return filas;
}

QStringList ContenidoContribuyentes(const AlmacenDePrueba& almacen)
{
    return Contenido(almacen, QStringLiteral("CONTRIBUYENTES"), QStringLiteral("CSCO"),
                     QStringLiteral("DNIC"), QStringLiteral("NOMBREC"));
}

QStringList ContenidoPresentadores(const AlmacenDePrueba& almacen)
{
    return Contenido(almacen, QStringLiteral("PRESENTADORES"), QStringLiteral("CSPR"),
                     QStringLiteral("DNIP"), QStringLiteral("NOMBREP"));
}

QStringList Nombres(const QList<FilaContribuyente>& lista)
{
    QStringList n;
    for (const FilaContribuyente& f : lista)
        n << f.NOMBREC;
    return n;
}

QStringList Nombres(const QList<FilaPresentador>& lista)
{
    QStringList n;
    for (const FilaPresentador& f : lista)
        n << f.NOMBREP;
    return n;
}

}  // namespace

class TestTextoGuardable : public QObject {
    Q_OBJECT

private slots:
    void init() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    // --- The check itself ------------------------------------------------------------------

    void examinarTexto_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<int>("ancho");
        QTest::addColumn<bool>("obligatorio");
        QTest::addColumn<int>("defecto");
        using D = DefectoTexto;
        QTest::newRow("bueno") << QStringLiteral("MUÑOZ") << 5 << true << int(D::Ninguno);
        QTest::newRow("blancos alrededor") << QStringLiteral("  ZABALA  ") << 6 << true
                                           << int(D::Ninguno);
        QTest::newRow("vacío permitido") << QString() << 5 << false << int(D::Ninguno);
        QTest::newRow("blancos obligatorio") << QStringLiteral(" \u00A0 ") << 5 << true
                                             << int(D::Vacio);
        QTest::newRow("NUL") << QString(kNul) + QStringLiteral("A") << 5 << false
                             << int(D::Caracteres);
        QTest::newRow("salto de línea") << QStringLiteral("A\nB") << 5 << false
                                        << int(D::Caracteres);
        QTest::newRow("DEL") << QStringLiteral("A\u007FB") << 5 << false << int(D::Caracteres);
        // C1 is kept: the exchange file's undefined bytes of Windows-1252 read as it.
        QTest::newRow("control C1") << QStringLiteral("A\u0090B") << 5 << false
                                    << int(D::Ninguno);
        QTest::newRow("mitad alta") << QString(kMitadAlta) << 5 << false << int(D::Caracteres);
        QTest::newRow("mitades al revés") << QString(kMitadBaja) + kMitadAlta << 5 << false
                                          << int(D::Caracteres);
        // Noncharacters come back from the store as U+FFFD: they are refused, not changed.
        QTest::newRow("U+FFFE") << QStringLiteral("A\uFFFEB") << 5 << false << int(D::Caracteres);
        QTest::newRow("U+FFFF") << QStringLiteral("AB\uFFFF") << 5 << false << int(D::Caracteres);
        QTest::newRow("U+FDD0") << QStringLiteral("\uFDD0") << 5 << false << int(D::Caracteres);
        QTest::newRow("U+1FFFF") << QString::fromUcs4(U"A\U0001FFFF", 2) << 5 << false
                                 << int(D::Caracteres);
        QTest::newRow("U+FFFD se guarda") << QStringLiteral("A\uFFFDB") << 5 << false
                                          << int(D::Ninguno);
        // A character beyond the BMP is one character, as the column counts it.
        QTest::newRow("par entero") << QStringLiteral("AB") + QString::fromUcs4(U"\U0001F697", 1)
                                    << 3 << false << int(D::Ninguno);
        QTest::newRow("largo") << QStringLiteral("ABCDEF") << 5 << false << int(D::Largo);
        QTest::newRow("cifras sin ancho") << QStringLiteral("0000001") << kAnchoDeCifras << false
                                          << int(D::Ninguno);
    }

    void examinarTexto()
    {
        QFETCH(QString, texto);
        QFETCH(int, ancho);
        QFETCH(bool, obligatorio);
        QFETCH(int, defecto);
        QCOMPARE(int(ExaminarTexto(texto, ancho, obligatorio, Blancos::Recortados)), defecto);
    }

    void blancosConservadosCuentan()
    {
        // The store of returns keeps a text as given: its blanks count in its width.
        QCOMPARE(ExaminarTexto(QStringLiteral(" ABCDE "), 5, false, Blancos::Conservados),
                 DefectoTexto::Largo);
        QCOMPARE(ExaminarTexto(QStringLiteral(" ABCDE "), 5, false, Blancos::Recortados),
                 DefectoTexto::Ninguno);
    }

    void mensajeEnEuskera()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        const ColumnaTexto c = {40, kIdEtiquetaApellidosNombre, "txtnombrec"};
        const Veredicto v = ComprobarTexto(QString(41, QLatin1Char('N')), c, Blancos::Recortados);
        QCOMPARE(v.id, kIdCasillaDemasiadoLarga);
        QCOMPARE(v.mensaje,
                 QStringLiteral("Deiturak eta izena laukiak ezin ditu 40 karaktere baino gehiago izan"));
        QCOMPARE(v.control, QStringLiteral("txtnombrec"));
    }

    // --- Contributors ------------------------------------------------------------------------

    void contribuyenteNuevo_data() { DatosDeNombres(); }

    void contribuyenteNuevo()
    {
        QFETCH(QString, valor);
        QFETCH(int, id);
        QFETCH(QString, mensaje);
        AlmacenDePrueba almacen;
        const int32_t otro = NuevoContribuyente(Dni(1), QStringLiteral("ZABALA ARANA MIKEL"));
        const QStringList antes = ContenidoContribuyentes(almacen);

        const Veredicto rechazo =
            Rechazo(Contribuyentes().GuardarContribuyente(ContribuyenteNacional(Dni(2), valor), Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.id, id);
        QCOMPARE(rechazo.mensaje, mensaje);
        QCOMPARE(rechazo.control, QStringLiteral("txtnombrec"));
        QCOMPARE(rechazo.botones, vb::OKOnly + vb::Information);
        QCOMPARE(ContenidoContribuyentes(almacen), antes);
        QVERIFY(otro > 0);
        // The import's form refuses it the same way.
        QCOMPARE(Rechazo(Contribuyentes().GuardarContribuyente(ContribuyenteNacional(Dni(2), valor), true)).id, id);
        QCOMPARE(ContenidoContribuyentes(almacen), antes);
    }

    void contribuyenteModificado_data() { DatosDeNombres(); }

    void contribuyenteModificado()
    {
        QFETCH(QString, valor);
        QFETCH(int, id);
        AlmacenDePrueba almacen;
        const int32_t c = NuevoContribuyente(Dni(3), QStringLiteral("GARCIA LOPEZ JUAN"));
        const QStringList antes = ContenidoContribuyentes(almacen);
        const Veredicto rechazo =
            Rechazo(Contribuyentes().GuardarContribuyente(ContribuyenteNacional(Dni(3), valor, c), Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.id, id);
        QCOMPARE(ContenidoContribuyentes(almacen), antes);
        QCOMPARE(Contribuyentes().CargarContribuyente(c)->NOMBREC,
                 QStringLiteral("GARCIA LOPEZ JUAN"));
    }

    void contribuyenteOtrosCampos_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("DNI de blancos") << QStringLiteral("DNIC") << QStringLiteral("   ")
                                        << QStringLiteral("txtdnic")
                                        << QStringLiteral("La casilla DNI debe tener algún valor");
        QTest::newRow("DNI con NUL") << QStringLiteral("DNIC") << QString(kNul) << QStringLiteral("txtdnic")
                                     << QStringLiteral("La casilla DNI-CIF contiene caracteres que no se pueden guardar");
        QTest::newRow("calle larga") << QStringLiteral("DOMICILIOC") << QString(21, QLatin1Char('C'))
                                     << QStringLiteral("txtdomicilioc")
                                     << QStringLiteral("La casilla Domicilio no puede tener más de 20 caracteres");
        QTest::newRow("mano larga") << QStringLiteral("MANOC") << QStringLiteral("DCHA")
                                    << QStringLiteral("txtmanoc")
                                    << QStringLiteral("La casilla Mano no puede tener más de 3 caracteres");
        QTest::newRow("municipio con salto") << QStringLiteral("NOMMUNC") << QStringLiteral("BIL\nBAO")
                                             << QStringLiteral("txtnommunc")
                                             << QStringLiteral("La casilla Nombre del municipio contiene caracteres que no se pueden guardar");
        QTest::newRow("código con NUL") << QStringLiteral("CODPOSC") << QStringLiteral("77001") + kNul
                                        << QStringLiteral("txtcodposc")
                                        << QStringLiteral("La casilla Cód. Postal contiene caracteres que no se pueden guardar");
    }

    void contribuyenteOtrosCampos()
    {
        QFETCH(QString, campo);
        QFETCH(QString, valor);
        QFETCH(QString, control);
        QFETCH(QString, mensaje);
        AlmacenDePrueba almacen;
        Contribuyente a = ContribuyenteNacional(Dni(4), QStringLiteral("ETXEBERRIA OTXOA ANE"));
        Campo(a, campo) = valor;
        const Veredicto rechazo =
            Rechazo(Contribuyentes().GuardarContribuyente(a, Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.control, control);
        QCOMPARE(rechazo.mensaje, mensaje);
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 0);
    }

    void contribuyenteSinCambiosSilenciosos()
    {
        // What passes the door is kept as it was given (but for the blanks around it): a
        // character beyond the BMP beside its neighbours, and 40 characters of which one takes
        // two units of UTF-16.
        AlmacenDePrueba almacen;
        const QString coche = QString::fromUcs4(U"\U0001F697", 1);
        const QString nombre = QStringLiteral("ÑANDÚ ") + coche + QStringLiteral(" ÇA");
        const QString cuarenta = coche + QString(39, QLatin1Char('N'));
        const int32_t a = NuevoContribuyente(Dni(5), nombre);
        const int32_t b = NuevoContribuyente(Dni(6), cuarenta);
        QCOMPARE(Contribuyentes().CargarContribuyente(a)->NOMBREC, nombre);
        QCOMPARE(Contribuyentes().CargarContribuyente(b)->NOMBREC, cuarenta);
    }

    // --- Presenters --------------------------------------------------------------------------

    void presentadorNuevo_data() { DatosDeNombres(); }

    void presentadorNuevo()
    {
        QFETCH(QString, valor);
        QFETCH(int, id);
        QFETCH(QString, mensaje);
        AlmacenDePrueba almacen;
        NuevoPresentador(Dni(10), QStringLiteral("ASESORIA ARANA"));
        const QStringList antes = ContenidoPresentadores(almacen);
        const Veredicto rechazo =
            Rechazo(Presentadores().GuardarPresentador(PresentadorValido(Dni(11), valor), Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.id, id);
        QCOMPARE(rechazo.mensaje, mensaje);
        QCOMPARE(rechazo.control, QStringLiteral("txtnombrep"));
        QCOMPARE(ContenidoPresentadores(almacen), antes);
    }

    void presentadorModificado_data() { DatosDeNombres(); }

    void presentadorModificado()
    {
        QFETCH(QString, valor);
        QFETCH(int, id);
        AlmacenDePrueba almacen;
        const int32_t p = NuevoPresentador(Dni(12), QStringLiteral("GESTORIA ELORZA"));
        const QStringList antes = ContenidoPresentadores(almacen);
        const Veredicto rechazo =
            Rechazo(Presentadores().GuardarPresentador(PresentadorValido(Dni(12), valor, p), Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.id, id);
        QCOMPARE(ContenidoPresentadores(almacen), antes);
        QCOMPARE(Presentadores().CargarPresentador(p)->NOMBREP, QStringLiteral("GESTORIA ELORZA"));
    }

    void presentadorDniDeBlancos()
    {
        // For a presenter an empty number is a wrong one: the record's own message says so.
        AlmacenDePrueba almacen;
        const Veredicto rechazo =
            Rechazo(Presentadores().GuardarPresentador(
                     PresentadorValido(QStringLiteral("         "), QStringLiteral("GESTORIA")), Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.id, kIdDniCifErroneoODigitoControl);
        QCOMPARE(rechazo.control, QStringLiteral("txtdnip"));
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 0);
    }

    void presentadorTelefonoLargo()
    {
        AlmacenDePrueba almacen;
        Presentador a = PresentadorValido(Dni(13), QStringLiteral("GESTORIA"));
        a.TELEFONOP = QStringLiteral("9451234567");
        const Veredicto rechazo =
            Rechazo(Presentadores().GuardarPresentador(a, Sobrescritura::CualquierVersion));
        QVERIFY(!rechazo.vacio());
        QCOMPARE(rechazo.mensaje,
                 QStringLiteral("La casilla Teléfono no puede tener más de 9 caracteres"));
        QCOMPARE(rechazo.control, QStringLiteral("txttelefonop"));
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 0);
    }

    // --- Searches ----------------------------------------------------------------------------

    void plegado()
    {
        QCOMPARE(PlegarTexto(QStringLiteral("MUÑOZ ÇÉÁÍÓÚÜ")), QStringLiteral("muñoz çéáíóúü"));
        QCOMPARE(PlegarTexto(QStringLiteral("muñoz")), PlegarTexto(QStringLiteral("MuÑoZ")));
        QVERIFY(PlegarTexto(QStringLiteral("É")) != PlegarTexto(QStringLiteral("E")));
        AlmacenDePrueba almacen;
        QCOMPARE(almacen.Valor(QStringLiteral("SELECT PLEGAR(?)"), {QStringLiteral("ÑANDÚ")})
                     .toString(),
                 QStringLiteral("ñandú"));
        QVERIFY(almacen.Valor(QStringLiteral("SELECT PLEGAR(NULL)")).isNull());
    }

    void busquedaContribuyentes_data()
    {
        QTest::addColumn<QString>("prefijo");
        QTest::addColumn<QStringList>("esperados");
        const QStringList munoz = {QStringLiteral("MUÑOZ GIL ANA"), QStringLiteral("muñoz ruiz jon")};
        QTest::newRow("ñ encuentra Ñ") << QStringLiteral("muñoz") << munoz;
        QTest::newRow("Ñ encuentra ñ") << QStringLiteral("MUÑOZ") << munoz;
        QTest::newRow("mezcla") << QStringLiteral("MuÑoZ r") << QStringList{munoz[1]};
        QTest::newRow("ç encuentra Ç") << QStringLiteral("çe")
                                        << QStringList{QStringLiteral("ÇELEBI KAYA"),
                                                       QStringLiteral("çelik demir")};
        QTest::newRow("é encuentra É") << QStringLiteral("élo")
                                        << QStringList{QStringLiteral("ÉLORZA GOÑI")};
        QTest::newRow("Í encuentra í") << QStringLiteral("ÍÑIGO")
                                        << QStringList{QStringLiteral("íñigo ortiz")};
        QTest::newRow("acento distinto no") << QStringLiteral("ELO")
                                             << QStringList{QStringLiteral("ELORZA ARANA")};
        QTest::newRow("ASCII sigue") << QStringLiteral("mu")
                                      << QStringList{QStringLiteral("MUNOZ SANZ IKER"),
                                                     QStringLiteral("MUÑOZ GIL ANA"),
                                                     QStringLiteral("muñoz ruiz jon")};
        QTest::newRow("% es una letra") << QStringLiteral("ñ%")
                                         << QStringList{QStringLiteral("Ñ%GARCIA")};
        QTest::newRow("_ es una letra") << QStringLiteral("Ñ_") << QStringList{};
    }

    void busquedaContribuyentes()
    {
        QFETCH(QString, prefijo);
        QFETCH(QStringList, esperados);
        AlmacenDePrueba almacen;
        quint32 n = 20;
        for (const char* nombre : {"MUÑOZ GIL ANA", "muñoz ruiz jon", "MUNOZ SANZ IKER",
                                   "ÇELEBI KAYA", "çelik demir", "ÉLORZA GOÑI", "ELORZA ARANA",
                                   "íñigo ortiz", "Ñ%GARCIA"})
            NuevoContribuyente(Dni(n++), QString::fromUtf8(nombre));
        QStringList nombres =
            Nombres(Contribuyentes().dameResultadoBusqueda({prefijo, std::nullopt}, OrdenParte::Nombre));
        nombres.sort();
        esperados.sort();
        QCOMPARE(nombres, esperados);
    }

    void busquedaSigueConCualquierCaracter_data()
    {
        QTest::addColumn<QString>("prefijo");
        QTest::newRow("prefijo ASCII") << QStringLiteral("garcia");
        QTest::newRow("prefijo con Ñ") << QStringLiteral("ibáñez");
    }

    void busquedaSigueConCualquierCaracter()
    {
        // A name is found by its beginning whatever character follows it: one of the BMP's last
        // (private use, U+FFFD), one beyond the BMP, the highest a text can hold.
        QFETCH(QString, prefijo);
        AlmacenDePrueba almacen;
        const QString base = prefijo.toUpper();
        const QStringList siguientes = {
            QStringLiteral(" ANA"), QStringLiteral("\uE000"), QStringLiteral("\uFFFD"),
            QString::fromUcs4(U"\U0001F697", 1), QString::fromUcs4(U"\U00020000", 1),
            QString::fromUcs4(U"\U0010FFFD", 1), QString::fromUcs4(U"\U0010FFFD\U0010FFFD", 2)};
        QStringList esperados;
        quint32 n = 40;
        for (const QString& s : siguientes) {
            esperados << base + s;
            QVERIFY(NuevoContribuyente(Dni(n++), base + s) > 0);
        }
        NuevoContribuyente(Dni(n++), QStringLiteral("OTRO ") + base);
        QStringList nombres =
            Nombres(Contribuyentes().dameResultadoBusqueda({prefijo, std::nullopt}, OrdenParte::Nombre));
        nombres.sort();
        esperados.sort();
        QCOMPARE(nombres, esperados);
    }

    void busquedaPresentadores()
    {
        AlmacenDePrueba almacen;
        NuevoPresentador(Dni(30), QStringLiteral("GESTORÍA IBÁÑEZ"));
        NuevoPresentador(Dni(31), QStringLiteral("gestoría ibáñez hnos"));
        NuevoPresentador(Dni(32), QStringLiteral("GESTORIA IBANEZ"));
        for (const QString& prefijo : {QStringLiteral("gestoría ibáñ"), QStringLiteral("GESTORÍA IBÁÑ")}) {
            const QList<FilaPresentador> lista =
                Presentadores().dameResultadoBusqueda({prefijo, std::nullopt}, OrdenParte::Nombre);
            QCOMPARE(lista.size(), 2);
            QStringList nombres = Nombres(lista);
            nombres.sort();
            QCOMPARE(nombres, (QStringList{QStringLiteral("GESTORÍA IBÁÑEZ"),
                                           QStringLiteral("gestoría ibáñez hnos")}));
        }
    }

    void prefijoSeguidoDeCualquierCaracter_data()
    {
        QTest::addColumn<QString>("prefijo");
        QTest::newRow("acaba en Z") << QStringLiteral("ruiz");
        QTest::newRow("acaba en @") << QStringLiteral("info@");
        QTest::newRow("acaba en Ñ") << QStringLiteral("ibáñ");
        QTest::newRow("acaba antes de los sustitutos") << QStringLiteral("a\uD7FF");
        QTest::newRow("acaba en U+10FFFD") << QStringLiteral("b") + QString::fromUcs4(U"\U0010FFFD", 1);
    }
    void prefijoSeguidoDeCualquierCaracter()
    {
        // The condition finds every text that begins with the prefix, whatever comes after it,
        // even the highest code point followed by more text, which a bound made of the prefix
        // and that code point would leave out; and nothing that does not begin with it.
        QFETCH(QString, prefijo);
        AlmacenDePrueba almacen;
        QSqlQuery q(almacen.db());
        QVERIFY(q.exec(QStringLiteral("CREATE TEMP TABLE NOMBRES (N TEXT COLLATE NOCASE)")));
        const QString mayor = QString::fromUcs4(U"\U0010FFFF", 1);
        const QStringList siguen = {QString(), QStringLiteral("A"), QStringLiteral("\uFFFD"),
                                    QString::fromUcs4(U"\U0001F697", 1), mayor,
                                    mayor + QStringLiteral("Z"), mayor + mayor + QStringLiteral("1")};
        QStringList esperados;
        for (const QString& s : siguen)
            esperados << prefijo.toUpper() + s << prefijo + s;
        QStringList todos = esperados;
        const QString sinUltimo = prefijo.chopped(1);
        todos << sinUltimo << sinUltimo + QStringLiteral("{") << sinUltimo + QStringLiteral("[")
              << QStringLiteral("X") + prefijo;
        for (const QString& n : std::as_const(todos)) {
            QVERIFY(q.prepare(QStringLiteral("INSERT INTO NOMBRES VALUES (?)")));
            q.addBindValue(n);
            QVERIFY(q.exec());
        }
        QVariantList valores;
        QVERIFY(q.prepare(QStringLiteral("SELECT N FROM NOMBRES WHERE ")
                          + CondicionPrefijo(QStringLiteral("N"), prefijo, valores)));
        for (const QVariant& v : valores)
            q.addBindValue(v);
        QVERIFY(q.exec());
        QStringList hallados;
        while (q.next())
            hallados << q.value(0).toString();
        hallados.sort();
        esperados.removeDuplicates();
        esperados.sort();
        QCOMPARE(hallados, esperados);
    }

    void busquedaUsaElIndice()
    {
        // Each range of the condition is a search of the name's index, not a scan of the table.
        AlmacenDePrueba almacen;
        for (const QString& prefijo : {QStringLiteral("GARCIA"), QStringLiteral("muñoz"),
                                       QStringLiteral("Ñandú")}) {
            QVariantList valores;
            const QString donde = CondicionPrefijo(QStringLiteral("NOMBREC"), prefijo, valores);
            QSqlQuery q(almacen.db());
            QVERIFY(q.prepare(QStringLiteral("EXPLAIN QUERY PLAN SELECT CSCO FROM CONTRIBUYENTES "
                                             "WHERE ")
                              + donde));
            for (const QVariant& v : valores)
                q.addBindValue(v);
            QVERIFY(q.exec());
            QStringList plan;
            while (q.next())
                plan << q.value(3).toString();
            const QString todo = plan.join(QLatin1Char('\n'));
            QVERIFY2(todo.contains(QStringLiteral("INDEX CONTRIBUYENTES_NOMBREC"))
                         && !todo.contains(QStringLiteral("SCAN")),
                     qPrintable(prefijo + QStringLiteral(": ") + todo));
        }
    }
};

QTEST_GUILESS_MAIN(TestTextoGuardable)
#include "test_texto_guardable.moc"
