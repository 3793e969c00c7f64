// The template table: blocks, aliases, the rule and the cells laid over it.
#include "reading/tabla_hoja.h"

#include <gtest/gtest.h>

TEST(TablaHoja, FilaDeInicioYAlias) {
    const std::pair<int, int> casos[] = {
        {846, 0},    {847, 1130}, {849, 1130}, {850, 1130}, {852, 1},    {863, 1598},
        {864, 1598}, {865, 40},   {866, 40},   {868, 118},  {873, 1091}, {874, 1091},
        {875, 155},  {898, 1052}, {899, 0},    {0, 0},
    };
    for (const auto& [d, fila] : casos) EXPECT_EQ(Fnc_Posicion_Lectura(d), fila) << d;
    // Every block that the lookup reaches is keyed with its distance.
    for (int d = 850; d <= 898; ++d) {
        if (d == 864 || d == 865 || d == 873) continue;
        EXPECT_EQ(Spr_290(Fnc_Posicion_Lectura(d), 1), d) << d;
    }
    // 873's own block stops at offset 7; 868's is two rows short.
    EXPECT_EQ(Spr_290(1793, 1), 873);
    EXPECT_NE(Spr_290(1793 + 7, 4), 0);
    EXPECT_EQ(Spr_290(1793 + 17, 3), 0);
    EXPECT_EQ(Spr_290(118 + 36, 4), 1447);  // 868's question y 20
    EXPECT_EQ(Spr_290(155, 1), 875);
}

TEST(TablaHoja, ReglaYCeldasFueraDeLaRegla) {
    struct Caso {
        int d, desplazamiento, columna, valor;
    };
    const Caso casos[] = {
        {852, 0, 4, 557},   {852, 1, 10, 578},  {852, 2, 13, 1036}, {898, 0, 12, 957},
        {898, 1, 10, 605},  {898, 17, 51, 948}, {850, 3, 10, 1494}, {852, 15, 20, 407},
        {853, 15, 20, 488}, {894, 15, 20, 424}, {887, 0, 4, 557},   {887, 1, 4, 608},
        {895, 5, 4, 237},   {895, 12, 4, 449},  {895, 13, 4, 449},  {855, 17, 31, 599},
        {871, 17, 35, 565}, {882, 17, 21, 387}, {876, 17, 4, 684},  {871, 33, 4, 1335},
        {853, 36, 4, 1432},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(Spr_290(Fnc_Posicion_Lectura(c.d) + c.desplazamiento, c.columna), c.valor)
            << c.d << " " << c.desplazamiento << " " << c.columna;
}

TEST(TablaHoja, MarcasGrandes) {
    EXPECT_EQ(Trae_Valor_X(1824, 3), 118);
    EXPECT_EQ(Trae_Valor_Y(1824, 4), 692);
    EXPECT_EQ(Trae_Valor_Y(1844, 6), 1366);  // kept as measured
    EXPECT_EQ(Trae_Valor_X(1859, 11), 830);
    const std::pair<int, int> columnas[] = {{1, 4},  {5, 12},  {6, 12}, {18, 12},
                                            {19, 4}, {23, 12}, {24, 12}};
    for (const auto& [q, col] : columnas) EXPECT_EQ(Columna_Y_Marcas_Grandes(q, 12), col) << q;
}

TEST(TablaHoja, PreguntaAPosicion) {
    struct Caso {
        int q, primera_x, fila_y;
    };
    const Caso casos[] = {{1, 0, 0},   {10, 0, 9},   {11, 5, 0},   {50, 20, 9},
                          {51, 0, 10}, {77, 10, 16}, {100, 20, 19}};
    for (const Caso& c : casos) {
        EXPECT_EQ(Posicion_Pregunta(c.q).primera_x, c.primera_x) << c.q;
        EXPECT_EQ(Posicion_Pregunta(c.q).fila_y, c.fila_y) << c.q;
    }
    const PosicionesAlternativas p = Carga_Alternativas_Prueba(59, 911);
    EXPECT_EQ(p.x[24], 902);
    EXPECT_EQ(p.y[19], 1422);
    const PosicionesRut r = Carga_Posiciones_Rut(852);
    EXPECT_EQ(r.x[8], 413);
    EXPECT_EQ(r.y[10], 407);
}
