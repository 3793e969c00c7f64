// Opening a bitmap with FreeImage. The header is checked first, so a bad file gives a reason
// in Spanish instead of reaching the loader.
#include "platform/imagen.h"

#include <FreeImage.h>

#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <utility>

#include "platform/error_ejecucion.h"

namespace {

constexpr int64_t kLadoMaximo = 30000;
constexpr int64_t kPixelesMaximos = 200'000'000;

void Sin_Mensajes(FREE_IMAGE_FORMAT, const char*) {}

void Inicia_FreeImage() {
    static const bool listo = [] {
        FreeImage_SetOutputMessage(Sin_Mensajes);
        return true;
    }();
    (void)listo;
}

[[noreturn]] void Falla(const QString& motivo) {
    throw ErrorEjecucion(motivo);
}

uint32_t Lee32(const unsigned char* p) {
    return p[0] | (p[1] << 8) | (p[2] << 16) | (static_cast<uint32_t>(p[3]) << 24);
}
uint16_t Lee16(const unsigned char* p) {
    return static_cast<uint16_t>(p[0] | (p[1] << 8));
}

// Checks the file and header of a BMP so that the loader only ever sees a sound file.
void Verifica_Bmp(const QString& ruta) {
    QFile f(ruta);
    if (!QFileInfo::exists(ruta)) Falla(QStringLiteral("El archivo no existe"));
    if (!f.open(QIODevice::ReadOnly)) Falla(QStringLiteral("El archivo no se puede leer"));
    const int64_t tamano = f.size();
    if (tamano == 0) Falla(QStringLiteral("El archivo está vacío"));
    unsigned char c[30] = {};
    const int64_t leidos = f.read(reinterpret_cast<char*>(c), sizeof c);
    if (leidos < 2 || c[0] != 'B' || c[1] != 'M')
        Falla(QStringLiteral("El archivo no es un mapa de bits BMP"));
    if (leidos < 26) Falla(QStringLiteral("El mapa de bits está truncado: falta su cabecera"));
    const uint32_t inicio = Lee32(c + 10);
    const uint32_t cabecera = Lee32(c + 14);
    int64_t ancho = 0, alto = 0;
    int bits = 0;
    uint32_t compresion = 0;
    if (cabecera == 12) {
        ancho = Lee16(c + 18);
        alto = Lee16(c + 20);
        bits = Lee16(c + 24);
    } else if (cabecera >= 40 && cabecera <= 124 && leidos >= 30) {
        ancho = static_cast<int32_t>(Lee32(c + 18));
        alto = static_cast<int32_t>(Lee32(c + 22));
        bits = Lee16(c + 28);
        unsigned char d[4] = {};
        f.read(reinterpret_cast<char*>(d), 4);
        compresion = Lee32(d);
    } else {
        Falla(QStringLiteral("La cabecera del mapa de bits no es válida"));
    }
    if (alto < 0) alto = -alto;  // top-down
    if (ancho <= 0 || alto <= 0 || ancho > kLadoMaximo || alto > kLadoMaximo ||
        ancho * alto > kPixelesMaximos)
        Falla(QStringLiteral("La cabecera del mapa de bits declara un tamaño imposible: %1 x %2 "
                             "píxeles")
                  .arg(ancho)
                  .arg(alto));
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        Falla(
            QStringLiteral("El mapa de bits tiene %1 bits por píxel, que no se admiten").arg(bits));
    const bool sin_comprimir = compresion == 0 || compresion == 3;
    const int64_t necesarios =
        sin_comprimir ? inicio + (ancho * bits + 31) / 32 * 4 * alto : inicio;
    if (tamano < necesarios)
        Falla(QStringLiteral("El mapa de bits está truncado: tiene %1 bytes y necesita %2")
                  .arg(tamano)
                  .arg(necesarios));
}

}  // namespace

Imagen::Imagen(FIBITMAP* dib) : dib_(dib) {
    Prepara();
}

Imagen::~Imagen() {
    if (dib_) FreeImage_Unload(dib_);
}

Imagen::Imagen(Imagen&& otra) noexcept {
    *this = std::move(otra);
}

Imagen& Imagen::operator=(Imagen&& otra) noexcept {
    if (this != &otra) {
        if (dib_) FreeImage_Unload(dib_);
        dib_ = std::exchange(otra.dib_, nullptr);
        ancho_ = std::exchange(otra.ancho_, 0);
        alto_ = std::exchange(otra.alto_, 0);
        bits_ = otra.bits_;
        paso_ = otra.paso_;
        fila0_ = std::exchange(otra.fila0_, nullptr);
        rojo_paleta_ = otra.rojo_paleta_;
    }
    return *this;
}

Imagen Imagen::Abre(const QString& ruta) {
    Inicia_FreeImage();
    Verifica_Bmp(ruta);
    FIBITMAP* dib = FreeImage_Load(FIF_BMP, QFile::encodeName(ruta).constData(), 0);
    if (!dib) Falla(QStringLiteral("FreeImage no pudo abrir el mapa de bits"));
    const unsigned bits = FreeImage_GetBPP(dib);
    if (FreeImage_GetImageType(dib) != FIT_BITMAP || bits == 16) {
        FIBITMAP* de24 = FreeImage_ConvertTo24Bits(dib);
        FreeImage_Unload(dib);
        if (!de24) Falla(QStringLiteral("FreeImage no pudo convertir el mapa de bits"));
        dib = de24;
    }
    return Imagen(dib);
}

Imagen Imagen::Blanca(int ancho, int alto) {
    Inicia_FreeImage();
    FIBITMAP* dib = FreeImage_Allocate(ancho, alto, 24);
    if (!dib)
        Falla(QStringLiteral("No hay memoria para una imagen de %1 x %2").arg(ancho).arg(alto));
    std::memset(FreeImage_GetBits(dib), 255, FreeImage_GetPitch(dib) * alto);
    return Imagen(dib);
}

void Imagen::Prepara() {
    ancho_ = static_cast<int>(FreeImage_GetWidth(dib_));
    alto_ = static_cast<int>(FreeImage_GetHeight(dib_));
    bits_ = static_cast<int>(FreeImage_GetBPP(dib_));
    paso_ = FreeImage_GetPitch(dib_);
    // FreeImage keeps rows bottom-up: the top row is the last one in memory.
    fila0_ = FreeImage_GetBits(dib_) + (alto_ - 1) * paso_;
    const RGBQUAD* paleta = FreeImage_GetPalette(dib_);
    const unsigned colores = FreeImage_GetColorsUsed(dib_);
    for (unsigned i = 0; paleta && i < colores && i < 256; ++i) rojo_paleta_[i] = paleta[i].rgbRed;
}

int32_t Imagen::pixel(int x, int y) const {
    const int r = rojo(x, y);
    if (r < 0) return -1;
    const uint8_t* fila = fila0_ - static_cast<std::ptrdiff_t>(y) * paso_;
    if (bits_ >= 24) {
        const uint8_t* p = fila + x * (bits_ / 8);
        return p[FI_RGBA_RED] | (p[FI_RGBA_GREEN] << 8) | (p[FI_RGBA_BLUE] << 16);
    }
    BYTE indice = 0;
    FreeImage_GetPixelIndex(dib_, x, alto_ - 1 - y, &indice);
    const RGBQUAD& c = FreeImage_GetPalette(dib_)[indice];
    return c.rgbRed | (c.rgbGreen << 8) | (c.rgbBlue << 16);
}

void Imagen::pinta(int x, int y, uint8_t r, uint8_t g, uint8_t b) {
    if (bits_ != 24 || x < 0 || y < 0 || x >= ancho_ || y >= alto_) return;
    uint8_t* p = fila0_ - static_cast<std::ptrdiff_t>(y) * paso_ + x * 3;
    p[FI_RGBA_RED] = r;
    p[FI_RGBA_GREEN] = g;
    p[FI_RGBA_BLUE] = b;
}

void Imagen::Guarda_Bmp(const QString& ruta, int bits) const {
    FIBITMAP* salida = dib_;
    if (bits == 8) salida = FreeImage_ConvertTo8Bits(dib_);
    if (bits == 4) salida = FreeImage_ConvertTo4Bits(dib_);
    if (bits == 1) salida = FreeImage_Threshold(dib_, 128);
    if (bits == 32) salida = FreeImage_ConvertTo32Bits(dib_);
    const bool ok =
        salida && FreeImage_Save(FIF_BMP, salida, QFile::encodeName(ruta).constData(), 0);
    if (salida != dib_ && salida) FreeImage_Unload(salida);
    if (!ok) Falla(QStringLiteral("No se pudo escribir el mapa de bits %1").arg(ruta));
}
