// Counters, highest-plus-one keys and the copies of a test's rows.
#include <gtest/gtest.h>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/grilla.h"
#include "store/contadores.h"
#include "store/copias_prueba.h"
#include "support/base_temporal.h"

namespace {

class Contadores : public BaseArrancada {
protected:
};

}  // namespace

TEST_F(Contadores, EachDrawMovesTheCounterEvenWhenNothingIsSaved) {
    EXPECT_EQ(Siguiente_Indice("PRUEBA"), 1);
    EXPECT_EQ(Siguiente_Indice("PRUEBA"), 2);
    EXPECT_EQ(Siguiente_Indice("PRUEBA"), 3);
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'PRUEBA'").toInt(), 3);
    EXPECT_EQ(Siguiente_Indice("CURSO"), 1) << "each counter on its own";
    Ejecuta("delete from indice_general where tipo_indice = 'PRUEBA'");
    EXPECT_EQ(Siguiente_Indice("PRUEBA"), 0) << "without its row the next number is 0";
    EXPECT_EQ(Valor("select count(*) from indice_general where tipo_indice = 'PRUEBA'").toInt(), 0);
}

TEST_F(Contadores, HighestPlusOneStartsAtOne) {
    EXPECT_EQ(Maximo_Mas_Uno("Asignaturas", "idasignatura"), 1);
    Ejecuta("insert into Asignaturas values (7, 'Historia')");
    Ejecuta("insert into Asignaturas values (3, 'Lenguaje')");
    EXPECT_EQ(Maximo_Mas_Uno("Asignaturas", "idasignatura"), 8);
}

TEST_F(Contadores, GrayIndexWarnsWithoutItsRow) {
    EXPECT_EQ(Func_Indice_Color(), 180);
    Ejecuta("delete from indice_general where tipo_indice = 'COLOR'");
    guion->Espera("Indice Color");
    EXPECT_EQ(Func_Indice_Color(), 0);
    EXPECT_EQ(guion->cajas.back().texto, "No existe indice para color gris en tabla, verifique");
}

TEST_F(Contadores, CopiesTakeOneFormAndLeaveOthersAlone) {
    estado().Id_Prueba_Actual = estado().Id_Prueba_Origen = 4;
    estado().Id_Prueba_Actual = 9;  // the copy is current while it is saved
    estado().Id_Prueba_Copia = 9;
    for (int p = 1; p <= 3; ++p) Ejecuta("insert into Resp_preguntas_pautas values (4, ?, 1, ?)", {p, p + 1});
    Ejecuta("insert into NEW_EJE_TEMATICO values (20, 4, 2, 'Álgebra', 'Aplicar', 1, 'GENERAL')");
    Ejecuta("insert into NEW_EJE_TEMATICO values (21, 4, 1, 'L''Geometría', 'Conocer', 1, 'GENERAL')");
    Ejecuta("insert into NEW_EJE_TEMATICO values (22, 4, 1, 'Otra forma', 'x', 2, 'GENERAL')");
    Copia_Pauta_Prueba(1);
    Copia_Pauta_Prueba(2);  // no key for form 2: nothing, no message
    Copia_Ejes_Prueba(1);
    EXPECT_EQ(Valor("select group_concat(pregunta || ':' || alternativa) from "
                    "(select * from Resp_preguntas_pautas where idprueba = 9 order by pregunta)").toString(),
              "1:2,2:3,3:4");
    EXPECT_EQ(Valor("select group_concat(correlativo || ':' || numero_pregunta || ':' || eje_tematico) from "
                    "(select * from NEW_EJE_TEMATICO where idprueba = 9 order by correlativo)").toString(),
              "23:1:L'Geometría,24:2:Álgebra");
    QStringList formas;
    Carga_Formas_Pauta(formas);
    EXPECT_EQ(formas, QStringList{"1"});
}

TEST_F(Contadores, StudentNameGoesToTheLastRow) {
    Ejecuta("insert into ALUMNOS values ('12345678-5', 'Bernardo O''Higgins', '4° Medio A', '0')");
    Grilla g(2, 9);
    EXPECT_EQ(Fnc_Nombre_Alumno("12345678-5", g), "Bernardo O'Higgins");
    EXPECT_EQ(g.Celda(2, 1), "Bernardo O'Higgins");
    EXPECT_EQ(g.Celda(2, 9), "Bernardo O'Higgins");
    g.SetMaxRows(3);
    EXPECT_EQ(Fnc_Nombre_Alumno("12345678-5 ", g), "");
    EXPECT_EQ(g.Celda(3, 1), "Nombre no Existe");
}
