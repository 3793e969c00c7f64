// A graded test as the reports see it, written straight into the open store: two forms with
// their keys, every question tied to one of four axes (names that differ in case and accent)
// and one of three skills, and a course of students with their answers and results.
#pragma once

#include <QString>

// Test `id` of course `curso`, `alumnos` students, `preguntas` questions, `formas` forms.
// Answers follow a fixed pattern, so every student, axis and level differs from the next.
void Crea_Prueba_Informes(int id, const QString& curso, int alumnos, int preguntas = 40,
                          int formas = 2);
// The four axes, as stored, and the three skills.
extern const char* const kEjesInforme[4];
extern const char* const kHabilidadesInforme[3];
