// The practice-run scores: the PSU lines with their 32-bit float factors and chart bands, the
// SIMCE scores with their 16-bit roundings, and the SIMCE cut points by course and subject.
#include "grading/puntajes_ensayo.h"

#include <gtest/gtest.h>

#include "platform/error_ejecucion.h"

namespace {

TEST(PuntajesEnsayo, LineasPsuSinDescuentoPorMalas) {
    const struct {
        int16_t buenas, preguntas;
        double bajo, medio, alto;
    } casos[] = {
        {80, 80, 850, 850, 850},
        {40, 80, 500, 550, 600},
        {0, 80, 150, 250, 350},
        // 700 / 72 as a float times 45 is 437.5 exactly, a tie to even: 438; in doubles 437.
        {45, 72, 588, 625, 662},
        // 17.5 and 52.5 go to the even neighbour.
        {1, 40, 168, 265, 362},
        {3, 40, 202, 295, 388},
    };
    for (const auto& c : casos) {
        const NivelesPsu n = Calcula_Niveles_Psu(c.buenas, c.preguntas);
        EXPECT_EQ(n.bajo, c.bajo) << c.buenas << "/" << c.preguntas;
        EXPECT_EQ(n.medio, c.medio) << c.buenas << "/" << c.preguntas;
        EXPECT_EQ(n.alto, c.alto) << c.buenas << "/" << c.preguntas;
    }
    EXPECT_THROW(Calcula_Niveles_Psu(0, 0), ErrorEjecucion);
}

TEST(PuntajesEnsayo, BandasPsuDelGrafico) {
    const struct {
        double puntaje;
        int banda;
    } casos[] = {{149, 0},  {150, 1},  {199, 1},  {200, 2}, {550, 9},
                 {849, 14}, {850, 15}, {900, 15}, {901, 0}};
    for (const auto& c : casos) EXPECT_EQ(Banda_Psu(c.puntaje), c.banda) << c.puntaje;
    ASSERT_EQ(Rangos_Psu().size(), 15);
    EXPECT_EQ(Rangos_Psu()[2], " 250 - 299");
    EXPECT_EQ(Rangos_Psu()[13], "800 - 849");
    EXPECT_EQ(Rangos_Psu()[14], " 850 - 900");
}

TEST(PuntajesEnsayo, PuntajesSimce) {
    const struct {
        int16_t buenas, ptje_max, normal, simce;
    } casos[] = {
        {40, 40, 361, 350},
        // 23 / 40 as a float is a hair above 0.575: 57.5 and 58; doubles would give 273.
        {23, 40, 275, 263},
        // 10 x 2.05 is 20.5: 20, ties to even; the second score ties on 20.5 too.
        {1, 10, 176, 165},
        {7, 10, 300, 289},
        // 12.5 percent is 12; 102.4999... is 102.
        {1, 8, 181, 171},
        {1, 2, 258, 247},
    };
    for (const auto& c : casos) {
        EXPECT_EQ(Puntaje_Normal_Simce(c.buenas, c.ptje_max), c.normal)
            << c.buenas << "/" << c.ptje_max;
        EXPECT_EQ(Puntaje_Simce(c.buenas, c.ptje_max), c.simce) << c.buenas << "/" << c.ptje_max;
    }
    EXPECT_EQ(Puntaje_Normal_Simce(0, 40), 156);
    EXPECT_EQ(Puntaje_Normal_Simce(0, 0), 156);
    EXPECT_THROW(Puntaje_Simce(1, 0), ErrorEjecucion);
    EXPECT_THROW(Puntaje_Normal_Simce(1, 0), ErrorEjecucion);
}

TEST(PuntajesEnsayo, NivelSimcePorCursoYAsignatura) {
    const struct {
        int16_t curso;
        const char* asignatura;
        int16_t x;
        const char* nivel;
    } casos[] = {
        {2, "Matemática", 232, "INICIAL"},
        {2, "Matemática", 233, "INTERMEDIO"},
        {2, "Matemática", 286, "AVANZADO"},
        {2, "Lengua Castellana y Comunicación", 233, "INICIAL"},
        {2, "Lengua Castellana y Comunicación", 281, "AVANZADO"},
        {2, "MATEMÁTICA", 233, "INICIAL"},  // exact match below level 8
        {2, "Historia", 280, "INTERMEDIO"},
        {4, "Lenguaje y Comunicación", 285, "INTERMEDIO"},
        {4, "Lenguaje y Comunicación", 286, "AVANZADO"},
        {4, "Lenguaje y Comunicación ", 246, "INTERMEDIO"},
        {4, "EDUCACIÓN MATEMÁTICA", 294, "INTERMEDIO"},
        {4, "Comprensión del Medio Social y Cultural", 245, "INICIAL"},
        {4, "Comprensión del Medio Social y Cultural", 295, "AVANZADO"},
        {8, "  Educación Matemática ", 233, "INTERMEDIO"},
        {8, "lenguaje y comunicación", 281, "AVANZADO"},
        {8, "Estudio y Comprensión de la Naturaleza", 283, "INTERMEDIO"},
        {8, "Estudio y Comprensión de la Naturaleza", 284, "AVANZADO"},
        {8, "ESTUDIO Y COMPRENSIÓN DE LA SOCIEDAD", 294, "INTERMEDIO"},
        {8, "ESTUDIO Y COMPRENSIÓN DE LA SOCIEDAD", 245, "INICIAL"},
        {0, "Matemática", 285, "INTERMEDIO"},
        {1, "Lenguaje y Comunicación", 286, "AVANZADO"},
        {6, "Historia", 0, "INICIAL"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Nivel_Simce(c.curso, QString::fromUtf8(c.asignatura), c.x), c.nivel)
            << c.curso << " " << c.asignatura << " " << c.x;
    EXPECT_EQ(Nivel_Curso("8° Básico A"), 8);
    EXPECT_EQ(Nivel_Curso("2°Medio"), 2);
    EXPECT_EQ(Nivel_Curso("Kinder"), 0);
    EXPECT_EQ(Nivel_Curso(""), 0);
}

}  // namespace
