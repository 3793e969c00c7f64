// Storing a read sheet as a student's answers or as a form's key, and the key state of a test.
// Letters become codes here; students and keys swap the codes of "O" and "N".
#pragma once

#include <QString>

struct Corrector;

// Code of a letter in the students' table (O 6, N 7) and in the keys' table (O 7, N 6); 0 for
// any other text.
int Codigo_Alumno(const QString& letra);
int Codigo_Pauta(const QString& letra);

void Graba_Prueba_Alumnos(Corrector& c);
void Elimina_Prueba_Cargada(const Corrector& c);
void Graba_Prueba_Base_Pauta(Corrector& c);
void Eliminar_Pautas_Anteriores_Existentes();
void Cambia_Estado_Pauta();
void Varifica_Pauta_Grabada(Corrector& c);
