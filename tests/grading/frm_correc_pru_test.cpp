// The test list: choosing a test, its students with their marks, amendments, delete and copy.
#include "grading/screens/frm_correc_pru.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/screens/navegacion.h"
#include "support/base_temporal.h"

namespace {

class Resumen : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (3, 'Historia', 'PSU', 'Ana Díaz', 'Historia', '4° Medio "
            "A', 1, "
            "'01-03-2026', 40, 0, 5, 'S', 1)");
        Ejecuta(
            "insert into prueba_rj values (7, 'Ciencias', 'GENERAL', 'Luis Pérez', 'Biología', '2° "
            "Medio B', 2, "
            "'02-03-2026', 30, 0, 4, 'N', null)");
        const QString r =
            "insert into ResultadoAlumnos_rj values (7, ?, ?, ?, ?, ?, 0, ?, 0, 0, ?)";
        Ejecuta(r, {"5126663-3", 25, 3, 2, 0, 5.75, 1});
        Ejecuta(r, {"12345678-4", 18, 10, 1, 1, 4, 2});
        Ejecuta(r, {"1-9", 0, 0, 30, 0, 0, 1});  // no marks and grade 0: no repair
        Ejecuta("insert into respuesta_alumnos_por_rut values (7, 1, 99, 1, '22222222-2')");
        navegacion().muestra = [this](const QString& n) {
            pedidas << n;
            return nullptr;
        };
        navegacion().modal = [this](const QString& n) { pedidas << "modal " + n; };
    }
    void TearDown() override {
        navegacion() = Navegacion{};
        BaseTemporal::TearDown();
    }
    QStringList Fila(const Grilla& g, int f, int hasta) {
        QStringList c;
        for (int i = 1; i <= hasta; ++i) c << g.Celda(f, i);
        return c;
    }
    QStringList pedidas;
};

}  // namespace

TEST_F(Resumen, ListShowsTestsNewestFirstInItsColumns) {
    frmCorrecPru f;
    ASSERT_EQ(f.SprPrincipal.MaxRows(), 2);
    EXPECT_EQ(Fila(f.SprPrincipal, 1, 11),
              QStringList({"7", "Ciencias", "Luis Pérez", "2° Medio B", "GENERAL", "30", "Biología",
                           "02-03-2026", "2", "4", "N"}));
    EXPECT_EQ(f.SprPrincipal.Celda(2, 1), "3");
    EXPECT_FALSE(f.XPButton1->isEnabled());
}

TEST_F(Resumen, ChoosingATestMakesItCurrentAndShowsItsStudents) {
    frmCorrecPru f;
    f.SprPrincipal_Click(1);
    const Estado& e = estado();
    EXPECT_EQ(e.Id_Prueba_Actual, 7);
    EXPECT_EQ(e.Nombre_Prueba_Actual, "Ciencias");
    EXPECT_EQ(e.Profesor_Actual, "Luis Pérez");
    EXPECT_EQ(e.Curso_Actual, "2° Medio B");
    EXPECT_EQ(e.Asignatura_Actual, "Biología");
    EXPECT_EQ(e.Tipo_Prueba_Actual, "GENERAL");
    EXPECT_EQ(e.Numero_Formas_Actual, 2);
    EXPECT_EQ(e.Ptje_Max_Actual, 30);
    EXPECT_EQ(e.Preguntas_Actual, 30);
    EXPECT_EQ(f.Etiqueta("LblPauta")->text(), "N");
    EXPECT_TRUE(f.XPButton1->isEnabled());

    const Grilla& g = f.SprResulprucargada;
    ASSERT_EQ(g.MaxRows(), 4);
    // Rows come in the store's order (by rut); nulls show as wrong; the name is looked up but
    // column 1 stays empty. The first row is the one the list started with: no 0 in column 8.
    EXPECT_EQ(Fila(g, 1, 8), QStringList({"", "0", "0", "30", "0", "1", "1-9", ""}));
    EXPECT_EQ(Fila(g, 2, 8), QStringList({"", "18", "11", "1", "4", "2", "12345678-4", "RM"}));
    EXPECT_EQ(g.BackColor(2, 1), ColorAmarillo);
    EXPECT_EQ(Fila(g, 3, 8), QStringList({"", "25", "3", "2", "5.75", "1", "5126663-3", "0"}));
    // The sheet of form 99 has a row of its own, without its rut.
    EXPECT_EQ(Fila(g, 4, 8), QStringList({"", "0", "0", "0", "0", "99", "0", "0"}));
    EXPECT_EQ(g.BackColor(4, 6), ColorRojo);
    EXPECT_EQ(g.ForeColor(4, 6), ColorNegro);
    EXPECT_TRUE(guion->cajas.empty());
}

TEST_F(Resumen, AZeroGradeWithMarksIsRepairedByTheProportionalRule) {
    Ejecuta("insert into Resp_preguntas_pautas values (7, 1, 1, 1)");
    Ejecuta("insert into Resp_preguntas_pautas values (7, 2, 1, 2)");
    Ejecuta("insert into respuesta_alumnos_por_rut values (7, 1, 1, 1, '5126663-3')");
    Ejecuta("insert into respuesta_alumnos_por_rut values (7, 2, 1, 3, '5126663-3')");
    Ejecuta("update ResultadoAlumnos_rj set nota = 0 where rut = '5126663-3'");
    frmCorrecPru f;
    f.SprPrincipal_Click(1);
    EXPECT_EQ(f.SprResulprucargada.Celda(3, 5), "0")
        << "the grade shown is the one read before the repair";
    EXPECT_DOUBLE_EQ(
        Valor("select nota from ResultadoAlumnos_rj where rut = '5126663-3'").toDouble(), 3.5);
    EXPECT_DOUBLE_EQ(Valor("select nota from ResultadoAlumnos_rj where rut = '1-9'").toDouble(), 0);
}

TEST_F(Resumen, DoubleClicksOpenTheAmendmentOrExplain) {
    frmCorrecPru f;
    f.SprPrincipal_Click(1);
    f.SprResulprucargada_DblClick(2);
    EXPECT_TRUE(estado().Rut_Malo);
    EXPECT_TRUE(estado().Forma_Mala);
    EXPECT_EQ(estado().Fila_Enmienda, 2);
    EXPECT_EQ(estado().Rut_Actual, "12345678-4");
    EXPECT_EQ(pedidas, QStringList{"modal FrmModfRut"});

    guion->Espera("Notas Alumnos");
    f.SprResulprucargada_DblClick(4);
    EXPECT_FALSE(estado().Rut_Malo);
    EXPECT_EQ(estado().Fila_Enmienda, 4);
    EXPECT_EQ(guion->cajas.back().texto,
              "El alumno :\r\resta sin FORMA, favor marque la forma correcta y repita el proceso");
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);

    f.SprResulprucargada_DblClick(3);  // neither mark: nothing
    EXPECT_EQ(estado().Fila_Enmienda, -1);
    EXPECT_EQ(pedidas.size(), 1);

    f.SprPrincipal_DblClick(2);  // key entered: nothing
    f.SprPrincipal_DblClick(1);
    EXPECT_EQ(estado().Preguntas_Actual, 30);
    EXPECT_EQ(estado().Ptje_Max_Actual, 4) << "the key entry reads the alternatives from here";
    EXPECT_EQ(pedidas.last(), "FrmOPCPautas");
}

TEST_F(Resumen, DeleteRemovesEveryRowOfTheTestWithoutAsking) {
    Ejecuta("insert into Resp_preguntas_pautas values (7, 1, 1, 1)");
    Ejecuta("insert into ResultadoAlumnos_rj (IdPrueba, Rut) values (3, '1-9')");
    frmCorrecPru f;
    f.Elimina_Prueba();  // no test current: nothing
    f.SprPrincipal_Click(1);
    guion->Espera("Registro eliminado");
    f.Elimina_Prueba();
    EXPECT_EQ(guion->cajas.back().texto, "La prueba Nº 7 ha sido eliminada");
    for (const char* t :
         {"prueba_rj", "Resp_preguntas_pautas", "respuesta_alumnos_por_rut", "ResultadoAlumnos_rj"})
        EXPECT_EQ(Valor(QString("select count(*) from %1 where idprueba = 7").arg(t)).toInt(), 0)
            << t;
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj where idprueba = 3").toInt(), 1);
    EXPECT_EQ(f.SprPrincipal.MaxRows(), 1);
    EXPECT_EQ(f.Etiqueta("LblNombre")->text(), "");
}

TEST_F(Resumen, DeleteWithoutAChosenRowIsRefused) {
    frmCorrecPru f;
    estado().Id_Prueba_Actual = 7;
    guion->Espera("Elimina Prueba");
    f.Elimina_Prueba();
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar una prueba para poder eliminar");
    EXPECT_EQ(Valor("select count(*) from prueba_rj").toInt(), 2);
}

TEST_F(Resumen, CopyDrawsANumberAndOpensTheCreationScreenOfItsType) {
    frmCorrecPru f;
    f.SprPrincipal_Click(2);
    guion->Espera("Copia Prueba", vbCancel);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea copiar esta prueba Historia");
    EXPECT_FALSE(estado().Copia_Activa);
    EXPECT_TRUE(pedidas.isEmpty());
    guion->Espera("Copia Prueba", vbOK);
    f.XPButton1_Click();
    EXPECT_TRUE(estado().Copia_Activa);
    EXPECT_EQ(estado().Id_Prueba_Copia, 1);
    EXPECT_EQ(estado().Id_Prueba_Origen, 3);
    EXPECT_EQ(pedidas, QStringList{"FrmGenePsuPru"});
}
