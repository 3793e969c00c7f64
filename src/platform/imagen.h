// A sheet's bitmap in memory at 1:1, held in a FreeImage bitmap. (0,0) is the top-left
// pixel. The reading asks only the red byte of a pixel; `pixel` gives the whole colour.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

struct FIBITMAP;

class Imagen {
  public:
    Imagen() = default;
    ~Imagen();
    Imagen(Imagen&& otra) noexcept;
    Imagen& operator=(Imagen&& otra) noexcept;
    Imagen(const Imagen&) = delete;
    Imagen& operator=(const Imagen&) = delete;

    // Opens a BMP file (every header, depth and compression; see lector_bmp.h). A file that
    // can't be opened throws ErrorEjecucion with the reason in Spanish.
    static Imagen Abre(const QString& ruta);
    // The same from the file's bytes.
    static Imagen Desde_Bytes(const QByteArray& datos);
    // A white 24-bit image to paint on.
    static Imagen Blanca(int ancho, int alto);

    int ancho() const { return ancho_; }
    int alto() const { return alto_; }
    bool vacia() const { return dib_ == nullptr; }

    // The colour as 0x00BBGGRR (red in the low byte), or -1 outside the image.
    int32_t pixel(int x, int y) const;

    // The red byte, or -1 outside the image. The hot path of the reading.
    int rojo(int x, int y) const {
        if (static_cast<unsigned>(x) >= static_cast<unsigned>(ancho_) ||
            static_cast<unsigned>(y) >= static_cast<unsigned>(alto_))
            return -1;
        const uint8_t* fila = fila0_ - static_cast<std::ptrdiff_t>(y) * paso_;
        switch (bits_) {
            case 24:
                return fila[x * 3 + 2];
            case 32:
                return fila[x * 4 + 2];
            case 8:
                return rojo_paleta_[fila[x]];
            case 4:
                return rojo_paleta_[(fila[x >> 1] >> ((x & 1) ? 0 : 4)) & 15];
            default:
                return rojo_paleta_[(fila[x >> 3] >> (7 - (x & 7))) & 1];
        }
    }

    // Paints one pixel (24-bit images only; outside is ignored). For the sheet generator.
    void pinta(int x, int y, uint8_t r, uint8_t g, uint8_t b);
    // Writes the image as a BMP of 24 bits, or converted to 8 (gray), 4, 1 or 32 bits.
    void Guarda_Bmp(const QString& ruta, int bits = 24) const;

  private:
    explicit Imagen(FIBITMAP* dib);
    void Prepara();

    FIBITMAP* dib_ = nullptr;
    int ancho_ = 0;
    int alto_ = 0;
    int bits_ = 0;
    std::ptrdiff_t paso_ = 0;
    uint8_t* fila0_ = nullptr;  // the top row; rows go down in memory by paso_
    std::array<uint8_t, 256> rojo_paleta_{};
};
