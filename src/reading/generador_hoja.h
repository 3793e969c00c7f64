// Synthetic scanned sheets for tests and demos: the printed sheet of a given mark distance
// (bubbles and texts in red dropout ink, registration marks in black), filled in with form,
// rut and answers, then turned, moved and soiled as a scanner would.
#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "platform/imagen.h"

// A filled answer bubble: darkness is the red byte of the fill (at most 180 reads as dark).
struct RellenoRespuesta {
    int pregunta = 1;
    int alternativa = 1;  // 1 to 5, A to E
    int oscuridad = 30;
    double radio = 7.5;
};

struct DisenoHoja {
    int distancia = 852;  // pixels from left to right mark of the first row
    bool marcas_grandes = false;
    double rotacion = 0;  // degrees, clockwise positive, about the first left mark
    double dx = 0, dy = 0;
    int filas_marcas = 4;     // rows of registration marks printed: 0 a blank page, 1 the first
    std::vector<int> formas;  // form marks filled, 1 to 4
    // One character a rut column from the first: a digit, 'K' for the row of k, ' ' none.
    QString rut;
    std::vector<std::pair<int, int>> rut_extra;  // more marks: (column 0..8, row 0..10)
    std::vector<RellenoRespuesta> respuestas;
    int ruido = 0;                                // each channel moves at random by up to this much
    int manchas = 0;                              // dark specks of 1 to 3 pixels strewn at random
    std::vector<std::pair<int, int>> manchas_en;  // one-pixel specks at these image pixels
    unsigned semilla = 1;
};

// Draws the sheet as a 24-bit image.
Imagen Dibuja_Hoja(const DisenoHoja& diseno);
