// Page registration on the image: integer pixels, and the worksheet's arithmetic with its
// roundings (BETA and ALFA to 5 decimals, A to 4, ALFA and A read back as whole numbers).
#include "reading/registro_pagina.h"

#include <cmath>
#include <cstdlib>
#include <numbers>

#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "reading/tabla_hoja.h"

void Muestra_Error_Lectura(HojaEnLectura& hoja) {
    dialogos().MsgBox(QStringLiteral("Ha ocurrido un error en esta lectura, favor anote el Alumno "
                                     "y vuelva a corregir"),
                      vbOKOnly, QStringLiteral("Correcto ZORTA"));
    hoja.Error_Lectura = true;
}

namespace {

// Dark pixels of row y from x to x + n - 1.
int Cuenta_Fila(const HojaEnLectura& hoja, int x, int y, int n) {
    int c = 0;
    for (int i = 0; i < n; ++i) c += hoja.oscuro_sin_prueba(x + i, y);
    return c;
}

// Dark pixels of column x from y to y + n - 1.
int Cuenta_Columna(const HojaEnLectura& hoja, int x, int y, int n) {
    int c = 0;
    for (int i = 0; i < n; ++i) c += hoja.oscuro_sin_prueba(x, y + i);
    return c;
}

bool Fuera(int x, int y) {
    return x < -25 || y < -25;
}

// Walks from the first dark pixel to the mark's corner: left along the row below until it is
// dark for 21 pixels, then up until a column is dark for 9 of 11. False when it walks off.
bool Esquina_Izquierda(HojaEnLectura& hoja, Marcas& m) {
    int x = m.X;
    const int y = m.Y;
    for (;;) {
        const int c = Cuenta_Fila(hoja, x, y + 1, 21);
        if (c == 21) break;
        if (c == 0) return true;  // a speck: the first pixel stands as the mark
        if (Fuera(x, y)) return false;
        --x;
    }
    int yc = m.Y, mejor = 0;
    for (;;) {
        const int c = Cuenta_Columna(hoja, x, yc, 11);
        if (c >= 9) {
            m.X = static_cast<int16_t>(x);
            return true;
        }
        if (Fuera(x, yc)) return false;
        if (c > mejor)
            mejor = c;
        else
            ++x;
        --yc;
    }
}

// The right mark: first dark pixel within 25 rows of the left mark from x 850 to 1200, then
// left and down until the row below is dark for 20 of 21. False on a fail (message shown).
bool Marca_Derecha(HojaEnLectura& hoja, Marcas& m) {
    int x = 0, y = 0;
    bool hallado = false;
    for (int yy = m.Y - 25; yy <= m.Y + 25 && !hallado; ++yy) {
        for (int xx = 850; xx <= 1200; ++xx) {
            const int r = hoja.imagen.rojo(xx, yy);
            if (r < 0) break;  // no colour ends the line
            if (r <= hoja.Nivel_Gris) {
                x = xx, y = yy, hallado = true;
                break;
            }
        }
    }
    if (!hallado) return true;
    int yp = y, mejor = 0;
    for (;;) {
        const int c = Cuenta_Fila(hoja, x, yp + 1, 21);
        if (c >= 20) {
            m.X1 = static_cast<int16_t>(x);
            m.Y1 = static_cast<int16_t>(y);
            return true;
        }
        if (x < -25) {
            Muestra_Error_Lectura(hoja);
            return false;
        }
        if (c <= mejor) {
            mejor = c;
            ++yp;
            if (yp + 1 > 2000) {
                hoja.Error_Lectura = true;  // no message here
                return false;
            }
        } else {
            --x;
            mejor = c;
        }
    }
}

}  // namespace

Marcas Version_Nueva_Lectura_Cuadros(HojaEnLectura& hoja, int V_Ini_X, int V_Ini_X1, int V_Ini_Y,
                                     int V_Ini_Y1, int Cuadro_Busqueda, int Ultimo_Cuadro) {
    hoja.Error_Lectura = false;
    Marcas m;
    const bool cerca = Cuadro_Busqueda == 1;
    const int mg = cerca ? 60 : 0, l = cerca ? 20 : 0, r = cerca ? 30 : 0;
    const int e = cerca && hoja.Primer_Y < 15 ? 25 : 0;
    bool hallado = false;
    for (int y = V_Ini_Y - mg - e; y <= V_Ini_Y1 + mg + e && !hallado; ++y) {
        for (int x = V_Ini_X - l; x <= V_Ini_X1 + r; ++x) {
            if (hoja.oscuro(x, y)) {
                m.X = static_cast<int16_t>(x), m.Y = static_cast<int16_t>(y), hallado = true;
                break;
            }
        }
    }
    if (!hallado || Ultimo_Cuadro == 99) return m;
    if (!Esquina_Izquierda(hoja, m)) {
        Muestra_Error_Lectura(hoja);
        return m;
    }
    Marca_Derecha(hoja, m);
    return m;
}

bool Verifico_Nuevo_Formato_Guia_Medial(const HojaEnLectura& hoja, int Inicial_CGX,
                                        int Inicial_CGY) {
    bool guia = false;
    for (int y = Inicial_CGY; y <= Inicial_CGY + 70; ++y)
        for (int x = Inicial_CGX; x <= Inicial_CGX + 150; ++x)
            if (hoja.oscuro_sin_prueba(x, y) && Cuenta_Fila(hoja, x, y + 1, 21) >= 15) guia = true;
    return guia;
}

void Verifica_Diferencia_Cuadros_Derecha(int16_t& Cuadro_1_Sup_Der, int16_t& Cuadro_2_Sup_Der,
                                         int16_t& Cuadro_3_Sup_Der) {
    int16_t& a = Cuadro_1_Sup_Der;
    int16_t& b = Cuadro_2_Sup_Der;
    int16_t& c = Cuadro_3_Sup_Der;
    const bool d1 = std::abs(a - b) >= 20, d2 = std::abs(b - c) >= 20, d3 = std::abs(a - c) >= 20;
    const auto media = [](int u, int v) { return CInt((u + v) / 2.0); };
    if (d1 && !d2)
        a = media(b, c);
    else if (d1 && d2 && !d3)
        b = media(a, c);
    else if (!d1 && d2 && d3)
        c = media(a, b);
    else if (!d1 && d2 && !d3)
        a = media(b, c);
}

namespace {

// A difference or sum of the worksheet, as a 16-bit integer.
int16_t I16(int v) {
    return CInt(static_cast<double>(v));
}

double Radianes(double grados) {
    return grados * (2 * 3.14159) / 360;
}

}  // namespace

Mapeo busca_Valores_Parametro(int16_t X, int16_t Y, int16_t X1, int16_t Y1, int Cuadro_Para_Leer,
                              int Posicion_X_Normal, int Posicion_Y_Normal,
                              int Fila_Lectura_Valores) {
    const int fila = Fila_Lectura_Valores + Cuadro_Para_Leer - 1;
    const int16_t Xb = I16(Spr_290(fila, 9)), Yb = I16(Spr_290(fila, 10));
    const int16_t X1b = I16(Spr_290(fila, 12)), Y1b = I16(Spr_290(fila, 13));
    const int16_t dXb = I16(X1b - Xb), dYb = I16(Y1b - Yb);
    const int16_t dXr = I16(X1 - X), dYr = I16(Y1 - Y);
    const int16_t p = I16(dXb - dXr), q = I16(dYb - dYr);

    Mapeo m;
    const double coseno = 1 - (double(p) * p + double(-q) * -q) / (2 * (double(dXb) * dXb));
    m.BETA = Round(std::acos(coseno) * 180 / std::numbers::pi, 5);
    m.ALFA = CInt(Round((180 - m.BETA) / 2, 5));
    const double beta = Radianes(m.BETA), alfa = Radianes(m.ALFA);
    const int16_t L = I16(Posicion_X_Normal - Xb), h = I16(Posicion_Y_Normal - Yb);
    const double cuerda = std::sqrt(2.0) * L * std::sqrt(1 - std::cos(beta));
    m.A = CInt(Round(L - cuerda * std::cos(alfa), 4));
    m.C = cuerda * std::sin(alfa);

    m.P1x = CInt(m.A + X);
    m.P1y = CInt(Y - m.C);
    m.X5 = CInt(std::sin(beta) * h + m.P1x);
    m.Y5 = CInt(std::cos(beta) * h + m.P1y);
    m.P2x = CInt(m.A + X);
    m.P2y = CInt(Y + m.C);
    m.X7 = CInt(m.P2x - std::sin(beta) * h);
    m.Y7 = CInt(std::cos(beta) * h + m.P2y);
    return m;
}
