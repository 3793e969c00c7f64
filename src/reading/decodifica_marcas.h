// Mark sampling and decoding of a registered sheet: the form number, the rut, and one answer
// code per question ("A" to "E", "O" omitted, "N" null).
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "reading/hoja_en_lectura.h"

// Dark samples among the 38 of the fixed pattern around a point, 0 to 38.
int Conteo_Lecturas(const HojaEnLectura& hoja, int Para_X, int Para_Y);

// The form marked, 1 to 4, with the first row marks; 99 when none. The last marked wins.
// A distance without a block shows the reading error and sets Error_Lectura (result 0).
int Busca_Forma(HojaEnLectura& hoja, const Marcas& m);

// The rut read column by column with the first row marks, formatted with "-" before its last
// character ("" when nothing is marked). Same failure as Busca_Forma.
QString Lee_Solo_Rut_New_Ver(HojaEnLectura& hoja, const Marcas& m);

// Reads questions Comienza_Lectura to Fin_Lectura registered on the marks of row
// Cuadro_Lectura (2 or 3) and appends one code a question to SprRespuesta_Correctas, which is
// emptied first when Comienza_Lectura is 1. On a large-mark sheet Fila_Find is the row before
// the first question's (1823).
void lee_alternativas_version_2(HojaEnLectura& hoja, const Marcas& m, int Comienza_Lectura,
                                int Fin_Lectura, int Cuadro_Lectura, bool New_Hoja_CG,
                                int Fila_Find, std::vector<char>& SprRespuesta_Correctas);

// The code of a question from the counts of its alternatives (CboAciertos): one strong mark
// (25 or more) decides alone, two are "N"; otherwise the marks of 15 or more.
char Codigo_Respuesta(const std::vector<int>& cuentas);
