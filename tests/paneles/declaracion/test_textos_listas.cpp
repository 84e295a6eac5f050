// Nothing is cut in the lists, in Spanish and in Basque, at the program's size: every heading
// fits its column (and stands clear of the order's arrow when it has one), every date and amount
// fits its cell, and the help line under the grid shows its whole text. Measured with the fonts
// the panels draw with, on every list panel: the returns, a contributor's and a presenter's
// returns, the lists of contributors and presenters and their selection panels.
#include "ApoyoDeclaracionPanel.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"

#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QStyle>

namespace {

// A date in either language's order or an amount the Spanish way: the cells that must show
// whole (a long description may end in an ellipsis).
bool EsFechaOImporte(const QString& texto)
{
    static const QRegularExpression forma(QStringLiteral(
        "^(\\d{2}/\\d{2}/\\d{4}|\\d{4}/\\d{2}/\\d{2}|-?\\d{1,3}(\\.\\d{3})*,\\d{2})$"));
    return forma.match(texto).hasMatch();
}

// What of `panel` does not show whole, one line each.
QStringList TextosCortados(QWidget* panel)
{
    QStringList cortados;
    const QString nombre = panel->objectName();
    for (cFlexGrid* g : panel->findChildren<cFlexGrid*>()) {
        if (!g->isVisible())
            continue;
        const QHeaderView* h = g->horizontalHeader();
        const int margenCabecera = g->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, h);
        const int margenCelda = g->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, g) + 1;
        for (int c = 0; c < g->Cols(); ++c) {
            const int ancho = g->ColWidth(c);
            if (ancho <= 0)
                continue;
            const QString titulo = g->TextMatrix(0, c);
            const int anchoTitulo = h->fontMetrics().horizontalAdvance(titulo);
            if (anchoTitulo + 2 * margenCabecera > ancho)
                cortados << QStringLiteral("%1: cabecera '%2' (%3 en %4)").arg(nombre, titulo).arg(anchoTitulo).arg(ancho);
            for (int f = 1; f < g->Rows(); ++f) {
                const QString texto = g->TextMatrix(f, c);
                const int anchoTexto = g->fontMetrics().horizontalAdvance(texto);
                if (EsFechaOImporte(texto) && anchoTexto + 2 * margenCelda > ancho)
                    cortados << QStringLiteral("%1: celda (%2, %3) '%4' (%5 en %6)")
                                    .arg(nombre).arg(f).arg(c).arg(texto).arg(anchoTexto).arg(ancho);
            }
        }
        // The order's arrow does not fall on its heading's text.
        for (QLabel* flecha : {panel->findChild<QLabel*>(QStringLiteral("picasc")),
                               panel->findChild<QLabel*>(QStringLiteral("picdesc"))}) {
            if (!flecha || !flecha->isVisible())
                continue;
            const QRect enCabecera(h->viewport()->mapFrom(panel, flecha->pos()), flecha->size());
            const int c = h->logicalIndexAt(enCabecera.left());
            if (c < 0)
                continue;
            const QRect seccion(h->sectionViewportPosition(c), 0, h->sectionSize(c), h->height());
            const int anchoTitulo = h->fontMetrics().horizontalAdvance(g->TextMatrix(0, c));
            const Qt::Alignment al =
                g->model()->headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
            const int izquierda = al & Qt::AlignRight ? seccion.right() - margenCabecera - anchoTitulo
                : al & Qt::AlignHCenter               ? seccion.center().x() - anchoTitulo / 2
                                                      : seccion.left() + margenCabecera;
            if (izquierda + anchoTitulo > enCabecera.left())
                cortados << QStringLiteral("%1: la flecha sobre '%2'").arg(nombre, g->TextMatrix(0, c));
        }
    }
    for (const char* etiqueta : {"lblayuda"}) {
        auto* l = panel->findChild<QLabel*>(QLatin1String(etiqueta));
        if (!l || !l->isVisible() || l->text().isEmpty())
            continue;
        const QRect dentro = l->contentsRect();
        const bool cabe = l->wordWrap()
            ? l->fontMetrics().boundingRect(dentro.adjusted(0, 0, 0, 10000), Qt::TextWordWrap, l->text()).height()
                <= dentro.height()
                && l->fontMetrics().boundingRect(dentro.adjusted(0, 0, 0, 10000), Qt::TextWordWrap, l->text()).width()
                    <= dentro.width()
            : l->fontMetrics().horizontalAdvance(l->text()) <= dentro.width();
        // The label's own room within the panel counts too: a layout may give it less.
        const bool dentroDelPanel = panel->rect().contains(QRect(l->mapTo(panel, QPoint(0, 0)), l->size()));
        if (!cabe || !dentroDelPanel)
            cortados << QStringLiteral("%1: %2 '%3' (%4 x %5)")
                            .arg(nombre, QLatin1String(etiqueta), l->text())
                            .arg(dentro.width()).arg(dentro.height());
    }
    return cortados;
}

}  // namespace

class TestTextosListas : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;
    QStringList m_cortados;

    void mirar(const char* nombre)
    {
        m_panel = m_prog->panel(QString::fromLatin1(nombre));
        QVERIFY2(m_panel, nombre);
        m_cortados << TextosCortados(m_panel);
    }
    void abrir(const char* comando, const char* panel)
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, comando);
        mirar(panel);
    }
    void ordenarPor(int columna)
    {
        QHeaderView* h = c<cFlexGrid>("flxDeclaraciones")->horizontalHeader();
        QTest::mouseClick(h->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(h->sectionViewportPosition(columna) + h->sectionSize(columna) / 2,
                                 h->height() / 2));
        Procesar();
    }
    // Every heading that orders, each with its arrow, and both states of the list.
    void recorrerLista(const char* panel)
    {
        for (int col = 0; col < 5; ++col) {
            ordenarPor(col);
            mirar(panel);
        }
        Clic(b("cmdBuscar"));
        mirar(panel);
        Clic(b("cmdBuscar"));
    }

private slots:
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void nadaCortado_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::newRow("castellano") << QStringLiteral("C");
        QTest::newRow("euskera") << QStringLiteral("E");
    }
    void nadaCortado()
    {
        QFETCH(QString, idioma);
        m_prog = std::make_unique<ProgramaDePrueba>(idioma);
        m_cortados.clear();
        const int32_t csco = NuevoContribuyente(Dni(22222222), QStringLiteral("AGIRRE ZUBIA MIREN"));
        const int32_t cspr = NuevoPresentador(Dni(33333333), QStringLiteral("GESTORIA ARBELIA"));
        // A large base, so that the amount has all its thousands.
        for (int i = 0; i < 3; ++i)
            DeclaracionGuardada(QStringLiteral("REF%1").arg(i), 20241231 - i, QStringLiteral("T2"), csco, 0, cspr);
        MensajeSeam::limpiar();

        abrir("mnuAbrirDeclaracion", "FrmDecLista");
        recorrerLista("FrmDecLista");
        Clic(b("cmdCancelar"));

        abrir("mnuAbrirContribuyente", "FrmConLista");
        ClicEnCelda(c<cFlexGrid>("flxContribuyentes"), 1, 1);
        Clic(b("CmdDeclaraciones"));
        mirar("FrmConDeclaraciones");
        recorrerLista("FrmConDeclaraciones");
        Clic(b("cmdCancelar"));
        mirar("FrmConLista");
        Clic(b("cmdCancelar"));

        abrir("mnuAbrirPresentador", "FrmPreLista");
        ClicEnCelda(c<cFlexGrid>("flxPresentadores"), 1, 1);
        Clic(b("CmdDeclaraciones"));
        mirar("FrmPreDeclaraciones");
        recorrerLista("FrmPreDeclaraciones");
        Clic(b("cmdCancelar"));
        mirar("FrmPreLista");
        Clic(b("cmdCancelar"));

        abrir("mnuNuevaDeclaracion", "FrmDeclaracion");
        Clic(b("cmdSujetoPasivo"));
        mirar("FrmConSeleccion");
        Clic(b("cmdCancelar"));
        mirar("FrmDeclaracion");
        Clic(b("CmdPresentador"));
        mirar("FrmPreSeleccion");
        Clic(b("cmdCancelar"));

        QVERIFY2(m_cortados.isEmpty(), qPrintable(m_cortados.join(QLatin1Char('\n'))));
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }
};

QTEST_MAIN(TestTextosListas)
#include "test_textos_listas.moc"
