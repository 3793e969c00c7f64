// Page registration: finding the rows of black marks down both sides of the sheet, the guide
// of the large-mark sheet, mending disagreeing right marks, and mapping a template point to the
// image with the skew corrected by the law of cosines.
#pragma once

#include <cstdint>

#include "reading/hoja_en_lectura.h"

// Finds one row of marks. Cuadro_Busqueda 1 searches around a known place (with margins),
// 0 exactly in the given box; Ultimo_Cuadro 99 finds only the left mark's first dark pixel.
// Nothing dark gives all 0 and no error; a corner walk off the image sets Error_Lectura.
Marcas Version_Nueva_Lectura_Cuadros(HojaEnLectura& hoja, int V_Ini_X, int V_Ini_X1, int V_Ini_Y,
                                     int V_Ini_Y1, int Cuadro_Busqueda, int Ultimo_Cuadro);

// True when the medial guide of a large-mark sheet is in the box from (Inicial_CGX,
// Inicial_CGY), 150 wide and 70 high. The run passes 300 and the left mark's x - 20.
bool Verifico_Nuevo_Formato_Guia_Medial(const HojaEnLectura& hoja, int Inicial_CGX,
                                        int Inicial_CGY);

// Mends the right x of rows 1, 2, 3 when one disagrees with the others by 20 or more.
void Verifica_Diferencia_Cuadros_Derecha(int16_t& Cuadro_1_Sup_Der, int16_t& Cuadro_2_Sup_Der,
                                         int16_t& Cuadro_3_Sup_Der);

// The worksheet of one mapping: the steps' values, and both result pairs.
struct Mapeo {
    double BETA = 0;  // degrees, 5 decimals
    int16_t ALFA = 0;
    int16_t A = 0;
    double C = 0;
    int16_t P1x = 0, P1y = 0, P2x = 0, P2y = 0;
    int16_t X5 = 0, Y5 = 0;  // column 5: for Y1 <= Y
    int16_t X7 = 0, Y7 = 0;  // column 7: for Y1 > Y
};

// Maps template point (Posicion_X_Normal, Posicion_Y_Normal) of the block at
// Fila_Lectura_Valores to the image, registered on the read marks of one row; Cuadro_Para_Leer
// picks the block's base row (1, 2, 3). 16-bit overflow throws ErrorEjecucion.
Mapeo busca_Valores_Parametro(int16_t X, int16_t Y, int16_t X1, int16_t Y1, int Cuadro_Para_Leer,
                              int Posicion_X_Normal, int Posicion_Y_Normal,
                              int Fila_Lectura_Valores);
