// Amending a rut or a form: rows moved under the new key, grades kept or recomputed.
#include "grading/screens/frm_modf_rut.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class Enmienda : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 7;
        e.Numero_Formas_Actual = 2;
        e.Fila_Enmienda = 1;
        Ejecuta(
            "insert into ALUMNOS values ('12345678-5', 'Bernardo O''Higgins', '2° Medio B', '0')");
        Ejecuta(
            "insert into ResultadoAlumnos_rj values (7, '12345678-4', 3, 1, 0, 0, 0, 5.3, 0, 75, "
            "1)");
        for (int p = 1; p <= 4; ++p) {
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, 1, ?, '12345678-4')",
                    {p, p <= 3 ? 1 : 3});
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, 1, 1)", {p});
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, 2, ?)", {p, p == 4 ? 3 : 2});
        }
        resumen.FijaCelda(1, 6, "1");
        resumen.FijaCelda(1, 7, "12345678-4");
        resumen.FijaCelda(1, 8, "RM");
    }
    QString Fila(const QString& rut) {
        return Valor(
                   "select Buenas || '/' || Malas || '/' || Omitidas || '/' || Nulas || '/' || "
                   "Nota || '/' || "
                   "Porcentaje || '/' || Forma from ResultadoAlumnos_rj where rut = ?",
                   {rut})
            .toString();
    }
    Grilla resumen{1, 10};
};

}  // namespace

TEST_F(Enmienda, ABadRutIsRefusedAndAGoodOneMovesTheRowsKeepingTheGrade) {
    estado().Rut_Malo = estado().Forma_Mala = true;
    estado().Rut_Actual = "12345678-4";
    FrmModfRut f(&resumen);
    EXPECT_TRUE(f.TxtRutModificado->isEnabled());
    EXPECT_FALSE(f.CmbForma->isEnabled());
    f.TxtRutModificado->setText("12345678-6");
    guion->Espera("Validación Rut");
    f.XPButModifica_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El rut ingresado no es valida , verifique");
    EXPECT_EQ(guion->cajas.back().estilo, vbCritical);

    f.TxtRutModificado->setText("12345678-5");
    f.XPButModifica_Click();
    // The grade stays; the form column takes the closing 0 of the insert.
    EXPECT_EQ(Fila("12345678-5"), "3/1/0/0/5.3/75/0");
    EXPECT_EQ(Fila("12345678-4"), "");
    EXPECT_EQ(
        Valor("select count(*) from respuesta_alumnos_por_rut where rut_alumno = '12345678-5'")
            .toInt(),
        4);
    EXPECT_EQ(resumen.Celda(1, 1), "Bernardo O'Higgins");
    EXPECT_EQ(resumen.Celda(1, 7), "12345678-5");
    EXPECT_EQ(resumen.Celda(1, 8), "");
}

TEST_F(Enmienda, ALowerCaseCheckLetterIsStoredInCapitals) {
    Ejecuta("insert into ALUMNOS values ('1000005-K', 'Manuel Rodríguez', '2° Medio B', '0')");
    estado().Rut_Malo = true;
    estado().Rut_Actual = "12345678-4";
    FrmModfRut f(&resumen);
    f.TxtRutModificado->setText("1000005-k");
    f.XPButModifica_Click();
    EXPECT_EQ(Fila("1000005-K"), "3/1/0/0/5.3/75/0");
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut where rut_alumno = '1000005-K'")
                  .toInt(),
              4);
    EXPECT_EQ(resumen.Celda(1, 1), "Manuel Rodríguez");
    EXPECT_EQ(resumen.Celda(1, 7), "1000005-K");
}

TEST_F(Enmienda, AStudentWithTwoFormsKeepsOnlyTheFirstRow) {
    Ejecuta("insert into ResultadoAlumnos_rj values (7, '12345678-4', 0, 0, 4, 0, 0, 1, 0, 0, 99)");
    estado().Rut_Malo = true;
    estado().Rut_Actual = "12345678-4";
    FrmModfRut f(&resumen);
    f.TxtRutModificado->setText("12345678-5");
    f.XPButModifica_Click();
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 1);
}

TEST_F(Enmienda, ANewFormIsCorrectedAgainstItsKeyWithTheProportionalGrade) {
    estado().Rut_Actual = "12345678-4";
    FrmModfRut f(&resumen);
    EXPECT_FALSE(f.TxtRutModificado->isEnabled());
    ASSERT_TRUE(f.CmbForma->isEnabled());
    EXPECT_EQ(f.CmbForma->count(), 2);
    guion->Espera("Modificación Forma");
    f.XPButMoForma_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar una forma");

    f.CmbForma->setCurrentIndex(1);
    f.XPButMoForma_Click();
    // Against form 2's key (B B B C) the answers A A A C give 1 right: 7/4 = 1.75, not rounded.
    EXPECT_EQ(Fila("12345678-4"), "1/3/0/0/1.75/25/2");
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut where forma = 2").toInt(), 4);
    EXPECT_EQ(resumen.Celda(1, 2), "1");
    EXPECT_EQ(resumen.Celda(1, 5), "1.75");
    EXPECT_EQ(resumen.Celda(1, 6), "2");
}

TEST_F(Enmienda, AGradeBelowOneIsRaisedToOne) {
    Ejecuta("update respuesta_alumnos_por_rut set alternativa = 5");
    estado().Rut_Actual = "12345678-4";
    FrmModfRut f(&resumen);
    f.CmbForma->setCurrentIndex(0);
    f.XPButMoForma_Click();
    EXPECT_EQ(Fila("12345678-4"), "0/4/0/0/1.0/0/1");
}
