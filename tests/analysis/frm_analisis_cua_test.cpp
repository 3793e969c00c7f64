// The course analysis: grades placed in bands by text order, the shares, the screen's load,
// its export and its boxes.
#include "analysis/screens/frm_analisis_cua.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>

#include "analysis/analisis_curso.h"
#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/planilla_lectura.h"
#include "support/base_temporal.h"

namespace {

TEST(AnalisisCurso, BandaPorOrdenDeTexto) {
    const struct {
        const char* nota;
        int banda;
    } casos[] = {{"1", 1},   {"1.5", 1}, {"1.505", 0}, {"1.51", 2}, {"2", 2},
                 {"2.0", 0}, {"2.5", 3}, {"4.5", 7},   {"4.51", 8}, {"7", 12},
                 {"7.0", 0}, {"0.9", 0}, {"10", 2},    {"", 0}};
    for (const auto& c : casos)
        EXPECT_EQ(Banda_Nota(QString::fromLatin1(c.nota)), c.banda) << c.nota;
    EXPECT_EQ(Texto_Nota(QVariant(4.5)), "4.5");
    EXPECT_EQ(Texto_Nota(QVariant(QStringLiteral("4,5"))), "4.5");
    EXPECT_EQ(Texto_Nota(QVariant(2.0)), "2");
    EXPECT_THROW(Texto_Nota(QVariant()), ErrorEjecucion);
}

TEST(AnalisisCurso, PorcentajesRedondeadosSinCerosFinales) {
    const struct {
        std::vector<int> bandas;
        int banda;
        const char* texto;
    } casos[] = {
        {{1, 2, 3}, 1, "33.33 %"}, {{1, 2}, 2, "50 %"}, {{1, 2, 2, 2, 2, 2, 2, 2}, 1, "12.5 %"},
        {{5, 5}, 5, "100 %"},      {{5, 5}, 6, "0 %"},  {{}, 1, "0 %"}};
    for (const auto& c : casos) {
        ConteoBandas conteo;
        for (int b : c.bandas) conteo.Suma(b);
        EXPECT_EQ(conteo.Porcentaje(c.banda), c.texto);
    }
}

TEST(AnalisisCurso, LasBandas4_8Y12CuentanEn16Bits) {
    for (int banda : {4, 8, 12}) {
        ConteoBandas conteo;
        for (int i = 0; i < 327; ++i) conteo.Suma(banda);
        EXPECT_EQ(conteo.Porcentaje(banda), "100 %");
        conteo.Suma(banda);
        EXPECT_THROW(conteo.Porcentaje(banda), ErrorEjecucion) << banda;
    }
    ConteoBandas otra;
    for (int i = 0; i < 400; ++i) otra.Suma(3);
    EXPECT_EQ(otra.Porcentaje(3), "100 %");
}

class Analisis : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (4, 'Unidad 1', 'GENERAL', 'Ana Díaz', 'Historia', '2° "
            "Medio B', 1, "
            "'02-03-2026', 30, 0, 5, 'S', null)");
        const QVariant notas[] = {
            QStringLiteral("4,5"), 7.0, QStringLiteral("7.0"), 2.0, 1.505, 4.5};
        for (const QVariant& n : notas)
            Ejecuta("insert into ResultadoAlumnos_rj values (4, '1-9', 1, 1, 1, 0, 1, ?, 0, 0, 1)",
                    {n});
        estado().Id_Prueba_Actual = 4;
        estado().Tipo_Prueba_Actual = "GENERAL";
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
};

TEST_F(Analisis, CargaCuentaPorBandaYMuestraLaPrueba) {
    FrmAnalisis_Cua f;
    const Grilla& g = f.SprResulprucargada;
    EXPECT_EQ(f.windowTitle(), "Analisis Cuantitativo Prueba --- > 4 <---");
    EXPECT_EQ(f.LblProfesor->text(), "Ana Díaz");
    EXPECT_EQ(estado().Curso_Actual, "2° Medio B");
    // "4,5" and 4.5 in band 7; 7 and "7.0" (stored as the number 7) in band 12; 2 in band 2;
    // 1.505 nowhere: total 5.
    EXPECT_EQ(QStringList({g.Celda(7, 2), g.Celda(7, 3)}), QStringList({"2", "40 %"}));
    EXPECT_EQ(QStringList({g.Celda(12, 2), g.Celda(12, 3)}), QStringList({"2", "40 %"}));
    EXPECT_EQ(QStringList({g.Celda(2, 2), g.Celda(2, 3)}), QStringList({"1", "20 %"}));
    EXPECT_EQ(QStringList({g.Celda(1, 2), g.Celda(1, 3)}), QStringList({"0", "0 %"}));
    EXPECT_EQ(g.Celda(8, 1), "4.51 - 5.00");
    EXPECT_EQ(g.Celda(2, 5), "Nombre Prueba : Unidad 1");
    EXPECT_EQ(g.Celda(3, 5), "Profesor      : Ana Díaz");
    EXPECT_EQ(g.Celda(4, 5), "Curso         : 2° Medio B");
    EXPECT_EQ(g.Celda(5, 5), "Tipo Prueba   : GENERAL");
    EXPECT_EQ(g.Celda(6, 5), "Asignatura    : Historia");
    EXPECT_TRUE(g.Celda(7, 5).startsWith("Fecha         : "));
    EXPECT_EQ(g.Celda(1, 5), "");
    EXPECT_EQ(f.MSChart1.etiquetas[7], "4.51 ,5.00");
    EXPECT_EQ(f.MSChart1.datos[6], std::vector<double>{2});
    EXPECT_EQ(f.MSChart1.chartType, 1);
    f.XPButton2_Click();
    EXPECT_EQ(f.MSChart1.chartType, 0);
    f.XPButton1_Click();
    EXPECT_EQ(f.MSChart1.chartType, 1);
}

TEST_F(Analisis, SinPruebaAvisaYQuedaVacia) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Analisis Cualitativo");
    FrmAnalisis_Cua f;
    EXPECT_EQ(guion->cajas.back().texto,
              "No tiene numero de prueba asociado, selecione una prueba para visualizar");
    EXPECT_EQ(guion->cajas.back().estilo, vbExclamation);
    EXPECT_EQ(f.SprResulprucargada.Celda(1, 2), "0");
}

TEST_F(Analisis, ExportaTipo2ConElNombreElegido) {
    FrmAnalisis_Cua f;
    const QString ruta = Ruta("curso.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Zorta");
    f.XPButton3_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en " + ruta);
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);
    const PlanillaLectura l = PlanillaLectura::Abre(ruta);
    EXPECT_EQ(l.Celda(1, "H"), "PROCENTAJE");
    EXPECT_EQ(l.Celda(2, "A"), "2° Medio B");
    EXPECT_EQ(l.Celda(9, "F"), "4.01 - 4.50");
    EXPECT_EQ(l.Celda(9, "H"), "0.4") << "the share is a number, 40 % as its fraction";
    EXPECT_EQ(l.Celda(4, "J"), "Nombre Prueba : Unidad 1");
    // No name chosen: nothing else happens.
    guion->EsperaArchivo("  ");
    f.XPButton3_Click();
    EXPECT_TRUE(guion->Agotado());
    EXPECT_EQ(guion->cajas.back().tipo, "GuardarArchivo");
}

TEST_F(Analisis, UnaNotaSinValorTerminaLaCarga) {
    Ejecuta("insert into ResultadoAlumnos_rj values (4, '2-7', 1, 1, 1, 0, 1, null, 0, 0, 1)");
    guion->Espera("Error de ejecución");
    FrmAnalisis_Cua f;
    EXPECT_EQ(guion->cajas.back().estilo, vbCritical);
}

TEST_F(Analisis, Captura) {
    const QString carpeta = qEnvironmentVariable("ZORTA_CAPTURAS");
    if (carpeta.isEmpty()) GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
    FrmAnalisis_Cua f;
    f.resize(1100, 520);
    f.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(f.grab().save(QDir(carpeta).filePath("frm_analisis_cua.png")));
}

}  // namespace
