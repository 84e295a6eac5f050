#include "registros/imprimir/DibujosImpreso.h"

#include <array>

namespace {
struct FichaDibujo {
    Dibujo dibujo;
    const char* nombre;
    TamanoDibujo tamano;
    const char* texto;
};

// Basque wording first, then the Spanish one; sizes as the form's pictures have them.
const std::array<FichaDibujo, 15> kDibujos{{
    {Dibujo::Entidad, "picEntidad", {21, 502},
     "Entitate Lankidearentzako Alea / Ejemplar para la Entidad Colaboradora"},
    {Dibujo::Informatica, "PicInformatica", {18, 477},
     "Trafikoko Probintzia Buruzagitzarentzako Alea / Ejemplar para la Jefatura Provincial de Tráfico"},
    {Dibujo::Interesado, "PicInteresado", {15, 299},
     "Interesatuarentzako Alea / Ejemplar para el Interesado"},
    {Dibujo::Administracion, "PicAdministracion", {16, 344},
     "Administrazioarentzako Alea / Ejemplar para la Administración"},
    {Dibujo::Banco, "PicBanco", {16, 255}, "Bankuarentzako Alea / Ejemplar para el Banco"},
    {Dibujo::Placa, "PicPlaca", {24, 52}, "Matrikula zk. / Nº matrícula"},
    {Dibujo::Logo, "PicLogo", {68, 68}, ""},
    {Dibujo::Obligado, "PicObligado", {20, 78}, "Zergapekoa / Obligado Tributario"},
    {Dibujo::Representante, "PicRepresentante", {19, 63}, "Ordezkaria / Representante"},
    {Dibujo::Transmitente, "PicTransmitente", {19, 66}, "Eskualdatzailea / Transmitente"},
    {Dibujo::Vehiculos, "PicVehiculos", {21, 46}, "Ibilgailuak / Vehículos"},
    {Dibujo::Barcos, "PicBarcos", {19, 52}, "Itsasontziak / Barcos"},
    {Dibujo::Aeronaves, "PicAeronaves", {19, 50}, "Aireontziak / Aeronaves"},
    {Dibujo::FechaFirma, "PicFechaFirma", {38, 40}, "Data eta sinadura / Fecha y firma"},
    {Dibujo::Justificante, "PicJustificante", {40, 55},
     "Ordainketa agiria / Justificante de ingreso"},
}};

const FichaDibujo& ficha(Dibujo dibujo)
{
    return kDibujos.at(static_cast<size_t>(dibujo));
}
}

TamanoDibujo TamanoDe(Dibujo dibujo) { return ficha(dibujo).tamano; }

QString NombreDibujo(Dibujo dibujo) { return QString::fromLatin1(ficha(dibujo).nombre); }

QString TextoDibujo(Dibujo dibujo) { return QString::fromUtf8(ficha(dibujo).texto); }
