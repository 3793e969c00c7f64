// The sheet template table Spr_290: one block of 39 rows of positions for each whole distance
// between the left and right mark of the first row, and the 36 rows of the large-mark sheet.
// Rows and columns count from 1; an empty cell reads 0.
#pragma once

#include <array>
#include <cstdint>

constexpr int kFilasSpr290 = 1859;
constexpr int kColumnasSpr290 = 52;
// Row before the first large-mark row: row 1823 + q holds question q.
constexpr int kFilaMarcasGrandes = 1823;
constexpr int kPreguntasMarcasGrandes = 36;

// Offsets within a block.
namespace bloque {
constexpr int kMarcas = 0;         // rows 0..2: columns 9,10 left mark, 12,13 right mark
constexpr int kFormas = 0;         // rows 0..3 column 4: x of form marks; row 0 column 5: y
constexpr int kRut = 5;            // row 5: x of the nine rut columns; rows 5..14 column 4: y
constexpr int kMarcaK = 15;        // column 20: y of the mark k
constexpr int kAlternativas = 17;  // row 17: 25 x; rows 17..36 column 4: question y
}  // namespace bloque

// The cell of the table, 0 when empty or outside.
int Spr_290(int fila, int columna);

// Start row of the block for a distance, 0 when the table has none.
int Fnc_Posicion_Lectura(int Valor_Buscado);

// The number in a row and column of the table.
int Trae_Valor_X(int FilaFind, int ColumnaFind);
int Trae_Valor_Y(int FilaFind, int ValorColumna);

// The rut grid of the block picked by the first row marks' distance: x of the nine columns,
// y of digits 0 to 9 and, at index 10, of the mark k.
struct PosicionesRut {
    std::array<int16_t, 9> x{};
    std::array<int16_t, 11> y{};
};
PosicionesRut Carga_Posiciones_Rut(int distancia);

// The 25 x of the alternatives (five groups of five) and the 20 y of the question rows of the
// block picked by the distance of the marks passed, X1 - X.
struct PosicionesAlternativas {
    std::array<int16_t, 25> x{};
    std::array<int16_t, 20> y{};
};
PosicionesAlternativas Carga_Alternativas_Prueba(int X, int X1);

// Where question q of a normal sheet is: the index of its first x among the 25 (0, 5, ... 20)
// and the index of its y among the 20 (questions 51 and up from the second ten).
struct PosicionPregunta {
    int primera_x;
    int fila_y;
};
PosicionPregunta Posicion_Pregunta(int pregunta);

// Column of the y of a large-mark question: 4, 6, ... 12 for questions 1 to 5 and 19 to 23,
// for every other question the column last used.
int Columna_Y_Marcas_Grandes(int pregunta, int ultima_columna);
