// Pieces the amendment screens share: answer letters and their store codes, the student's
// surname, the removal of a student from a test, and the fixed grade table of a typed result.
#pragma once

#include <QString>
#include <QVariant>

#include "platform/grilla.h"

// A student's stored answer as a letter: 1..5 "A".."E", 6 "O", 7 "N"; "" for any other code.
QString Letra_Alumno(const QVariant& codigo);
// A key's stored answer as a letter: 1..5 "A".."E", 9 "X" (a deleted question); "" otherwise.
QString Letra_Pauta(const QVariant& codigo);

// The first surname of a student of ALUMNOS; "" when the rut is unknown.
QString Primer_Apellido(const QString& rut);

// Removes the student's answers and result of one form of the current test.
void Elimina_Alumno_Prueba(const QString& rut, const QVariant& forma);

// Spr_Nota: 101 rows, the percentage 0..100 in column 1 and its grade in column 2 with a
// decimal comma: 1 + 3p/60 up to 60 %, 4 + 3(p - 60)/40 above, one decimal, ties upward.
Grilla Tabla_Nota_Manual();
