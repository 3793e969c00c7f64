// The command boundary, the scripted boxes and the headless policy.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "platform/dialogos_consola.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "support/dialogos_guion.h"

TEST(Dialogos, AnUnexpectedErrorEndsOnlyThatCommand) {
    DialogosGuion& g = Instala_Guion();
    g.Espera("Error de ejecución");
    bool despues = false;
    EXPECT_FALSE(Ejecutar_Comando([&] {
        CInt(40000);
        despues = true;
    }));
    EXPECT_FALSE(despues);
    ASSERT_EQ(g.cajas.size(), 1u);
    EXPECT_EQ(g.cajas[0].texto, "Desbordamiento");
    EXPECT_EQ(g.cajas[0].estilo, vbCritical);
    // The program goes on: the next command runs.
    EXPECT_TRUE(Ejecutar_Comando([&] { despues = true; }));
    EXPECT_TRUE(despues);
    g.Espera("Error de ejecución");
    EXPECT_FALSE(Ejecutar_Comando([] { throw std::runtime_error("otra falla"); }));
    EXPECT_EQ(g.cajas.back().texto, "otra falla");
}

TEST(Dialogos, ScriptAnswersInOrderAndRejectsAnUnexpectedBox) {
    DialogosGuion& g = Instala_Guion();
    g.Espera("Pregunta", vbYes);
    g.EsperaEntrada("Valida Rut", "12345678-5");
    EXPECT_EQ(dialogos().MsgBox("¿Seguro?", vbYesNo + vbQuestion, "Pregunta"), vbYes);
    EXPECT_EQ(dialogos().InputBox("Ingrese Numero de Rut...", "Valida Rut", ""), "12345678-5");
    EXPECT_TRUE(g.Agotado());
    EXPECT_NONFATAL_FAILURE(dialogos().MsgBox("sobra", vbOKOnly, "Nadie la espera"), "Caja inesperada");
    g.Espera("Otra");
    EXPECT_NONFATAL_FAILURE(dialogos().MsgBox("texto", vbOKOnly, "Distinta"), "Otra");
    EXPECT_EQ(Lineas({"uno", "dos"}), "uno\rdos");
}

TEST(Dialogos, HeadlessPolicyNeverAgreesToDeleteUnlessTold) {
    QString texto;
    QTextStream salida(&texto);
    DialogosConsola d(salida);
    const struct {
        int estilo;
        int respuesta;
    } casos[] = {{vbOKOnly, vbOK}, {vbOKCancel + vbQuestion, vbCancel}, {vbYesNo, vbNo},
                 {vbYesNoCancel, vbNo}, {vbRetryCancel, vbCancel}, {vbCritical, vbOK}};
    for (const auto& c : casos) EXPECT_EQ(d.MsgBox("x", c.estilo, "T"), c.respuesta) << c.estilo;
    d.Responde("Reemplazo", vbYes);
    EXPECT_EQ(d.MsgBox("¿Reemplaza?", vbYesNo, "Reemplazo"), vbYes);
    EXPECT_EQ(d.InputBox("Ingrese Numero de Rut...", "Valida Rut", ""), "");
    d.Escribe("Valida Rut", "1-9");
    EXPECT_EQ(d.InputBox("Ingrese Numero de Rut...", "Valida Rut", ""), "1-9");
    EXPECT_TRUE(texto.contains("[Reemplazo] ¿Reemplaza? -> Sí"));
    EXPECT_TRUE(texto.contains("[Valida Rut] Ingrese Numero de Rut... -> \"1-9\""));
    d.MsgBox(Lineas({"a", "b"}), vbOKOnly, "Dos lineas");
    EXPECT_TRUE(texto.contains("[Dos lineas] a / b\n"));
}
