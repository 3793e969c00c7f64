// Scores of the practice runs of the national tests: the three PSU lines and the bands of
// their chart, and the SIMCE scores with the achievement level by course level and subject.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

class Grilla;

// Spaces cut at both ends, as the system trims a subject or a test name; tabs stay.
QString Sin_Espacios(const QString& texto);

// The three linear PSU estimates of one student; a wrong answer takes nothing away.
struct NivelesPsu {
    double bajo;
    double medio;
    double alto;
};

// From `buenas` right answers of `preguntas`; the factors are 32-bit floats. ErrorEjecucion
// ("División por cero") with no questions.
NivelesPsu Calcula_Niveles_Psu(int16_t buenas, int16_t preguntas);

// The fifteen labels of the chart's score bands, blanks as the system writes them.
const QStringList& Rangos_Psu();
// Band 1 to 15 of a medium estimate, 0 below 150 or above 900.
int Banda_Psu(double puntaje);

// "Puntaje Normal": 156 with no right answer; otherwise the share kept as a 32-bit float,
// whole percent, times 2.05 made whole again, plus 156.
int16_t Puntaje_Normal_Simce(int16_t buenas, int16_t ptje_max);
// "Puntaje Simce" of a student with right answers, in doubles; the x that decides the level.
int16_t Puntaje_Simce(int16_t buenas, int16_t ptje_max);
// The level of the course (its first character as a number, 0 for a letter).
int16_t Nivel_Curso(const QString& curso);
// "INICIAL", "INTERMEDIO" or "AVANZADO" for the score x, by the cut points of the course level
// and subject.
QString Nivel_Simce(int16_t nivel_curso, const QString& asignatura, int16_t x);

// Carga_Todos_Rut_Prueba: one row for each result of the current test, in rut order, with the
// rut in column 1 and the first surname in column 2.
void Carga_Todos_Rut_Prueba(Grilla& grilla);
