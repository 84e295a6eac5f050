#include "ComprobarCapas.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

namespace {

// The layers, bottom to top. A folder belongs to the longest entry that is itself or one of
// its parents: registros/partes is in "registros", paneles/dialogos has a layer of its own.
struct Capa {
    const char* carpeta;
    int nivel;
};
constexpr Capa kCapas[] = {
    {"plataforma", 0},       {"catalogo", 1},          {"valores", 2},
    {"servicios", 3},        {"registros/nucleo", 4},  {"registros", 5},
    {"paneles/dialogos", 6}, {"paneles/controles", 7}, {"paneles", 8},
    {"aplicacion", 9},
};
// Up to this layer no widget is drawn: no header of Qt Widgets or Qt Gui.
constexpr int kUltimaCapaSinWidgets = 5;

// The one tolerated upward include. The backup and restore flow of cSaveAsRestore still asks
// its questions and opens its file chooser from the store; that flow moves to the application
// layer, and this exception is removed with the move.
struct Excepcion {
    const char* ficheros;  // prefix of the files, relative to src/
    const char* modulo;    // the folder of the module they may include
};
constexpr Excepcion kExcepciones[] = {
    {"servicios/cSaveAsRestore.", "paneles/dialogos"},
};

bool exceptuado(const QString& fichero, const QString& carpetaCabecera)
{
    for (const Excepcion& e : kExcepciones)
        if (fichero.startsWith(QLatin1String(e.ficheros))
            && carpetaCabecera == QLatin1String(e.modulo))
            return true;
    return false;
}

const Modulo* moduloDeCarpeta(const QList<Modulo>& modulos, const QString& carpeta)
{
    for (const Modulo& m : modulos)
        if (m.carpeta == carpeta)
            return &m;
    return nullptr;
}

const Modulo* moduloDeNombre(const QList<Modulo>& modulos, const QString& nombre)
{
    for (const Modulo& m : modulos)
        if (m.nombre == nombre)
            return &m;
    return nullptr;
}

QString quitarComentarios(const QString& texto)
{
    QStringList lineas = texto.split(QLatin1Char('\n'));
    for (QString& l : lineas) {
        const qsizetype almohadilla = l.indexOf(QLatin1Char('#'));
        if (almohadilla >= 0)
            l.truncate(almohadilla);
    }
    return lineas.join(QLatin1Char('\n'));
}

// The Qt module of an angle include, if it is one of the two drawing modules.
QString moduloQt(const QString& cabecera, const CabecerasQt& qt)
{
    if (cabecera.startsWith(QLatin1String("QtWidgets")))
        return QStringLiteral("QtWidgets");
    if (cabecera.startsWith(QLatin1String("QtGui")))
        return QStringLiteral("QtGui");
    if (cabecera.contains(QLatin1Char('/')) || !cabecera.startsWith(QLatin1Char('Q')))
        return {};
    if (!qt.widgets.isEmpty() && QFileInfo::exists(qt.widgets + QLatin1Char('/') + cabecera))
        return QStringLiteral("QtWidgets");
    if (!qt.gui.isEmpty() && QFileInfo::exists(qt.gui + QLatin1Char('/') + cabecera))
        return QStringLiteral("QtGui");
    return {};
}

struct Include {
    int linea;
    QChar forma;  // '"' or '<'
    QString cabecera;
};

QList<Include> includesDe(const QString& ruta)
{
    static const QRegularExpression patron(
        QStringLiteral(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])"));
    QList<Include> encontrados;
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return encontrados;
    QTextStream in(&f);
    int n = 0;
    while (!in.atEnd()) {
        const QString linea = in.readLine();
        ++n;
        const QRegularExpressionMatch m = patron.match(linea);
        if (m.hasMatch())
            encontrados.append({n, m.captured(1).at(0), m.captured(2).trimmed()});
    }
    return encontrados;
}

// The header a project include names, relative to the root: beside the file first, then
// from the include root. Empty when it is not a file of the tree.
QString resolver(const QDir& raiz, const QString& fichero, const Include& inc)
{
    if (inc.forma == QLatin1Char('"')) {
        const QString junto = QFileInfo(fichero).path() + QLatin1Char('/') + inc.cabecera;
        if (QFileInfo::exists(raiz.filePath(junto)))
            return QDir::cleanPath(junto);
    }
    if (QFileInfo::exists(raiz.filePath(inc.cabecera)))
        return QDir::cleanPath(inc.cabecera);
    return {};
}

QString carpetaDe(const QString& relativo)
{
    const qsizetype barra = relativo.lastIndexOf(QLatin1Char('/'));
    return barra < 0 ? QString() : relativo.left(barra);
}

}  // namespace

QString Falta::texto() const
{
    return fichero + QLatin1Char(':') + QString::number(linea) + QStringLiteral(": ") + motivo;
}

QList<Modulo> ModulosDeCMake(const QString& cmakeLists)
{
    QList<Modulo> modulos;
    QFile f(cmakeLists);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return modulos;
    const QString texto = quitarComentarios(QString::fromUtf8(f.readAll()));
    static const QRegularExpression llamada(QStringLiteral(R"(\bveldo_modulo\s*\(([^)]*)\))"));
    for (auto it = llamada.globalMatch(texto); it.hasNext();) {
        const QStringList partes =
            it.next().captured(1).split(QRegularExpression(QStringLiteral(R"(\s+)")),
                                        Qt::SkipEmptyParts);
        if (partes.isEmpty())
            continue;
        Modulo m;
        m.nombre = partes.first();
        QString clave;
        for (const QString& p : partes.mid(1)) {
            if (p == QLatin1String("DIR") || p == QLatin1String("DEPENDE")
                || p == QLatin1String("QT")) {
                clave = p;
            } else if (clave == QLatin1String("DIR")) {
                m.carpeta = p;
            } else if (clave == QLatin1String("DEPENDE")) {
                m.depende.append(p.startsWith(QLatin1String("veldo_")) ? p.mid(6) : p);
            } else if (clave == QLatin1String("QT")) {
                m.qt.append(p);
            }
        }
        modulos.append(m);
    }
    return modulos;
}

int CapaDe(const QString& carpeta)
{
    int nivel = -1;
    qsizetype largo = -1;
    for (const Capa& c : kCapas) {
        const QString base = QLatin1String(c.carpeta);
        const bool dentro = carpeta == base || carpeta.startsWith(base + QLatin1Char('/'));
        if (dentro && base.size() > largo) {
            nivel = c.nivel;
            largo = base.size();
        }
    }
    return nivel;
}

bool DependeDe(const QList<Modulo>& modulos, const QString& de, const QString& otro)
{
    QSet<QString> vistos;
    QStringList pendientes{de};
    while (!pendientes.isEmpty()) {
        const Modulo* m = moduloDeNombre(modulos, pendientes.takeLast());
        if (!m)
            continue;
        for (const QString& d : m->depende) {
            if (d == otro)
                return true;
            if (!vistos.contains(d)) {
                vistos.insert(d);
                pendientes.append(d);
            }
        }
    }
    return false;
}

QList<Falta> ComprobarCapas(const QString& raizTexto, const QList<Modulo>& modulos,
                            const CabecerasQt& qt, Recuento* recuento)
{
    QList<Falta> faltas;
    Recuento cuenta;
    const QDir raiz(raizTexto);
    QStringList ficheros;
    QDirIterator it(raizTexto, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        ficheros.append(raiz.relativeFilePath(it.next()));
    ficheros.sort();

    for (const QString& fichero : ficheros) {
        ++cuenta.ficheros;
        const QString carpeta = carpetaDe(fichero);
        const Modulo* modulo = moduloDeCarpeta(modulos, carpeta);
        const int capa = CapaDe(carpeta);
        if (!modulo || capa < 0) {
            faltas.append({fichero, 0, QStringLiteral("the folder %1 is no module of a layer")
                                           .arg(carpeta.isEmpty() ? QStringLiteral(".") : carpeta)});
            continue;
        }
        for (const Include& inc : includesDe(raiz.filePath(fichero))) {
            ++cuenta.includes;
            const QString cabecera = resolver(raiz, fichero, inc);
            if (cabecera.isEmpty()) {
                const QString qtModulo = inc.forma == QLatin1Char('<')
                    ? moduloQt(inc.cabecera, qt) : QString();
                if (!qtModulo.isEmpty() && capa <= kUltimaCapaSinWidgets)
                    faltas.append({fichero, inc.linea,
                                   QStringLiteral("%1 has no widgets but includes <%2> of %3")
                                       .arg(carpeta, inc.cabecera, qtModulo)});
                continue;
            }
            const QString otraCarpeta = carpetaDe(cabecera);
            if (otraCarpeta == carpeta || exceptuado(fichero, otraCarpeta))
                continue;
            const Modulo* otro = moduloDeCarpeta(modulos, otraCarpeta);
            const int otraCapa = CapaDe(otraCarpeta);
            if (!otro || otraCapa < 0) {
                faltas.append({fichero, inc.linea,
                               QStringLiteral("%1 includes %2, which belongs to no module")
                                   .arg(carpeta, cabecera)});
            } else if (otraCapa > capa) {
                faltas.append({fichero, inc.linea,
                               QStringLiteral("%1 includes %2 of %3, a layer above it")
                                   .arg(carpeta, cabecera, otraCarpeta)});
            } else if (otraCapa == capa && !DependeDe(modulos, modulo->nombre, otro->nombre)) {
                faltas.append({fichero, inc.linea,
                               QStringLiteral("%1 includes %2 of %3, a module of its own layer "
                                              "that veldo_%4 does not declare (DEPENDE)")
                                   .arg(carpeta, cabecera, otraCarpeta, modulo->nombre)});
            }
        }
    }
    if (recuento)
        *recuento = cuenta;
    return faltas;
}
