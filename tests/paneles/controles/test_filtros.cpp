// Key filters, their binding to fields, the small text routines, the hint label, the field
// colours and Enter moving on like Tab.
#include "paneles/controles/Colores.h"
#include "paneles/controles/EnterComoTab.h"
#include "paneles/controles/FiltroCampo.h"
#include "valores/Filtros.h"
#include "paneles/controles/SeleccionarTexto.h"
#include "valores/Formato.h"
#include "paneles/controles/MostrarAyuda.h"
#include "valores/Rutas.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

int Digitos(int key)
{
    FiltroDigitos(key);
    return key;
}

int Fecha(int key)
{
    FiltroFecha(key);
    return key;
}

// Types a text key by key, letters outside ASCII included, as a keyboard would.
void Teclear(QWidget* campo, const QString& texto)
{
    for (QChar c : texto)
        QTest::sendKeyEvent(QTest::Click, campo, Qt::Key(c.toUpper().unicode()), QString(c),
                            Qt::NoModifier);
}

int Codigo(const char16_t* c)
{
    return QString::fromUtf16(c).at(0).unicode();
}

}  // namespace

class TestFiltros : public QObject {
    Q_OBJECT

private slots:
    void filtroDigitos()
    {
        for (int k = '0'; k <= '9'; ++k)
            QCOMPARE(Digitos(k), k);
        QCOMPARE(Digitos(8), 8);
        QCOMPARE(Digitos('/'), 0);
        QCOMPARE(Digitos(':'), 0);
        QCOMPARE(Digitos('a'), 0);
        QCOMPARE(Digitos(','), 0);
        QCOMPARE(Digitos(13), 0);
        QCOMPARE(Digitos(' '), 0);
        QCOMPARE(Digitos(0), 0);
    }

    void filtroFecha()
    {
        QCOMPARE(Fecha('/'), '/');
        QCOMPARE(Fecha('5'), '5');
        QCOMPARE(Fecha(8), 8);
        QCOMPARE(Fecha('-'), 0);
        QCOMPARE(Fecha('.'), 0);
        QCOMPARE(Fecha('x'), 0);
    }

    void filtroTextoMayusculas()
    {
        QCOMPARE(FiltroTexto('a'), int('A'));
        QCOMPARE(FiltroTexto('z'), int('Z'));
        QCOMPARE(FiltroTexto('A'), int('A'));
        QCOMPARE(FiltroTexto('7'), int('7'));
        QCOMPARE(FiltroTexto(Codigo(u"ñ")), Codigo(u"Ñ"));
        QCOMPARE(FiltroTexto(Codigo(u"Ñ")), Codigo(u"Ñ"));
        QCOMPARE(FiltroTexto(Codigo(u"ç")), Codigo(u"Ç"));
        QCOMPARE(FiltroTexto(Codigo(u"º")), Codigo(u"º"));
        QCOMPARE(FiltroTexto(Codigo(u"ª")), Codigo(u"ª"));
        QCOMPARE(FiltroTexto(Codigo(u"¿")), Codigo(u"¿"));
        QCOMPARE(FiltroTexto(Codigo(u"¡")), Codigo(u"¡"));
        QCOMPARE(FiltroTexto(8), 8);
    }

    void filtroTextoPermitidos()
    {
        const QString signos = QStringLiteral(" !$%&()*+,-./:;<=>?\\_");
        for (QChar c : signos)
            QVERIFY2(FiltroTexto(c.unicode()) == c.unicode(), qPrintable(QString(c)));
    }

    void filtroTextoRechazados()
    {
        QCOMPARE(FiltroTexto(Codigo(u"á")), 0);
        QCOMPARE(FiltroTexto(Codigo(u"é")), 0);
        QCOMPARE(FiltroTexto(Codigo(u"Ú")), 0);
        QCOMPARE(FiltroTexto(Codigo(u"ü")), 0);
        QCOMPARE(FiltroTexto(13), 0);  // Enter
        QCOMPARE(FiltroTexto(9), 0);   // Tab
        const QString rechazados = QStringLiteral("\"#'@[]^{|}`~");
        for (QChar c : rechazados)
            QVERIFY2(FiltroTexto(c.unicode()) == 0, qPrintable(QString(c)));
        QCOMPARE(FiltroTexto(0), 0);
        QCOMPARE(FiltroTexto(-5), 0);
        QCOMPARE(FiltroTexto(0x1F600), 0);
    }

    void seleccionarTexto()
    {
        QLineEdit campo;
        campo.setText(QStringLiteral("GARCIA"));
        campo.setCursorPosition(3);
        SeleccionarTexto(&campo);
        QCOMPARE(campo.selectionStart(), 0);
        QCOMPARE(campo.selectedText(), QStringLiteral("GARCIA"));
        SeleccionarTexto(nullptr);  // no field, nothing to do
    }

    void campoDeTextoFiltraAlEscribir()
    {
        QWidget panel;
        auto* campo = new QLineEdit(&panel);
        campo->setMaxLength(40);
        AplicarFiltro(campo, TipoFiltro::Texto);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        campo->setFocus();
        Teclear(campo, QStringLiteral("pérez-ñoño #1"));
        QCOMPARE(campo->text(), QStringLiteral("PREZ-ÑOÑO 1"));
        // Backspace and the arrows still work.
        QTest::keyClick(campo, Qt::Key_Backspace);
        QCOMPARE(campo->text(), QStringLiteral("PREZ-ÑOÑO "));
    }

    void campoDeTextoFiltraAlPegar()
    {
        QWidget panel;
        auto* campo = new QLineEdit(&panel);
        AplicarFiltro(campo, TipoFiltro::Texto);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        campo->setFocus();
        QApplication::clipboard()->setText(QStringLiteral("calle @mayor 5"));
        if (QApplication::clipboard()->text() != QStringLiteral("calle @mayor 5"))
            QSKIP("no clipboard on this platform");
        QTest::keySequence(campo, QKeySequence::Paste);
        QCOMPARE(campo->text(), QStringLiteral("CALLE MAYOR 5"));
    }

    void campoDeDigitosYFecha()
    {
        QWidget panel;
        auto* digitos = new QLineEdit(&panel);
        auto* fecha = new QLineEdit(&panel);
        AplicarFiltro(digitos, TipoFiltro::Digitos);
        AplicarFiltro(fecha, TipoFiltro::Fecha);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        digitos->setFocus();
        QTest::keyClicks(digitos, QStringLiteral("12a/3,4"));
        QCOMPARE(digitos->text(), QStringLiteral("1234"));
        fecha->setFocus();
        QTest::keyClicks(fecha, QStringLiteral("01/0x2-/2024"));
        QCOMPARE(fecha->text(), QStringLiteral("01/02/2024"));
    }

    void seleccionAlEntrar()
    {
        QWidget panel;
        auto* a = new QLineEdit(&panel);
        auto* b = new QLineEdit(QStringLiteral("MARTINEZ"), &panel);
        b->move(0, 40);
        SeleccionarAlEntrar(b);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        a->setFocus();
        QTest::keyClick(a, Qt::Key_Tab);
        QVERIFY(b->hasFocus());
        QCOMPARE(b->selectedText(), QStringLiteral("MARTINEZ"));
        a->setFocus();
        QTest::mouseClick(b, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTRY_COMPARE(b->selectedText(), QStringLiteral("MARTINEZ"));
    }

    void comaAPunto()
    {
        QCOMPARE(ComaAPunto(QStringLiteral("01.234,50")), QStringLiteral("01.234.50"));
        QCOMPARE(ComaAPunto(QStringLiteral("1,2,3")), QStringLiteral("1.2,3"));
        QCOMPARE(ComaAPunto(QStringLiteral("1234")), QStringLiteral("1234"));
        QCOMPARE(ComaAPunto(QString()), QString());
    }

    void rutas()
    {
        QCOMPARE(NombreFichero(QStringLiteral("/home/ana/CONTRI.txt")), QStringLiteral("CONTRI.txt"));
        QCOMPARE(RutaFichero(QStringLiteral("/home/ana/CONTRI.txt")), QStringLiteral("/home/ana/"));
        QCOMPARE(NombreFichero(QStringLiteral("CONTRI.txt")), QStringLiteral("CONTRI.txt"));
        QCOMPARE(RutaFichero(QStringLiteral("CONTRI.txt")), QString());
        QCOMPARE(NombreFichero(QStringLiteral("/home/ana/")), QString());
        QCOMPARE(RutaFichero(QStringLiteral("/home/ana/")), QStringLiteral("/home/ana/"));
        QCOMPARE(NombreFichero(QStringLiteral("/CONTRI.txt")), QStringLiteral("CONTRI.txt"));
        QCOMPARE(RutaFichero(QStringLiteral("/CONTRI.txt")), QStringLiteral("/"));
        QCOMPARE(NombreFichero(QString()), QString());
        QCOMPARE(RutaFichero(QString()), QString());
    }

    void ayudaVaciaOculta()
    {
        QWidget panel;
        auto* etiqueta = new QLabel(QStringLiteral("antes"), &panel);
        panel.show();
        QVERIFY(etiqueta->isVisible());
        MostrarAyuda(etiqueta, QString());
        QVERIFY(!etiqueta->isVisible());
        QCOMPARE(etiqueta->text(), QStringLiteral("antes"));
    }

    void ayudaCorta()
    {
        QWidget panel;
        panel.resize(800, 200);
        auto* etiqueta = new QLabel(&panel);
        etiqueta->hide();
        panel.show();
        const QString texto = QStringLiteral("Pulse F4");
        MostrarAyuda(etiqueta, texto, 600);
        QVERIFY(etiqueta->isVisible());
        QCOMPARE(etiqueta->text(), texto);
        QVERIFY(!etiqueta->wordWrap());
        QVERIFY(etiqueta->width() <= 600);
        QVERIFY(etiqueta->width() >= etiqueta->fontMetrics().horizontalAdvance(texto));
        QVERIFY(etiqueta->height() >= 16);  // 240 twips
    }

    void ayudaLargaSeParte()
    {
        QWidget panel;
        panel.resize(800, 200);
        auto* etiqueta = new QLabel(&panel);
        panel.show();
        const QString texto = QStringLiteral(
            "Haga clic en la cabecera de la lista sobre el campo por el que desea ordenar");
        const int maximo = etiqueta->fontMetrics().horizontalAdvance(texto) / 2 + 20;
        MostrarAyuda(etiqueta, texto, maximo);
        QVERIFY(etiqueta->isVisible());
        QVERIFY(etiqueta->wordWrap());
        QCOMPARE(etiqueta->width(), maximo);
        QVERIFY(etiqueta->height() >= 30);  // 450 twips: two lines
        // Without a maximum the same text stays on one line.
        MostrarAyuda(etiqueta, texto);
        QVERIFY(!etiqueta->wordWrap());
        QVERIFY(etiqueta->width() > maximo);
    }

    void colores()
    {
        QLineEdit campo;
        ColorearCampo(&campo, false);
        QCOMPARE(ColorFondo(&campo).rgb() & 0xFFFFFF, kColorBloqueado);
        ColorearCampo(&campo, true);
        QCOMPARE(ColorFondo(&campo).rgb() & 0xFFFFFF, kColorAbierto);
        PonerColorFondo(&campo, QColor::fromRgb(0x80C0FF));
        QCOMPARE(campo.palette().color(QPalette::Base), QColor::fromRgb(0x80C0FF));
        QCOMPARE(kColorBloqueado, QRgb(0xE0E0E0));
        QCOMPARE(kColorAbierto, QRgb(0xFFFFFF));
    }

    void enterComoTab()
    {
        QWidget panel;
        auto* capa = new QVBoxLayout(&panel);
        auto* a = new QLineEdit(&panel);
        auto* b = new QLineEdit(&panel);
        auto* boton = new QPushButton(QStringLiteral("Aceptar"), &panel);
        auto* c = new QLineEdit(&panel);
        capa->addWidget(a);
        capa->addWidget(b);
        capa->addWidget(boton);
        capa->addWidget(c);
        auto* enter = new EnterComoTab(&panel);
        bool abierto = false;
        enter->setActivo([&abierto] { return !abierto; });
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        a->setFocus();
        QTest::keyClick(a, Qt::Key_Return);
        QVERIFY(b->hasFocus());
        QTest::keyClick(b, Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(boton->hasFocus());
        // A button keeps its own Enter.
        QTest::keyClick(boton, Qt::Key_Return);
        QVERIFY(boton->hasFocus());
        // Switched off, Enter stays in the field.
        a->setFocus();
        abierto = true;
        QTest::keyClick(a, Qt::Key_Return);
        QVERIFY(a->hasFocus());
        abierto = false;
        // A field of another window is not the panel's business.
        QLineEdit fuera;
        fuera.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fuera));
        fuera.activateWindow();
        fuera.setFocus();
        QTest::keyClick(&fuera, Qt::Key_Return);
        QVERIFY(fuera.hasFocus() || !fuera.isActiveWindow());
    }
};

QTEST_MAIN(TestFiltros)
#include "test_filtros.moc"
