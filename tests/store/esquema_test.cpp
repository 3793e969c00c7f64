// The tables of a first store and the minimum grade lookup.
#include <gtest/gtest.h>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "store/nota_minima.h"
#include "support/base_temporal.h"

namespace {

class Esquema : public BaseArrancada {
protected:
    QStringList Columnas(const QString& tabla) {
        QStringList c;
        Recordset rs = estado().BaseDatos->OpenRecordset("select * from " + tabla + " limit 0");
        for (int i = 0; i < rs.FieldCount(); ++i) c << rs.FieldName(i).toLower();
        return c;
    }
};

}  // namespace

TEST_F(Esquema, PositionalStatementsFindTheColumnsInOrder) {
    const struct {
        const char* tabla;
        const char* columnas;
    } casos[] = {
        {"PRUEBA_RJ", "idprueba,nombreprueba,tipoprueba,nombreprofesor,asignatura,curso,numero_forma,fecha,"
                      "pregunta_seleccion,puntaje_base,numero_alternativas,ingreso_pauta,formas"},
        {"resp_preguntas_pautas", "idprueba,pregunta,forma,alternativa"},
        {"respuesta_alumnos_por_rut", "idprueba,pregunta,forma,alternativa,rut_alumno"},
        {"resultadoalumnos_rj", "idprueba,rut,buenas,malas,omitidas,nulas,puntaje,nota,logro,porcentaje,forma"},
        {"alumnos", "rut,primerapellido,curso,adicional"},
        {"cursos", "curso,idnivel,idcurso"},
        {"niveles", "idniveles,nivel"},
        {"profesores", "nombreprofesor,rut"},
        {"asignaturas", "idasignatura,asignatura"},
        {"ejes", "ideje,eje,tipoensayo,tipoprueba"},
        {"objetivos", "idobjetivo,concepto,descripcion,estado"},
        {"Indice_General", "tipo_indice,valor_indice"},
        {"nivelescalificacion", "concepto,desde,hasta"},
        {"puntaje_simce", "puntaje_minimo,puntaje_maximo"},
        {"new_eje_tematico", "correlativo,idprueba,numero_pregunta,eje_tematico,eje_objetivo,forma,tipo_prueba"},
        {"puntajes_psu_new", "id_psu,nombre_psu,tipo_prueba,numero_preguntas,elimina_buenas,"
                             "numero_elimina_malas,puntaje_min,puntaje_max"},
        {"puntajes_psu_dinamico", "id_psu,numero_pregunta,nombre_psu,puntaje_obtenido"},
    };
    for (const auto& c : casos) EXPECT_EQ(Columnas(c.tabla).join(","), c.columnas) << c.tabla;
}

TEST_F(Esquema, GradeComparesAndAveragesAsANumberAndRutStaysText) {
    BaseDatos& b = *estado().BaseDatos;
    const QString ins = "insert into ResultadoAlumnos_rj values (1, ?, 0, 0, 0, 0, 0, ?, 0, 0, 1)";
    b.Execute(ins, {"1-9", "10.0"});
    b.Execute(ins, {"2-7", "4.5"});
    b.Execute(ins, {12345678, "7"});
    EXPECT_DOUBLE_EQ(Valor("select max(nota) from ResultadoAlumnos_rj where idprueba = 1").toDouble(), 10.0);
    EXPECT_DOUBLE_EQ(Valor("select min(nota) from ResultadoAlumnos_rj where idprueba = 1").toDouble(), 4.5);
    EXPECT_DOUBLE_EQ(Valor("select avg(nota) from ResultadoAlumnos_rj where idprueba = 1").toDouble(), 7.1666666666666667);
    EXPECT_EQ(Valor("select typeof(rut) from ResultadoAlumnos_rj where nota = 7").toString(), "text");
    // A rut with a trailing space is another student.
    b.Execute("insert into ALUMNOS values ('12345678-5', 'Ana', '1A', '0')");
    b.Execute("insert into ALUMNOS values ('12345678-5 ', 'Otra', '1A', '0')");
    EXPECT_EQ(Valor("select PRIMERAPELLIDO from alumnos where rut = '12345678-5'").toString(), "Ana");
}

TEST_F(Esquema, FirstStoreHoldsTheRequiredRows) {
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'PRUEBA'").toInt(), 0);
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'CURSO'").toInt(), 0);
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'COLOR'").toInt(), 180);
    for (const char* c : {"NM", "L", "PL", "NL"})
        EXPECT_EQ(Valor("select count(*) from NivelesCalificacion where concepto = ?", {c}).toInt(), 1) << c;
    EXPECT_EQ(Valor("select count(*) from Puntaje_SIMCE").toInt(), 1);
    EXPECT_EQ(Valor("select count(*) from Niveles").toInt(), 14);
    EXPECT_EQ(Valor("select count(*) from prueba_rj").toInt(), 0);
    EXPECT_EQ(estado().Nota_Minima_Actual, 1);
}

TEST_F(Esquema, MinimumGradeRoundsHalfToEvenAndTheLastRowWins) {
    const struct {
        std::vector<double> filas;
        int esperado;
    } casos[] = {{{6.5}, 6}, {{7.5}, 8}, {{6.6}, 7}, {{1.5}, 2}, {{4, 2}, 2}, {{3, 0}, 0}};
    for (const auto& c : casos) {
        estado().BaseDatos->Execute("delete from NivelesCalificacion where concepto = 'NM'");
        for (double v : c.filas)
            estado().BaseDatos->Execute("insert into NivelesCalificacion values ('NM', ?, 0)", {v});
        if (c.esperado == 0) guion->Espera("Indocar Minimo de Notas");
        EXPECT_EQ(Fnc_Lee_Nota_Minima(), c.esperado) << c.filas.back();
    }
    ASSERT_FALSE(guion->cajas.empty());
    EXPECT_EQ(guion->cajas.back().texto,
              "No existe valor minimo de notas , verifique en Utilidades, Nivel de Evaluación.");
    EXPECT_EQ(guion->cajas.back().estilo, vbExclamation);
}
