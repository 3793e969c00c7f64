// Numbers given out by the store: the named counters of indice_general, drawn in one step,
// and the highest-plus-one keys of the tables without a counter.
#pragma once

#include <QString>
#include <cstdint>

// Draws the next number of a counter ("PRUEBA", "CURSO"): the stored value plus one, written
// back at once. A missing row gives 0 and writes nothing.
int16_t Siguiente_Indice(const QString& tipo_indice);

// The highest value of a column plus one; 1 for an empty table.
int32_t Maximo_Mas_Uno(const QString& tabla, const QString& columna);

// The saved gray value, row COLOR; warns when the row is missing (then 0).
int16_t Func_Indice_Color();
