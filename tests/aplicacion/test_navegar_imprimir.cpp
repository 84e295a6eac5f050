// The navigator's way to printing and back: AbrirImprimir sets the return to print and the
// caller's letter in ImOf(), shows the print panel, and when it closes goes back as that letter
// says, the return's form first trimming its LISTA and taking ENTRADA "P".
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "aplicacion/Navegacion.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/cImOf.h"

#include <QPointer>
#include <QPushButton>
#include <QTest>

class TestNavegarImprimir : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    cSuperficieGrabadora m_hojas;
    QStringList m_vueltas;
    int32_t m_codigo = 0;

    void volverA(const QString& letra)
    {
        Navegacion::InstalarVueltaImprimir(letra, [this, letra] { m_vueltas << letra; });
    }

private slots:
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        m_codigo = DeclaracionLlena();
        MensajeSeam::grabar(true);
        ImpresoraSistemaSeam::impresoras(1);
        ImpresoraSistemaSeam::superficie(&m_hojas);
        m_vueltas.clear();
        m_hojas.Llamadas.clear();
        for (const char* l : {"D", "L", "C", "P"})
            volverA(QLatin1String(l));
    }
    void cleanup()
    {
        for (const char* l : {"D", "L", "C", "P"})
            Navegacion::InstalarVueltaImprimir(QLatin1String(l), {});
        ImpresoraSistemaSeam::limpiar();
        MensajeSeam::grabar(false);
        m_almacen.reset();
    }

    void desdeElFormulario_data()
    {
        QTest::addColumn<QString>("lista");
        QTest::addColumn<QString>("queda");
        QTest::newRow("dos letras") << QStringLiteral("LI") << QStringLiteral("L");
        QTest::newRow("una letra") << QStringLiteral("I") << QString();
    }

    void desdeElFormulario()
    {
        QFETCH(QString, lista);
        QFETCH(QString, queda);
        DecDatos().LISTA = lista;
        DecDatos().ENTRADA = QStringLiteral("S");
        QPointer<FrmImprimir> panel = Navegacion::AbrirImprimir(m_codigo, QStringLiteral("D"));
        QVERIFY(panel);
        QCOMPARE(ImOf().CSDE, m_codigo);
        QCOMPARE(ImOf().ENTRADA, QStringLiteral("D"));
        QVERIFY(panel->isVisible());
        panel->findChild<QPushButton*>(QStringLiteral("cmdAceptar"))->click();
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        QCOMPARE(m_vueltas, QStringList{QStringLiteral("D")});
        QCOMPARE(DecDatos().LISTA, queda);
        QCOMPARE(DecDatos().ENTRADA, QStringLiteral("P"));
        QTRY_VERIFY(panel.isNull());
    }

    void desdeLasListas_data()
    {
        QTest::addColumn<QString>("entrada");
        QTest::addColumn<QString>("vuelta");
        QTest::newRow("lista") << QStringLiteral("L") << QStringLiteral("L");
        QTest::newRow("contribuyente") << QStringLiteral("C") << QStringLiteral("C");
        QTest::newRow("presentador") << QStringLiteral("P") << QStringLiteral("P");
        QTest::newRow("otra letra") << QStringLiteral("X") << QStringLiteral("P");
    }

    void desdeLasListas()
    {
        QFETCH(QString, entrada);
        QFETCH(QString, vuelta);
        DecDatos().LISTA = QStringLiteral("LI");
        QPointer<FrmImprimir> panel = Navegacion::AbrirImprimir(m_codigo, entrada);
        panel->findChild<QPushButton*>(QStringLiteral("cmdCancelar"))->click();
        QCOMPARE(m_vueltas, QStringList{vuelta});
        // Only the return's form is touched on the way back.
        QCOMPARE(DecDatos().LISTA, QStringLiteral("LI"));
        QCOMPARE(m_hojas.Llamadas.size(), 0);
    }
};

QTEST_MAIN(TestNavegarImprimir)
#include "test_navegar_imprimir.moc"
