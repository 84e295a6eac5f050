// Lists with keys, combos, and the routines that fill and search them.
#include "paneles/controles/Colores.h"
#include "paneles/controles/Listas.h"
#include "paneles/controles/cListaClaves.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

namespace {

QList<FilaReferencia> Provincias()
{
    // As the reference store answers: code and name, row by row.
    return {{QStringLiteral("1"), QStringLiteral("ALAVA")},
            {QStringLiteral("20"), QStringLiteral("GIPUZKOA")},
            {QStringLiteral("77"), QStringLiteral("TERRITORIO")},
            {QStringLiteral("48"), QStringLiteral("BIZKAIA")}};
}

}  // namespace

class TestListas : public QObject {
    Q_OBJECT

private slots:
    void cargarListaPares()
    {
        cListaClaves lista;
        CargarListaPares(&lista, Provincias());
        QCOMPARE(lista.Count(), 4);
        QCOMPARE(lista.ClaveElemento(0), QStringLiteral("1"));
        QCOMPARE(lista.TextoElemento(0), QStringLiteral("ALAVA"));
        QCOMPARE(lista.ClaveElemento(2), QStringLiteral("77"));
        QCOMPARE(lista.TextoElemento(3), QStringLiteral("BIZKAIA"));
        // The code column shows the code, the text column the name.
        QCOMPARE(lista.topLevelItem(2)->text(cListaClaves::kColumnaCodigo), QStringLiteral("77"));
        QCOMPARE(lista.topLevelItem(2)->text(cListaClaves::kColumnaTexto), QStringLiteral("TERRITORIO"));
    }

    void cargarListaParesConPrefijo()
    {
        cListaClaves lista;
        CargarListaPares(&lista, Provincias(), QStringLiteral("c"));
        QCOMPARE(lista.ClaveElemento(2), QStringLiteral("c77"));
        QCOMPARE(lista.topLevelItem(2)->text(cListaClaves::kColumnaCodigo), QStringLiteral("77"));
        QCOMPARE(TextoDeClave(&lista, QStringLiteral("c77")), QStringLiteral("TERRITORIO"));
        QCOMPARE(TextoDeClave(&lista, QStringLiteral("77")), QString());
    }

    void cargarListaParesVacia()
    {
        cListaClaves lista;
        CargarListaPares(&lista, QList<FilaReferencia>{});
        QCOMPARE(lista.Count(), 0);
        CargarListaPares(nullptr, Provincias());
    }

    void textoDeClave()
    {
        cListaClaves lista;
        lista.Agregar(QStringLiteral("CL"), QStringLiteral("CALLE"));
        lista.Agregar(QStringLiteral("AV"), QStringLiteral("AVENIDA"));
        lista.Agregar(QStringLiteral("CL"), QStringLiteral("OTRA CALLE"));
        QCOMPARE(TextoDeClave(&lista, QStringLiteral("CL")), QStringLiteral("CALLE"));  // the first
        QCOMPARE(TextoDeClave(&lista, QStringLiteral("AV")), QStringLiteral("AVENIDA"));
        QCOMPARE(TextoDeClave(&lista, QStringLiteral("cl")), QString());  // exact keys
        QCOMPARE(TextoDeClave(&lista, QString()), QString());
        QCOMPARE(TextoDeClave(nullptr, QStringLiteral("CL")), QString());
    }

    void localizarTexto()
    {
        cListaClaves lista;
        CargarListaPares(&lista, Provincias());
        QVERIFY(lista.LocalizarTexto(QStringLiteral("GIPUZKOA")));
        QCOMPARE(lista.Actual(), 1);
        QCOMPARE(lista.ClaveActual(), QStringLiteral("20"));
        QVERIFY(!lista.LocalizarTexto(QStringLiteral("SORIA")));
        QCOMPARE(lista.Actual(), 1);
    }

    void elegirConEnterDobleClicYEscape()
    {
        cListaClaves lista;
        CargarListaPares(&lista, Provincias());
        lista.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lista));
        QSignalSpy elegido(&lista, &cListaClaves::elegido);
        QSignalSpy cancelado(&lista, &cListaClaves::cancelado);
        lista.setFocus();
        lista.setCurrentItem(lista.topLevelItem(0));
        QTest::keyClick(&lista, Qt::Key_Down);
        QCOMPARE(elegido.count(), 0);  // moving chooses nothing
        QTest::keyClick(&lista, Qt::Key_Return);
        QCOMPARE(elegido.count(), 1);
        QCOMPARE(elegido.at(0).at(0).toString(), QStringLiteral("20"));
        QCOMPARE(elegido.at(0).at(1).toString(), QStringLiteral("GIPUZKOA"));
        QTest::keyClick(&lista, Qt::Key_Escape);
        QCOMPARE(cancelado.count(), 1);
        QCOMPARE(elegido.count(), 1);
        const QRect r = lista.visualItemRect(lista.topLevelItem(3));
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        QTest::mouseDClick(lista.viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        QCOMPARE(elegido.count(), 2);
        QCOMPARE(elegido.at(1).at(0).toString(), QStringLiteral("48"));
        QTest::keyClick(&lista, Qt::Key_A);
        QCOMPARE(elegido.count(), 2);
        QCOMPARE(cancelado.count(), 1);
    }

    void buscarEnComboMinusculas()
    {
        QComboBox combo;
        combo.addItems({QStringLiteral("ADQUISICION"), QStringLiteral("IMPORTACION"),
                        QStringLiteral("IMPORTE")});
        BuscarEnCombo(QStringLiteral("imp"), &combo);
        QCOMPARE(combo.currentIndex(), 1);
        BuscarEnCombo(QStringLiteral("IMPORTE"), &combo);
        QCOMPARE(combo.currentIndex(), 2);
    }

    void buscarEnComboTalCual()
    {
        QComboBox combo;
        combo.addItems({QStringLiteral("ALTA"), QStringLiteral("baja voluntaria")});
        BuscarEnCombo(QStringLiteral("baja"), &combo);
        QCOMPARE(combo.currentIndex(), 1);
    }

    void buscarEnComboSinCoincidencia()
    {
        QComboBox combo;
        combo.setEditable(true);
        combo.addItems({QStringLiteral("ALTA"), QStringLiteral("BAJA")});
        combo.setCurrentIndex(1);
        BuscarEnCombo(QStringLiteral("XYZ"), &combo);
        QCOMPARE(combo.currentIndex(), -1);
        QCOMPARE(combo.currentText(), QString());
        combo.setCurrentIndex(0);
        BuscarEnCombo(QString(), &combo);
        QCOMPARE(combo.currentIndex(), -1);
        QCOMPARE(combo.currentText(), QString());
        // Search by the start only.
        BuscarEnCombo(QStringLiteral("LTA"), &combo);
        QCOMPARE(combo.currentIndex(), -1);
    }

    void buscarEnComboVacio()
    {
        QComboBox combo;
        combo.setEditable(true);
        BuscarEnCombo(QStringLiteral("Compra"), &combo);
        QCOMPARE(combo.currentText(), QStringLiteral("Compra"));
        QCOMPARE(combo.count(), 0);
        BuscarEnCombo(QStringLiteral("x"), nullptr);
    }

    void cargarCombo()
    {
        QComboBox combo;
        combo.addItem(QStringLiteral("viejo"));
        CargarCombo(&combo, QStringList{QStringLiteral("UNO"), QStringLiteral("DOS"), QStringLiteral("3")});
        QCOMPARE(combo.count(), 3);
        QCOMPARE(combo.itemText(0), QStringLiteral("UNO"));
        QCOMPARE(combo.itemText(1), QStringLiteral("DOS"));
        QCOMPARE(combo.itemText(2), QStringLiteral("3"));
        QVERIFY(combo.isEnabled());
    }

    void cargarComboVacioBloquea()
    {
        QComboBox combo;
        combo.addItem(QStringLiteral("viejo"));
        CargarCombo(&combo, QStringList{});
        QCOMPARE(combo.count(), 0);
        QVERIFY(!combo.isEnabled());
        QCOMPARE(ColorFondo(&combo).rgb() & 0xFFFFFF, kColorBloqueado);
    }

    void desplegarCombo()
    {
        QComboBox combo;
        combo.addItems({QStringLiteral("A"), QStringLiteral("B")});
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        QVERIFY(!combo.view()->isVisible());
        DesplegarCombo(&combo);
        QTRY_VERIFY(combo.view()->isVisible());
        combo.hidePopup();
        DesplegarCombo(nullptr);
    }
};

QTEST_MAIN(TestListas)
#include "test_listas.moc"
