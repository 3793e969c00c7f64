// The arithmetic of the correction evaluation over its students' grid (SprEvaCorrec): grades
// from a re-scaled table, proportional grades, and the course's figures. Columns: 1 id, 2 rut,
// 3 name, 4 right, 5 wrong, 6 omitted, 7 null, 8 points, 9 performance, 10 form, 11 grade.
#pragma once

#include <QString>
#include <cstdint>

#include "grading/escala_notas.h"
#include "platform/grilla.h"

// Grades of the table into column 11. A perfect paper (right = questions) keeps its grade; the
// first row of 0 right ends the walk. A line past 7 of the table copies as 0.
void Busca_y_Pone_Nuevas_Notas(Grilla& spr, const TablaNotas& tabla, int16_t preguntas);

// Proportional grades Round(r * 7 / P, 2), cut to 1..7, into column 10 (over the form). A row
// of 100 % is left. With 8 rows or more all rows; with fewer only rows 1 to 5, up to the first
// performance of 0.
void Recalcula_Nota_100(Grilla& spr, int16_t porcentaje);

// The course's figures from column 11, as the labels show them.
struct Cifras_Curso {
    QString promedio, minima, maxima;
};
// Average and minimum stop at the first grade of 0; the maximum stops at a 0 only where column
// 1 is empty, and at the first 7.
Cifras_Curso Cambia_Nota_Promedio(const Grilla& spr);

// Population deviation over column 10 around `promedio`, up to the first empty cell; each
// squared difference rounded to 2 decimals, the result too.
double Calculo_Desviacion(const Grilla& spr, double promedio);

// The heads of the students' grid (and of its copy for the spreadsheet): "Idprueba" to "Nota".
void Cabezas_Evaluacion(Grilla& spr);
// Carga_Alumnos_Pantalla: one row a result of the current test. Ptje_Max_Actual follows the key
// of each row's form, so the last row decides the re-scaling.
void Carga_Alumnos_Pantalla(Grilla& spr);
// The test's stored percentages for the grades 4 and 7 (the row of NivelesCalificacion under
// its id), as the fields show them; false when it has none.
bool Lee_Porcentajes_Nota(QString& desde, QString& hasta);
