// The load of the student list: a spreadsheet replaces ALUMNOS and CURSOS.
#pragma once

#include <QString>
#include <QStringList>

struct CargaAlumnos {
    bool completa = false;  // false when a bad rut undid the load
    int fila = 1;           // the row the load reached
    QStringList cursos;     // the courses rebuilt from the students, in the order stored
};

// Deletes every student and course; stores rows 1 to 10000 of the first sheet until cell A is
// blank (rut without commas, name without apostrophes, course and column D as typed); on a
// bad rut tells the row and deletes the students again. Then rebuilds CURSOS from the students.
CargaAlumnos Carga_Alumnos_Planilla(const QString& ruta);
