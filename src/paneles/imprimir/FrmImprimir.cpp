#include "paneles/imprimir/FrmImprimir.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "paneles/imprimir/cSuperficieVista.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/FechaPresentacion.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cPreDatos.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPageSize>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace {
// The hourglass while the copies are drawn, the arrow again however the drawing ends.
class CursorEspera {
public:
    CursorEspera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~CursorEspera() { QApplication::restoreOverrideCursor(); }
    CursorEspera(const CursorEspera&) = delete;
    CursorEspera& operator=(const CursorEspera&) = delete;
};

bool esCastellano() { return IdiomaPrograma().esCastellano(); }

QRadioButton* opcion(QButtonGroup* grupo, int elemento)
{
    return static_cast<QRadioButton*>(grupo->button(elemento));
}
}

FrmImprimir* FrmImprimir::Abrir(const cDecDatos& declaracion)
{
    auto* panel = new FrmImprimir(declaracion);
    AbrirPanel(panel);
    return panel;
}

FrmImprimir::FrmImprimir(const cDecDatos& declaracion, QWidget* parent)
    : PanelNavegado(parent), m_declaracion(declaracion)
{
    setObjectName(QStringLiteral("FrmImprimir"));
    setAttribute(Qt::WA_DeleteOnClose);
    crearControles();
    conectar();
    // When it opens: captions, then the options of this printing.
    Anadir_captions();
    ValoresIniciales();
}

void FrmImprimir::crearControles()
{
    const auto boton = [this](const char* nombre) {
        auto* b = new QPushButton(this);
        b->setObjectName(QLatin1String(nombre));
        b->setAutoDefault(false);
        return b;
    };
    const auto grupo = [this](const char* marco, const char* nombre, QGroupBox*& caja) {
        caja = new QGroupBox(this);
        caja->setObjectName(QLatin1String(marco));
        auto* g = new QButtonGroup(caja);
        g->setObjectName(QLatin1String(nombre));
        auto* filas = new QVBoxLayout(caja);
        for (int i = 0; i < 2; ++i) {
            auto* o = new QRadioButton(caja);
            o->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(nombre)).arg(i));
            g->addButton(o, i);
            filas->addWidget(o);
        }
        return g;
    };
    optTipoImpreso = grupo("frameTipoImpreso", "optTipoImpreso", frameTipoImpreso);
    optPresentador = grupo("framePresentador", "optPresentador", framePresentador);
    const auto caja = [this](const char* nombre) {
        auto* c = new QCheckBox(this);
        c->setObjectName(QLatin1String(nombre));
        return c;
    };
    chkCopiaBanco = caja("chkCopiaBanco");
    chkCopiaAdministracion = caja("chkCopiaAdministracion");
    chkCopiaInteresado = caja("chkCopiaInteresado");
    chkCopiaInformatica = caja("chkCopiaInformatica");
    lblFechaPresentacion = new QLabel(this);
    lblFechaPresentacion->setObjectName(QStringLiteral("lblFechaPresentacion"));
    txtFechaPresentacion = new QLineEdit(this);
    txtFechaPresentacion->setObjectName(QStringLiteral("txtFechaPresentacion"));
    lblFechaPresentacion->setBuddy(txtFechaPresentacion);
    cmdAceptar = boton("cmdAceptar");
    cmdCancelar = boton("cmdCancelar");
    btnOpcionesImpresora = boton("btnOpcionesImpresora");
    cmdVistaPrevia = boton("cmdVistaPrevia");
    cmdPdf = boton("cmdPdf");

    auto* opciones = new QHBoxLayout;
    opciones->addWidget(frameTipoImpreso);
    opciones->addWidget(framePresentador);
    auto* copias = new QGridLayout;
    copias->addWidget(chkCopiaInformatica, 0, 0);
    copias->addWidget(chkCopiaInteresado, 0, 1);
    copias->addWidget(chkCopiaAdministracion, 1, 0);
    copias->addWidget(chkCopiaBanco, 1, 1);
    auto* fecha = new QHBoxLayout;
    fecha->addWidget(lblFechaPresentacion);
    fecha->addWidget(txtFechaPresentacion);
    fecha->addStretch();
    // The pictures beside their buttons act as the buttons.
    constexpr int kLadoIcono = 16;
    PicImp = IconoDeBoton(this, "PicImp", QStyle::SP_FileDialogListView, btnOpcionesImpresora, kLadoIcono);
    PicAce = IconoDeBoton(this, "PicAce", QStyle::SP_DialogApplyButton, cmdAceptar, kLadoIcono);
    PicCan = IconoDeBoton(this, "PicCan", QStyle::SP_DialogCancelButton, cmdCancelar, kLadoIcono);
    // A square of 16 pixels each, whatever the proportions of the style's picture.
    for (QLabel* dibujo : {PicImp, PicAce, PicCan}) {
        dibujo->setFixedSize(kLadoIcono, kLadoIcono);
        dibujo->setAlignment(Qt::AlignCenter);
    }
    auto* botones = new QHBoxLayout;
    botones->addWidget(PicImp);
    botones->addWidget(btnOpcionesImpresora);
    botones->addWidget(cmdVistaPrevia);
    botones->addWidget(cmdPdf);
    botones->addStretch();
    botones->addWidget(PicAce);
    botones->addWidget(cmdAceptar);
    botones->addWidget(PicCan);
    botones->addWidget(cmdCancelar);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(opciones);
    todo->addLayout(copias);
    todo->addLayout(fecha);
    todo->addLayout(botones);
}

void FrmImprimir::conectar()
{
    const auto protegido = [this](auto accion) {
        return [this, accion] { Proceso::Protegido([this, accion] { (this->*accion)(); }); };
    };
    connect(optPresentador, &QButtonGroup::idToggled, this, [this](int id, bool marcado) {
        if (marcado)
            Proceso::Protegido([&] { alElegirPresentador(id); });
    });
    connect(optTipoImpreso, &QButtonGroup::idToggled, this, [this](int id, bool marcado) {
        if (marcado)
            Proceso::Protegido([&] { alElegirTipo(id); });
    });
    cImOf& o = ImOf();
    const std::pair<QCheckBox*, QString*> copias[] = {{chkCopiaBanco, &o.COPIABAN},
                                                       {chkCopiaAdministracion, &o.COPIAADM},
                                                       {chkCopiaInteresado, &o.COPIAINT},
                                                       {chkCopiaInformatica, &o.COPIAINF}};
    for (const auto& par : copias) {
        QCheckBox* c = par.first;
        QString* propiedad = par.second;
        connect(c, &QCheckBox::toggled, this, [this, c, propiedad] {
            Proceso::Protegido([&] { alMarcarCopia(c, *propiedad); });
        });
    }
    connect(cmdAceptar, &QPushButton::clicked, this, protegido(&FrmImprimir::Aceptar));
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { CerrarPanel(this); });
    connect(btnOpcionesImpresora, &QPushButton::clicked, this,
            protegido(&FrmImprimir::OpcionesImpresora));
    connect(cmdVistaPrevia, &QPushButton::clicked, this, protegido(&FrmImprimir::VistaPrevia));
    connect(cmdPdf, &QPushButton::clicked, this, protegido(&FrmImprimir::GuardarPdf));
}

void FrmImprimir::Anadir_captions()
{
    setWindowTitle(Texto(kIdImprimirDeclaracion));
    frameTipoImpreso->setTitle(Texto(kIdTipoImpreso));
    opcion(optTipoImpreso, 0)->setText(Texto(kIdOficial));
    opcion(optTipoImpreso, 1)->setText(Texto(kIdBorrador));
    framePresentador->setTitle(Texto(kIdPresentador));
    opcion(optPresentador, 0)->setText(Texto(kIdConPresentador));
    opcion(optPresentador, 1)->setText(Texto(kIdSinPresentador));
    chkCopiaBanco->setText(Texto(kIdCopiaBanco));
    chkCopiaAdministracion->setText(Texto(kIdCopiaAdministracion));
    chkCopiaInteresado->setText(Texto(kIdCopiaInteresado));
    chkCopiaInformatica->setText(Texto(kIdCopiaTrafico));
    lblFechaPresentacion->setText(Texto(kIdFechaPresentacion));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdImprimirDeclaracion));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdVolverPanelAnterior));
    btnOpcionesImpresora->setText(Texto(kIdBotonOpcionesImpresora));
    btnOpcionesImpresora->setToolTip(
        TextoSegunIdioma(QStringLiteral("Opciones impresora"), QStringLiteral("Inprimagailuaren aukerak")));
    cmdVistaPrevia->setText(TextoSegunIdioma(QStringLiteral("Vista previa"), QStringLiteral("Aurrebista")));
    cmdPdf->setText(QStringLiteral("PDF"));
    cmdPdf->setToolTip(TextoSegunIdioma(QStringLiteral("Guardar las copias en un fichero PDF"),
                                        QStringLiteral("Aleak PDF fitxategi batean gorde")));
}

void FrmImprimir::ValoresIniciales()
{
    cImOf& o = ImOf();
    CargarDatosPresentador();
    o.TIPOIMP = QStringLiteral("O");
    o.COPIAINF = o.COPIAINT = o.COPIAADM = o.COPIABAN = QStringLiteral("X");
    // The date box follows the language: day first in Spanish, year first in Basque.
    const bool castellano = esCastellano();
    // "_" for each empty place: a blank box reads as the language's empty date.
    txtFechaPresentacion->setInputMask(castellano ? QStringLiteral("99/99/9999;_")
                                                  : QStringLiteral("9999/99/99;_"));
    txtFechaPresentacion->setText(QDate::currentDate().toString(
        castellano ? QStringLiteral("dd/MM/yyyy") : QStringLiteral("yyyy/MM/dd")));
    RefrescarOpciones();
}

void FrmImprimir::CargarDatosPresentador()
{
    const int32_t cspr = m_declaracion.CSPR;
    if (cspr == 0) {
        // PreDatos() stays as it is: the presenter block is never filled without one.
        ImOf().CONPRESENTADOR.clear();
        return;
    }
    ImOf().CONPRESENTADOR = QStringLiteral("S");
    PreDatos().CSPR = cspr;
    PreDatos().CargarPresentador(cspr);
}

void FrmImprimir::RefrescarOpciones()
{
    Cargado = false;
    const cImOf& o = ImOf();
    const bool hayPresentador = m_declaracion.CSPR != 0;
    opcion(optPresentador, 0)->setEnabled(hayPresentador);
    opcion(optPresentador, 1)->setEnabled(hayPresentador);
    opcion(optPresentador, o.CONPRESENTADOR == QLatin1String("S") ? 0 : 1)->setChecked(true);
    const bool oficial = o.TIPOIMP == QLatin1String("O");
    opcion(optTipoImpreso, oficial ? 0 : 1)->setChecked(true);
    const std::pair<QCheckBox*, const QString*> copias[] = {{chkCopiaBanco, &o.COPIABAN},
                                                             {chkCopiaAdministracion, &o.COPIAADM},
                                                             {chkCopiaInteresado, &o.COPIAINT},
                                                             {chkCopiaInformatica, &o.COPIAINF}};
    for (const auto& [c, propiedad] : copias) {
        c->setEnabled(oficial);
        c->setChecked(*propiedad == QLatin1String("X"));
    }
    Cargado = true;
}

void FrmImprimir::alElegirPresentador(int elemento)
{
    if (!Cargado)
        return;
    ImOf().CONPRESENTADOR = elemento == 0 ? QStringLiteral("S") : QString();
    RefrescarOpciones();
}

void FrmImprimir::alElegirTipo(int elemento)
{
    if (!Cargado)
        return;
    cImOf& o = ImOf();
    // Back to official ticks every copy again, whatever had been cleared.
    o.TIPOIMP = elemento == 0 ? QStringLiteral("O") : QStringLiteral("B");
    const QString marca = elemento == 0 ? QStringLiteral("X") : QString();
    o.COPIAINF = o.COPIAINT = o.COPIAADM = o.COPIABAN = marca;
    RefrescarOpciones();
}

void FrmImprimir::alMarcarCopia(QCheckBox* caja, QString& propiedad)
{
    if (!Cargado)
        return;
    propiedad = caja->isChecked() ? QStringLiteral("X") : QString();
    RefrescarOpciones();
}

bool FrmImprimir::ValidarFechaPresentacion()
{
    // A good date is kept in ImOf().FECHAPRE for the drawing.
    const Veredicto v = FijarFechaPresentacion(txtFechaPresentacion->displayText());
    MostrarVeredicto(v, this);
    return !v.vacio();
}

bool FrmImprimir::conPresentador() const { return opcion(optPresentador, 0)->isChecked(); }

void FrmImprimir::Aceptar()
{
    if (ImpresoraSistema::NumeroImpresoras() == 0) {
        Mensaje(Texto(kIdSinImpresoras), vb::OKOnly | vb::Information, windowTitle());
        return;
    }
    if (ValidarFechaPresentacion())
        return;
    {
        const CursorEspera espera;
        // Each copy ends its own document on the printer's surface.
        ImpresoraSistema::Imprimir(
            [this](cSuperficiePagina& p) { ImprimirCopias(p, conPresentador()); });
    }
    CerrarPanel(this);
}

void FrmImprimir::VistaPrevia()
{
    if (ValidarFechaPresentacion())
        return;
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setPageSize(QPageSize(QPageSize::A4));
    QPrintPreviewDialog vista(&impresora, this);
    vista.setObjectName(QStringLiteral("VistaPrevia"));
    vista.setWindowTitle(cmdVistaPrevia->text());
    connect(&vista, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* destino) {
        Proceso::Protegido([&] {
            cSuperficieVista superficie(*destino);
            ImprimirCopias(superficie, conPresentador());
        });
    });
    ImpresoraSistema::MostrarVista(vista);
}

void FrmImprimir::GuardarPdf()
{
    if (ValidarFechaPresentacion())
        return;
    const QString fichero = DialogoGuardarFichero(
        this, TextoSegunIdioma(QStringLiteral("Guardar como PDF"), QStringLiteral("PDF gisa gorde")),
        QStringLiteral("747_%1.pdf").arg(ImOf().CSDE), QStringLiteral("PDF (*.pdf)"));
    if (fichero.isEmpty())
        return;
    // The file appears whole or not at all.
    QSaveFile destino(fichero);
    bool bien = destino.open(QIODevice::WriteOnly);
    int hojas = 0;
    if (bien) {
        const CursorEspera espera;
        cSuperficiePdf pdf(&destino);
        hojas = ImprimirCopias(pdf, conPresentador());
        bien = pdf.Terminar();
    }
    // No copy chosen: there is nothing to write, and no empty file is left behind.
    if (bien && hojas == 0) {
        destino.cancelWriting();
        return;
    }
    if (!bien || !destino.commit())
        Mensaje(TextoSegunIdioma(QStringLiteral("No se ha podido escribir el fichero ") + fichero,
                                 QStringLiteral("Ezin izan da fitxategia idatzi: ") + fichero),
                vb::OKOnly | vb::Exclamation, windowTitle());
}

void FrmImprimir::OpcionesImpresora() { ImpresoraSistema::Dialogo(this); }
