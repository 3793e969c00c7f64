// The SIMCE screen: the students' scores and levels, the x carried over a row without right
// answers, the summary per level and the export of kind 4.
#include "grading/screens/frm_simce.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "app/estado.h"
#include "platform/planilla_lectura.h"
#include "support/base_temporal.h"

namespace {

class Simce : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (5, 'Ensayo 1', 'SIMCE', 'Ana Díaz', 'Matemática', "
            "'2° Básico A', 1, '01-04-2026', 40, 0, 4, 'S', 1)");
        const QString r =
            "insert into ResultadoAlumnos_rj values (5, ?, ?, ?, ?, 0, 0, 1, 0, 0, 1)";
        // In rut order: no right answer first, then all, then none again.
        Ejecuta(r, {"3-5", 0, 35, 5});
        Ejecuta(r, {"1-9", 0, 30, 10});
        Ejecuta(r, {"2-7", 40, 0, 0});
        Ejecuta(r, {"4-3", 17, 20, 3});
        Ejecuta("insert into ALUMNOS values ('2-7', 'Rojas', '2° Básico A', '')");
        Estado& e = estado();
        e.Id_Prueba_Actual = 5;
        e.Ptje_Max_Actual = 40;
        e.Asignatura_Actual = "Matemática";
        e.Curso_Actual = "2° Básico A";
    }
    static QStringList Fila(const Grilla& g, int f) {
        QStringList c;
        for (int i = 1; i <= g.MaxCols(); ++i) c << g.Celda(f, i);
        return c;
    }
};

TEST_F(Simce, CargaPuntajesYNivelesConLaXDeLaFilaAnterior) {
    FrmSIMCE f;
    EXPECT_EQ(f.windowTitle(), "Ensayo SIMCE");
    EXPECT_EQ(f.Txt_Base->text(), "100");
    EXPECT_EQ(f.TxtMaximo->text(), "400");
    ASSERT_EQ(f.SprPSU.MaxRows(), 4);
    EXPECT_EQ(Fila(f.SprPSU, 1), QStringList({"1-9", "", "0", "30", "10", "INICIAL", "156", "0"}));
    EXPECT_EQ(Fila(f.SprPSU, 2),
              QStringList({"2-7", "Rojas", "40", "0", "0", "AVANZADO", "361", "350"}));
    // No right answer: the level follows the x of the row before.
    EXPECT_EQ(Fila(f.SprPSU, 3), QStringList({"3-5", "", "0", "35", "5", "AVANZADO", "156", "0"}));
    // 17 of 40: 42.5 percent is 42 (even), 86.1 is 86; 87.125 is 87, x 232.
    EXPECT_EQ(Fila(f.SprPSU, 4),
              QStringList({"4-3", "", "17", "20", "3", "INICIAL", "242", "232"}));
    EXPECT_EQ(f.SprPSU.Celda(0, 7), "Puntaje Normal");
    EXPECT_EQ(Fila(f.SprNiveles, 1), QStringList({"INICIAL", "2", "116"}));
    EXPECT_EQ(Fila(f.SprNiveles, 2), QStringList({"INTERMEDIO", "0", "0"}));
    EXPECT_EQ(Fila(f.SprNiveles, 3), QStringList({"AVANZADO", "2", "175"}));
    EXPECT_EQ(f.MSChart1.etiquetas, QStringList({"INICIAL", "INTERMEDIO", "AVANZADO"}));
    EXPECT_EQ(f.MSChart1.datos[2], std::vector<double>{2});
}

TEST_F(Simce, SinPreguntasEsUnErrorDeEjecucion) {
    estado().Ptje_Max_Actual = 0;
    guion->Espera("Error de ejecución");
    FrmSIMCE f;
    EXPECT_EQ(guion->cajas.back().texto, "División por cero");
}

TEST_F(Simce, ExportaTipo4) {
    FrmSIMCE f;
    const QString ruta = Ruta("simce.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Zorta");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en " + ruta);
    const PlanillaLectura l = PlanillaLectura::Abre(ruta);
    EXPECT_EQ(l.Celda(1, "H"), "PUNTAJE SIMCE");
    EXPECT_EQ(l.Celda(2, "A"), "");
    EXPECT_EQ(l.Celda(4, "A"), "2-7");
    EXPECT_EQ(l.Celda(4, "F"), "AVANZADO");
    EXPECT_EQ(l.Celda(4, "H"), "350");
}

}  // namespace
