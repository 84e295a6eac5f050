#include "ApoyoImpreso.h"

#include "comun/DeclaracionPrueba.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/cImOf.h"

#include <QProcess>
#include <QTest>

int32_t DeclaracionLlena()
{
    const int32_t pr = NuevoPresentador(Dni(11111111), QStringLiteral("GESTORIA UNO"));
    const int32_t sp = NuevoContribuyente(Dni(22222222), QStringLiteral("SUJETO"));
    const int32_t tr = NuevoContribuyente(Dni(33333333), QStringLiteral("TRANS"));
    DeclaracionValida();
    cDecDatos& d = DecDatos();
    d.CSPR = pr;
    d.CSSU = sp;
    d.CSTRA = tr;
    d.FECHAD = 20100315;
    d.ADQUIRIDO = QStringLiteral("X");
    d.MARCA = QStringLiteral("MMMMMMMMMMMMMMMMMMMM");
    d.TIPO = QStringLiteral("TTTTTTTTTTTTTTTTTTTT");
    d.MODELO = QStringLiteral("OOOOOOOOOOOOOOOOOOOO");
    d.BASTIDOR = QStringLiteral("WWWWWWWWWWWWWWWWW");
    d.CLASIFICACION = 9999;
    d.MOTOR = QStringLiteral("D");
    d.CILINDRADA = 99998;
    d.REDUCCION = QStringLiteral("Y");
    d.BASEI = Importe(99999999999.0);
    d.BASEIREDUCIDA = Importe(123450);
    d.TIPOIMP = 12;
    d.CUOTA = Importe(100000);
    d.DEDUCCION = Importe(5);
    d.TOTAL = Importe(99995);
    d.DNISP = Dni(22222222);
    d.NOMBRESP = QStringLiteral("NNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNN");
    d.DOMICILIOSP = QStringLiteral("DDDDDDDDDDDDDDDDDDDD");
    d.NUMEROSP = 99999;
    d.LETRASP = QStringLiteral("LL");
    d.ESCALERASP = QStringLiteral("EE");
    d.PISOSP = QStringLiteral("PP");
    d.MANOSP = QStringLiteral("MMM");
    d.CODPROVSP = QStringLiteral("77");
    d.CODPOSSP = QStringLiteral("77001");
    d.CODMUNSP = QStringLiteral("001");
    d.DNITR = Dni(33333333);
    d.NOMBRETR = QStringLiteral("RRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRR");
    d.TIPODOMITR = QStringLiteral("E");
    d.DOMICILIOTR = QStringLiteral("CALLE DE FUERA      ");
    d.NUMEROTR = 12345;
    d.LETRATR = QStringLiteral("AA");
    d.ESCALERATR = QStringLiteral("BB");
    d.PISOTR = QStringLiteral("CC");
    d.MANOTR = QStringLiteral("DDD");
    d.PAISTR = QStringLiteral("PPPPPPPPPPPPPPPPPPPP");
    d.CODPROVTR = QStringLiteral("00");
    d.NOMPROVTR = QStringLiteral("QQQQQQQQQQQQQQQQQQQQ");
    d.CODPOSTR = QStringLiteral("99999");
    d.CODMUNTR = QString();
    d.NOMMUNTR = QStringLiteral("UUUUUUUUUUUUUUUUUUUUUUUUU");
    const int32_t codigo = d.GuardarDeclaracion() ? d.CSDE : 0;
    if (codigo <= 0 || !CargarParaImprimir(codigo))
        qFatal("Declaracion de prueba no guardada");
    ImOf().FECHAPRE = 20040311;
    return codigo;
}

QList<LlamadaPagina> Textos(const cSuperficieGrabadora& s, const QString& texto)
{
    QList<LlamadaPagina> r;
    for (const LlamadaPagina& l : s.Llamadas)
        if (l.tipo == LlamadaPagina::Tipo::Texto && l.texto == texto)
            r.append(l);
    return r;
}

LlamadaPagina UnTexto(const cSuperficieGrabadora& s, const QString& texto)
{
    const QList<LlamadaPagina> r = Textos(s, texto);
    if (r.size() != 1)
        qWarning() << "texto" << texto << "impreso" << r.size() << "veces";
    return r.value(0);
}

QList<LlamadaPagina> Dibujos(const cSuperficieGrabadora& s)
{
    QList<LlamadaPagina> r;
    for (const LlamadaPagina& l : s.Llamadas)
        if (l.tipo == LlamadaPagina::Tipo::Dibujo)
            r.append(l);
    return r;
}

int FinesDeDocumento(const cSuperficieGrabadora& s)
{
    int n = 0;
    for (const LlamadaPagina& l : s.Llamadas)
        n += l.tipo == LlamadaPagina::Tipo::FinDoc ? 1 : 0;
    return n;
}

float AltoDe(const LlamadaPagina& l)
{
    cSuperficieGrabadora s;
    s.ScaleMode = 6;
    s.FontName = l.fuente;
    s.FontSize = l.tamano;
    s.FontBold = l.negrita;
    s.FontItalic = l.cursiva;
    return s.TextHeight(l.texto);
}

QString TextoDePdf(const QString& pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

int PaginasDePdf(const QString& pdf)
{
    return static_cast<int>(TextoDePdf(pdf).count(QLatin1Char('\f')));
}
