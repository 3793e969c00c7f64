// Spr_290 generated from the reference block of distance 852 by the scale of the page, with the
// cells that stand outside the rule laid over, and the large-mark rows as they were measured.
#include "reading/tabla_hoja.h"

#include <vector>

namespace {

constexpr int kReferencia = 852;

// The reference block, distance 852.
constexpr int kFormaX[] = {557, 586, 615, 643};
constexpr int kFormaY = 201;
constexpr int kMarcaY[] = {77, 578, 1036};
constexpr int kCuartaY = 1497;
constexpr int kRutX[] = {96, 125, 183, 212, 240, 298, 327, 355, 413};
constexpr int kDigitoY[] = {200, 229, 258, 287, 316, 345, 373, 402, 431, 460};
constexpr int kMarcaKY = 488;  // the rule's value; the block itself holds 407
constexpr int kAlternativaX[] = {96,  125, 154, 183, 212, 269, 298, 326, 355, 384, 442, 470, 499,
                                 528, 557, 614, 643, 672, 701, 729, 787, 816, 845, 874, 902};
constexpr int kPreguntaY[] = {673,  702,  730,  759,  788,  846,  874,  903,  932,  961,
                              1134, 1162, 1191, 1220, 1249, 1306, 1335, 1364, 1393, 1422};

// Large-mark rows 1824 to 1859: x,y of alternatives A to E.
constexpr int kMarcasGrandes[kPreguntasMarcasGrandes][10] = {
    {118, 692, 161, 691, 202, 690, 245, 691, 289, 689},
    {118, 744, 161, 743, 202, 743, 245, 742, 289, 742},
    {118, 795, 161, 796, 202, 794, 245, 795, 289, 794},
    {118, 868, 161, 869, 202, 868, 245, 867, 289, 868},
    {120, 920, 162, 920, 205, 919, 247, 920, 287, 919},
    {120, 972, 162, 972, 205, 971, 247, 971, 287, 971},
    {385, 689, 427, 689, 471, 688, 514, 687, 559, 687},
    {386, 741, 429, 740, 473, 740, 516, 739, 557, 741},
    {386, 792, 430, 792, 473, 792, 514, 792, 556, 790},
    {388, 865, 431, 865, 473, 865, 517, 863, 561, 865},
    {387, 918, 431, 918, 475, 915, 516, 915, 559, 916},
    {389, 970, 430, 968, 475, 968, 517, 967, 559, 968},
    {652, 687, 696, 688, 740, 687, 781, 686, 824, 686},
    {653, 740, 696, 740, 738, 737, 783, 738, 825, 738},
    {655, 792, 697, 790, 740, 791, 783, 789, 827, 790},
    {653, 864, 697, 863, 741, 864, 786, 862, 829, 862},
    {654, 915, 696, 915, 740, 915, 783, 915, 827, 915},
    {656, 969, 698, 968, 740, 966, 783, 966, 829, 966},
    {122, 1163, 163, 1161, 206, 1161, 248, 1163, 291, 1162},
    {121, 1215, 165, 1216, 206, 1214, 249, 1214, 291, 1214},
    {122, 1267, 166, 1366, 208, 1265, 249, 1266, 292, 1268},  // 1366 as measured
    {123, 1339, 166, 1338, 207, 1338, 250, 1338, 292, 1337},
    {122, 1392, 165, 1391, 206, 1393, 248, 1392, 292, 1392},
    {122, 1445, 165, 1445, 208, 1443, 250, 1444, 294, 1443},
    {387, 1163, 430, 1162, 473, 1162, 516, 1161, 560, 1161},
    {387, 1216, 432, 1214, 472, 1215, 517, 1215, 560, 1214},
    {387, 1267, 431, 1266, 473, 1267, 516, 1267, 560, 1266},
    {387, 1337, 432, 1337, 474, 1337, 518, 1339, 561, 1337},
    {389, 1390, 431, 1389, 472, 1389, 518, 1390, 561, 1389},
    {389, 1442, 431, 1443, 475, 1443, 518, 1443, 562, 1440},
    {655, 1160, 698, 1160, 742, 1161, 785, 1160, 829, 1159},
    {656, 1211, 698, 1212, 741, 1212, 784, 1212, 828, 1212},
    {658, 1265, 701, 1264, 741, 1265, 785, 1265, 829, 1265},
    {656, 1336, 700, 1337, 743, 1334, 787, 1335, 831, 1334},
    {657, 1387, 700, 1387, 743, 1387, 787, 1387, 831, 1388},
    {657, 1439, 699, 1440, 744, 1440, 788, 1440, 830, 1440},
};

// Cells outside the rule: distance, offset in the block, column, value.
struct Excepcion {
    int distancia, desplazamiento, columna, valor;
};
constexpr Excepcion kExcepciones[] = {
    {852, bloque::kMarcaK, 20, 407},
    {894, bloque::kMarcaK, 20, 424},
    {887, bloque::kFormas, 4, 557},
    {895, bloque::kRut + 0, 4, 237},
    {895, bloque::kRut + 1, 4, 267},
    {895, bloque::kRut + 2, 4, 297},
    {895, bloque::kRut + 3, 4, 328},
    {895, bloque::kRut + 4, 4, 358},
    {895, bloque::kRut + 5, 4, 388},
    {895, bloque::kRut + 6, 4, 418},
    {895, bloque::kRut + 7, 4, 449},
    {855, bloque::kAlternativas, 3 + 2 * 14, 599},
    {871, bloque::kAlternativas, 3 + 2 * 16, 565},
    {882, bloque::kAlternativas, 3 + 2 * 9, 387},
    {876, bloque::kAlternativas + 0, 4, 684},
    {871, bloque::kAlternativas + 16, 4, 1335},
    {853, bloque::kAlternativas + 19, 4, 1432},
};

// Whole-number quotient a / b, ties to even; a >= 0, b > 0.
int Cociente_Redondeado(int a, int b) {
    const int q = a / b, r = a % b;
    return (2 * r > b || (2 * r == b && q % 2 == 1)) ? q + 1 : q;
}

class Tabla {
  public:
    Tabla() : celdas_((kFilasSpr290 + 1) * (kColumnasSpr290 + 1), 0) {
        for (int d = 847; d <= 898; ++d) {
            const int inicio = Fnc_Posicion_Lectura(d);
            // 847..849, 864 and 873 borrow another block; 873's own stub stands at 1793.
            if (d >= 850 && d != 864 && d != 873) Bloque(d, inicio, 36);
        }
        Bloque(873, 1793, 7);
        for (const Excepcion& e : kExcepciones)
            Pon(Fnc_Posicion_Lectura(e.distancia) + e.desplazamiento, e.columna, e.valor);
        for (int q = 0; q < kPreguntasMarcasGrandes; ++q)
            for (int c = 0; c < 10; ++c)
                Pon(kFilaMarcasGrandes + 1 + q, 3 + c, kMarcasGrandes[q][c]);
    }
    int Celda(int fila, int columna) const {
        if (fila < 1 || fila > kFilasSpr290 || columna < 1 || columna > kColumnasSpr290) return 0;
        return celdas_[fila * (kColumnasSpr290 + 1) + columna];
    }

  private:
    void Pon(int fila, int columna, int valor) {
        celdas_[fila * (kColumnasSpr290 + 1) + columna] = static_cast<int16_t>(valor);
    }
    // Writes the block of distance d from row `inicio`, offsets 0 to `ultimo`.
    void Bloque(int d, int inicio, int ultimo) {
        const auto x = [d](int v) { return 59 + Cociente_Redondeado((v - 59) * d, kReferencia); };
        const auto y = [d](int v) { return 77 + Cociente_Redondeado((v - 77) * d, kReferencia); };
        const auto pon = [&](int desp, int columna, int valor) {
            if (desp <= ultimo) Pon(inicio + desp, columna, valor);
        };
        pon(0, 1, d);
        for (int i = 0; i < 4; ++i) {
            pon(bloque::kFormas + i, 4, x(kFormaX[i]));
            pon(bloque::kFormas + i, 5, y(kFormaY));
        }
        for (int i = 0; i < 3; ++i) {
            pon(bloque::kMarcas + i, 9, 59);
            pon(bloque::kMarcas + i, 10, y(kMarcaY[i]));
            pon(bloque::kMarcas + i, 12, x(59 + kReferencia));
            pon(bloque::kMarcas + i, 13, y(kMarcaY[i]));
        }
        pon(3, 9, 59);
        pon(3, 10, y(kCuartaY));
        for (int i = 0; i < 9; ++i) pon(bloque::kRut, 3 + 2 * i, x(kRutX[i]));
        for (int j = 0; j < 10; ++j) pon(bloque::kRut + j, 4, y(kDigitoY[j]));
        pon(bloque::kMarcaK, 19, x(kRutX[8]));
        pon(bloque::kMarcaK, 20, y(kMarcaKY));
        for (int k = 0; k < 25; ++k) pon(bloque::kAlternativas, 3 + 2 * k, x(kAlternativaX[k]));
        for (int r = 0; r < 20; ++r) pon(bloque::kAlternativas + r, 4, y(kPreguntaY[r]));
    }
    std::vector<int16_t> celdas_;
};

const Tabla& tabla() {
    static const Tabla t;
    return t;
}

}  // namespace

int Spr_290(int fila, int columna) {
    return tabla().Celda(fila, columna);
}

int Fnc_Posicion_Lectura(int Valor_Buscado) {
    const int d = Valor_Buscado;
    if (d >= 847 && d <= 850) return 1130;
    if (d == 851) return 1169;
    if (d == 852) return 1;
    if (d >= 853 && d <= 862) return 1208 + (d - 853) * 39;
    if (d == 863 || d == 864) return 1598;
    if (d == 865 || d == 866) return 40;
    if (d == 867) return 79;
    if (d == 868) return 118;
    if (d >= 869 && d <= 872) return 1637 + (d - 869) * 39;
    if (d == 873 || d == 874) return 1091;
    if (d >= 875 && d <= 898) return 155 + (d - 875) * 39;
    return 0;
}

int Trae_Valor_X(int FilaFind, int ColumnaFind) {
    return Spr_290(FilaFind, ColumnaFind);
}

int Trae_Valor_Y(int FilaFind, int ValorColumna) {
    return Spr_290(FilaFind, ValorColumna);
}

PosicionesRut Carga_Posiciones_Rut(int distancia) {
    const int inicio = Fnc_Posicion_Lectura(distancia);
    PosicionesRut p;
    if (inicio == 0) return p;
    for (int i = 0; i < 9; ++i) p.x[i] = Spr_290(inicio + bloque::kRut, 3 + 2 * i);
    for (int j = 0; j < 10; ++j) p.y[j] = Spr_290(inicio + bloque::kRut + j, 4);
    p.y[10] = Spr_290(inicio + bloque::kMarcaK, 20);
    return p;
}

PosicionesAlternativas Carga_Alternativas_Prueba(int X, int X1) {
    // The table's own lookup already sends 847 to 849 to the block of 850.
    const int inicio = Fnc_Posicion_Lectura(X1 - X);
    PosicionesAlternativas p;
    if (inicio == 0) return p;
    for (int k = 0; k < 25; ++k) p.x[k] = Spr_290(inicio + bloque::kAlternativas, 3 + 2 * k);
    for (int r = 0; r < 20; ++r) p.y[r] = Spr_290(inicio + bloque::kAlternativas + r, 4);
    return p;
}

PosicionPregunta Posicion_Pregunta(int pregunta) {
    const int grupo = ((pregunta - 1) % 50) / 10;
    return {grupo * 5, (pregunta - 1) % 10 + (pregunta > 50 ? 10 : 0)};
}

int Columna_Y_Marcas_Grandes(int pregunta, int ultima_columna) {
    if (pregunta >= 1 && pregunta <= 5) return 2 + 2 * pregunta;
    if (pregunta >= 19 && pregunta <= 23) return 2 + 2 * (pregunta - 18);
    return ultima_columna;
}
