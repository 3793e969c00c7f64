// One sheet's reading: from the image to its marks, form, rut and one code a question, with
// the failure kind when the chain stops. `zorta leer` runs it whole with Lee_Hoja; the reading
// run calls the stages one by one, because its messages and dialogues come between them.
#pragma once

#include <QString>
#include <array>
#include <functional>
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
    // Failure A at the fourth mark's first search: the sheet goes without a word.
    bool sin_aviso = false;
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

// A row of marks just found (1 to 4), raw, before its distance test and before any mending.
using FilaHallada = std::function<void(int fila, const Marcas& marcas)>;

// The stages of one sheet, in the order they must be called. Each false sets r.fallo.
class LecturaHoja {
  public:
    LecturaHoja(const Imagen& imagen, const OpcionesLectura& opciones);

    // The four rows of marks at gray 130 with their retries and distance tests, then the
    // mended right marks. False is failure A or B.
    bool Registra(const FilaHallada& hallada = {});
    // Form at gray 180 with the first row marks. False is failure C.
    bool Lee_Forma();
    // The rut with the first row marks. False is failure C.
    bool Lee_Rut();
    // Questions 1 up to 50 (18 on a large-mark sheet) with the second row marks.
    bool Lee_Respuestas();
    // Questions 51 and up with the third row marks, on a normal sheet of 51 questions or more.
    // Questions 19 and up of a large-mark sheet stay unread: there is no second call.
    bool Lee_Respuestas_Tercera();
    // The question limit of the second row's call.
    int Limite_Respuestas() const;

    ResultadoHoja r;

  private:
    bool Falla(Fallo fallo);

    HojaEnLectura hoja_;
    OpcionesLectura opciones_;
};

// Reads one sheet: every stage in turn, stopping at the first failure.
ResultadoHoja Lee_Hoja(const Imagen& imagen, const OpcionesLectura& opciones);
