#include "paneles/intercambio/FrmImportar.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "paneles/dialogos/Ventanas.h"
#include "catalogo/Catalogo.h"
#include "valores/Rutas.h"
#include "paneles/intercambio/ControlNombrado.h"
#include "registros/intercambio/cImportar.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// The exchange file, or a CSV file of a spreadsheet.
const QString kFiltro = QStringLiteral("*.txt (*.txt);;*.csv (*.csv);;*.* (*)");

}  // namespace

FrmImportar* FrmImportar::Abrir()
{
    auto* panel = new FrmImportar;
    AbrirPanel(panel);
    return panel;
}

FrmImportar::FrmImportar(QWidget* parent) : PanelNavegado(parent)
{
    setObjectName(QStringLiteral("FrmImportar"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    Conectar();
    Anadir_captions();
    Importar().Iniciar();
    MostrarDatos();
    MostrarBotones();
}

void FrmImportar::Construir()
{
    Frame1 = ControlNombrado<QGroupBox>(this, "Frame1");
    LblFichero = ControlNombrado<QLabel>(Frame1, "LblFichero");
    LblFichero->setMinimumWidth(360);
    LblFichero->setWordWrap(true);
    CmdModificar = ControlNombrado<QPushButton>(Frame1, "CmdModificar");
    auto* fichero = new QHBoxLayout(Frame1);
    fichero->addWidget(LblFichero, 1);
    fichero->addWidget(CmdModificar);

    Frame2 = ControlNombrado<QGroupBox>(this, "Frame2");
    auto* resultados = new QGridLayout(Frame2);
    const auto fila = [&](int f, QLabel*& rotulo, const char* nombreRotulo, QLabel*& valor,
                          const char* nombreValor) {
        rotulo = ControlNombrado<QLabel>(Frame2, nombreRotulo);
        valor = ControlNombrado<QLabel>(Frame2, nombreValor);
        valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        valor->setMinimumWidth(60);
        resultados->addWidget(rotulo, f, 0);
        resultados->addWidget(valor, f, 1);
    };
    fila(0, Label4, "Label4", LblTotal, "LblTotal");
    fila(1, Label1, "Label1", LblImportados, "LblImportados");
    fila(2, Label2, "Label2", LblIncorrectos, "LblIncorrectos");
    fila(3, Label3, "Label3", LblSustituidos, "LblSustituidos");
    fila(4, Label6, "Label6", lblIgnorados, "lblIgnorados");

    ChkAutomatico = ControlNombrado<QCheckBox>(this, "ChkAutomatico");
    lblError = ControlNombrado<QLabel>(this, "lblError");
    lblError2 = ControlNombrado<QLabel>(this, "lblError2");
    lblError2->setWordWrap(true);
    lblError->hide();
    lblError2->hide();
    progreso = ControlNombrado<QProgressBar>(this, "progreso");
    progreso->setTextVisible(false);
    progreso->hide();
    cmdAceptar = ControlNombrado<QPushButton>(this, "cmdAceptar");
    cmdCancelar = ControlNombrado<QPushButton>(this, "cmdCancelar");
    CmdModificar->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
    cmdAceptar->setIcon(style()->standardIcon(QStyle::SP_DialogApplyButton));
    cmdCancelar->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));

    auto* botones = new QHBoxLayout;
    botones->addWidget(cmdAceptar);
    botones->addStretch(1);
    botones->addWidget(cmdCancelar);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(Frame1);
    todo->addWidget(Frame2);
    todo->addWidget(ChkAutomatico);
    todo->addWidget(lblError);
    todo->addWidget(lblError2);
    todo->addWidget(progreso);
    todo->addLayout(botones);
    todo->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(CmdModificar, ChkAutomatico);
    setTabOrder(ChkAutomatico, cmdAceptar);
    setTabOrder(cmdAceptar, cmdCancelar);
}

// Every handler that may reach the store runs protected: a failure that the import does not
// answer itself ends the program with its notice.
void FrmImportar::Conectar()
{
    connect(CmdModificar, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { Modificar(); }); });
    connect(ChkAutomatico, &QCheckBox::toggled, this, [this](bool m) { Automatico(m); });
    connect(cmdAceptar, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { Aceptar(); }); });
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
}

void FrmImportar::Anadir_captions()
{
    setWindowTitle(Texto(kIdImportacionContribuyentes));
    Frame1->setTitle(Texto(kIdFicheroAImportar));
    CmdModificar->setText(Texto(kIdBotonModificar));
    CmdModificar->setToolTip(Texto(kIdModificarFichero));
    Frame2->setTitle(Texto(kIdResultadosImportacion));
    Label4->setText(Texto(kIdEtiquetaTotal));
    Label1->setText(Texto(kIdEtiquetaImportados));
    Label2->setText(Texto(kIdEtiquetaIncorrectos));
    Label3->setText(Texto(kIdEtiquetaSustituidos));
    Label6->setText(Texto(kIdEtiquetaIgnorados));
    for (QLabel* valor : {LblTotal, LblImportados, LblIncorrectos, LblSustituidos, lblIgnorados})
        valor->setText(Texto(kIdContadorCero));
    ChkAutomatico->setText(Texto(kIdAutomatico));
    lblError->setText(Texto(kIdConsulteFicheroErrores));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdImportacionContribuyentes));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdVolverMenuPrincipal));
}

void FrmImportar::MostrarDatos()
{
    const cImportar& i = Importar();
    {
        const QSignalBlocker bloqueo(ChkAutomatico);
        ChkAutomatico->setChecked(i.AUTOMATICO == QLatin1String("X"));
    }
    if (i.NUMEROINC != 0 && i.TERMINADA == QLatin1String("S")) {
        lblError->show();
        lblError2->show();
        lblError2->setText(i.FICHEROERRORES);
    }
    LblImportados->setText(QString::number(i.NUMEROIMP));
    LblIncorrectos->setText(QString::number(i.NUMEROINC));
    LblSustituidos->setText(QString::number(i.NUMEROSUS));
    lblIgnorados->setText(QString::number(i.NUMEROIGN));
    LblTotal->setText(QString::number(i.LineasLeidas));
    LblFichero->setText(i.FICHEROAIMPORTAR);
}

void FrmImportar::MostrarBotones()
{
    const bool lista = Importar().TERMINADA.isEmpty();
    cmdAceptar->setEnabled(lista);
    CmdModificar->setEnabled(lista);
    if (lista) {
        cmdCancelar->setText(Texto(kIdBotonCancelar));
        cmdCancelar->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
    } else {
        cmdCancelar->setText(Texto(kIdMenuSalir));
        cmdCancelar->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
    }
}

// Chooses another exchange file; nothing is opened or read here.
void FrmImportar::Modificar()
{
    const QString actual = Importar().FICHEROAIMPORTAR;
    const QString elegido = DialogoAbrirFichero(this, Texto(kIdArchivoAImportar),
                                                RutaFichero(actual) + NombreFichero(actual),
                                                kFiltro);
    if (!elegido.isEmpty())
        Importar().FICHEROAIMPORTAR = elegido;
    MostrarDatos();
    MostrarBotones();
}

void FrmImportar::Automatico(bool marcado)
{
    Importar().AUTOMATICO = marcado ? QStringLiteral("X") : QStringLiteral(" ");
    MostrarDatos();
    MostrarBotones();
}

void FrmImportar::Avance(int, double estimado, bool fin)
{
    if (estimado <= 0)
        return;
    if (!progreso->isVisible()) {
        // The first line: the bar starts from its minimum.
        m_paso = (progreso->maximum() - progreso->minimum()) / estimado;
        m_valor = progreso->minimum();
        progreso->setValue(progreso->minimum());
        progreso->show();
    }
    m_valor = fin ? progreso->maximum() : std::min<double>(m_valor + m_paso, progreso->maximum());
    const int valor = int(m_valor);
    if (valor != progreso->value()) {
        progreso->setValue(valor);
        progreso->repaint();  // the import runs in this click: nothing else draws the bar
    }
}

void FrmImportar::Aceptar()
{
    const QString titulo = windowTitle();
    cImportar::Interlocutor interlocutor;
    interlocutor.sustituir = [&titulo](const QString& dni) {
        return Mensaje(cImportar::TextoPreguntaSustituir(dni),
                       vb::Question + vb::YesNo + vb::DefaultButton2, titulo)
            == vb::Yes;
    };
    interlocutor.avance = [this](int lineas, double estimado, bool fin) {
        Avance(lineas, estimado, fin);
    };
    const Veredicto aviso = Importar().Ejecutar(interlocutor);
    if (Importar().TERMINADA != QLatin1String("S")) {
        // The run failed: its message, and the panel stays ready as it was.
        Mensaje(aviso.mensaje, vb::Critical, titulo);
        return;
    }
    progreso->hide();
    if (!aviso.vacio())
        Mensaje(aviso.mensaje, vb::Information, titulo);
    MostrarDatos();
    MostrarBotones();
}

void FrmImportar::Cerrar()
{
    CerrarPanel(this);
}
