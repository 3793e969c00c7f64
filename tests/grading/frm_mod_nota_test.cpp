// Typing a student's answers by hand: validation, the stored rows, the fixed grade table.
#include "grading/screens/frm_mod_nota.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class NotaManual : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        estado().Id_Prueba_Actual = 7;
        estado().Rut_Actual = "12345678-5";
        Ejecuta("insert into ALUMNOS values ('12345678-5', 'Carrera', '2° Medio B', '0')");
        const int pauta[] = {1, 2, 3, 9};  // A B C, question 4 deleted
        for (int p = 1; p <= 4; ++p) {
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, 2, ?)", {p, pauta[p - 1]});
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, 2, 6, '12345678-5')", {p});
        }
        Ejecuta("insert into respuesta_alumnos_por_rut values (7, 1, 2, 1, '5126663-3')");
        Ejecuta(
            "insert into ResultadoAlumnos_rj values (7, '12345678-5', 0, 0, 4, 0, 0, 1, 0, 0, 2)");
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
    QString Resultado() {
        return Valor(
                   "select group_concat(Buenas || '/' || Malas || '/' || Omitidas || '/' || Nulas "
                   "|| '/' || "
                   "Nota || '/' || Porcentaje || '/' || Forma, ' ') from ResultadoAlumnos_rj")
            .toString();
    }
    QString Respuestas(const QString& rut = "12345678-5") {
        return Valor(
                   "select group_concat(Alternativa, '') from (select Alternativa from "
                   "respuesta_alumnos_por_rut "
                   "where forma = 2 and rut_alumno = ? order by pregunta)",
                   {rut})
            .toString();
    }
    void Escribe(Frm_Mod_Nota& f, const QStringList& letras) {
        for (int i = 0; i < letras.size(); ++i) f.SprNotas.FijaCelda(i + 1, 1, letras[i]);
    }
};

}  // namespace

TEST(TablaNotaManual, LinesRoundToOneDecimalWithTiesUpward) {
    const Grilla t = Tabla_Nota_Manual();
    ASSERT_EQ(t.MaxRows(), 101);
    const std::pair<int, const char*> casos[] = {{0, "1,0"},  {5, "1,3"},  {25, "2,3"}, {50, "3,5"},
                                                 {60, "4,0"}, {61, "4,1"}, {62, "4,2"}, {65, "4,4"},
                                                 {99, "6,9"}, {100, "7,0"}};
    for (const auto& [p, nota] : casos) {
        EXPECT_EQ(t.Celda(p + 1, 1), QString::number(p));
        EXPECT_EQ(t.Celda(p + 1, 2), nota) << p;
    }
}

TEST_F(NotaManual, OpeningShowsKeyAndStoredAnswersAsLetters) {
    Frm_Mod_Nota f;
    EXPECT_EQ(f.Lbl_Nombre_Alumno->text(), "Carrera");
    ASSERT_EQ(f.SprPauta.MaxRows(), 4);
    EXPECT_EQ(f.SprPauta.Celda(4, 1), "X");
    EXPECT_EQ(f.SprNotas.Celda(1, 1), "O");
}

TEST_F(NotaManual, LowerCaseIsAcceptedAndEachKindIsCounted) {
    Frm_Mod_Nota f;
    Escribe(f, {"a", "n", "O", "b"});
    guion->Espera("Correccion Manual");
    f.XPButton_Click(Frm_Mod_Nota::Grabar);
    EXPECT_EQ(guion->cajas.back().texto, "La prueba ha sido modificada");
    // One right, one null, one omitted; an answer against a deleted question is wrong.
    // 25 % finds the line 2.25 of the table, rounded upward.
    EXPECT_EQ(Resultado(), "1/1/1/1/2.3/25/2");
    EXPECT_EQ(Respuestas(), "1762");
    EXPECT_EQ(Respuestas("5126663-3"), "1");  // other students stay
}

TEST_F(NotaManual, AllRightGivesOneHundredAndSeven) {
    Ejecuta("update Resp_preguntas_pautas set alternativa = 4 where pregunta = 4");
    Frm_Mod_Nota f;
    Escribe(f, {"A", "B", "c", "D"});
    guion->Espera("Correccion Manual");
    f.XPButton_Click(Frm_Mod_Nota::Grabar);
    EXPECT_EQ(Resultado(), "4/0/0/0/7.0/100/2");
}

TEST_F(NotaManual, AnXOrABlankIsRefusedAndNothingIsStored) {
    for (const QString valor : {"X", "   "}) {
        Frm_Mod_Nota f;
        Escribe(f, {"A", "B", valor, "D"});
        guion->Espera("Correccion Manual");
        f.XPButton_Click(Frm_Mod_Nota::Grabar);
        EXPECT_EQ(guion->cajas.back().texto,
                  "El valor : " + valor + "\ren la respuesta : 3\r no corresponde, verifique");
        EXPECT_EQ(Resultado(), "0/0/4/0/1.0/0/2");
        EXPECT_EQ(Respuestas(), "6666");
    }
}

TEST_F(NotaManual, DeleteAsksAndRemovesTheStudentOfTheForm) {
    Frm_Mod_Nota f;
    guion->Espera("Elimina Alumno Prueba", vbCancel);
    f.XPButton_Click(Frm_Mod_Nota::Eliminar);
    EXPECT_EQ(guion->cajas.back().texto,
              "Desea eliminar al alumno : \r Nombre : Carrera\r y Rut : 12345678-5");
    EXPECT_EQ(Respuestas(), "6666");

    guion->Espera("Elimina Alumno Prueba");
    guion->Espera("Elimina Alumno Prueba");
    f.XPButton_Click(Frm_Mod_Nota::Eliminar);
    EXPECT_EQ(guion->cajas.back().texto,
              "El alumno \rNombre : Carrera\rRut : 12345678-5\r ha sido eliminado");
    EXPECT_EQ(Respuestas(), "");
    EXPECT_EQ(Resultado(), "");
    EXPECT_EQ(Respuestas("5126663-3"), "1");
}
