#pragma once
// Form 747 drawn whole on a blank page: the full sheet (draft and the copies for the traffic
// authority, the taxpayer and the administration) and the reduced bank sheet. The data come
// from DecDatos(), Operacion(), PreDatos() and ImOf(); each call draws one sheet and ends its
// document.
#include "registros/imprimir/cSuperficiePagina.h"

#include <optional>

// One full sheet. `tira` is the copy's strip, painted at x 191.5, y 105, or at y 80 when
// `marcador` is set (the traffic strip, the longest one).
void ImprimirEjemplar(cSuperficiePagina& p, bool conPresentador,
                      std::optional<Dibujo> tira = std::nullopt, bool marcador = false);
// One bank sheet: heading, obligor, total, signature and bank block.
void ImprimirEjemplarBanco(cSuperficiePagina& p);

// The pieces of the sheet, each at its top edge y.
void DibujarImpreso(cSuperficiePagina& p);
void RellenarImpreso(cSuperficiePagina& p, bool conPresentador);
void DibujarCabeceraReservada(cSuperficiePagina& p);
void DibujarCabeceraTitulo(cSuperficiePagina& p);
void RotuloSeccion(cSuperficiePagina& p, float x, float x2, float y, const QString& euskera,
                   const QString& castellano, int numero);
void DibujarBloquePersona(cSuperficiePagina& p, float y, Dibujo rotulo);
void DibujarBloqueTransmitente(cSuperficiePagina& p, float y, Dibujo rotulo);
void DibujarBloqueCaracteristicas(cSuperficiePagina& p, float y, Dibujo vehiculos, Dibujo barcos,
                                  Dibujo aeronaves);
void DibujarBloqueAutoliquidacion(cSuperficiePagina& p, float y);
void DibujarBloqueFirma(cSuperficiePagina& p, float y, Dibujo rotulo);
void DibujarBloqueIngreso(cSuperficiePagina& p, float y, Dibujo rotulo);
void DatosPeriodo(cSuperficiePagina& p, float y);
void DatosSujetoPasivo(cSuperficiePagina& p, float y);
void DatosPresentador(cSuperficiePagina& p, float y);
void DatosTransmitente(cSuperficiePagina& p, float y);
void DatosCaracteristicas(cSuperficiePagina& p, float y);
void DatosAutoliquidacion(cSuperficiePagina& p, float y);
