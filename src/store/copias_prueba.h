// What belongs to a test, copied to its copy; and the small lookups the screens share.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

class Grilla;

// Copies the key of one form of the test chosen for copying (Id_Prueba_Origen) to
// Id_Prueba_Copia.
void Copia_Pauta_Prueba(int16_t forma);
// Copies the axis and skill of each question of one form of Id_Prueba_Origen to
// Id_Prueba_Copia, numbering CORRELATIVO on from the highest.
void Copia_Ejes_Prueba(int16_t forma);
// Makes test `id` the current one, as choosing it on the test list does: its id, name,
// teacher, course, type, subject, forms, alternatives, and its questions as the maximum
// points. False when there is no such test.
bool Fija_Prueba_Actual(int16_t id);
// Adds to `lista` the forms of the current test that have a key, in order.
void Carga_Formas_Pauta(QStringList& lista);
// The student's name; written into columns 1 and 9 of the grid's last row ("Nombre no Existe"
// in column 1 when the rut is unknown).
QString Fnc_Nombre_Alumno(const QString& rut, Grilla& grilla);
