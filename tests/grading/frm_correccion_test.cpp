// Amending a key: a question deleted or its alternative changed, the form's students recounted
// on the test's own scale, and nothing stored before the second command.
#include "grading/screens/frm_correccion.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

const QString kTitulo = "Modificación de Alternativas...";

class EnmiendaPauta : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 7;
        e.Numero_Formas_Actual = 1;
        e.Alternativas_Actual = 4;
        e.Nota_Minima_Actual = 1;
        Ejecuta("insert into NivelesCalificacion values ('7', 50, 90)");
        // 30 questions, all "A". The first student has all right; the second omitted question 5,
        // has 18 right, 10 wrong and question 30 null.
        for (int p = 1; p <= 30; ++p) {
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, 1, 1)", {p});
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, 1, 1, '1-9')", {p});
            const int a = p == 5 ? 6 : p == 30 ? 7 : p <= 19 ? 1 : 2;
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, 1, ?, '12345678-5')",
                    {p, a});
        }
        Ejecuta("insert into ResultadoAlumnos_rj values (7, '1-9', 30, 0, 0, 0, 0, 7, 0, 100, 1)");
        Ejecuta(
            "insert into ResultadoAlumnos_rj values (7, '12345678-5', 18, 10, 1, 1, 0, 4.1, 0, 60, "
            "1)");
        Ejecuta("insert into ALUMNOS values ('12345678-5', 'Carrera', '2° Medio B', '0')");
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
    QString Fila(const Grilla& g, int f) {
        QStringList c;
        for (int i = 2; i <= 10; ++i) c << g.Celda(f, i);
        return c.join('/');
    }
    QString Resultado(const QString& rut) {
        return Valor(
                   "select Buenas || '/' || Malas || '/' || Omitidas || '/' || Nulas || '/' || "
                   "Nota || '/' || "
                   "Porcentaje || '/' || Forma from ResultadoAlumnos_rj where rut = ?",
                   {rut})
            .toString();
    }
};

}  // namespace

TEST_F(EnmiendaPauta, WithoutATestItSaysSo) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera(kTitulo);
    Frm_Correccion f;
    EXPECT_EQ(guion->cajas.back().texto,
              "No tiene número de prueba asociado, selecione una prueba para modificar");
}

TEST_F(EnmiendaPauta, DeletingAQuestionRecountsOnFewerPointsAndStoresOnlyOnTheSecondCommand) {
    estado().Modo_Correccion = "Eliminacion";
    Frm_Correccion f;
    ASSERT_EQ(f.Spr_Respuestas.MaxRows(), 30);
    EXPECT_EQ(f.SprEvaCorrec.Celda(2, 3), "Carrera");
    EXPECT_FALSE(f.XPButton1->isEnabled());

    guion->Espera(kTitulo, vbOK);
    f.Spr_Respuestas_DblClick(5);
    EXPECT_EQ(guion->cajas.back().texto,
              "Desea eliminar la pregunta ...\rPregunta : 5\rAlternativa : A");
    EXPECT_EQ(f.Lst_Eliminadas->item(0)->text(), "Pregunta : 5  --  Alternativa : A");
    guion->Espera("modificación Alternativas");
    f.Spr_Respuestas_DblClick(5);
    EXPECT_EQ(guion->cajas.back().texto,
              "Esta alternativa ha sido eliminada, ya no puede ser modificada");
    EXPECT_EQ(guion->cajas.back().estilo, vbCritical);

    f.Recorrige_Pruebas();
    EXPECT_EQ(estado().Ptje_Max_Actual, 29);
    // Test's own 50 %: cut 14.5, counted as 14 below; 18 right is 14 * 3/14.5 + 1 + 4 * 0.207.
    EXPECT_EQ(Fila(f.SprEvaCorrec, 1), "1-9//29/0/0/0/29/100/7");
    EXPECT_EQ(Fila(f.SprEvaCorrec, 2), "12345678-5/Carrera/18/10/0/1/18/62/4.7");
    EXPECT_EQ(Resultado("12345678-5"), "18/10/1/1/4.1/60/1");  // nothing stored yet

    guion->Espera(kTitulo);
    f.XPButton2_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El proceso de modificación  termino con exito...");
    EXPECT_EQ(Resultado("12345678-5"), "18/10/0/1/4.7/62/1");
    EXPECT_EQ(Resultado("1-9"), "29/0/0/0/7.0/100/1");
    EXPECT_EQ(Valor("select alternativa from Resp_preguntas_pautas where pregunta = 5").toInt(), 9);
    EXPECT_EQ(Valor("select count(*) from Resp_preguntas_pautas").toInt(), 30);
    EXPECT_EQ(f.Lst_Eliminadas->count(), 0);
    EXPECT_FALSE(f.XPButton2->isEnabled());
}

TEST_F(EnmiendaPauta, ATypedAlternativeIsCheckedAndStoredInCapitals) {
    estado().Modo_Correccion = "Modificacion";
    Frm_Correccion f;
    const struct {
        const char* tecleado;
        const char* titulo;
        const char* texto;
    } rechazos[] = {
        {"", "Modificación de Alternativas",
         "El valor ingresado esta en blanco o no corresponde, verifique..."},
        {"z", "Modificación de Alternativas", "El valor ingresado no corresponde, verifique"},
        {"E", "Modificación Alternativas",
         "La alternativa ingresada No esta permitida en esta prueba de 4 alternativas"},
    };
    for (const auto& r : rechazos) {
        guion->EsperaEntrada(kTitulo, r.tecleado);
        guion->Espera(r.titulo);
        f.Spr_Respuestas_DblClick(2);
        EXPECT_EQ(guion->cajas.back().texto, r.texto);
        EXPECT_EQ(f.Spr_Respuestas.Celda(2, 2), "A");
    }
    EXPECT_EQ(guion->cajas[0].texto, "A\rIngrese la alternativa correcta...");

    guion->EsperaEntrada(kTitulo, "c");
    f.Spr_Respuestas_DblClick(2);
    EXPECT_EQ(f.Lst_Eliminadas->item(0)->text(), "Se Cambia Alternativa 2 : A por C");
    EXPECT_EQ(f.Spr_Respuestas.BackColor(2, 2), ColorAmarillo);
    f.Recorrige_Pruebas();
    EXPECT_EQ(f.SprEvaCorrec.Celda(1, 4), "29");
    guion->Espera(kTitulo);
    f.XPButton2_Click();
    EXPECT_EQ(Valor("select alternativa from Resp_preguntas_pautas where pregunta = 2").toInt(), 3);
    EXPECT_EQ(Resultado("1-9").left(3), "29/");
}

TEST_F(EnmiendaPauta, WithTwoFormsOnlyTheChosenFormIsRewrittenAndBecomesTheFormCount) {
    estado().Numero_Formas_Actual = 2;
    estado().Modo_Correccion = "Eliminacion";
    Ejecuta("insert into Resp_preguntas_pautas values (7, 1, 2, 2)");
    Ejecuta("insert into respuesta_alumnos_por_rut values (7, 1, 2, 2, '5126663-3')");
    Ejecuta("insert into ResultadoAlumnos_rj values (7, '5126663-3', 1, 0, 0, 0, 0, 7, 0, 100, 2)");
    Frm_Correccion f;
    EXPECT_EQ(f.Spr_Respuestas.MaxRows(), 0);
    f.CboFormas->setCurrentIndex(1);
    f.CboFormas_Click();
    ASSERT_EQ(f.SprEvaCorrec.MaxRows(), 1);
    f.Recorrige_Pruebas();
    guion->Espera(kTitulo);
    f.XPButton2_Click();
    EXPECT_EQ(estado().Numero_Formas_Actual, 2);
    EXPECT_EQ(Resultado("5126663-3"), "1/0/0/0/7.0/100/2");
    EXPECT_EQ(Resultado("1-9"), "30/0/0/0/7.0/100/1");
    EXPECT_EQ(Valor("select count(*) from Resp_preguntas_pautas where forma = 1").toInt(), 30);
}
