// The sheet generator. Every element is placed in the coordinates of the reference sheet of
// distance 852, scaled to the distance asked, then turned and moved; each pixel of an element's
// box is mapped back to test whether the element covers it.
#include "reading/generador_hoja.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <random>

#include "reading/tabla_hoja.h"

namespace {

constexpr double kOrigenX = 59, kOrigenY = 77;  // top-left of the first left mark
constexpr double kLadoMarca = 26;
constexpr double kRadioBurbuja = 9;
constexpr double kRadioGrande = 13;
constexpr int kFondo = 245;

// Reference positions of the printed sheet (distance 852).
constexpr int kFormaX[] = {557, 586, 615, 643};
constexpr int kFormaY = 201;
constexpr int kFilasMarcasY[] = {77, 578, 1036, 1497};
constexpr int kRutX[] = {96, 125, 183, 212, 240, 298, 327, 355, 413};
constexpr int kDigitoY[] = {200, 229, 258, 287, 316, 345, 373, 402, 431, 460, 488};
constexpr int kAlternativaX[] = {96,  125, 154, 183, 212, 269, 298, 326, 355, 384, 442, 470, 499,
                                 528, 557, 614, 643, 672, 701, 729, 787, 816, 845, 874, 902};
constexpr int kPreguntaY[] = {673,  702,  730,  759,  788,  846,  874,  903,  932,  961,
                              1134, 1162, 1191, 1220, 1249, 1306, 1335, 1364, 1393, 1422};

struct Color {
    uint8_t r, g, b;
};
constexpr Color kNegro{25, 25, 25};
constexpr Color kTintaRoja{235, 120, 120};

class Lienzo {
  public:
    Lienzo(const DisenoHoja& d)
        : d_(d),
          escala_(d.distancia / 852.0),
          cos_(std::cos(d.rotacion * std::numbers::pi / 180)),
          sin_(std::sin(d.rotacion * std::numbers::pi / 180)),
          imagen_(Imagen::Blanca(d.distancia + 200,
                                 static_cast<int>(kOrigenY + 1500 * escala_ + 140))) {}

    // A point of the reference sheet in the scaled, unturned sheet.
    double X(double x) const { return kOrigenX + (x - kOrigenX) * escala_; }
    double Y(double y) const { return kOrigenY + (y - kOrigenY) * escala_; }

    // Paints every pixel whose place on the unturned sheet satisfies `cubre`, within the box
    // (x0, y0)-(x1, y1) of the unturned sheet.
    void Pinta(double x0, double y0, double x1, double y1, Color c,
               const std::function<bool(double, double)>& cubre) {
        double minx = 1e9, miny = 1e9, maxx = -1e9, maxy = -1e9;
        for (const double x : {x0, x1})
            for (const double y : {y0, y1}) {
                const auto [u, v] = Gira(x, y);
                minx = std::min(minx, u), maxx = std::max(maxx, u);
                miny = std::min(miny, v), maxy = std::max(maxy, v);
            }
        for (int y = static_cast<int>(std::floor(miny)) - 1; y <= maxy + 1; ++y)
            for (int x = static_cast<int>(std::floor(minx)) - 1; x <= maxx + 1; ++x) {
                const auto [u, v] = Desgira(x, y);
                if (cubre(u, v)) imagen_.pinta(x, y, c.r, c.g, c.b);
            }
    }
    void Cuadro(double x, double y, double ancho, double alto, Color c) {
        Pinta(x, y, x + ancho, y + alto, c, [=](double u, double v) {
            return u >= x && u < x + ancho && v >= y && v < y + alto;
        });
    }
    void Circulo(double cx, double cy, double r, Color c, double grueso = 0) {
        Pinta(cx - r, cy - r, cx + r, cy + r, c, [=](double u, double v) {
            const double dist = std::hypot(u - cx, v - cy);
            return dist < r && (grueso == 0 || dist >= r - grueso);
        });
    }
    Imagen& imagen() { return imagen_; }

  private:
    std::pair<double, double> Gira(double x, double y) const {
        const double u = x - kOrigenX, v = y - kOrigenY;
        return {kOrigenX + d_.dx + u * cos_ - v * sin_, kOrigenY + d_.dy + u * sin_ + v * cos_};
    }
    std::pair<double, double> Desgira(double x, double y) const {
        const double u = x - kOrigenX - d_.dx, v = y - kOrigenY - d_.dy;
        return {kOrigenX + u * cos_ + v * sin_, kOrigenY - u * sin_ + v * cos_};
    }
    const DisenoHoja& d_;
    double escala_, cos_, sin_;
    Imagen imagen_;
};

void Fondo(Imagen& im, int ruido, std::mt19937& azar) {
    std::uniform_int_distribution<int> delta(-ruido, ruido);
    for (int y = 0; y < im.alto(); ++y)
        for (int x = 0; x < im.ancho(); ++x) {
            const auto v = [&] {
                return static_cast<uint8_t>(std::clamp(kFondo + delta(azar), 0, 255));
            };
            im.pinta(x, y, v(), v(), v());
        }
}

// Marks, the medial guide of a large-mark sheet, and the printed texts and bubbles.
void Impreso(Lienzo& l, const DisenoHoja& d) {
    for (int f = 0; f < std::min(d.filas_marcas, 4); ++f) {
        const double y = l.Y(kFilasMarcasY[f]);
        l.Cuadro(kOrigenX, y, kLadoMarca, kLadoMarca, kNegro);
        if (f < 3) l.Cuadro(kOrigenX + d.distancia, y, kLadoMarca, kLadoMarca, kNegro);
    }
    if (d.marcas_grandes) l.Cuadro(l.X(330), l.Y(64), 100, 10, kNegro);
    for (int i = 0; i < 6; ++i)
        l.Cuadro(l.X(200), l.Y(100 + 14 * i), 500 * d.distancia / 852.0, 6, kTintaRoja);
    for (const int x : kFormaX) l.Circulo(l.X(x + 1), l.Y(kFormaY), kRadioBurbuja, kTintaRoja, 1.5);
    for (const int x : kRutX)
        for (const int y : kDigitoY) l.Circulo(l.X(x + 1), l.Y(y), kRadioBurbuja, kTintaRoja, 1.5);
    if (d.marcas_grandes) return;
    for (const int x : kAlternativaX)
        for (const int y : kPreguntaY)
            l.Circulo(l.X(x + 1), l.Y(y), kRadioBurbuja, kTintaRoja, 1.5);
}

// Centre of an alternative's bubble on the unturned sheet. Large marks stand at fixed pixel
// offsets from the second left mark, 14 to the left of the table's x.
std::pair<double, double> Centro_Respuesta(const Lienzo& l, const DisenoHoja& d, int q, int k) {
    if (d.marcas_grandes) {
        const int fila = kFilaMarcasGrandes + q;
        const int base_y = Spr_290(Fnc_Posicion_Lectura(d.distancia) + 1, 10);
        return {kOrigenX + Spr_290(fila, 1 + 2 * k) - 59 - 14,
                l.Y(kFilasMarcasY[1]) + Spr_290(fila, 2 + 2 * k) - base_y};
    }
    const PosicionPregunta p = Posicion_Pregunta(q);
    return {l.X(kAlternativaX[p.primera_x + k - 1] + 1), l.Y(kPreguntaY[p.fila_y])};
}

void Rellenos(Lienzo& l, const DisenoHoja& d) {
    for (const int f : d.formas) l.Circulo(l.X(kFormaX[f - 1] + 1), l.Y(kFormaY), 7.5, kNegro);
    std::vector<std::pair<int, int>> rut = d.rut_extra;
    for (int i = 0; i < std::min<int>(d.rut.size(), 9); ++i) {
        const QChar c = d.rut[i];
        if (c.isDigit()) rut.emplace_back(i, c.digitValue());
        if (c.toUpper() == QLatin1Char('K')) rut.emplace_back(i, 10);
    }
    for (const auto& [i, j] : rut) l.Circulo(l.X(kRutX[i] + 1), l.Y(kDigitoY[j]), 7.5, kNegro);
    for (const RellenoRespuesta& r : d.respuestas) {
        const auto [cx, cy] = Centro_Respuesta(l, d, r.pregunta, r.alternativa);
        const auto o = static_cast<uint8_t>(std::clamp(r.oscuridad, 0, 255));
        l.Circulo(cx, cy, d.marcas_grandes ? std::max(r.radio, kRadioGrande) : r.radio, {o, o, o});
    }
}

void Manchas(Imagen& im, int cuantas, std::mt19937& azar) {
    std::uniform_int_distribution<int> x(0, im.ancho() - 1), y(0, im.alto() - 1), lado(1, 3);
    for (int i = 0; i < cuantas; ++i) {
        const int x0 = x(azar), y0 = y(azar), n = lado(azar);
        for (int v = 0; v < n; ++v)
            for (int u = 0; u < n; ++u) im.pinta(x0 + u, y0 + v, 20, 20, 20);
    }
}

}  // namespace

Imagen Dibuja_Hoja(const DisenoHoja& diseno) {
    std::mt19937 azar(diseno.semilla);
    Lienzo lienzo(diseno);
    if (diseno.ruido > 0) Fondo(lienzo.imagen(), diseno.ruido, azar);
    Impreso(lienzo, diseno);
    Rellenos(lienzo, diseno);
    Manchas(lienzo.imagen(), diseno.manchas, azar);
    for (const auto& [x, y] : diseno.manchas_en) lienzo.imagen().pinta(x, y, 20, 20, 20);
    return std::move(lienzo.imagen());
}
