// Decoding a Windows bitmap into a FreeImage bitmap. Every size is checked against the bytes
// at hand before it is used, so a damaged file gives a reason, never a read past its end.
#include "platform/lector_bmp.h"

#include <FreeImage.h>

#include <QString>
#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>

#include "platform/error_ejecucion.h"

namespace {

constexpr int64_t kLadoMaximo = 30000;
constexpr int64_t kPixelesMaximos = 200'000'000;
constexpr size_t kArchivo = 14;  // the file header before the bitmap's own header

enum Compresion : uint32_t { kRgb = 0, kRle8 = 1, kRle4 = 2, kMascaras = 3, kMascarasAlfa = 6 };

[[noreturn]] void Falla(const QString& motivo) {
    throw ErrorEjecucion(motivo);
}

uint32_t Lee32(const uint8_t* p) {
    return p[0] | (p[1] << 8) | (p[2] << 16) | (static_cast<uint32_t>(p[3]) << 24);
}
uint16_t Lee16(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] | (p[1] << 8));
}

// One colour channel of a 16- or 32-bit pixel: its bits, and the scale to 0..255.
struct Canal {
    uint32_t mascara = 0;
    int corrimiento = 0;
    uint64_t maximo = 0;

    explicit Canal(uint32_t m) : mascara(m) {
        if (m == 0) return;
        corrimiento = std::countr_zero(m);
        maximo = m >> corrimiento;
        if (maximo & (maximo + 1))
            Falla(QStringLiteral("Las máscaras de color del mapa de bits no son válidas"));
    }
    uint8_t operator()(uint32_t pixel) const {
        const uint64_t v = (pixel & mascara) >> corrimiento;
        return maximo ? static_cast<uint8_t>(v * 255 / maximo) : 0;
    }
};

// What the headers say, checked against the file's size.
struct Cabecera {
    int64_t ancho = 0;
    int64_t alto = 0;
    bool de_arriba_abajo = false;
    int bits = 0;
    uint32_t compresion = kRgb;
    uint32_t mascaras[3] = {0, 0, 0};  // red, green, blue
    size_t paleta = 0;                 // where the palette starts
    size_t colores = 0;                // palette entries read
    size_t bytes_color = 4;            // 3 in the oldest OS/2 header
    size_t pixeles = 0;                // where the pixels start
    size_t paso = 0;                   // bytes of an uncompressed row
};

void Lee_Medidas(Cabecera& c, const uint8_t* d, uint32_t tam) {
    uint8_t h[124] = {};
    std::memcpy(h, d + kArchivo, tam);
    if (tam == 12) {
        c.ancho = Lee16(h + 4);
        c.alto = Lee16(h + 6);
        c.bits = Lee16(h + 10);
        c.bytes_color = 3;
        return;
    }
    c.ancho = static_cast<int32_t>(Lee32(h + 4));
    c.alto = static_cast<int32_t>(Lee32(h + 8));
    c.bits = Lee16(h + 14);
    c.compresion = Lee32(h + 16);
    c.colores = Lee32(h + 32);
    const bool os2 = tam != 40 && tam != 52 && tam != 56 && tam != 108 && tam != 124;
    if (os2 && c.compresion >= kMascaras) c.compresion = 0xFFFF;  // Huffman or RLE24
    for (int i = 0; i < 3; ++i) c.mascaras[i] = Lee32(h + 40 + 4 * i);
}

void Verifica_Medidas(Cabecera& c) {
    if (c.alto < 0) {
        c.alto = -c.alto;
        c.de_arriba_abajo = true;
    }
    if (c.ancho <= 0 || c.alto <= 0 || c.ancho > kLadoMaximo || c.alto > kLadoMaximo ||
        c.ancho * c.alto > kPixelesMaximos)
        Falla(QStringLiteral("La cabecera del mapa de bits declara un tamaño imposible: %1 x %2 "
                             "píxeles")
                  .arg(c.ancho)
                  .arg(c.alto));
    if (c.bits != 1 && c.bits != 2 && c.bits != 4 && c.bits != 8 && c.bits != 16 && c.bits != 24 &&
        c.bits != 32)
        Falla(QStringLiteral("El mapa de bits tiene %1 bits por píxel, que no se admiten")
                  .arg(c.bits));
    const bool valida = c.compresion == kRgb || (c.compresion == kRle8 && c.bits == 8) ||
                        (c.compresion == kRle4 && c.bits == 4) ||
                        ((c.compresion == kMascaras || c.compresion == kMascarasAlfa) &&
                         (c.bits == 16 || c.bits == 32));
    if (!valida)
        Falla(QStringLiteral("El mapa de bits usa una compresión que no se admite (%1 con %2 "
                             "bits por píxel)")
                  .arg(c.compresion)
                  .arg(c.bits));
}

// Masks, palette and pixels: where each starts, and that each is inside the file.
void Ubica_Datos(Cabecera& c, const uint8_t* d, size_t tamano, uint32_t tam) {
    c.paleta = kArchivo + tam;
    const bool con_mascaras = c.compresion == kMascaras || c.compresion == kMascarasAlfa;
    if (con_mascaras && tam < 52) {
        const size_t n = c.compresion == kMascaras ? 3 : 4;
        if (c.paleta + 4 * n > tamano)
            Falla(QStringLiteral("El mapa de bits está truncado: faltan sus máscaras de color"));
        for (int i = 0; i < 3; ++i) c.mascaras[i] = Lee32(d + c.paleta + 4 * i);
        c.paleta += 4 * n;
    } else if (!con_mascaras && c.bits == 16) {
        c.mascaras[0] = 0x7C00, c.mascaras[1] = 0x03E0, c.mascaras[2] = 0x001F;
    } else if (!con_mascaras && c.bits == 32) {
        c.mascaras[0] = 0xFF0000, c.mascaras[1] = 0xFF00, c.mascaras[2] = 0xFF;
    }
    const size_t maximo = c.bits <= 8 ? size_t(1) << c.bits : 0;
    c.colores = c.colores == 0 || c.colores > maximo ? maximo : c.colores;
    // A short palette (the pixels start before its last entry) has what stands before them.
    const size_t offset = Lee32(d + 10);
    if (offset > c.paleta && offset < c.paleta + c.colores * c.bytes_color)
        c.colores = (offset - c.paleta) / c.bytes_color;
    const size_t fin_paleta = c.paleta + c.colores * c.bytes_color;
    if (fin_paleta > tamano)
        Falla(QStringLiteral("El mapa de bits está truncado: falta su paleta de colores"));
    // A pixel offset that points into the headers is taken as "right after the palette".
    c.pixeles = std::max(offset, fin_paleta);
    c.paso = static_cast<size_t>((c.ancho * c.bits + 31) / 32 * 4);
    const bool comprimido = c.compresion == kRle8 || c.compresion == kRle4;
    const uint64_t necesarios =
        comprimido ? c.pixeles + 2 : c.pixeles + static_cast<uint64_t>(c.paso) * c.alto;
    if (tamano < necesarios)
        Falla(QStringLiteral("El mapa de bits está truncado: tiene %1 bytes y necesita %2")
                  .arg(tamano)
                  .arg(necesarios));
}

Cabecera Lee_Cabecera(const uint8_t* d, size_t tamano) {
    if (tamano == 0) Falla(QStringLiteral("El archivo está vacío"));
    if (tamano < 2 || d[0] != 'B' || d[1] != 'M')
        Falla(QStringLiteral("El archivo no es un mapa de bits BMP"));
    if (tamano < 26) Falla(QStringLiteral("El mapa de bits está truncado: falta su cabecera"));
    const uint32_t tam = Lee32(d + kArchivo);
    if (tam != 12 && (tam < 16 || tam > 124))
        Falla(QStringLiteral("La cabecera del mapa de bits no es válida"));
    if (kArchivo + tam > tamano)
        Falla(QStringLiteral("El mapa de bits está truncado: falta su cabecera"));
    Cabecera c;
    Lee_Medidas(c, d, tam);
    Verifica_Medidas(c);
    Ubica_Datos(c, d, tamano, tam);
    return c;
}

using Bitmap = std::unique_ptr<FIBITMAP, void (*)(FIBITMAP*)>;

Bitmap Reserva(const Cabecera& c, int bits) {
    Bitmap dib(FreeImage_Allocate(static_cast<int>(c.ancho), static_cast<int>(c.alto), bits),
               FreeImage_Unload);
    if (!dib)
        Falla(QStringLiteral("No hay memoria para una imagen de %1 x %2").arg(c.ancho).arg(c.alto));
    // What a compressed bitmap passes over stays index 0; other rows are written whole.
    if (c.compresion == kRle8 || c.compresion == kRle4)
        std::memset(FreeImage_GetBits(dib.get()), 0, FreeImage_GetPitch(dib.get()) * c.alto);
    return dib;
}

// The memory row of a file row (FreeImage keeps rows bottom-up, as most files do).
BYTE* Linea(FIBITMAP* dib, const Cabecera& c, int64_t fila_archivo) {
    const int64_t linea = c.de_arriba_abajo ? c.alto - 1 - fila_archivo : fila_archivo;
    return FreeImage_GetScanLine(dib, static_cast<int>(linea));
}

void Copia_Paleta(FIBITMAP* dib, const Cabecera& c, const uint8_t* d) {
    RGBQUAD* paleta = FreeImage_GetPalette(dib);
    std::memset(paleta, 0, 256 * sizeof(RGBQUAD));
    for (size_t i = 0; i < c.colores; ++i) {
        const uint8_t* e = d + c.paleta + i * c.bytes_color;
        paleta[i].rgbBlue = e[0];
        paleta[i].rgbGreen = e[1];
        paleta[i].rgbRed = e[2];
    }
}

void Lee_Indices(FIBITMAP* dib, const Cabecera& c, const uint8_t* d) {
    const unsigned mascara = (1u << c.bits) - 1;
    for (int64_t f = 0; f < c.alto; ++f) {
        const uint8_t* origen = d + c.pixeles + f * c.paso;
        BYTE* destino = Linea(dib, c, f);
        if (c.bits == 8) {
            std::memcpy(destino, origen, static_cast<size_t>(c.ancho));
            continue;
        }
        for (int64_t x = 0; x < c.ancho; ++x) {
            const int64_t bit = x * c.bits;
            destino[x] = (origen[bit / 8] >> (8 - c.bits - bit % 8)) & mascara;
        }
    }
}

// RLE8 and RLE4: runs and literal stretches, with end of line, end of bitmap and jumps.
// Pixels a jump or an early end of line passes over keep index 0; the bitmap must end with
// its end mark.
void Lee_Rle(FIBITMAP* dib, const Cabecera& c, const uint8_t* d, size_t tamano) {
    const bool rle4 = c.compresion == kRle4;
    const auto pon = [&](int64_t x, int64_t fila, unsigned indice) {
        if (x < c.ancho && fila < c.alto) Linea(dib, c, fila)[x] = static_cast<BYTE>(indice);
    };
    const auto truncado = [] {
        Falla(QStringLiteral("El mapa de bits comprimido está truncado: falta su marca de fin"));
    };
    size_t p = c.pixeles;
    int64_t x = 0, fila = 0;
    for (;;) {
        if (p + 2 > tamano) truncado();
        const unsigned n = d[p], v = d[p + 1];
        p += 2;
        if (n > 0) {
            for (unsigned i = 0; i < n; ++i) pon(x + i, fila, rle4 ? (i % 2 ? v & 15 : v >> 4) : v);
            x += n;
        } else if (v == 0) {
            x = 0;
            ++fila;
        } else if (v == 1) {
            return;
        } else if (v == 2) {
            if (p + 2 > tamano) truncado();
            x += d[p];
            fila += d[p + 1];
            p += 2;
        } else {
            const size_t bytes = rle4 ? (v + 1) / 2 : v;
            if (p + bytes > tamano) truncado();
            for (unsigned i = 0; i < v; ++i)
                pon(x + i, fila, rle4 ? (d[p + i / 2] >> (i % 2 ? 0 : 4)) & 15 : d[p + i]);
            x += v;
            p += (bytes + 1) & ~size_t(1);
        }
    }
}

void Lee_Color(FIBITMAP* dib, const Cabecera& c, const uint8_t* d) {
    const Canal rojo(c.mascaras[0]), verde(c.mascaras[1]), azul(c.mascaras[2]);
    for (int64_t f = 0; f < c.alto; ++f) {
        const uint8_t* origen = d + c.pixeles + f * c.paso;
        BYTE* destino = Linea(dib, c, f);
        if (c.bits == 24) {
            std::memcpy(destino, origen, static_cast<size_t>(c.ancho) * 3);
            continue;
        }
        for (int64_t x = 0; x < c.ancho; ++x, destino += 3) {
            const uint32_t pixel = c.bits == 16 ? Lee16(origen + 2 * x) : Lee32(origen + 4 * x);
            destino[FI_RGBA_RED] = rojo(pixel);
            destino[FI_RGBA_GREEN] = verde(pixel);
            destino[FI_RGBA_BLUE] = azul(pixel);
        }
    }
}

}  // namespace

FIBITMAP* Decodifica_Bmp(const uint8_t* datos, size_t tamano) {
    const Cabecera c = Lee_Cabecera(datos, tamano);
    if (c.bits > 8) {
        Bitmap dib = Reserva(c, 24);
        Lee_Color(dib.get(), c, datos);
        return dib.release();
    }
    Bitmap dib = Reserva(c, 8);
    Copia_Paleta(dib.get(), c, datos);
    if (c.compresion == kRgb)
        Lee_Indices(dib.get(), c, datos);
    else
        Lee_Rle(dib.get(), c, datos, tamano);
    return dib.release();
}
