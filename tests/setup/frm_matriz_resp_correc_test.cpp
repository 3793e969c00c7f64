// The question matrix: loading a form, assigning axes and skills, and saving it back.
#include "setup/screens/frm_matriz_resp_correc.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTableView>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/screens/lista_clave.h"
#include "support/base_temporal.h"
#include "support/operador.h"

namespace {

class Matriz : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 5;
        e.Numero_Formas_Actual = 1;
        e.Nombre_Prueba_Actual = "Historia";
        e.Tipo_Prueba_Actual = "GENERAL";
        Ejecuta("insert into ejes values (1, 'Edad Media', 'Historia', 'GENERAL')");
        Ejecuta("insert into ejes values (2, 'Álgebra', 'Matemática', 'PSU')");
        Ejecuta("insert into objetivos values (1, 'Analizar', 'Relacionar causas', 'Activo')");
        const int codigos[] = {7, 2, 9, 6};
        for (int p = 1; p <= 4; ++p)
            Ejecuta("insert into Resp_preguntas_pautas values (5, ?, 1, ?)", {p, codigos[p - 1]});
    }
    static QString Columna(const Grilla& g, int c) {
        QStringList v;
        for (int f = 1; f <= g.MaxRows(); ++f) v << g.Celda(f, c);
        return v.join(",");
    }
};

}  // namespace

TEST_F(Matriz, WithoutATestItSaysSo) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Analisis Cualitativo");
    FrmMatrizRespCorrec f;
    EXPECT_EQ(guion->cajas.back().texto,
              "No tiene numero de prueba asociado, selecione una prueba para visualizar");
}

TEST_F(Matriz, LoadsLettersAxesAndSkillsOfTheForm) {
    Ejecuta(
        "insert into NEW_EJE_TEMATICO values (8, 5, 2, 'Edad Media', 'Analizar', 1, 'GENERAL')");
    Ejecuta("insert into NEW_EJE_TEMATICO values (7, 5, 1, 'Otro', 'Recordar', 1, 'GENERAL')");
    FrmMatrizRespCorrec f;
    EXPECT_EQ(Columna(f.vSMatzRespCorrec, 1), "1,2,3,4");
    EXPECT_EQ(Columna(f.vSMatzRespCorrec, 2), "O,B,X,X") << "code 6 repeats the letter before";
    EXPECT_EQ(Columna(f.vSEjeTemario, 2), "Otro,Edad Media,,");
    EXPECT_EQ(Columna(f.vSPregObjet, 2), "Recordar,Analizar,,");
    EXPECT_EQ(f.CmbEjetema->count(), 1) << "only the axes of the test's type";
    EXPECT_EQ(f.CboDescripcion->itemText(0), "Analizar");
    EXPECT_EQ(Clave_Item(Item_Lista(*f.CboDescripcion, 0)), "Relacionar causas");
    EXPECT_EQ(f.CmbPregNum->count(), 4);
}

TEST_F(Matriz, AFormWithoutKeyIsToldAndSavesNothing) {
    Ejecuta("delete from Resp_preguntas_pautas");
    guion->Espera("Matriz");
    FrmMatrizRespCorrec f;
    EXPECT_EQ(
        guion->cajas.back().texto,
        "La matriz se ha cargado sin respuesta,\rfavor elimine la pauta y escanee nuevamente");
    guion->Espera("Ejes Tematicos");
    f.XPButActPond_Click();
    EXPECT_EQ(Valor("select count(*) from NEW_EJE_TEMATICO").toInt() +
                  Valor("select count(*) from Resp_preguntas_pautas").toInt(),
              0);
}

TEST_F(Matriz, AssigningOneQuestionOrManyAtOnce) {
    FrmMatrizRespCorrec f;
    guion->Espera("Matriz Respuesta Correcta");
    f.XPButton3_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar numero de pregunta....");
    guion->Espera("Matriz Respuesta Correcta");
    f.vSEjeTemario_Seleccion({1, 2});
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar un eje tematico....");
    guion->Espera("Matriz Respuesta Correcta");
    f.vSPregObjet_Seleccion({1, 2});
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar un descripcion....");
    EXPECT_FALSE(f.Cambio_Eje || f.Cambio_Objetivo);

    f.CmbEjetema->setCurrentIndex(0);
    f.vSEjeTemario_Seleccion({1, 2, 4});
    f.CmbPregObjetivo->setCurrentIndex(2);
    f.CboDescripcion->setCurrentIndex(0);
    f.XPButton1_Click();
    EXPECT_EQ(Columna(f.vSEjeTemario, 2), "Edad Media,Edad Media,,Edad Media");
    EXPECT_EQ(Columna(f.vSPregObjet, 2), ",,Analizar,");
    EXPECT_TRUE(f.Cambio_Eje && f.Cambio_Objetivo);

    guion->Espera("Ejes Tematicos");
    f.XPButActPond_Click();
    EXPECT_EQ(guion->cajas.back().texto, "La grilla de Ejes Tamaticos esta incompleta, verifique");
    f.CmbPregNum->setCurrentIndex(2);
    f.XPButton3_Click();
    guion->Espera("Objetivos");
    f.XPButActPond_Click();
    EXPECT_EQ(guion->cajas.back().texto, "La grilla de Objetivos esta incompleta, verifique");
    EXPECT_EQ(Valor("select count(*) from NEW_EJE_TEMATICO").toInt(), 0);
}

TEST_F(Matriz, SavingRewritesAxesAndKeyOfTheForm) {
    Ejecuta("insert into NEW_EJE_TEMATICO values (30, 5, 1, 'Viejo', 'Viejo', 2, 'GENERAL')");
    FrmMatrizRespCorrec f;
    f.vSEjeTemario.FijaCelda(1, 2, "  Edad Media ");
    f.vSMatzRespCorrec.FijaCelda(2, 2, "X");
    f.vSMatzRespCorrec.FijaCelda(4, 2, "E");
    guion->Espera("Ejes Tematicos");
    f.XPButActPond_Click();  // no flag set: blank cells pass
    EXPECT_EQ(guion->cajas.back().texto, "Los cambios han sido grabado");
    EXPECT_EQ(Valor("select group_concat(correlativo || ':' || numero_pregunta || ':' || "
                    "eje_tematico || ':' || eje_objetivo, ';') "
                    "from (select * from NEW_EJE_TEMATICO where forma = 1 order by correlativo)")
                  .toString(),
              "31:1:Edad Media:;32:2:ELIMINADA:ELIMINADA;33:3:ELIMINADA:ELIMINADA;34:4::");
    EXPECT_EQ(Valor("select count(*) from NEW_EJE_TEMATICO where forma = 2").toInt(), 1)
        << "other forms stay";
    // "O" is not translated: the first row takes the 0 nothing has set yet.
    EXPECT_EQ(Valor("select group_concat(alternativa, '') from (select alternativa from "
                    "Resp_preguntas_pautas "
                    "order by pregunta)")
                  .toString(),
              "0995");
    EXPECT_EQ(f.vSMatzRespCorrec.MaxRows(), 0);
}

TEST_F(Matriz, TheFirstRowOfAnEmptyTableIsNumberOne) {
    FrmMatrizRespCorrec f;
    guion->Espera("Ejes Tematicos");
    f.XPButActPond_Click();
    EXPECT_EQ(Valor("select min(correlativo) from NEW_EJE_TEMATICO").toInt(), 1);
}

TEST_F(Matriz, AnOCellDoubleClickedAndLeftKeepsItsLetter) {
    FrmMatrizRespCorrec f;
    Mostrada mostrada(f);
    QTableView& vista = *f.findChild<QTableView*>("vSMatzRespCorrec");
    Doble_Pulsa_Celda(vista, 1, 2);
    ASSERT_NE(Lista_Abierta(vista), nullptr);
    Pulsa_Celda(vista, 2, 1);
    EXPECT_EQ(Columna(f.vSMatzRespCorrec, 2), "O,B,X,X");
    guion->Espera("Ejes Tematicos");
    f.XPButActPond_Click();
    // The "O" takes the code of the row before, none in the first row.
    EXPECT_EQ(Valor("select group_concat(alternativa, '') from (select alternativa from "
                    "Resp_preguntas_pautas "
                    "order by pregunta)")
                  .toString(),
              "0299");
}
