// The grade table of a test: one line per possible score, built once per correction, each
// grade then looked up in it. Two straight lines meet at 4.0 on the cut score: from the
// minimum grade up to 4.0 below the cut, from 4.0 up to 7.0 above it.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "platform/grilla.h"

// The screens that build the table each keep their own variant of it.
enum class VarianteEscala {
    Corrector,   // the reading run and the test list: 60 %, text cut score, double rounding
    Correccion,  // the answer-key amendment: the test's own percentage, whole cut score
    Evaluacion,  // the correction evaluation: the given percentage, m1 rounded, 0 above 7
};

struct TablaNotas {
    TablaNotas();
    // Rows 10 to 110 hold the points 0 to 100 in column 2 and the grade in column 5.
    Grilla Spr_Notas_Tabla;
    QString Txt_Corte;
};

// Rewrites the table from Nota_Minima_Actual and Ptje_Max_Actual. `porcentaje` is used by the
// evaluation variant only; the amendment variant reads Fnc_Ajuste_Nota_40.
void Calcula_Notas_Tabla(TablaNotas& tabla, VarianteEscala variante = VarianteEscala::Corrector,
                         int16_t porcentaje = 60);

// The grade of a count of right answers: column 5 of the first row whose points equal it.
std::optional<QString> Nota_De_Tabla(const TablaNotas& tabla, int buenas);

// The test's own percentage for the grade 4.0, stored under its number; 60 without it.
int16_t Fnc_Ajuste_Nota_40();
