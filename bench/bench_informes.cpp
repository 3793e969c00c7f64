// The analysis screens and their exports on a full store: 40 courses of 45 students, 20 tests
// each (800 tests, 36,000 results, 1.44 million answers), tests of 40 questions and 2 forms
// with 4 axes and 3 skills. Each figure is one test of the last course.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QTemporaryDir>

#include "analysis/exporta_planilla.h"
#include "analysis/screens/frm_analisis_cua.h"
#include "analysis/screens/frm_habili_objet.h"
#include "analysis/screens/frm_por_pregunta.h"
#include "analysis/screens/frm_sep.h"
#include "app/estado.h"
#include "app/inicio.h"
#include "grading/evaluacion_correccion.h"
#include "grading/screens/frm_eva_correcion.h"
#include "grading/screens/frm_psu.h"
#include "grading/screens/frm_simce.h"
#include "store/copias_prueba.h"
#include "support/prueba_informes.h"

namespace {

constexpr int kCursos = 40, kPruebasCurso = 20, kAlumnos = 45;

// The store is filled once for every benchmark of the program.
QTemporaryDir& Almacen() {
    static QTemporaryDir dir;
    static const bool listo = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("ZORTA_DATOS", dir.path().toLocal8Bit());
        MDIForm_Load();
        for (int c = 1; c <= kCursos; ++c)
            for (int p = 1; p <= kPruebasCurso; ++p)
                Crea_Prueba_Informes((c - 1) * kPruebasCurso + p, QStringLiteral("Curso %1").arg(c),
                                     kAlumnos);
        return true;
    }();
    (void)listo;
    return dir;
}

QApplication& Aplicacion() {
    static int argc = 1;
    static char nombre[] = "bench_informes";
    static char* argv[] = {nombre, nullptr};
    static QApplication app(argc, argv);
    return app;
}

void Prepara() {
    Aplicacion();
    Almacen();
    Fija_Prueba_Actual(kCursos * kPruebasCurso - 3);
    estado().Tipo_Analisis = QStringLiteral("EJE TEMATICO");
}

template <class Pantalla>
void Abre(benchmark::State& s) {
    Prepara();
    for (auto _ : s) {
        Pantalla p;
        benchmark::DoNotOptimize(&p);
    }
}

// The per-question screen shows a test of two forms once a form is chosen.
void Abre_Por_Pregunta(benchmark::State& s) {
    Prepara();
    for (auto _ : s) {
        FrmPorPregunta p;
        p.CboFormas->setCurrentIndex(0);
        p.CboFormas_Click();
    }
}

QString Archivo(int tipo) {
    return Almacen().filePath(QStringLiteral("informe%1.xlsx").arg(tipo));
}

void Exporta(benchmark::State& s) {
    Prepara();
    const auto tipo = static_cast<int16_t>(s.range(0));
    FrmAnalisis_Cua curso;
    FrmPorPregunta pregunta;
    pregunta.CboFormas->setCurrentIndex(0);
    pregunta.CboFormas_Click();
    FrmHabiliObjet ejes;
    FrmPsu psu;
    FrmSIMCE simce;
    Grilla* g[] = {&pregunta.SprAciertos, &curso.SprResulprucargada, &psu.SprPSU,
                   &simce.SprPSU,         &ejes.SprSuperior,         &ejes.SprPantalla,
                   &ejes.SprSep,          &ejes.SprSoloSep,          &ejes.SprSoloSep};
    Grafico* graficos[] = {&pregunta.MSChart1, &curso.MSChart1, &psu.MSChart1, &simce.MSChart1};
    const FuentesExportacion f =
        tipo >= 5 ? ejes.Fuentes_Propias() : FuentesExportacion{graficos[tipo - 1], nullptr};
    Grilla& g2 = tipo == 1 ? pregunta.SprFrecuencia : *g[tipo - 1];
    for (auto _ : s) Exporta_Planilla(Archivo(tipo), *g[tipo - 1], g2, tipo, f);
}

void Exporta_Correccion(benchmark::State& s) {
    Prepara();
    FrmEvaCorrecion eva;
    Grilla copia(0, 11);
    Cabezas_Evaluacion(copia);
    for (auto _ : s) Exportar_Excel_Correccion(Archivo(0), eva.SprEvaCorrec, copia, "60", "95");
}

}  // namespace

BENCHMARK(Abre<FrmAnalisis_Cua>)->Name("abre/FrmAnalisis_Cua")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre_Por_Pregunta)->Name("abre/FrmPorPregunta")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre<FrmHabiliObjet>)->Name("abre/FrmHabiliObjet")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre<FrmSEP>)->Name("abre/FrmSEP")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre<FrmPsu>)->Name("abre/FrmPsu")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre<FrmSIMCE>)->Name("abre/FrmSIMCE")->Unit(benchmark::kMillisecond);
BENCHMARK(Abre<FrmEvaCorrecion>)->Name("abre/FrmEvaCorrecion")->Unit(benchmark::kMillisecond);
BENCHMARK(Exporta)->Name("exporta/tipo")->DenseRange(1, 9)->Unit(benchmark::kMillisecond);
BENCHMARK(Exporta_Correccion)->Name("exporta/correccion")->Unit(benchmark::kMillisecond);
