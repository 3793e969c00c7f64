// The minimum grade setting, row NM of NivelesCalificacion.
#pragma once

#include <cstdint>

// The last NM row's `desde` rounded half to even; warns when it is 0 or missing.
int16_t Fnc_Lee_Nota_Minima();
