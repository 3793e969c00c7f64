// Storing sheets and keys: the code swap, the silent form-99 replacement, the replace
// question and its trap, and a key read twice.
#include <gtest/gtest.h>

#include "app/estado.h"
#include "grading/corrector.h"
#include "grading/persistencia_respuestas.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class Persistencia : public BaseArrancada {
protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        estado().Id_Prueba_Actual = 5;
        Ejecuta("insert into prueba_rj (IdPrueba, NombrePrueba, Numero_Forma, Pregunta_Seleccion, ingreso_pauta) "
                "values (5, 'Ciencias', 2, 4, 'N')");
    }
    // Puts a sheet in work: its rut, form and letters.
    void Hoja(const QString& rut, const QString& forma, const QStringList& letras) {
        c.TxtRut = rut;
        c.TxtForma = forma;
        c.SprRespuesta_Correctas.SetMaxRows(letras.size());
        for (int i = 0; i < letras.size(); ++i) c.SprRespuesta_Correctas.FijaCelda(i + 1, 2, letras[i]);
    }
    QString Codigos(const QString& tabla, const QString& donde) {
        return Valor("select group_concat(alternativa, '') from (select alternativa from " + tabla + " where " + donde +
                     " order by pregunta)")
            .toString();
    }
    Corrector c;
};

}  // namespace

TEST_F(Persistencia, StudentsAndKeysSwapTheCodesOfOAndN) {
    Hoja("1-9", "1", {"A", "E", "O", "N", "?", "B"});
    Graba_Prueba_Alumnos(c);
    EXPECT_EQ(Codigos("respuesta_alumnos_por_rut", "rut_alumno = '1-9'"), "156772") << "an unknown letter repeats";
    Graba_Prueba_Base_Pauta(c);
    EXPECT_EQ(Codigos("Resp_preguntas_pautas", "forma = 1"), "157662");
    EXPECT_FALSE(c.Pauta_Rechazada);
}

TEST_F(Persistencia, AGoodSheetSilentlyReplacesTheUnreadableOne) {
    Hoja("1-9", "99", {"A", "A"});
    Graba_Prueba_Alumnos(c);
    Ejecuta("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Forma) values (5, '1-9', 99)");
    Hoja("1-9", "2", {"B", "B"});
    Graba_Prueba_Alumnos(c);
    EXPECT_EQ(Valor("select group_concat(forma || ':' || alternativa) from respuesta_alumnos_por_rut").toString(),
              "2:2,2:2");
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj where forma = 99").toInt(), 1) << "its result stays";
    EXPECT_TRUE(guion->cajas.empty());
}

TEST_F(Persistencia, ReplaceQuestionOkReplacesAndCancelLeavesTheCallerToDelete) {
    Hoja("12345678-5", "1", {"A"});
    Graba_Prueba_Alumnos(c);
    Ejecuta("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Forma, Buenas) values (5, '12345678-5', 1, 1)");
    Hoja("12345678-5", "1", {"C"});
    guion->Espera("Corrección de Pruebas", vbOK);
    Graba_Prueba_Alumnos(c);
    EXPECT_EQ(guion->cajas.back().texto, "El rut 12345678-5 ya existe en la Base de Datos, desea reemplazarlo");
    EXPECT_EQ(guion->cajas.back().estilo, vbOKCancel + vbExclamation);
    EXPECT_EQ(Codigos("respuesta_alumnos_por_rut", "1 = 1"), "3");
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 0);

    // Cancel marks the refusal; the run then calls Elimina_Prueba_Cargada, which removes the rows.
    guion->Espera("Corrección de Pruebas", vbCancel);
    Hoja("12345678-5", "1", {"D"});
    Graba_Prueba_Alumnos(c);
    EXPECT_TRUE(c.Rut_No_Reemplazado);
    EXPECT_EQ(c.Cant_No_Reemplazados, 1);
    EXPECT_EQ(Codigos("respuesta_alumnos_por_rut", "1 = 1"), "3");
    Elimina_Prueba_Cargada(c);
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0);
}

TEST_F(Persistencia, NothingIsStoredForTheBoxesStartingTexts) {
    for (const char* rut : {"Text2", "TxtRut"}) {
        Hoja(rut, "1", {"A"});
        Graba_Prueba_Alumnos(c);
    }
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0);
}

TEST_F(Persistencia, WithoutCurrentTestAnExistingKeyStopsBoth) {
    estado().Id_Prueba_Actual = 0;
    Ejecuta("insert into Resp_preguntas_pautas values (0, 1, 1, 1)");
    Hoja("1-9", "1", {"A"});
    guion->Espera("Creación de Pautas y Pruebas");
    Graba_Prueba_Alumnos(c);
    EXPECT_EQ(guion->cajas.back().texto, "Esto código de prueba ya existe, verifique sus datos");
    guion->Espera("Creación de Pautas y Pruebas");
    Graba_Prueba_Base_Pauta(c);
    EXPECT_TRUE(c.Pauta_Rechazada);
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 0);
}

TEST_F(Persistencia, AKeyReadAgainLosesTheKeysOfAllForms) {
    Hoja("", "1", {"A", "B"});
    Graba_Prueba_Base_Pauta(c);
    Hoja("", "2", {"C", "D"});
    Graba_Prueba_Base_Pauta(c);
    guion->Espera("ERROR GRAVE....Creación de pautas");
    Graba_Prueba_Base_Pauta(c);
    EXPECT_TRUE(c.Pauta_Rechazada);
    EXPECT_EQ(guion->cajas.back().texto,
              "Esta Pauta de prueba ya existe.\rPor lo tanto se eliminaran las pautas anteriores \r"
              "favor generar de nuevo la prueba y escanear nuevamente la pauta \r\r"
              "                    VERIFIQUE LAS FILAS DE SUS PAUTA");
    EXPECT_EQ(Valor("select count(*) from Resp_preguntas_pautas").toInt(), 0);
}

TEST_F(Persistencia, KeyStateAndOpenQuestions) {
    Cambia_Estado_Pauta();
    EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj where idprueba = 5").toString(), "S");
    Ejecuta("update prueba_rj set ingreso_pauta = 'X'");
    Cambia_Estado_Pauta();
    EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj where idprueba = 5").toString(), "X");

    estado().Preguntas_Actual = 4;
    Hoja("", "1", {"O", "A", "N", "O", "N"});  // the fifth is past the test's questions
    c.Total_Nulas = 9;
    Varifica_Pauta_Grabada(c);
    EXPECT_EQ(c.Preguntas_Omitidas, "\rPregunta Nª 1\rPregunta Nª 4");
    EXPECT_EQ(c.Preguntas_Nulas, "\rPregunta Nª 3");
    EXPECT_EQ(c.Total_Omitidas, 2);
    EXPECT_EQ(c.Total_Nulas, 1);
    Eliminar_Pautas_Anteriores_Existentes();
}
