// The PSU screen: the three lines and the table score of each student, the minimum and
// maximum that gate them, the score bands of the chart, the chart type, the boxes, the export.
#include "grading/screens/frm_psu.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "app/estado.h"
#include "platform/planilla_lectura.h"
#include "support/base_temporal.h"

namespace {

class Psu : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (6, 'Ensayo 1', 'PSU', 'Ana Díaz', 'Matemática', "
            "'4° Medio A', 1, '01-04-2026', 80, 0, 5, 'S', 1)");
        // A penalty of one right answer for four wrong ones: this screen doesn't apply it.
        Ejecuta(
            "insert into Puntajes_PSU_NEW values (1, ' Matemática ', 'PSU', 80, 'SI', 4, 150, "
            "850)");
        const QString d = "insert into Puntajes_PSU_DINAMICO values (?, ?, ?, ?)";
        Ejecuta(d, {1, 40, "Matemática", 612});
        Ejecuta(d, {1, 80, "Matemática", 850});
        Ejecuta(d, {2, 40, "Historia", 999});
        Ejecuta(d, {3, 40, "Matemática", 700});  // a later row for the same count
        const QString r =
            "insert into ResultadoAlumnos_rj values (6, ?, ?, ?, ?, ?, 0, 1, 0, 0, 1)";
        Ejecuta(r, {"4-3", 79, 1, 0, 0});
        Ejecuta(r, {"3-5", 0, 10, 60, 10});
        Ejecuta(r, {"2-7", 40, 40, 0, 0});
        Ejecuta(r, {"1-9", 80, 0, 0, 0});
        Ejecuta("insert into ALUMNOS values ('2-7', 'Rojas', '4° Medio A', '')");
        Estado& e = estado();
        e.Id_Prueba_Actual = 6;
        e.Preguntas_Actual = 80;
        e.Asignatura_Actual = "Matemática";
    }
    static QStringList Fila(const Grilla& g, int f) {
        QStringList c;
        for (int i = 1; i <= g.MaxCols(); ++i) c << g.Celda(f, i);
        return c;
    }
};

TEST_F(Psu, TresLineasYPuntajeDeLaTabla) {
    FrmPsu f;
    EXPECT_EQ(f.windowTitle(), "Ensayo PSU");
    EXPECT_EQ(f.Txt_Base->text(), "150");
    EXPECT_EQ(f.TxtMaximo->text(), "850");
    ASSERT_EQ(f.SprPSU.MaxRows(), 4);
    const QStringList filas[] = {
        {"1-9", "", "80", "0", "0", "0", "850", "850", "850", "850"},
        // The wrong answers change nothing; the first table row for 40 wins.
        {"2-7", "Rojas", "40", "40", "0", "0", "500", "550", "600", "612"},
        {"3-5", "", "0", "10", "10", "60", "150", "250", "350", ""},
        // 592.5 goes to the even 592; no table row for 79.
        {"4-3", "", "79", "1", "0", "0", "841", "842", "844", ""},
    };
    for (int r = 1; r <= 4; ++r) EXPECT_EQ(Fila(f.SprPSU, r), filas[r - 1]) << r;
    EXPECT_EQ(f.SprPSU.Celda(0, 10), "Puntaje PSU");
    ASSERT_EQ(f.MSChart1.datos.size(), 15u);
    for (int banda : {2, 8, 13, 14}) EXPECT_EQ(f.MSChart1.datos[banda], std::vector<double>{1});
    EXPECT_EQ(f.MSChart1.datos[0], std::vector<double>{0});
    EXPECT_EQ(f.MSChart1.etiquetas[14], " 850 - 900");
}

TEST_F(Psu, SinMinimoNiMaximoSoloRutYNombre) {
    const struct {
        const char* preparacion;
        const char* base;
        bool completa;
    } casos[] = {
        {"update Puntajes_PSU_NEW set nombre_psu = 'Historia'", "", false},
        {"insert into puntajes_psu values (4, 200, 800)", "200", true},
        {"update puntajes_psu set puntaje_max = 0", "200", false},
        {"delete from puntajes_psu", "", false},
        {"insert into puntajes_psu values (3, 200, 800)", "", false},
    };
    for (const auto& c : casos) {
        Ejecuta(c.preparacion);
        FrmPsu f;
        EXPECT_EQ(f.Txt_Base->text(), c.base) << c.preparacion;
        EXPECT_EQ(f.SprPSU.Celda(2, 2), "Rojas") << c.preparacion;
        EXPECT_EQ(f.SprPSU.Celda(2, 8), c.completa ? "550" : "") << c.preparacion;
        EXPECT_EQ(f.SprPSU.Celda(2, 3), c.completa ? "40" : "") << c.preparacion;
    }
}

TEST_F(Psu, SinPruebaActualAvisa) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Corrección de pruebas");
    FrmPsu f;
    EXPECT_EQ(guion->cajas.back().texto,
              "UD. no tiene asociado a una prueba para esta carga, verifique sus datos");
    EXPECT_EQ(f.SprPSU.MaxRows(), 0);
    guion->Espera("Analisis Cualitativo");
    f.Combo1_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              "No tiene numero de prueba asociado, selecione una prueba para visualizar");
}

TEST_F(Psu, TipoDeGraficoYPreguntasEnCero) {
    FrmPsu f;
    ASSERT_EQ(f.Combo1->count(), 8);
    EXPECT_EQ(f.Combo1->itemText(0), "1 - VtChChartType2dArea");
    EXPECT_EQ(f.Combo1->itemText(7), "8 - VtChChartType3dArea");
    f.Combo1->setCurrentIndex(3);
    f.Combo1_Click();
    EXPECT_EQ(f.MSChart1.chartType, 3);
    EXPECT_EQ(f.MSChart1.datos[8], std::vector<double>{1});
    estado().Preguntas_Actual = 0;
    guion->Espera("Error de ejecución");
    FrmPsu g;
    EXPECT_EQ(guion->cajas.back().texto, "División por cero");
}

TEST_F(Psu, ExportaTipo3) {
    FrmPsu f;
    const QString ruta = Ruta("psu.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Zorta");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en " + ruta);
    const PlanillaLectura l = PlanillaLectura::Abre(ruta);
    EXPECT_EQ(l.Celda(1, "J"), "Puntaje Corregido");
    EXPECT_EQ(l.Celda(3, "A"), "1-9");
    EXPECT_EQ(l.Celda(4, "B"), "Rojas");
    EXPECT_EQ(l.Celda(4, "J"), "612");
}

}  // namespace
