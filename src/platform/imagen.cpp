// A sheet's bitmap: the file read whole (regular files only), decoded by our own reader into a
// FreeImage bitmap, and written back with FreeImage for the sheet generator.
#include "platform/imagen.h"

#include <FreeImage.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <utility>

#include "platform/error_ejecucion.h"
#include "platform/lector_bmp.h"

namespace {

constexpr qint64 kTamanoMaximo = qint64(1) << 30;  // 200 million pixels of 32 bits, and more

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

// The bytes of a regular file. A folder, a pipe or a device is refused before anything is read
// from it, so that a pipe named like a sheet never blocks the reading.
QByteArray Lee_Archivo(const QString& ruta) {
    if (!QFileInfo::exists(ruta)) Falla(QStringLiteral("El archivo no existe"));
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) Falla(QStringLiteral("El archivo no se puede leer"));
    QFile f;
    if (!f.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        Falla(QStringLiteral("El archivo no se puede leer"));
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        Falla(
            QStringLiteral("No es un archivo común: es una carpeta, una tubería o un dispositivo"));
    if (st.st_size > kTamanoMaximo)
        Falla(QStringLiteral("El archivo de %1 bytes es demasiado grande para ser una hoja")
                  .arg(qint64(st.st_size)));
    QByteArray datos = f.read(st.st_size);
    if (f.error() != QFileDevice::NoError) Falla(QStringLiteral("El archivo no se puede leer"));
    return datos;
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
    return Desde_Bytes(Lee_Archivo(ruta));
}

Imagen Imagen::Desde_Bytes(const QByteArray& datos) {
    Inicia_FreeImage();
    return Imagen(Decodifica_Bmp(reinterpret_cast<const uint8_t*>(datos.constData()),
                                 static_cast<size_t>(datos.size())));
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
