#include "paneles/partes/BloqueDomicilio.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "paneles/partes/Selectores.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

namespace {

// The objectName of a field: its stem and the party letter ("txtvia" + "c").
QByteArray Nombre(const char* raiz, const QString& parte)
{
    return QByteArray(raiz) + parte.toLatin1();
}

}  // namespace

BloqueDomicilio::BloqueDomicilio(QWidget* panel, QWidget* datos, const QString& parte,
                                 RegistroDomicilio registro, MarcaCambios marca, bool parteEnTodo)
    : QObject(panel), m_panel(panel), m_parte(parte), m_registro(registro), m_marca(marca)
{
    Construir(datos, parteEnTodo);
}

void BloqueDomicilio::CrearSelectores(const QList<QWidget*>& marcos)
{
    const QString& p = m_parte;
    lstvia = new cSelector(TipoSelector::Via, QString::fromLatin1(Nombre("lstvia", p)), m_panel);
    lstcodprov = new cSelector(TipoSelector::Provincia, QString::fromLatin1(Nombre("lstcodprov", p)),
                               m_panel);
    lstcodmun = new cSelector(TipoSelector::Municipio, QString::fromLatin1(Nombre("lstcodmun", p)),
                              m_panel);
    for (cSelector* s : {lstvia, lstcodprov, lstcodmun})
        s->setMarcos(marcos);
}

void BloqueDomicilio::Construir(QWidget* d, bool parteEnTodo)
{
    const QString& p = m_parte;
    const QString q = parteEnTodo ? p : QString();
    txtvia = CampoTexto(d, Nombre("txtvia", p).constData(), 2, TipoFiltro::Texto);
    cmdVia = new QPushButton(d);
    cmdVia->setObjectName(QStringLiteral("cmdVia") + q);
    txtviaaux = CampoTexto(d, Nombre("txtviaaux", q).constData(), 32767, TipoFiltro::Texto, true);
    AbrirCampo(txtviaaux, false);
    txtdomicilio = CampoTexto(d, Nombre("txtdomicilio", p).constData(), 20, TipoFiltro::Texto);
    txtnumero = CajaNumerica(d, Nombre("txtnumero", p).constData(), 5, 5, QStringLiteral("#####"), false);
    txtletra = CampoTexto(d, Nombre("txtletra", p).constData(), 2, TipoFiltro::Texto);
    txtescalera = CampoTexto(d, Nombre("txtescalera", p).constData(), 2, TipoFiltro::Texto);
    txtpiso = CampoTexto(d, Nombre("txtpiso", p).constData(), 2, TipoFiltro::Texto);
    txtmano = CampoTexto(d, Nombre("txtmano", p).constData(), 3, TipoFiltro::Texto);
    txtcodprov = CajaNumerica(d, Nombre("txtcodprov", p).constData(), 2, 2, QStringLiteral("00"), false);
    cmdProvincia = new QPushButton(d);
    cmdProvincia->setObjectName(QStringLiteral("cmdProvincia") + q);
    txtnomprov = CampoTexto(d, Nombre("txtnomprov", p).constData(), 20, TipoFiltro::Texto, true);
    AbrirCampo(txtnomprov, false);
    // The postal code's format is the panel's: it may follow the kind of domicile.
    txtcodpos = CajaNumerica(d, Nombre("txtcodpos", p).constData(), 5, 5, QString(), false);
    txtcodmun = CajaNumerica(d, Nombre("txtcodmun", p).constData(), 3, 3, QStringLiteral("###"), true);
    cmdMunicipio = new QPushButton(d);
    cmdMunicipio->setObjectName(QStringLiteral("cmdMunicipio") + q);
    txtnommun = CampoTexto(d, Nombre("txtnommun", p).constData(), 25, TipoFiltro::Texto, true);
    AbrirCampo(txtnommun, false);
    for (QPushButton* b : {cmdVia, cmdProvincia, cmdMunicipio})
        b->setAutoDefault(true);  // Enter on a button presses it

    lblvia = Etiqueta(d, Nombre("lblvia", p).constData());
    lbldomicilio = Etiqueta(d, Nombre("lbldomicilio", p).constData());
    lblnumero = Etiqueta(d, Nombre("lblnumero", p).constData());
    lblletra = Etiqueta(d, Nombre("lblletra", p).constData());
    lblescalera = Etiqueta(d, Nombre("lblescalera", p).constData());
    lblpiso = Etiqueta(d, Nombre("lblpiso", p).constData());
    lblmano = Etiqueta(d, Nombre("lblmano", p).constData());
    lblnomprov = Etiqueta(d, Nombre("lblnomprov", p).constData());
    lblcodpos = Etiqueta(d, Nombre("lblcodpos", p).constData());
    lblnommun = Etiqueta(d, Nombre("lblnommun", p).constData());
}

void BloqueDomicilio::Anchos() const
{
    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtvia, 2}, {txtviaaux, 12}, {txtdomicilio, 20}, {txtnumero, 5},
          {txtletra, 2}, {txtescalera, 2}, {txtpiso, 2}, {txtmano, 3}, {txtcodprov, 2},
          {txtnomprov, 16}, {txtcodpos, 5}, {txtcodmun, 3}, {txtnommun, 20}})
        AnchoDeCaracteres(campo, caracteres);
}

void BloqueDomicilio::Lineas(QBoxLayout* lineas) const
{
    LineaDePanel(lineas, {lblvia, txtvia, cmdVia, txtviaaux, lbldomicilio, txtdomicilio});
    LineaDePanel(lineas, {lblnumero, txtnumero, lblletra, txtletra, lblescalera, txtescalera,
                          lblpiso, txtpiso, lblmano, txtmano});
    LineaDePanel(lineas, {cmdProvincia, txtcodprov, lblnomprov, txtnomprov, lblcodpos, txtcodpos});
    LineaDePanel(lineas, {cmdMunicipio, txtcodmun, lblnommun, txtnommun});
}

QList<QWidget*> BloqueDomicilio::OrdenDeTabulacion() const
{
    return {txtvia,     cmdVia,       txtviaaux,  txtdomicilio, txtnumero, txtletra,
            txtescalera, txtpiso,     txtmano,    txtcodprov,   cmdProvincia, txtnomprov,
            txtcodpos,  txtcodmun,    cmdMunicipio, txtnommun};
}

void BloqueDomicilio::Conectar(EnlacePanel enlace)
{
    m_enlace = std::move(enlace);
    if (m_marca == MarcaCambios::AlTeclear) {
        for (QLineEdit* campo : {txtvia, txtdomicilio, txtletra, txtescalera, txtpiso, txtmano,
                                 txtnomprov, txtnommun})
            connect(campo, &QLineEdit::textEdited, this, [this] { m_enlace.modificado(); });
        for (CajaNum* caja : {txtnumero, txtcodprov, txtcodpos, txtcodmun})
            connect(caja, &CajaNum::cambiado, this, [this] { m_enlace.modificado(); });
    }

    RegistroDomicilio& r = m_registro;
    VigilarTexto(txtdomicilio, r.DOMICILIO);
    VigilarTexto(txtletra, r.LETRA);
    VigilarTexto(txtescalera, r.ESCALERA);
    VigilarTexto(txtpiso, r.PISO);
    VigilarTexto(txtmano, r.MANO);
    if (r.NOMPROV)
        VigilarTexto(txtnomprov, *r.NOMPROV, true);
    VigilarTexto(txtnommun, r.NOMMUN, true);
    SalidaCampos* salidas = m_enlace.salidas;
    salidas->Vigilar(txtnumero, [this] { SalirNumero(); });
    salidas->Vigilar(txtcodpos, [this] { SalirCodigoPostal(); });
    salidas->Vigilar(txtvia, [this] { SalirVia(); });
    salidas->Vigilar(txtcodprov, [this] { SalirProvincia(); });
    salidas->Vigilar(txtcodmun, [this] { SalirMunicipio(); });

    connect(cmdVia, &QPushButton::clicked, this, [this] { lstvia->Abrir(txtviaaux->text(), cmdVia); });
    connect(cmdProvincia, &QPushButton::clicked, this,
            [this] { lstcodprov->Abrir(txtnomprov->text(), cmdProvincia); });
    connect(cmdMunicipio, &QPushButton::clicked, this,
            [this] { lstcodmun->Abrir(txtnommun->text(), cmdMunicipio); });
    connect(lstvia, &cSelector::elegido, this, &BloqueDomicilio::ElegidaVia);
    connect(lstcodprov, &cSelector::elegido, this, &BloqueDomicilio::ElegidaProvincia);
    connect(lstcodmun, &cSelector::elegido, this, &BloqueDomicilio::ElegidoMunicipio);
    connect(lstvia, &cSelector::cancelado, this, [this] { lstvia->Cerrar(txtvia); });
    connect(lstcodprov, &cSelector::cancelado, this, [this] { lstcodprov->Cerrar(txtcodprov); });
    connect(lstcodmun, &cSelector::cancelado, this, [this] { lstcodmun->Cerrar(txtcodmun); });
}

void BloqueDomicilio::VigilarTexto(QLineEdit* campo, QString& valor, bool soloAbierto)
{
    m_enlace.salidas->Vigilar(campo, [this, campo, &valor, soloAbierto] {
        if (!soloAbierto || CampoAbierto(campo))
            SalirCampoTexto(campo, valor);
    });
}

// ----- Opening and drawing -----

void BloqueDomicilio::Anadir_captions()
{
    cmdProvincia->setText(Texto(kIdProvinciaPuntos));
    cmdVia->setText(Texto(kIdPuntos));
    cmdMunicipio->setText(Texto(kIdMunicipioPuntos));
    lblvia->setText(Texto(kIdVia));
    lblnommun->setText(Texto(kIdEtiquetaNombreMunicipio));
    lblnomprov->setText(Texto(kIdEtiquetaNombreProvincia));
    lbldomicilio->setText(Texto(kIdDomicilio));
    lblescalera->setText(Texto(kIdEscalera));
    lblletra->setText(Texto(kIdLetra));
    lblnumero->setText(Texto(kIdNumero));
    lblpiso->setText(Texto(kIdPiso));
    lblmano->setText(Texto(kIdMano));
    lblcodpos->setText(Texto(kIdEtiquetaCodigoPostal));
}

void BloqueDomicilio::CargarListas()
{
    lstvia->Cargar();
    lstcodprov->Cargar();
    lstcodmun->Cargar();
}

void BloqueDomicilio::CargarNombres(bool municipio)
{
    const RegistroDomicilio& r = m_registro;
    if (municipio && Val(r.CODMUN) != 0)
        txtnommun->setText(lstcodmun->Nombre(r.CODMUN));
    txtviaaux->setText(lstvia->Nombre(r.VIA));
    if (Val(r.CODPROV) != 0)
        txtnomprov->setText(lstcodprov->Nombre(r.CODPROV));
}

void BloqueDomicilio::Presentar(bool enTesoreria)
{
    const RegistroDomicilio& r = m_registro;
    PonerTexto(txtvia, r.VIA);
    PonerTexto(txtdomicilio, r.DOMICILIO);
    PonerTexto(txtletra, r.LETRA);
    PonerTexto(txtescalera, r.ESCALERA);
    PonerTexto(txtpiso, r.PISO);
    PonerTexto(txtmano, r.MANO);
    txtnumero->setValue(r.NUMERO);
    // A province of value 0 is none: its typed name, if the party has one, is shown instead.
    if (Val(r.CODPROV) == 0) {
        txtcodprov->setText(QString());
        if (r.NOMPROV)
            PonerTexto(txtnomprov, *r.NOMPROV);
    } else {
        txtcodprov->setText(r.CODPROV);
    }
    txtcodpos->setText(Val(r.CODPOS) == 0 ? QString() : r.CODPOS);
    if (Val(r.CODMUN) == 0) {
        txtcodmun->setText(QString());
        PonerTexto(txtnommun, r.NOMMUN);
    } else {
        txtcodmun->setText(r.CODMUN);
    }
    AbrirCampo(txtcodmun, enTesoreria);
    AbrirCampo(txtnommun, !enTesoreria);
}

void BloqueDomicilio::ActivarSelectores(bool provincia)
{
    cmdProvincia->setEnabled(provincia);
    cmdMunicipio->setEnabled(m_registro.CODPROV == kProvinciaTesoreria);
    cmdVia->setEnabled(true);
}

bool BloqueDomicilio::SelectorAbierto() const
{
    return lstvia->Abierto() || lstcodprov->Abierto() || lstcodmun->Abierto();
}

// ----- Leaving the fields -----

void BloqueDomicilio::CambioAlSalir()
{
    if (m_marca == MarcaCambios::AlSalir)
        m_enlace.modificado();
}

void BloqueDomicilio::NuevaProvincia(const QString& codigo)
{
    // Kept in two digits, however the box shows it ("1" or "01").
    m_registro.CODPROV = Formato(codigo, QStringLiteral("00"));
    if (Val(m_registro.CODPROV) != 77)
        m_registro.CODMUN.clear();
    m_registro.NOMMUN.clear();
}

void BloqueDomicilio::SalirCampoTexto(QLineEdit* campo, QString& valor)
{
    if (SaltarSinSelector() || campo->text() == valor)
        return;
    CambioAlSalir();
    valor = campo->text();
    Redibujar();
}

void BloqueDomicilio::SalirNumero()
{
    const auto numero = static_cast<int32_t>(txtnumero->value());
    if (SaltarSinSelector() || numero == m_registro.NUMERO)
        return;
    CambioAlSalir();
    m_registro.NUMERO = numero;
    Redibujar();
}

void BloqueDomicilio::SalirCodigoPostal()
{
    if (SaltarSinSelector())
        return;
    // A code in a box with a format is a number of five digits, whatever the format shows
    // ("1001" is "01001"); one without (a foreign domicile) is kept as typed.
    const QString texto = txtcodpos->text();
    const QString codigo = txtcodpos->formato().isEmpty() || texto.trimmed().isEmpty()
        ? texto
        : Formato(texto, QStringLiteral("00000"));
    if (codigo == m_registro.CODPOS)
        return;
    CambioAlSalir();
    m_registro.CODPOS = codigo;
    Redibujar();
}

void BloqueDomicilio::SalirVia()
{
    const QString texto = txtvia->text();
    if (Saltar() || texto == m_registro.VIA)
        return;
    txtviaaux->setText(lstvia->Nombre(texto));
    if (!txtviaaux->text().trimmed().isEmpty()) {
        CambioAlSalir();
        m_registro.VIA = texto;
        Redibujar();
        return;
    }
    // No such street type: the user chooses one; the record keeps its code meanwhile.
    lstvia->Abrir(txtviaaux->text(), cmdVia);
}

void BloqueDomicilio::SalirProvincia()
{
    const QString texto = txtcodprov->text();
    if (Saltar() || txtcodprov->locked() || !CodigoDistinto(texto, m_registro.CODPROV))
        return;
    const QString nombre = lstcodprov->Nombre(texto);
    txtnomprov->setText(nombre);
    if (m_registro.NOMPROV)
        m_registro.NOMPROV->clear();
    if (!nombre.isEmpty()) {
        CambioAlSalir();
        NuevaProvincia(texto);
        Redibujar();
        return;
    }
    lstcodprov->Abrir(txtnomprov->text(), cmdProvincia);
    if (txtcodprov->text() == QLatin1String("00"))
        txtcodprov->setText(QString());
}

void BloqueDomicilio::SalirMunicipio()
{
    const QString texto = txtcodmun->text();
    if (Saltar() || txtcodmun->locked())
        return;
    if (!CodigoDistinto(texto, m_registro.CODMUN) && !m_registro.CODMUN.isEmpty())
        return;
    const QString nombre = lstcodmun->Nombre(texto);
    txtnommun->setText(nombre);
    m_registro.NOMMUN.clear();
    if (!nombre.isEmpty()) {
        CambioAlSalir();
        m_registro.CODMUN = texto;
        Redibujar();
        return;
    }
    // An unknown or missing code: in province 77 the picker opens each time the box is left
    // empty.
    lstcodmun->Abrir(txtnommun->text(), cmdMunicipio);
}

// ----- Pickers -----

void BloqueDomicilio::ElegidaVia(const QString& clave, const QString& texto)
{
    txtviaaux->setText(texto);
    m_registro.VIA = Selectores::CodigoDeClave(TipoSelector::Via, clave);
    m_enlace.modificado();
    Redibujar();
    lstvia->Cerrar(m_enlace.focoTrasVia ? m_enlace.focoTrasVia : txtdomicilio);
}

void BloqueDomicilio::ElegidaProvincia(const QString& clave, const QString& texto)
{
    txtnomprov->setText(texto);
    if (m_registro.NOMPROV)
        m_registro.NOMPROV->clear();
    NuevaProvincia(Formato(Selectores::CodigoDeClave(TipoSelector::Provincia, clave),
                           txtcodprov->formato()));
    m_enlace.modificado();
    Redibujar();
    lstcodprov->Cerrar(m_enlace.focoTrasProvincia ? m_enlace.focoTrasProvincia : txtcodpos);
}

void BloqueDomicilio::ElegidoMunicipio(const QString& clave, const QString& texto)
{
    txtnommun->setText(texto);
    m_registro.NOMMUN.clear();
    m_registro.CODMUN = Formato(Selectores::CodigoDeClave(TipoSelector::Municipio, clave),
                                txtcodmun->formato());
    m_enlace.modificado();
    Redibujar();
    lstcodmun->Cerrar(m_enlace.focoTrasMunicipio);
}
