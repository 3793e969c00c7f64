// One sheet's reading: from the image to its marks, form, rut and one code a question, with
// the failure kind when the chain stops. The reading run and `zorta leer` call it.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "platform/imagen.h"
#include "reading/hoja_en_lectura.h"

// Why a sheet's reading stopped: A a mark can't be found, B the distance is outside 850..898,
// C an error while reading form, rut or answers.
enum class Fallo { Ninguno, A, B, C };

struct ResultadoHoja {
    // Raw right x minus left x of the first row of marks, 0 when none.
    int distancia = 0;
    bool marcas_grandes = false;
    // Rows 1 to 3 as found (the right x mended), and the fourth left y.
    std::array<Marcas, 3> filas{};
    int cuarta_y = 0;
    // TxtForma: 1 to 4, 99 unread, 0 when the form step was not reached.
    int forma = 0;
    QString rut;
    bool rut_leido = false;
    // SprRespuesta_Correctas: one code a question read.
    std::vector<char> respuestas;
    Fallo fallo = Fallo::Ninguno;
};

struct OpcionesLectura {
    int preguntas = 100;
    int alternativas = 5;
    bool lee_rut = true;  // false in a key run
};

constexpr int kDistanciaMinima = 850;
constexpr int kDistanciaMaxima = 898;

// Opens a sheet's bitmap; a file that can't be opened, or an image too small to be a scanned
// sheet, throws ErrorEjecucion with the reason in Spanish.
Imagen Abre_Hoja(const QString& ruta);

// Reads one sheet: the four rows of marks at gray 130, then form, rut and answers at 180.
ResultadoHoja Lee_Hoja(const Imagen& imagen, const OpcionesLectura& opciones);
