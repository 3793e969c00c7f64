// Helpers of the reading tests: sheets drawn by the generator and read back in memory.
#pragma once

#include <string>

#include "reading/generador_hoja.h"
#include "reading/lectura_hoja.h"

// A sheet with one answer a question (letters of `letras`, '.' for none), a form and a rut.
DisenoHoja Hoja_Llena(int distancia, bool grandes, const std::string& letras, int forma = 2,
                      const QString& rut = QStringLiteral("123456785"));

// The letters a sheet of 100 questions gets: every alternative and omissions in turn.
std::string Letras_Variadas(int preguntas, int semilla);

// Draws and reads a sheet.
ResultadoHoja Dibuja_Y_Lee(const DisenoHoja& d, int preguntas = 100, int alternativas = 5);

std::string Texto(const std::vector<char>& respuestas);
