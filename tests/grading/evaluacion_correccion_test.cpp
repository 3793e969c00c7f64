// The correction evaluation's arithmetic over its grid: proportional and re-scaled grades, the
// course's figures and the deviation, with the stops each walk makes.
#include "grading/evaluacion_correccion.h"

#include <gtest/gtest.h>

#include "app/estado.h"

namespace {

Grilla Tabla(const QStringList& columna, int col, int filas) {
    Grilla g(filas, 11);
    for (int f = 1; f <= filas; ++f) {
        g.FijaCelda(f, 1, "7");
        g.FijaCelda(f, 10, "F");
        if (f <= columna.size()) g.FijaCelda(f, col, columna[f - 1]);
    }
    return g;
}

QStringList Columna(const Grilla& g, int col) {
    QStringList c;
    for (int f = 1; f <= g.MaxRows(); ++f) c << g.Celda(f, col);
    return c;
}

}  // namespace

TEST(EvaluacionCorreccion, ProportionalGradesTreatAllRowsOnlyFromEightOn) {
    const QStringList rendimientos = {"100", "50", "0", "95", "10", "60", "80", "20"};
    Grilla ocho = Tabla(rendimientos, 9, 8);
    Recalcula_Nota_100(ocho, 90);
    EXPECT_EQ(Columna(ocho, 10), QStringList({"F", "3.89", "1", "7", "1", "4.67", "6.22", "1.56"}));
    // Fewer than 8 rows: rows 1 to 5 only, up to the first performance of 0.
    Grilla siete = Tabla(rendimientos, 9, 7);
    siete.FijaCelda(3, 9, "70");
    siete.FijaCelda(4, 9, "0");
    Recalcula_Nota_100(siete, 90);
    EXPECT_EQ(Columna(siete, 10), QStringList({"F", "3.89", "5.44", "F", "F", "F", "F"}));
}

TEST(EvaluacionCorreccion, CourseFiguresStopWhereEachWalkStops) {
    const struct {
        QStringList notas;
        bool nombre_en_cero;
        const char *promedio, *minima, *maxima;
    } casos[] = {
        {{"5.0", "4,0", "0", "6.5"}, true, "4.5", "4", "6.5"},  // a 0 with a row: max walks on
        {{"5.0", "4,0", "0", "6.5"}, false, "4.5", "4", "5"},   // a 0 of an empty row ends it
        {{"7", "3", "6"}, true, "5.33", "3", "7"},
    };
    for (const auto& c : casos) {
        Grilla g = Tabla(c.notas, 11, c.notas.size());
        if (!c.nombre_en_cero) g.FijaCelda(3, 1, "");
        const Cifras_Curso cifras = Cambia_Nota_Promedio(g);
        EXPECT_EQ(cifras.promedio, c.promedio);
        EXPECT_EQ(cifras.minima, c.minima);
        EXPECT_EQ(cifras.maxima, c.maxima);
    }
}

TEST(EvaluacionCorreccion, DeviationIsOfThePopulationWithRoundedSquares) {
    EXPECT_EQ(Calculo_Desviacion(Tabla({"4", "6", "", "7"}, 10, 4), 5), 1);
    EXPECT_EQ(Calculo_Desviacion(Tabla({"4.33", "5"}, 10, 2), 4.5), 0.37);  // 0.0289 counts 0.03
}

TEST(EvaluacionCorreccion, RescaledGradesSkipAPerfectPaperStopAtZeroAndCopyTheZeroPastSeven) {
    estado().Nota_Minima_Actual = 1;
    estado().Ptje_Max_Actual = 10;
    TablaNotas tabla;
    // 80 %: cut 8, m1 0.38, m2 1.5: 10 points pass 7 and the line holds 0.
    Calcula_Notas_Tabla(tabla, VarianteEscala::Evaluacion, 80);
    Grilla g = Tabla({"10", "12", "9", "0", "9"}, 4, 5);
    for (int f = 1; f <= 5; ++f) g.FijaCelda(f, 11, "x");
    Busca_y_Pone_Nuevas_Notas(g, tabla, 12);
    EXPECT_EQ(Columna(g, 11), QStringList({"0", "x", "5.5", "x", "x"}));
}
