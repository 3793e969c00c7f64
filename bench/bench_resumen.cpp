// The test list on a full store: 200 tests, 10,000 result rows; choosing a test of 45 students.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include "app/estado.h"
#include "app/inicio.h"
#include "grading/screens/frm_correc_pru.h"
#include "platform/base_datos.h"

namespace {

void Llena_Base() {
    BaseDatos& b = *estado().BaseDatos;
    b.BeginTrans();
    int alumno = 0;
    for (int id = 1; id <= 200; ++id) {
        b.Execute("insert into prueba_rj values (?, ?, 'GENERAL', 'Profesor', 'Asignatura', 'Curso', 1, "
                  "'01-03-2026', 45, 0, 5, 'S', null)",
                  {id, QString("Prueba %1").arg(id)});
        const int alumnos = id <= 20 ? 45 : 50;  // 20 x 45 + 180 x 50 = 9,900 rows, plus 100 below
        for (int a = 0; a < alumnos; ++a, ++alumno)
            b.Execute("insert into ResultadoAlumnos_rj values (?, ?, 30, 10, 5, 0, 0, 5.5, 0, 67, 1)",
                      {id, QString("%1-%2").arg(1000000 + alumno).arg(alumno % 10)});
    }
    for (int a = 0; a < 100; ++a)
        b.Execute("insert into ResultadoAlumnos_rj values (200, ?, 1, 1, 1, 0, 0, 2, 0, 1, 1)", {QString("9-%1").arg(a)});
    b.CommitTrans();
}

void Selecciona_Prueba_45_Alumnos(benchmark::State& s) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char nombre[] = "bench_resumen";
    static char* argv[] = {nombre, nullptr};
    static QApplication app(argc, argv);
    QTemporaryDir dir;
    qputenv("ZORTA_DATOS", dir.path().toLocal8Bit());
    MDIForm_Load();
    Llena_Base();
    frmCorrecPru lista;
    const int fila = lista.SprPrincipal.MaxRows() - 9;  // test 10: 45 students
    for (auto _ : s) lista.SprPrincipal_Click(fila);
    s.counters["alumnos"] = lista.SprResulprucargada.MaxRows();
}
BENCHMARK(Selecciona_Prueba_45_Alumnos)->Unit(benchmark::kMillisecond);

}  // namespace
