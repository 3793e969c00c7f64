// The sheet in hand while it is read: its image, the gray threshold, the error flag and the
// little state the readers share. Pixels are dark when their red byte is at most Nivel_Gris.
#pragma once

#include <cstdint>

#include "platform/imagen.h"

// Left and right mark of one row, in image pixels; all 0 when nothing was found.
struct Marcas {
    int16_t X = 0, Y = 0, X1 = 0, Y1 = 0;
    int distancia() const { return X1 - X; }
};

struct HojaEnLectura {
    explicit HojaEnLectura(const Imagen& img) : imagen(img) {}

    const Imagen& imagen;
    int16_t Nivel_Gris = 130;
    bool Error_Lectura = false;
    // The first left y of the sheet: below 15 the searches of the later rows widen.
    int Primer_Y = 0;
    // Alternatives a question, 1 to 5.
    int Alternativas_Actual = 5;
    // Result pair (5 or 7) of the last borderline re-read, 0 before any; kept across questions.
    int Par_Usado = 0;

    // A read that gives no colour is never dark here.
    bool oscuro(int x, int y) const {
        const int r = imagen.rojo(x, y);
        return r >= 0 && r <= Nivel_Gris;
    }
    // The reads that do not test for no colour take its low byte, 255.
    bool oscuro_sin_prueba(int x, int y) const {
        const int r = imagen.rojo(x, y);
        return (r < 0 ? 255 : r) <= Nivel_Gris;
    }
};

// The words every reader shows when a sheet can't be read; sets Error_Lectura.
void Muestra_Error_Lectura(HojaEnLectura& hoja);
