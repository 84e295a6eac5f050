#pragma once
// The layer check of src/: every #include of every source file is mapped to the module of the
// file and to the module of the header, and an include that reaches a layer above, or a module
// of the same layer that CMake does not declare as a dependency, is a fault. The files of the
// layers without widgets (plataforma to registros) may not include a header of Qt Widgets or
// Qt Gui either.
#include <QList>
#include <QString>
#include <QStringList>

// One module as src/CMakeLists.txt declares it with veldo_modulo().
struct Modulo {
    QString nombre;       // "registros_partes" (the target is veldo_registros_partes)
    QString carpeta;      // "registros/partes", relative to src/
    QStringList depende;  // the veldo_ targets of DEPENDE, without the prefix
    QStringList qt;       // the Qt modules of QT
};

// A broken rule: the file (relative to the checked root), its line, and why.
struct Falta {
    QString fichero;
    int linea = 0;
    QString motivo;
    QString texto() const;  // "servicios/x.cpp:12: ..."
};

// The module calls of a CMakeLists.txt. An unreadable file gives none.
QList<Modulo> ModulosDeCMake(const QString& cmakeLists);

// The layer of a module's folder, bottom 0 (plataforma) to top (aplicacion); -1 for a folder
// that belongs to no layer.
int CapaDe(const QString& carpeta);

// Whether a module may use another through the declared dependencies, at any depth.
bool DependeDe(const QList<Modulo>& modulos, const QString& de, const QString& otro);

// Where the headers of Qt Widgets and Qt Gui lie, to tell which <Q...> include is theirs.
struct CabecerasQt {
    QString widgets;  // e.g. /usr/include/x86_64-linux-gnu/qt6/QtWidgets
    QString gui;
};

// What a run read, so that a test can tell a real check from an empty one.
struct Recuento {
    int ficheros = 0;
    int includes = 0;
};

// Checks every .h and .cpp under `raiz` (the include root, src/) against `modulos`.
QList<Falta> ComprobarCapas(const QString& raiz, const QList<Modulo>& modulos,
                            const CabecerasQt& qt, Recuento* recuento = nullptr);
