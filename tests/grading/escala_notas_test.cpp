// The grade table: the worked lines of the scale and what each screen's variant keeps.
#include <gtest/gtest.h>

#include "app/estado.h"
#include "grading/escala_notas.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "support/base_temporal.h"

namespace {

class Escala : public BaseArrancada {
protected:
    // Grades of the given scores under a minimum grade, a maximum and a variant.
    QStringList Notas(int nmin, int max, std::initializer_list<int> puntos,
                      VarianteEscala v = VarianteEscala::Corrector, int16_t porcentaje = 60) {
        estado().Nota_Minima_Actual = nmin;
        estado().Ptje_Max_Actual = max;
        TablaNotas t;
        Calcula_Notas_Tabla(t, v, porcentaje);
        corte = t.Txt_Corte;
        QStringList notas;
        for (int p : puntos) notas << Nota_De_Tabla(t, p).value_or("sin fila");
        return notas;
    }
    QString corte;
};

}  // namespace

TEST_F(Escala, WorkedLinesOfTheScale) {
    EXPECT_EQ(Notas(1, 30, {0, 17, 18, 19, 30}), QStringList({"1", "3.8", "4", "4.2", "7"}));
    EXPECT_EQ(corte, "18");
    EXPECT_EQ(Notas(2, 10, {0, 6, 10}), QStringList({"2", "4", "7"}));
    // Rows past the maximum keep their 0; there is no row past 100 points.
    EXPECT_EQ(Notas(1, 30, {31, 100, 101}), QStringList({"0", "0", "sin fila"}));
}

TEST_F(Escala, MaximumOf47InEachVariant) {
    // The reading run: the cut 28.2 is kept as text; 29 points count 28.2 below and 0.8 above.
    EXPECT_EQ(Notas(1, 47, {0, 20, 28, 29, 30, 46, 47}),
              QStringList({"1", "3.1", "4", "4.1", "4.3", "6.8", "7"}));
    EXPECT_EQ(corte, "28.2");
    // The key amendment counts the cut as 28.
    EXPECT_EQ(Notas(1, 47, {20, 28, 29, 47}, VarianteEscala::Correccion), QStringList({"3.1", "4", "4.1", "7"}));
    // The evaluation rounds m1 to 0.11 and leaves 0 where the line passes 7.
    EXPECT_EQ(Notas(1, 47, {28, 29, 46, 47}, VarianteEscala::Evaluacion), QStringList({"4.1", "4.2", "7", "0"}));
}

TEST_F(Escala, EachVariantTakesItsOwnPercentage) {
    estado().Id_Prueba_Actual = 12;
    estado().BaseDatos->Execute("insert into NivelesCalificacion values ('12', 50, 70)");
    estado().BaseDatos->Execute("insert into NivelesCalificacion values ('12', 70, 70)");
    EXPECT_EQ(Fnc_Ajuste_Nota_40(), 70) << "the last row wins";
    Notas(1, 30, {0}, VarianteEscala::Correccion);
    EXPECT_EQ(corte, "21");
    Notas(1, 30, {0}, VarianteEscala::Evaluacion, 50);
    EXPECT_EQ(corte, "15");
    Notas(1, 30, {0}, VarianteEscala::Corrector, 50);
    EXPECT_EQ(corte, "18") << "the reading run always takes 60";
    estado().Id_Prueba_Actual = 13;
    EXPECT_EQ(Fnc_Ajuste_Nota_40(), 60);
}

TEST_F(Escala, ImpossibleMaximumsFailLoudly) {
    EXPECT_THROW(Notas(1, 0, {0}), ErrorEjecucion);
    EXPECT_THROW(Notas(1, 101, {0}), ErrorEjecucion);
}
