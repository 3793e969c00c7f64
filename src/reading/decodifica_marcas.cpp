// Mark sampling and decoding: counts of dark samples around each mapped template point.
#include "reading/decodifica_marcas.h"

#include <algorithm>

#include "reading/registro_pagina.h"
#include "reading/tabla_hoja.h"

namespace {

// The sample pattern, in order. The last line repeats the second as it stands: the points
// above the centre are never sampled and the four below count twice.
constexpr std::array<std::array<int, 2>, 38> kMuestras = {{
    {0, 0},   {2, 0},   {3, 0},   {4, 0},   {5, 0},  {6, 0},  {0, 2},  {0, 3},  {0, 4},  {0, 1},
    {-2, -2}, {-3, -3}, {-4, -4}, {-1, -1}, {1, -1}, {2, -2}, {3, -3}, {4, -4}, {5, -5}, {6, -6},
    {-2, 2},  {-3, 3},  {-4, 4},  {-1, 1},  {1, 1},  {2, 2},  {3, 3},  {4, 4},  {5, 5},  {6, 6},
    {-2, 0},  {-3, 0},  {-4, 0},  {-1, 0},  {0, 2},  {0, 3},  {0, 4},  {0, 1},
}};

// The nine pixels of a form mark; no colour is tested like any other read.
constexpr std::array<std::array<int, 2>, 9> kMuestrasForma = {{
    {0, 0},
    {2, 0},
    {3, 0},
    {4, 0},
    {5, 0},
    {6, 0},
    {0, 2},
    {0, 3},
    {0, 4},
}};

constexpr int kMarca = 15;
constexpr int kFuerte = 25;

// The point of a mapping the readers take: column 5 when Y1 <= Y, column 7 otherwise.
std::array<int, 2> Par(const Mapeo& p, int columna) {
    return columna == 5 ? std::array<int, 2>{p.X5, p.Y5} : std::array<int, 2>{p.X7, p.Y7};
}
int Columna_Por_Inclinacion(const Marcas& m) {
    return m.Y1 <= m.Y ? 5 : 7;
}

// Start row of the block of the marks' distance; 0 shows the reading error.
int Fila_Inicio(HojaEnLectura& hoja, const Marcas& m) {
    const int inicio = Fnc_Posicion_Lectura(m.distancia());
    if (inicio == 0) Muestra_Error_Lectura(hoja);
    return inicio;
}

std::array<int, 2> Punto(const Marcas& m, int cuadro, int x, int y, int inicio) {
    return Par(busca_Valores_Parametro(m.X, m.Y, m.X1, m.Y1, cuadro, x, y, inicio),
               Columna_Por_Inclinacion(m));
}

}  // namespace

int Conteo_Lecturas(const HojaEnLectura& hoja, int Para_X, int Para_Y) {
    int cuenta = 0;
    for (const auto& [dx, dy] : kMuestras) cuenta += hoja.oscuro(Para_X + dx, Para_Y + dy);
    return cuenta;
}

int Busca_Forma(HojaEnLectura& hoja, const Marcas& m) {
    hoja.Error_Lectura = false;
    const int inicio = Fila_Inicio(hoja, m);
    if (inicio == 0) return 0;
    int TxtForma = 99;
    const int y = Spr_290(inicio + bloque::kFormas, 5);
    for (int i = 1; i <= 4; ++i) {
        const auto [px, py] = Punto(m, 1, Spr_290(inicio + bloque::kFormas + i - 1, 4), y, inicio);
        int oscuros = 0;
        for (const auto& [dx, dy] : kMuestrasForma)
            oscuros += hoja.oscuro_sin_prueba(px + dx, py + dy);
        if (oscuros >= 5) TxtForma = i;
    }
    return TxtForma;
}

QString Lee_Solo_Rut_New_Ver(HojaEnLectura& hoja, const Marcas& m) {
    hoja.Error_Lectura = false;
    const PosicionesRut rut = Carga_Posiciones_Rut(m.distancia());
    const int inicio = Fila_Inicio(hoja, m);
    if (inicio == 0) return {};
    QString Txt_Rut_2;
    for (int i = 0; i <= 8; ++i) {
        for (int j = 0; j <= 10; ++j) {
            const auto [px, py] = Punto(m, 1, rut.x[i], rut.y[j], inicio);
            if (Conteo_Lecturas(hoja, px, py) < kMarca) continue;
            // The row of k reads "K" only in the last column; elsewhere it leaves "10".
            Txt_Rut_2 += (j == 10 && i == 8) ? QStringLiteral("K") : QString::number(j);
            break;
        }
    }
    // The rut check made here has no effect: the run checks the rut again.
    QString TxtRut = Txt_Rut_2;
    if (!TxtRut.isEmpty()) TxtRut.insert(TxtRut.size() - 1, QLatin1Char('-'));
    return TxtRut;
}

char Codigo_Respuesta(const std::vector<int>& cuentas) {
    int fuertes = 0, marcadas = 0;
    char fuerte = 0, T = 0;
    for (size_t k = 0; k < cuentas.size(); ++k) {
        const char letra = static_cast<char>('A' + k);
        if (cuentas[k] >= kMarca) T = letra, ++marcadas;
        if (cuentas[k] >= kFuerte) {
            if (++fuertes == 2) return 'N';
            fuerte = letra;
        }
    }
    if (fuertes == 1) return fuerte;
    if (T == 0) return 'O';
    return marcadas == 1 ? T : 'N';
}

namespace {

// One alternative's count. A count of 13 or 14 is read up to twice more, each time with the
// other result pair than the one used last; the pair is remembered across questions, and a
// level row (Y = Y1) leaves it as it stands.
int Cuenta_Alternativa(HojaEnLectura& hoja, const Marcas& m, const Mapeo& p, int desplazamiento_x) {
    const int columna = Columna_Por_Inclinacion(m);
    if (m.Y1 != m.Y) hoja.Par_Usado = columna;
    auto punto = Par(p, columna);
    int cuenta = Conteo_Lecturas(hoja, punto[0] - desplazamiento_x, punto[1]);
    for (int repeticion = 0; repeticion < 2 && (cuenta == 13 || cuenta == 14); ++repeticion) {
        hoja.Par_Usado = hoja.Par_Usado == 5 ? 7 : 5;
        punto = Par(p, hoja.Par_Usado);
        cuenta = Conteo_Lecturas(hoja, punto[0] - desplazamiento_x, punto[1]);
    }
    return cuenta;
}

}  // namespace

void lee_alternativas_version_2(HojaEnLectura& hoja, const Marcas& m, int Comienza_Lectura,
                                int Fin_Lectura, int Cuadro_Lectura, bool New_Hoja_CG,
                                int Fila_Find, std::vector<char>& SprRespuesta_Correctas) {
    hoja.Error_Lectura = false;
    if (Comienza_Lectura == 1) SprRespuesta_Correctas.clear();
    PosicionesAlternativas lista;
    if (!New_Hoja_CG) lista = Carga_Alternativas_Prueba(m.X, m.X1);
    const int alternativas = std::min(hoja.Alternativas_Actual, 5);
    int columna_y = 4;
    std::vector<int> cuentas;
    for (int q = Comienza_Lectura; q <= Fin_Lectura; ++q) {
        int y = 0;
        PosicionPregunta pos{};
        if (New_Hoja_CG) {
            ++Fila_Find;
            columna_y = Columna_Y_Marcas_Grandes(q, columna_y);
            y = Trae_Valor_Y(Fila_Find, columna_y);
        } else {
            pos = Posicion_Pregunta(q);
            y = lista.y[pos.fila_y];
        }
        cuentas.clear();
        for (int k = 1; k <= alternativas; ++k) {
            const int x =
                New_Hoja_CG ? Trae_Valor_X(Fila_Find, 1 + 2 * k) : lista.x[pos.primera_x + k - 1];
            const int inicio = Fila_Inicio(hoja, m);
            if (inicio == 0) return;
            const Mapeo p =
                busca_Valores_Parametro(m.X, m.Y, m.X1, m.Y1, Cuadro_Lectura, x, y, inicio);
            cuentas.push_back(Cuenta_Alternativa(hoja, m, p, New_Hoja_CG ? 15 : 0));
        }
        SprRespuesta_Correctas.push_back(Codigo_Respuesta(cuentas));
    }
}
