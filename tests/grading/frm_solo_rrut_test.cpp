// The student list of the reading run's rut dialogue.
#include "grading/screens/frm_solo_rrut.h"

#include <gtest/gtest.h>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class SoloRut : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        for (const char* fila :
             {"'2-7', 'Zúñiga Pía', '1A'", "'1-9', 'Araya Tomás', '1A'", "'3-5', 'Otro', '1B'"})
            estado().BaseDatos->Execute(QString("insert into ALUMNOS values (%1, '0')").arg(fila));
    }
};

}  // namespace

TEST_F(SoloRut, TheCourseByNameAndTheRutOfTheRowClicked) {
    Frm_SoloRrut f("1A");
    ASSERT_EQ(f.Spr_Alumnos.MaxRows(), 2);
    EXPECT_EQ(f.Spr_Alumnos.Celda(1, 1), "Araya Tomás");
    EXPECT_EQ(f.Spr_Alumnos.Celda(2, 2), "2-7");
    f.Spr_Alumnos_Click(2);
    EXPECT_EQ(f.Rut_Manual, "2-7");
    f.Spr_Alumnos_Click(5);  // an empty cell gives an empty rut
    EXPECT_EQ(f.Rut_Manual, "");
}

TEST_F(SoloRut, AnEmptyCourseIsToldAndTheRutCanBeTyped) {
    guion->Espera("Selección de alumnos manual");
    Frm_SoloRrut f("4C");
    EXPECT_EQ(guion->cajas.back().texto, "No se han cargado alumnos para el curso : 4C");
    guion->EsperaEntrada("Ingrese Numero de Rut...", "12345678-5");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Ingrese el Rut correcto...");
    EXPECT_EQ(f.Rut_Manual, "12345678-5");
}
