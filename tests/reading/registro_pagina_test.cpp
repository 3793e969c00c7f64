// Page registration: the mapping's arithmetic and the mending of the right marks.
#include "reading/registro_pagina.h"

#include <gtest/gtest.h>

#include "reading/tabla_hoja.h"

TEST(BuscaValoresParametro, MarcasNiveladasDanElPuntoMovido) {
    struct Caso {
        int16_t X, Y, X1, Y1;
        int px, py;
    };
    const Caso casos[] = {
        {59, 77, 911, 77, 557, 201}, {70, 80, 922, 80, 557, 201}, {50, 60, 902, 60, 902, 1422}};
    for (const Caso& c : casos) {
        const Mapeo m = busca_Valores_Parametro(c.X, c.Y, c.X1, c.Y1, 1, c.px, c.py, 1);
        EXPECT_EQ(m.BETA, 0);
        EXPECT_EQ(m.ALFA, 90);
        EXPECT_EQ(m.X5, c.X + c.px - 59);
        EXPECT_EQ(m.Y5, c.Y + c.py - 77);
        EXPECT_EQ(m.X7, m.X5);
        EXPECT_EQ(m.Y7, m.Y5);
    }
}

// Worked by hand through the worksheet's steps: BETA to 5 decimals, ALFA read back as a whole
// number (90 or 89, not 90 - BETA / 2), A read back whole, 3.14159 for pi, half to even.
TEST(BuscaValoresParametro, FilaInclinadaDaAmbosPares) {
    struct Caso {
        int16_t X, Y, X1, Y1;
        int px, py, cuadro;
        double beta;
        int alfa, a, p1x, p1y, p2y, x5, y5, x7, y7;
    };
    const Caso casos[] = {
        // Right mark 10 lower (turned clockwise) and 10 higher: the same BETA, mirrored pairs.
        {59, 77, 911, 87, 902, 1422, 1, 0.67249, 90, 843, 902, 67, 87, 918, 1412, 886, 1432},
        {59, 77, 911, 67, 902, 1422, 1, 0.67249, 90, 843, 902, 67, 87, 918, 1412, 886, 1432},
        // 43 lower: ALFA 89.
        {59, 77, 911, 120, 902, 1422, 1, 2.892, 89, 842, 901, 34, 120, 969, 1377, 833, 1463},
        // Shorter read row (845 on the block of 852) and 20 higher.
        {60, 80, 905, 60, 413, 460, 1, 1.42501, 89, 354, 414, 71, 89, 424, 454, 404, 472},
    };
    for (const Caso& c : casos) {
        const Mapeo m = busca_Valores_Parametro(c.X, c.Y, c.X1, c.Y1, c.cuadro, c.px, c.py, 1);
        EXPECT_DOUBLE_EQ(m.BETA, c.beta);
        EXPECT_EQ(m.ALFA, c.alfa);
        EXPECT_EQ(m.A, c.a);
        EXPECT_EQ(m.P1x, c.p1x);
        EXPECT_EQ(m.P2x, c.p1x);
        EXPECT_EQ(m.P1y, c.p1y);
        EXPECT_EQ(m.P2y, c.p2y);
        EXPECT_EQ(m.X5, c.x5);
        EXPECT_EQ(m.Y5, c.y5);
        EXPECT_EQ(m.X7, c.x7);
        EXPECT_EQ(m.Y7, c.y7);
    }
}

TEST(BuscaValoresParametro, FilaBaseDelBloque) {
    // Row 2 of the block of 852 has its base marks at y 578: a point 95 below maps 95 below.
    const Mapeo m = busca_Valores_Parametro(59, 600, 911, 600, 2, 96, 673, 1);
    EXPECT_EQ(m.X5, 96);
    EXPECT_EQ(m.Y5, 695);
}

TEST(VerificaDiferenciaCuadrosDerecha, PorSuTabla) {
    struct Caso {
        int16_t a, b, c, ra, rb, rc;
    };
    const Caso casos[] = {
        {940, 911, 912, 912, 911, 912},  // d1 >= 20, d2 < 20: a = Round(1823 / 2) = 912 (even)
        {911, 940, 915, 911, 913, 915},  // d1, d2 >= 20, d3 < 20: b
        {911, 940, 970, 911, 940, 970},  // all three apart: as read
        {911, 915, 950, 911, 915, 913},  // d1 < 20, d2, d3 >= 20: c
        {911, 925, 901, 913, 925, 901},  // d1 < 20, d2 >= 20, d3 < 20: a, kept as it stands
        {911, 925, 930, 911, 925, 930},  // d1 < 20, d2 < 20: no change
    };
    for (Caso c : casos) {
        Verifica_Diferencia_Cuadros_Derecha(c.a, c.b, c.c);
        EXPECT_EQ(c.a, c.ra);
        EXPECT_EQ(c.b, c.rb);
        EXPECT_EQ(c.c, c.rc);
    }
}
