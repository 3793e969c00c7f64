// Image access: BMP files of every depth, bottom-up and top-down, and files that can't be opened.
#include "platform/imagen.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <vector>

#include "platform/error_ejecucion.h"

namespace {

void Pon32(std::vector<uint8_t>& b, size_t i, uint32_t v) {
    for (int k = 0; k < 4; ++k) b[i + k] = static_cast<uint8_t>(v >> (8 * k));
}

// A 3 x 2 BMP whose top row is red, green, blue and bottom row black, gray 128, white; in the
// depth asked. Paletted depths index a palette of those six colours (1 bit: black and white).
std::vector<uint8_t> Bmp(int bits, bool de_arriba_abajo) {
    const uint32_t colores[6] = {0xFF0000, 0x00FF00, 0x0000FF, 0x000000, 0x808080, 0xFFFFFF};
    const int paleta = bits <= 8 ? (1 << bits) : 0;
    const int fila = (3 * bits + 31) / 32 * 4;
    const int inicio = 54 + paleta * 4;
    std::vector<uint8_t> b(inicio + fila * 2, 0);
    b[0] = 'B', b[1] = 'M';
    Pon32(b, 2, b.size());
    Pon32(b, 10, inicio);
    Pon32(b, 14, 40);
    Pon32(b, 18, 3);
    Pon32(b, 22, de_arriba_abajo ? static_cast<uint32_t>(-2) : 2);
    b[26] = 1, b[28] = static_cast<uint8_t>(bits);
    for (int i = 0; i < paleta && i < 6; ++i)
        Pon32(b, 54 + 4 * i, colores[bits == 1 ? 3 + 2 * i : i]);
    for (int y = 0; y < 2; ++y) {
        const int fila_archivo = de_arriba_abajo ? y : 1 - y;
        uint8_t* p = &b[inicio + fila_archivo * fila];
        for (int x = 0; x < 3; ++x) {
            const int i = y * 3 + x;
            const uint32_t c = colores[i];
            if (bits >= 24) {
                p[x * bits / 8] = c & 0xFF, p[x * bits / 8 + 1] = (c >> 8) & 0xFF,
                             p[x * bits / 8 + 2] = c >> 16;
            } else if (bits == 8) {
                p[x] = static_cast<uint8_t>(i);
            } else if (bits == 4) {
                p[x / 2] |= static_cast<uint8_t>(i << (x % 2 ? 0 : 4));
            } else if (i == 5 || i == 1) {  // 1 bit: green and white light, the rest dark
                p[0] |= static_cast<uint8_t>(0x80 >> x);
            }
        }
    }
    return b;
}

QString Escribe(const QTemporaryDir& dir, const QString& nombre, const std::vector<uint8_t>& b) {
    QFile f(dir.filePath(nombre));
    f.open(QIODevice::WriteOnly);
    f.write(reinterpret_cast<const char*>(b.data()), static_cast<qint64>(b.size()));
    return f.fileName();
}

}  // namespace

TEST(Imagen, ProfundidadesYOrdenDeFilas) {
    QTemporaryDir dir;
    for (const int bits : {4, 8, 24, 32})
        for (const bool arriba : {false, true}) {
            const Imagen im =
                Imagen::Abre(Escribe(dir, QStringLiteral("a.bmp"), Bmp(bits, arriba)));
            SCOPED_TRACE(bits);
            EXPECT_EQ(im.pixel(0, 0), 0x0000FF);  // red in the low byte
            EXPECT_EQ(im.pixel(1, 0), 0x00FF00);
            EXPECT_EQ(im.pixel(2, 0), 0xFF0000);
            EXPECT_EQ(im.pixel(1, 1), 0x808080);
            EXPECT_EQ(im.rojo(2, 1), 255);
            EXPECT_EQ(im.pixel(3, 0), -1);
            EXPECT_EQ(im.pixel(0, -1), -1);
            EXPECT_EQ(im.rojo(0, 2), -1);
        }
    const Imagen uno = Imagen::Abre(Escribe(dir, QStringLiteral("b.bmp"), Bmp(1, false)));
    EXPECT_EQ(uno.rojo(0, 0), 0);
    EXPECT_EQ(uno.rojo(1, 0), 255);
    EXPECT_EQ(uno.pixel(2, 1), 0xFFFFFF);
}

TEST(Imagen, ArchivosQueNoSeAbren) {
    QTemporaryDir dir;
    std::vector<uint8_t> truncado = Bmp(24, false);
    truncado.resize(truncado.size() - 5);
    std::vector<uint8_t> enorme = Bmp(24, false);
    Pon32(enorme, 18, 100000), Pon32(enorme, 22, 100000);
    const std::vector<uint8_t> png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13};
    const std::pair<std::vector<uint8_t>, const char*> casos[] = {
        {{}, "El archivo está vacío"},
        {truncado, "El mapa de bits está truncado: tiene 73 bytes y necesita 78"},
        {png, "El archivo no es un mapa de bits BMP"},
        {enorme,
         "La cabecera del mapa de bits declara un tamaño imposible: 100000 x 100000 píxeles"},
        {{'B', 'M', 0, 0}, "El mapa de bits está truncado: falta su cabecera"},
    };
    for (const auto& [bytes, motivo] : casos) {
        try {
            Imagen::Abre(Escribe(dir, QStringLiteral("malo.bmp"), bytes));
            ADD_FAILURE() << motivo;
        } catch (const ErrorEjecucion& e) {
            EXPECT_EQ(e.texto(), QString::fromUtf8(motivo));
        }
    }
    EXPECT_THROW(Imagen::Abre(dir.filePath(QStringLiteral("no_existe.bmp"))), ErrorEjecucion);
}

namespace {

// A bitmap with a header of `cabecera` bytes (12 is the oldest OS/2 one), the palette given,
// optional colour masks after a 40-byte header, and `pixeles` as stored.
std::vector<uint8_t> Bmp_Con(uint32_t cabecera, int ancho, int alto, int bits, uint32_t compresion,
                             const std::vector<uint32_t>& paleta,
                             const std::vector<uint8_t>& pixeles,
                             const std::vector<uint32_t>& mascaras = {}) {
    const size_t color = cabecera == 12 ? 3 : 4;
    const size_t inicio = 14 + cabecera + 4 * mascaras.size() + color * paleta.size();
    std::vector<uint8_t> b(inicio, 0);
    b[0] = 'B', b[1] = 'M';
    Pon32(b, 10, static_cast<uint32_t>(inicio));
    Pon32(b, 14, cabecera);
    if (cabecera == 12) {
        b[18] = static_cast<uint8_t>(ancho), b[20] = static_cast<uint8_t>(alto), b[22] = 1;
        b[24] = static_cast<uint8_t>(bits);
    } else {
        Pon32(b, 18, ancho), Pon32(b, 22, static_cast<uint32_t>(alto));
        b[26] = 1, b[28] = static_cast<uint8_t>(bits);
        Pon32(b, 30, compresion);
        Pon32(b, 46, static_cast<uint32_t>(paleta.size()));
    }
    size_t i = 14 + cabecera;
    for (const uint32_t m : mascaras) Pon32(b, i, m), i += 4;
    for (const uint32_t c : paleta) {
        b[i] = c & 0xFF, b[i + 1] = (c >> 8) & 0xFF, b[i + 2] = (c >> 16) & 0xFF;
        i += color;
    }
    b.insert(b.end(), pixeles.begin(), pixeles.end());
    Pon32(b, 2, static_cast<uint32_t>(b.size()));
    return b;
}

}  // namespace

// Valid bitmaps as converters and scanners write them: the pixels read are the file's.
TEST(Imagen, EveryValidVariantOpens) {
    QTemporaryDir dir;
    const uint32_t bn[] = {0x000000, 0xFFFFFF};
    const std::vector<uint32_t> negro_blanco(bn, bn + 2);
    const std::vector<uint8_t> rojo_blanco = {0, 0, 255, 255, 255, 255, 0, 0};  // BGR, padded
    struct Caso {
        const char* nombre;
        std::vector<uint8_t> bytes;
        std::vector<std::pair<std::pair<int, int>, int32_t>> pixeles;  // (x, y) -> colour
    };
    const Caso casos[] = {
        {"24 bits, cabecera de 108",
         Bmp_Con(108, 2, 1, 24, 0, {}, rojo_blanco),
         {{{0, 0}, 0x0000FF}, {{1, 0}, 0xFFFFFF}}},
        {"24 bits, cabecera de 124",
         Bmp_Con(124, 2, 1, 24, 0, {}, rojo_blanco),
         {{{0, 0}, 0x0000FF}, {{1, 0}, 0xFFFFFF}}},
        // Bottom row: three white; top row: black, white, black; end of line before the end.
        {"RLE8 con fin de línea antes del fin",
         Bmp_Con(40, 3, 2, 8, 1, negro_blanco, {3, 1, 0, 0, 0, 3, 0, 1, 0, 0, 0, 0, 0, 1}),
         {{{0, 0}, 0}, {{1, 0}, 0xFFFFFF}, {{2, 0}, 0}, {{0, 1}, 0xFFFFFF}, {{2, 1}, 0xFFFFFF}}},
        {"RLE4",
         Bmp_Con(40, 4, 1, 4, 2, negro_blanco, {4, 0x01, 0, 0, 0, 1}),
         {{{0, 0}, 0}, {{1, 0}, 0xFFFFFF}, {{3, 0}, 0xFFFFFF}}},
        // Red 16 of 31 is 131 of 255; blue 31 of 31 is 255.
        {"16 bits 565 con máscaras",
         Bmp_Con(40, 1, 1, 16, 3, {}, {0x1F, 0x80, 0, 0}, {0xF800, 0x07E0, 0x001F}),
         {{{0, 0}, 131 | 0xFF0000}}},
        {"16 bits 555", Bmp_Con(40, 1, 1, 16, 0, {}, {0x00, 0x40, 0, 0}), {{{0, 0}, 131}}},
        {"cabecera OS/2 de 12",
         Bmp_Con(12, 2, 1, 8, 0, negro_blanco, {1, 0, 0, 0}),
         {{{0, 0}, 0xFFFFFF}, {{1, 0}, 0}}},
        {"2 bits",
         Bmp_Con(40, 2, 1, 2, 0, {0, 0x808080, 0xFFFFFF, 0}, {0x60, 0, 0, 0}),
         {{{0, 0}, 0x808080}, {{1, 0}, 0xFFFFFF}}},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        try {
            const Imagen im = Imagen::Abre(Escribe(dir, QStringLiteral("v.bmp"), caso.bytes));
            for (const auto& [xy, color] : caso.pixeles)
                EXPECT_EQ(im.pixel(xy.first, xy.second), color) << xy.first << "," << xy.second;
        } catch (const ErrorEjecucion& e) {
            ADD_FAILURE() << e.texto().toStdString();
        }
    }
    // A compressed bitmap without its end mark is cut short.
    try {
        Imagen::Abre(Escribe(dir, QStringLiteral("r.bmp"),
                             Bmp_Con(40, 4, 1, 8, 1, negro_blanco, {4, 1, 0, 0})));
        ADD_FAILURE() << "opened";
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.texto(), "El mapa de bits comprimido está truncado: falta su marca de fin");
    }
}
