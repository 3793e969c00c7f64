// Correcting stored sheets: counts, percentage and grade of each student, form by form.
#include <gtest/gtest.h>

#include "app/estado.h"
#include "grading/correccion_alumnos.h"
#include "grading/corrector.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class Correccion : public BaseArrancada {
protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 5;
        e.Numero_Formas_Actual = 2;
        e.Nota_Minima_Actual = 1;
        e.Ptje_Max_Actual = 30;
        Calcula_Notas_Tabla(c.Notas);
        Pauta(1, QString(30, '1'));
        Pauta(2, QString(30, '2'));
    }
    void Pauta(int forma, const QString& codigos) {
        for (int i = 0; i < codigos.size(); ++i)
            Ejecuta("insert into Resp_preguntas_pautas values (5, ?, ?, ?)", {i + 1, forma, codigos.mid(i, 1)});
    }
    // A stored sheet: one code a question.
    void Respuestas(const QString& rut, int forma, const QString& codigos) {
        for (int i = 0; i < codigos.size(); ++i)
            Ejecuta("insert into respuesta_alumnos_por_rut values (5, ?, ?, ?, ?)", {i + 1, forma, codigos.mid(i, 1), rut});
        c.TxtRut = rut;
        c.TxtForma = QString::number(forma);
    }
    // The result rows of a student as "buenas/malas/omitidas/nulas/porcentaje/nota/forma".
    QStringList Resultado(const QString& rut) {
        Recordset rs = estado().BaseDatos->OpenRecordset(
            "select Buenas, Malas, Omitidas, Nulas, Porcentaje, Nota, Forma, Puntaje, Logro from ResultadoAlumnos_rj "
            "where rut = ? order by forma",
            {rut});
        QStringList filas;
        for (; !rs.Eof(); rs.MoveNext()) {
            QStringList f;
            for (int i = 0; i < 7; ++i) f << rs[i].toString();
            EXPECT_EQ(rs[7].toInt() + rs[8].toInt(), 0);
            filas << f.join("/");
        }
        return filas;
    }
    Corrector c;
};

}  // namespace

TEST_F(Correccion, CountsPercentageAndGradeOfEachStudent) {
    Respuestas("1-9", 1, QString(30, '1'));
    Respuestas("2-7", 1, QString(30, '6'));
    Respuestas("3-5", 1, QString(20, '1') + QString(5, '3') + "6677" + "1");
    Respuestas("4-3", 2, QString(30, '2'));
    Respuestas("5-1", 1, QString(29, '1'));  // fewer rows than the key: no pass, no row
    Resultados_Alumnos_Pruebas(c);
    EXPECT_EQ(Resultado("1-9"), QStringList{"30/0/0/0/100/7/1"});
    EXPECT_EQ(Resultado("2-7"), QStringList{"0/30/0/0/0/1/1"}.replaceInStrings("0/30/0", "0/0/30"));
    EXPECT_EQ(Resultado("3-5"), QStringList{"21/5/2/2/70/4.8/1"});
    EXPECT_EQ(Resultado("4-3"), QStringList{"30/0/0/0/100/7/2"}) << "compared with the key of its own form";
    EXPECT_TRUE(Resultado("5-1").isEmpty());
    EXPECT_EQ(c.SprRespuesta_Correctas.MaxRows(), 1) << "the key table is left with one empty row";
}

TEST_F(Correccion, KeyRowsCodedOmittedCountAnOmissionAsRight) {
    estado().Numero_Formas_Actual = 1;
    Ejecuta("update Resp_preguntas_pautas set alternativa = 6 where forma = 1 and pregunta <= 3");
    Respuestas("1-9", 1, "666" + QString(27, '1'));
    Resultados_Alumnos_Pruebas(c);
    EXPECT_EQ(Resultado("1-9"), QStringList{"30/0/0/0/100/7/1"});
}

TEST_F(Correccion, PercentageIsStoredAsAWholeNumber) {
    estado().Numero_Formas_Actual = 1;
    Respuestas("1-9", 1, QString(20, '1') + QString(10, '2'));
    Resultados_Alumnos_Pruebas(c);
    EXPECT_EQ(Resultado("1-9"), QStringList{"20/10/0/0/67/4.5/1"});
}

TEST_F(Correccion, WithoutSheetsOfAFormTheLastSheetsFormIsPassedAsZeroRows) {
    Respuestas("4-3", 2, QString(30, '2'));
    Respuestas("6-K", 2, QString(15, '2') + QString(15, '1'));
    Resultados_Alumnos_Pruebas(c);
    // Pass F = 1 finds no form-1 students, takes those of form 2 and writes zero rows with 99;
    // pass F = 2 writes the true row beside it, since the delete is limited to the form.
    EXPECT_EQ(Resultado("4-3"), QStringList({"30/0/0/0/100/7/2", "0/0/0/0/0/1/99"}));
    EXPECT_EQ(Resultado("6-K"), QStringList({"15/15/0/0/50/3.5/2", "0/0/0/0/0/1/99"}));
}

TEST_F(Correccion, AddedSheetsAreCorrectedAlone) {
    Respuestas("1-9", 1, QString(30, '1'));
    Respuestas("2-7", 1, QString(30, '3'));
    estado().Agrega_Actual = true;
    c.Lst_Recorreccion = {"2-7", "9-9"};
    c.TxtForma = "1";
    Resultados_Alumnos_Pruebas(c);
    EXPECT_TRUE(Resultado("1-9").isEmpty()) << "only this run's sheets";
    EXPECT_EQ(Resultado("2-7"), QStringList{"0/30/0/0/0/1/1"});
    EXPECT_EQ(Resultado("9-9"), QStringList{"0/0/0/0/0/1/99"});
    EXPECT_EQ(c.TxtRut, "9-9");
}

TEST_F(Correccion, RepairGivesAProportionalGradeAndStopsAtAStudentWithoutAnswers) {
    Respuestas("1-9", 1, QString(20, '1') + QString(10, '2'));
    Respuestas("2-7", 1, QString(30, '1'));
    Ejecuta("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Forma, Nota) values (5, '1-9', 1, 0)");
    Ejecuta("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Forma, Nota) values (5, '2-7', 1, 0)");
    Resultados_Alumnos_Pruebas_Reparacion(c);
    EXPECT_DOUBLE_EQ(Valor("select nota from ResultadoAlumnos_rj where rut = '1-9'").toDouble(), 4.7);
    EXPECT_DOUBLE_EQ(Valor("select nota from ResultadoAlumnos_rj where rut = '2-7'").toDouble(), 7);
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 2) << "the repair writes no new rows";
}

TEST_F(Correccion, ALastSheetWithNothingStoredLeavesTheFormWithoutStudents) {
    c.TxtRut = "7-7";  // its rut prompt deleted it
    Resultados_Alumnos_Pruebas(c);
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), 0);
}
