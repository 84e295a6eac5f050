#include "registros/declaracion/TablaDeclaraciones.h"

#include "catalogo/Catalogo.h"
#include "valores/Csv.h"
#include "valores/Formato.h"

#include <QDate>

namespace {

const QChar kSeparador = QLatin1Char(';');

QStringList Encabezados()
{
    return TextoSegunIdioma(
               QStringLiteral("Código;Referencia;Fecha de devengo;NIF del sujeto pasivo;"
                              "Nombre del sujeto pasivo;NIF del transmitente;"
                              "Nombre del transmitente;Operación;Base imponible;Tipo;Cuota;"
                              "Deducción;Total"),
               QStringLiteral("Kodea;Erreferentzia;Sortzapen data;Subjektu pasiboaren IFZ;"
                              "Subjektu pasiboaren izena;Eskualdatzailearen IFZ;"
                              "Eskualdatzailearen izena;Eragiketa;Zerga oinarria;Tasa;Kuota;"
                              "Kenkaria;Guztira"))
        .split(kSeparador);
}

// yyyymmdd as DD/MM/YYYY; a date that is none stays as its number.
QString Fecha(int32_t fecha)
{
    const QDate d(fecha / 10000, fecha / 100 % 100, fecha % 100);
    return d.isValid() ? d.toString(QStringLiteral("dd/MM/yyyy")) : QString::number(fecha);
}

// An amount in euros with two decimals and the decimal comma.
QString Euros(Importe cantidad) { return Formato(cantidad.euros(), QStringLiteral("0.00")); }

}  // namespace

QByteArray TablaDeclaracionesCsv(const std::vector<FilaDeclaracion>& filas)
{
    QString texto = QChar(0xFEFF) + Csv::Registro(Encabezados(), kSeparador);
    for (const FilaDeclaracion& f : filas) {
        texto += Csv::Registro({QString::number(f.CSDE), f.REFERENCIA.trimmed(), Fecha(f.FECHAD),
                                f.DNISP.trimmed(), f.NOMBRESP.trimmed(), f.DNITR.trimmed(),
                                f.NOMBRETR.trimmed(), f.OPERACION.trimmed(), Euros(f.BASEI),
                                Formato(f.TIPOIMP, QStringLiteral("0.00")), Euros(f.CUOTA),
                                Euros(f.DEDUCCION), Euros(f.TOTAL)},
                               kSeparador);
    }
    return texto.toUtf8();
}
