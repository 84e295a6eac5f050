// The two sheets: what is drawn in which order, and the surface's font and scale put back.
#include "registros/imprimir/ImpresoOficial.h"

#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/EtiquetasImpreso.h"
#include "registros/imprimir/Primitivas.h"
#include "valores/Formato.h"

namespace {
// Keeps the surface's font name and scale for the sheet's end.
class EstadoGuardado {
public:
    explicit EstadoGuardado(cSuperficiePagina& p)
        : m_p(p), m_fuente(p.FontName), m_escala(p.ScaleMode)
    {
        m_p.ScaleMode = 6;
    }
    void Restaurar()
    {
        m_p.FontName = m_fuente;
        m_p.ScaleMode = m_escala;
    }

private:
    cSuperficiePagina& m_p;
    QString m_fuente;
    int16_t m_escala;
};

void identificacion(cSuperficiePagina& p)
{
    RotuloSeccion(p, 69, 92, 56, QStringLiteral("IDENTIFIKAZIOA"),
                  QStringLiteral("IDENTIFICACIÓN"), 1);
}

void totalBanco(cSuperficiePagina& p)
{
    p.DrawWidth = 10;
    CajaBlanca(p, 100, 234, 190, 242);
    p.DrawWidth = 6;
    FuenteTimes(p, 5);
    Etiquetas(p, 0, {102, 237, "Guztira ordaintzekoa", 102, 239,
                     "Total a ingresar(8)................................................"});
    LineaNegra(p, 145.1f, 234, 145.1f, 242);
    CajaGris(p, 145.2f, 234.3f, 189.6f, 241.6f);
}
}

void ImprimirEjemplar(cSuperficiePagina& p, bool conPresentador, std::optional<Dibujo> tira,
                      bool marcador)
{
    EstadoGuardado estado(p);
    DibujarImpreso(p);
    RellenarImpreso(p, conPresentador);
    if (tira)
        p.PaintPicture(*tira, 191.5f, marcador ? 80.0f : 105.0f);
    estado.Restaurar();
    p.EndDoc();
}

void ImprimirEjemplarBanco(cSuperficiePagina& p)
{
    EstadoGuardado estado(p);
    p.PaintPicture(Dibujo::Entidad, 185, 93);
    DibujarCabeceraReservada(p);
    DibujarCabeceraTitulo(p);
    identificacion(p);
    DibujarBloquePersona(p, 58, Dibujo::Obligado);
    totalBanco(p);
    DibujarBloqueFirma(p, 244, Dibujo::FechaFirma);
    DibujarBloqueIngreso(p, 261, Dibujo::Justificante);
    FuenteArial(p, 9, true);
    DatosPeriodo(p, 26);
    DatosSujetoPasivo(p, 58);
    TextoDerecha(p, 187, 237, Formato(DecDatos().TOTAL.euros(), QStringLiteral("###,###,###,##0.00")));
    estado.Restaurar();
    p.EndDoc();
}

void DibujarImpreso(cSuperficiePagina& p)
{
    DibujarCabeceraReservada(p);
    DibujarCabeceraTitulo(p);
    identificacion(p);
    DibujarBloquePersona(p, 58, Dibujo::Obligado);
    DibujarBloqueTransmitente(p, 84, Dibujo::Transmitente);
    DibujarBloquePersona(p, 103.4f, Dibujo::Representante);
    RotuloSeccion(p, 52, 95.5f, 131, QStringLiteral("GARRAIOBIDEAREN EZAUGARRIAK"),
                  QStringLiteral("CARACTERÍSTICAS DEL MEDIO DE TRANSPORTE"), 2);
    DibujarBloqueCaracteristicas(p, 133, Dibujo::Vehiculos, Dibujo::Barcos, Dibujo::Aeronaves);
    RotuloSeccion(p, 77, 101, 200, QStringLiteral("AUTOLIKIDAZIOA"),
                  QStringLiteral("AUTOLIQUIDACIÓN"), 3);
    DibujarBloqueAutoliquidacion(p, 202);
    DibujarBloqueFirma(p, 244, Dibujo::FechaFirma);
    DibujarBloqueIngreso(p, 261, Dibujo::Justificante);
}

void RellenarImpreso(cSuperficiePagina& p, bool conPresentador)
{
    FuenteArial(p, 9, true);
    DatosPeriodo(p, 26);
    DatosSujetoPasivo(p, 58);
    DatosTransmitente(p, 84);
    if (conPresentador)
        DatosPresentador(p, 103.4f);
    DatosCaracteristicas(p, 133);
    DatosAutoliquidacion(p, 202);
}
