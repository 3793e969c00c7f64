// Correcting the stored sheets of a test: each student against the key of the form on the
// sheet, row by row, and one result row with the counts and the grade of the grade table.
#pragma once

#include <QString>
#include <QVariant>

struct Corrector;

// The reading run's correction: partial when sheets were added to the present correction
// (Agrega_Actual), general otherwise. Needs Calcula_Notas_Tabla run before it.
void Resultados_Alumnos_Pruebas(Corrector& c);

// Students of the test with stored answers of a form that has a key, and no result row, left
// so by a run stopped before its grading: each corrected as a sheet added to the correction,
// against the key of its own form. Needs Calcula_Notas_Tabla run before it. The number of students that got a result.
int Completa_Correccion(Corrector& c);

// Writes one student's result row, replacing an earlier one of the same form.
void Grabar_Resultados_Alumnos(Corrector& c, const QString& rut, int buenas, int malas,
                               int omitidas, int nulas, int total, const QVariant& forma);

// The test list's repair of zero grades: the general mode, stopping at the first student
// without answers, and a proportional grade Round(buenas * 7 / total, 1).
void Resultados_Alumnos_Pruebas_Reparacion(Corrector& c);

// Fills a two-column working table from a query, one row a record: no rows means none found.
class Grilla;
class Recordset;
void Llena_Tabla(Grilla& tabla, Recordset& rs);
