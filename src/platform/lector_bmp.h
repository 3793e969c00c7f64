// The reader of Windows bitmaps, every variant a scanner or a converter writes: the OS/2
// headers (12, and 16 to 64 bytes) and the Windows ones (40, 52, 56, 108, 124 bytes); 1, 2, 4,
// 8, 16, 24 and 32 bits a pixel; rows bottom-up or top-down; RLE8 and RLE4; colour masks.
#pragma once

#include <cstddef>
#include <cstdint>

struct FIBITMAP;

// The bitmap held in `datos`, as a FreeImage bitmap that the caller unloads. Paletted pixels
// stay indexes into a palette of 256 entries (the entries the file does not give are black);
// the other depths become 24-bit colour, each channel scaled to 0..255 as (v * 255) / maximum.
// Bytes that are not a bitmap throw ErrorEjecucion with the reason in Spanish.
FIBITMAP* Decodifica_Bmp(const uint8_t* datos, size_t tamano);
