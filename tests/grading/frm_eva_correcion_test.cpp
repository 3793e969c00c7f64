// The correction evaluation screen: its figures, the limits of the two percentages, and what
// the save stores (column 10, rows of the form numbered as the form count).
#include "grading/screens/frm_eva_correcion.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/screens/lista_clave.h"
#include "support/base_temporal.h"

namespace {

class Evaluacion : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 7;
        e.Numero_Formas_Actual = 2;
        e.Preguntas_Actual = 10;
        e.Nota_Minima_Actual = 1;
        e.Nombre_Prueba_Actual = "Ciencias";
        for (int p = 1; p <= 10; ++p)
            for (int forma : {1, 2})
                Ejecuta("insert into Resp_preguntas_pautas values (7, ?, ?, 1)", {p, forma});
        const QString r =
            "insert into ResultadoAlumnos_rj values (7, ?, ?, ?, 0, 0, 0, ?, 0, 0, ?)";
        Ejecuta(r, {"1-9", 10, 0, 7, 1});
        Ejecuta(r, {"12345678-5", 5, 5, 3.5, 2});
        Ejecuta(r, {"5126663-3", 8, 2, 5.5, 2});
        Ejecuta("insert into ALUMNOS values ('12345678-5', 'Carrera', '2° Medio B', '0')");
        for (int p = 1; p <= 10; ++p)
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, 2, ?, '12345678-5')",
                    {p, p <= 5 ? 1 : 2});
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
    QString Notas() {
        return Valor(
                   "select group_concat(Nota, ' ') from (select Nota from ResultadoAlumnos_rj "
                   "order by rowid)")
            .toString();
    }
    QString Porcentajes() {
        return Valor(
                   "select group_concat(desde || '/' || hasta) from NivelesCalificacion where "
                   "concepto = '7'")
            .toString();
    }
};

}  // namespace

TEST_F(Evaluacion, WithoutATestOrWithoutStudentsItSaysSo) {
    const struct {
        int16_t id;
        const char* texto;
    } casos[] = {{0, "UD. no tiene asociado a una prueba para esta carga, verifique sus datos"},
                 {8, "Esta prueba no tiene alumnos asignados"}};
    for (const auto& c : casos) {
        estado().Id_Prueba_Actual = c.id;
        guion->Espera("Correccion de pruebas");
        FrmEvaCorrecion f;
        EXPECT_EQ(guion->cajas.back().texto, c.texto);
    }
}

TEST_F(Evaluacion, OpeningShowsTheCourseFiguresAndTheDeviationOverTheFormColumn) {
    FrmEvaCorrecion f;
    ASSERT_EQ(f.SprEvaCorrec.MaxRows(), 3);
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 3), "Carrera");
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 9), "50");
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 11), "3.5");
    EXPECT_EQ(f.LblMinima->text(), "3.5");
    EXPECT_EQ(f.LblMaxima->text(), "7");
    EXPECT_EQ(f.LblPromedio->text(), "5.33");
    EXPECT_EQ(f.Lbl_Desviacion->text(), "3.69");  // forms 1, 2, 2 around 5.33
    EXPECT_EQ(f.Txt_Minima_4->text(), "0");
    ASSERT_EQ(f.CboAlumnos->count(), 3);
    EXPECT_EQ(f.CboAlumnos->itemText(1), "Carrera");
    EXPECT_EQ(Item_Lista(*f.CboAlumnos, 1), "Carrera" + QString(200, ' ') + "@12345678-5");
    f.CboAlumnos->setCurrentIndex(1);
    f.CboAlumnos_Click();
    EXPECT_EQ(f.SpsSoloAlumno.Celda(2, 2), "Carrera");
    const int cabeza = f.SpsSoloAlumno.MaxRows() - 10;
    EXPECT_EQ(f.SpsSoloAlumno.Celda(cabeza, 1), "ALTERNATIVAS ALUMNO");
    EXPECT_EQ(f.SpsSoloAlumno.Celda(cabeza + 1, 3), "BUENA");
    EXPECT_EQ(f.SpsSoloAlumno.Celda(cabeza + 6, 3), "MALA");
}

TEST_F(Evaluacion, AtEachLimitTheMessageIsShownTheFieldStaysAndTheGradesRunAllTheSame) {
    Ejecuta("insert into NivelesCalificacion values ('7', 40, 85)");
    FrmEvaCorrecion f;
    const struct {
        void (FrmEvaCorrecion::*boton)();
        QLineEdit* campo;
        const char* valor;
        const char* texto;
    } casos[] = {
        {&FrmEvaCorrecion::CmdArri4_Click, f.XminText, "80",
         "El porcentaje minimo no puede superar el 80 %"},
        {&FrmEvaCorrecion::CmdArri6_Click, f.XmaxText, "100",
         "El porcentaje maximo no puede superar el 100 %"},
        {&FrmEvaCorrecion::CmdAbajo1_Click, f.XminText, "40",
         "El porcentaje minimo no puede superar el 40 %"},
        {&FrmEvaCorrecion::CmdAbajo2_Click, f.XmaxText, "85",
         "El porcentaje minimo no puede superar el 85 %"},
    };
    for (const auto& c : casos) {
        c.campo->setText(c.valor);
        guion->Espera("Porcentaje Minimo de Prueba");
        (f.*c.boton)();
        EXPECT_EQ(guion->cajas.back().texto, c.texto);
        EXPECT_EQ(guion->cajas.back().estilo, vbCritical);
        EXPECT_EQ(c.campo->text(), c.valor);
    }
    // At 40 %: cut 4, m1 0.75, m2 0.5; 5 right is 4.5, 8 right 6; the perfect paper keeps 7.
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 11), "4.5");
    EXPECT_EQ(f.SprEvaCorrec.Celda(3, 11), "6");
    EXPECT_EQ(f.LblPromedio->text(), "5.83");
    EXPECT_EQ(f.LblMinima->text(), "4.5");
}

TEST_F(Evaluacion, SavingStoresColumnTenOnTheRowsOfTheLastFormAndThePercentages) {
    Ejecuta("insert into NivelesCalificacion values ('7', 40, 86)");
    FrmEvaCorrecion f;
    EXPECT_EQ(f.Txt_Maxima_7->text(), "86");
    f.CmdArri6_Click();  // 87 %: 50 gives 4.02, 80 gives 6.44, 100 is left
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 10), "4.02");
    guion->Espera("Modificacion escala de Notas", vbCancel);
    f.CmdGrabaNuevaNota_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              "Esta seguro de grabar las nuevas notas para la prueba : \rNumero Prueba : 7 Nombre "
              "Prueba : Ciencias");
    EXPECT_EQ(Notas(), "7.0 3.5 5.5");

    guion->Espera("Modificacion escala de Notas");
    guion->Espera("Modificacion escala de Notas");
    f.CmdGrabaNuevaNota_Click();
    EXPECT_EQ(guion->cajas.back().texto, "La notas han sido modificadas");
    EXPECT_EQ(Notas(), "7.0 4.02 6.44");  // form 1 is not the form count: untouched
    EXPECT_EQ(Porcentajes(), "40.0/87.0");
    EXPECT_EQ(f.Txt_Maxima_7->text(), "87");
}

TEST_F(Evaluacion, SavingBeforeMovingTheSevenStoresTheFormAsTheGrade) {
    FrmEvaCorrecion f;
    guion->Espera("Modificacion escala de Notas");
    guion->Espera("Modificacion escala de Notas");
    f.CmdGrabaNuevaNota_Click();
    EXPECT_EQ(Notas(), "7.0 2.0 2.0");
    EXPECT_EQ(Porcentajes(), "60.0/100.0");
}

TEST_F(Evaluacion, DeletingAStudentAsksAndReloads) {
    FrmEvaCorrecion f;
    f.Fila_Activa = 2;
    guion->Espera("Evaluacion Alumnos");
    f.XPButton4_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              "Esta seguro de Eliminar al Alumno\r Nombre : Carrera\r y Rut : 12345678-5");
    EXPECT_EQ(f.SprEvaCorrec.MaxRows(), 2);
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0);
    EXPECT_EQ(Notas(), "7.0 5.5");
}

TEST_F(Evaluacion, ExportWritesTheWorkbookAndTellsTheNameFirst) {
    FrmEvaCorrecion f;
    const QString ruta = Ruta("evaluacion.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Exportacion Excel");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, ruta + " Datos exportados en ");
    EXPECT_TRUE(QFile::exists(ruta));
}
