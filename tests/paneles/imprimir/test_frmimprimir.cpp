// The print panel driven as a user drives it: the options and copies on screen follow ImOf(),
// the date of presentation is checked with its limit in both languages, Aceptar draws the
// copies in their fixed order (one document each) or says there is no printer, "Vista previa"
// shows the same copies and "PDF" writes them through the file dialog. Nothing blocks: the
// message, file and printing dialogs are the seams'.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "catalogo/Catalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cPreDatos.h"
#include "valores/cFecha.h"

#include <QCheckBox>
#include <QDate>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {
void euskera(bool si)
{
    EstablecerIdiomaPrograma(si ? Idioma::Euskera : Idioma::Castellano);
}

template <typename T>
T* hijo(QWidget* w, const char* nombre)
{
    T* c = w->findChild<T*>(QLatin1String(nombre));
    if (!c)
        qFatal("no control %s", nombre);
    return c;
}

// The strips of the sheets drawn, in order; a sheet without strip (draft, bank) shows none.
QList<Dibujo> tiras(const cSuperficieGrabadora& g)
{
    QList<Dibujo> r;
    for (const LlamadaPagina& l : g.Llamadas)
        if (l.tipo == LlamadaPagina::Tipo::Dibujo
            && (l.dibujo == Dibujo::Informatica || l.dibujo == Dibujo::Interesado
                || l.dibujo == Dibujo::Administracion || l.dibujo == Dibujo::Entidad))
            r << l.dibujo;
    return r;
}
}

class TestFrmImprimir : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QTemporaryDir m_dir;
    cSuperficieGrabadora m_hojas;
    int m_dialogos = 0;
    QPointer<FrmImprimir> m_panel;

    FrmImprimir* abrir()
    {
        m_panel = new FrmImprimir(DecDatos());
        m_panel->show();
        return m_panel;
    }
    QCheckBox* caja(const char* nombre) { return hijo<QCheckBox>(m_panel, nombre); }
    QRadioButton* opcion(const char* nombre) { return hijo<QRadioButton>(m_panel, nombre); }
    void pulsar(const char* nombre) { hijo<QPushButton>(m_panel, nombre)->click(); }
    void fecha(const QString& t) { hijo<QLineEdit>(m_panel, "txtFechaPresentacion")->setText(t); }

private slots:
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        ImOf().CSDE = DeclaracionLlena();
        euskera(false);
        MensajeSeam::grabar(true);
        DialogoFicheroSeam::grabar(true);
        m_hojas.Llamadas.clear();
        m_dialogos = 0;
        ImpresoraSistemaSeam::impresoras(1);
        ImpresoraSistemaSeam::superficie(&m_hojas);
        ImpresoraSistemaSeam::dialogo([this](QPrinter&) {
            ++m_dialogos;
            return true;
        });
    }
    void cleanup()
    {
        delete m_panel;
        ImpresoraSistemaSeam::limpiar();
        MensajeSeam::grabar(false);
        DialogoFicheroSeam::grabar(false);
        euskera(false);
        m_almacen.reset();
    }

    void alAbrir()
    {
        abrir();
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Imprimir declaración"));
        QCOMPARE(caja("chkCopiaInformatica")->text(),
                 QStringLiteral("Copia Jefatura Provincial de Tráfico"));
        QVERIFY(opcion("optPresentador_0")->isEnabled());
        QVERIFY(opcion("optPresentador_0")->isChecked());
        QVERIFY(opcion("optTipoImpreso_0")->isChecked());
        for (const char* c : {"chkCopiaBanco", "chkCopiaAdministracion", "chkCopiaInteresado",
                              "chkCopiaInformatica"}) {
            QVERIFY(caja(c)->isChecked());
            QVERIFY(caja(c)->isEnabled());
        }
        QCOMPARE(ImOf().CONPRESENTADOR, QStringLiteral("S"));
        QCOMPARE(ImOf().TIPOIMP, QStringLiteral("O"));
        QCOMPARE(hijo<QLineEdit>(m_panel, "txtFechaPresentacion")->text(),
                 QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")));
        QCOMPARE(hijo<QPushButton>(m_panel, "btnOpcionesImpresora")->toolTip(),
                 QStringLiteral("Opciones impresora"));
        QCOMPARE(hijo<QPushButton>(m_panel, "cmdVistaPrevia")->text(), QStringLiteral("Vista previa"));
    }

    void sinPresentador()
    {
        const int32_t cspr = DecDatos().CSPR;
        DecDatos().CSPR = 0;
        PreDatos().CSPR = 0;
        abrir();
        QVERIFY(!opcion("optPresentador_0")->isEnabled());
        QVERIFY(!opcion("optPresentador_1")->isEnabled());
        QVERIFY(opcion("optPresentador_1")->isChecked());
        QCOMPARE(ImOf().CONPRESENTADOR, QString());
        QVERIFY(cspr != 0);
        // The presenter is not loaded: its block stays empty on paper.
        pulsar("cmdAceptar");
        QVERIFY(Textos(m_hojas, QStringLiteral("GESTORIA UNO")).isEmpty());
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
    }

    void conPresentadorQuitado()
    {
        abrir();
        opcion("optPresentador_1")->click();
        QCOMPARE(ImOf().CONPRESENTADOR, QString());
        QVERIFY(PreDatos().CSPR != 0);
        caja("chkCopiaBanco")->click();
        pulsar("cmdAceptar");
        QCOMPARE(FinesDeDocumento(m_hojas), 3);
        QVERIFY(Textos(m_hojas, QStringLiteral("GESTORIA UNO")).isEmpty());
    }

    void borradorYVueltaAOficial()
    {
        abrir();
        caja("chkCopiaInteresado")->click();
        QCOMPARE(ImOf().COPIAINT, QString());
        opcion("optTipoImpreso_1")->click();
        QCOMPARE(ImOf().TIPOIMP, QStringLiteral("B"));
        for (const char* c : {"chkCopiaBanco", "chkCopiaAdministracion", "chkCopiaInteresado",
                              "chkCopiaInformatica"}) {
            QVERIFY(!caja(c)->isChecked());
            QVERIFY(!caja(c)->isEnabled());
        }
        opcion("optTipoImpreso_0")->click();
        for (const char* c : {"chkCopiaBanco", "chkCopiaAdministracion", "chkCopiaInteresado",
                              "chkCopiaInformatica"}) {
            QVERIFY(caja(c)->isChecked());
            QVERIFY(caja(c)->isEnabled());
        }
        QCOMPARE(ImOf().COPIAINT, QStringLiteral("X"));
    }

    void borradorUnaHojaSinTira()
    {
        abrir();
        opcion("optTipoImpreso_1")->click();
        QSignalSpy cerrado(m_panel.data(), &FrmImprimir::cerrado);
        pulsar("cmdAceptar");
        QCOMPARE(FinesDeDocumento(m_hojas), 1);
        QVERIFY(tiras(m_hojas).isEmpty());
        QVERIFY(!Textos(m_hojas, QStringLiteral("GESTORIA UNO")).isEmpty());
        QCOMPARE(cerrado.count(), 1);
    }

    void copiasEnSuOrden()
    {
        abrir();
        caja("chkCopiaInteresado")->click();
        QSignalSpy cerrado(m_panel.data(), &FrmImprimir::cerrado);
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 0);
        // One document per copy: traffic (strip at y 80), administration, bank.
        QCOMPARE(FinesDeDocumento(m_hojas), 3);
        QCOMPARE(tiras(m_hojas),
                 (QList<Dibujo>{Dibujo::Informatica, Dibujo::Administracion, Dibujo::Entidad}));
        const auto informatica = std::find_if(m_hojas.Llamadas.cbegin(), m_hojas.Llamadas.cend(),
                                              [](const LlamadaPagina& l) {
                                                  return l.tipo == LlamadaPagina::Tipo::Dibujo
                                                         && l.dibujo == Dibujo::Informatica;
                                              });
        QCOMPARE(informatica->y1, 80.0f);
        QCOMPARE(cerrado.count(), 1);
        QTRY_VERIFY(m_panel.isNull());
    }

    void oficialSinCopias()
    {
        abrir();
        for (const char* c : {"chkCopiaBanco", "chkCopiaAdministracion", "chkCopiaInteresado",
                              "chkCopiaInformatica"})
            caja(c)->click();
        QSignalSpy cerrado(m_panel.data(), &FrmImprimir::cerrado);
        pulsar("cmdAceptar");
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QCOMPARE(MensajeSeam::registro().size(), 0);
        QCOMPARE(cerrado.count(), 1);
    }

    void sinImpresoras()
    {
        ImpresoraSistemaSeam::impresoras(0);
        abrir();
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto m = MensajeSeam::registro().first();
        QCOMPARE(m.texto, QStringLiteral("No es posible imprimir. No hay impresoras instaladas"));
        QCOMPARE(m.titulo, QStringLiteral("Imprimir declaración"));
        QCOMPARE(m.icono(), int(vb::Information));
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QVERIFY(m_panel->isVisible());
    }

    void fechaLimite_data()
    {
        QTest::addColumn<bool>("vasco");
        QTest::addColumn<QString>("antes");
        QTest::addColumn<QString>("limite");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("castellano")
            << false << QStringLiteral("30/11/2003") << QStringLiteral("01/12/2003")
            << QStringLiteral("La Fecha de presentación no puede ser anterior al 01/12/2003");
        QTest::newRow("euskera") << true << QStringLiteral("2003/11/30")
                                 << QStringLiteral("2003/12/01")
                                 << QStringLiteral("Aurkezpen data ezin da 2003/12/01 baino "
                                                   "lehenagokoa izan");
    }

    void fechaLimite()
    {
        QFETCH(bool, vasco);
        QFETCH(QString, antes);
        QFETCH(QString, limite);
        QFETCH(QString, mensaje);
        euskera(vasco);
        abrir();
        QCOMPARE(hijo<QLineEdit>(m_panel, "txtFechaPresentacion")->text(),
                 QDate::currentDate().toString(vasco ? QStringLiteral("yyyy/MM/dd")
                                                     : QStringLiteral("dd/MM/yyyy")));
        fecha(antes);
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto, mensaje);
        QCOMPARE(MensajeSeam::registro().first().icono(), int(vb::Exclamation));
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QVERIFY(m_panel->isVisible());
        fecha(limite);
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(ImOf().FECHAPRE, 20031201);
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
    }

    // A box left empty is an empty date, refused by the date check with the limit's message.
    void fechaVacia_data()
    {
        QTest::addColumn<bool>("vasco");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("castellano") << false
                                    << QStringLiteral("La Fecha de presentación no puede ser anterior al 01/12/2003");
        QTest::newRow("euskera") << true
                                 << QStringLiteral("Aurkezpen data ezin da 2003/12/01 baino lehenagokoa izan");
    }
    void fechaVacia()
    {
        QFETCH(bool, vasco);
        QFETCH(QString, mensaje);
        euskera(vasco);
        abrir();
        auto* caja = hijo<QLineEdit>(m_panel, "txtFechaPresentacion");
        caja->selectAll();
        QTest::keyClick(caja, Qt::Key_Delete);
        QCOMPARE(caja->displayText(), cFecha::FecVacia(IdiomaPrograma()));
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto, mensaje);
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QVERIFY(m_panel->isVisible());
    }

    // The pictures beside the printer's options, Aceptar and Cancelar: 16 pixels square, just
    // left of their buttons, and a click on one is a click on its button.
    void dibujosDeLosBotones()
    {
        abrir();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel));
        const std::pair<const char*, const char*> pares[] = {
            {"PicImp", "btnOpcionesImpresora"}, {"PicAce", "cmdAceptar"}, {"PicCan", "cmdCancelar"}};
        for (const auto& [dibujo, boton] : pares) {
            auto* d = hijo<QLabel>(m_panel, dibujo);
            auto* b = hijo<QPushButton>(m_panel, boton);
            QVERIFY2(d->isVisible(), dibujo);
            QCOMPARE(d->size(), QSize(16, 16));
            QVERIFY2(QRect(QPoint(), QSize(16, 16)).contains(QRect(QPoint(), d->pixmap().size())), dibujo);
            QVERIFY2(d->geometry().right() < b->x() && b->x() - d->geometry().right() < 20, dibujo);
            QVERIFY2(d->geometry().bottom() >= b->y() && d->y() <= b->geometry().bottom(), dibujo);
        }
        QTest::mouseClick(hijo<QLabel>(m_panel, "PicImp"), Qt::LeftButton);
        QCOMPARE(m_dialogos, 1);
        QTest::mouseClick(hijo<QLabel>(m_panel, "PicAce"), Qt::LeftButton);
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        QTRY_VERIFY(!m_panel);
        m_hojas.Llamadas.clear();
        abrir();
        QSignalSpy cerrado(m_panel.data(), &FrmImprimir::cerrado);
        QTest::mouseClick(hijo<QLabel>(m_panel, "PicCan"), Qt::LeftButton);
        QCOMPARE(cerrado.count(), 1);
        QCOMPARE(m_hojas.Llamadas.size(), 0);
    }

    void fechaMala()
    {
        abrir();
        fecha(QStringLiteral("31/02/2010"));
        pulsar("cmdAceptar");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto,
                 QStringLiteral("La Fecha de presentación introducida no es correcta"));
        QVERIFY(m_panel->isVisible());
    }

    void euskeraTextos()
    {
        euskera(true);
        abrir();
        QCOMPARE(hijo<QPushButton>(m_panel, "cmdVistaPrevia")->text(), QStringLiteral("Aurrebista"));
        QCOMPARE(hijo<QPushButton>(m_panel, "btnOpcionesImpresora")->toolTip(),
                 QStringLiteral("Inprimagailuaren aukerak"));
    }

    void cancelar()
    {
        abrir();
        QSignalSpy cerrado(m_panel.data(), &FrmImprimir::cerrado);
        pulsar("cmdCancelar");
        QCOMPARE(cerrado.count(), 1);
        QCOMPARE(m_hojas.Llamadas.size(), 0);
    }

    void opcionesImpresora()
    {
        abrir();
        pulsar("btnOpcionesImpresora");
        QCOMPARE(m_dialogos, 1);
        QVERIFY(m_panel->isVisible());
    }

    void pdfConLasMismasCopias()
    {
        // The PDF is read back with pdftotext; only this test needs it.
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed: scripts/instalar.sh installs it");
        abrir();
        caja("chkCopiaBanco")->click();
        fecha(QStringLiteral("11/03/2004"));
        const QString fichero = m_dir.filePath(QStringLiteral("panel.pdf"));
        DialogoFicheroSeam::setNextFileName(fichero);
        pulsar("cmdPdf");
        QCOMPARE(DialogoFicheroSeam::registro().size(), 1);
        QVERIFY(DialogoFicheroSeam::registro().first().guardar);
        QCOMPARE(PaginasDePdf(fichero), 3);
        const QString t = TextoDePdf(fichero);
        QVERIFY(t.contains(QLatin1String("GESTORIA UNO")));
        QVERIFY(t.contains(QLatin1String("2004/03/11n /// 11/03/2004")));
        // The panel stays open: the PDF is no printing.
        QVERIFY(m_panel->isVisible());
        QCOMPARE(m_hojas.Llamadas.size(), 0);

        opcion("optTipoImpreso_1")->click();
        opcion("optPresentador_1")->click();
        const QString borrador = m_dir.filePath(QStringLiteral("borrador.pdf"));
        DialogoFicheroSeam::setNextFileName(borrador);
        pulsar("cmdPdf");
        QCOMPARE(PaginasDePdf(borrador), 1);
        QVERIFY(!TextoDePdf(borrador).contains(QLatin1String("GESTORIA UNO")));
    }

    void pdfCanceladoOMalo()
    {
        abrir();
        DialogoFicheroSeam::setNextFileName(QString());
        pulsar("cmdPdf");
        QCOMPARE(MensajeSeam::registro().size(), 0);
        const QString malo = m_dir.filePath(QStringLiteral("no/hay/carpeta.pdf"));
        DialogoFicheroSeam::setNextFileName(malo);
        pulsar("cmdPdf");
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY(MensajeSeam::registro().first().texto.startsWith(
            QLatin1String("No se ha podido escribir el fichero")));
        QVERIFY(!QFile::exists(malo));
        // A bad date writes nothing either.
        fecha(QStringLiteral("30/11/2003"));
        const QString fichero = m_dir.filePath(QStringLiteral("fecha.pdf"));
        DialogoFicheroSeam::setNextFileName(fichero);
        pulsar("cmdPdf");
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QVERIFY(!QFile::exists(fichero));
    }

    void vistaPrevia()
    {
        abrir();
        caja("chkCopiaInformatica")->click();
        int paginasVistas = -1;
        ImpresoraSistemaSeam::vista([&](QPrintPreviewDialog& d) {
            auto* w = d.findChild<QPrintPreviewWidget*>();
            QVERIFY(w);
            w->updatePreview();
            paginasVistas = w->pageCount();
        });
        pulsar("cmdVistaPrevia");
        QCOMPARE(paginasVistas, 3);
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QVERIFY(m_panel->isVisible());
        opcion("optTipoImpreso_1")->click();
        pulsar("cmdVistaPrevia");
        QCOMPARE(paginasVistas, 1);
    }
};

QTEST_MAIN(TestFrmImprimir)
#include "test_frmimprimir.moc"
