#pragma once
// The operation chosen on the return: its description, print key, marks, rate, limits of a
// typed rate and deduction, as the store gives them for the date of accrual. One shared
// instance, Operacion(); the declaration form and the record read it.
#include "servicios/cDeclaSvr.h"

#include <QString>
#include <cstdint>

// The rate 99.99 of an operation that has no fixed rate: the declarant types one between
// T_MIN and T_MAX. Recognised by its exact bit pattern, never by a tolerance.
inline constexpr double TasaLibre = 99.99;
bool EsTasaLibre(double tasa);

class cOperacion {
public:
    QString DESCRIP;
    QString T_IMPR;
    QString T_NSUJ;
    QString T_EXE;
    QString T_RED;

    // The four numbers are kept rounded to 2 decimals whichever way they are set.
    double T_TIP() const { return m_tip; }
    double T_MIN() const { return m_min; }
    double T_MAX() const { return m_max; }
    double T_DEDU() const { return m_dedu; }
    void setT_TIP(double v);
    void setT_MIN(double v);
    void setT_MAX(double v);
    void setT_DEDU(double v);

    // Empty texts and zero numbers.
    void Inicializa();
    // Fills the object from the store's operation. T_RED is kept unless `sinReduccion` or the
    // case is exempt or not subject.
    void ActualizaOperacion(const DatosOperacion& datos, bool sinReduccion);

private:
    double m_tip = 0;
    double m_min = 0;
    double m_max = 0;
    double m_dedu = 0;
};

cOperacion& Operacion();
