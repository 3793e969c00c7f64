// The load of a student list of 10,000 rows: the reading of the workbook and the rows stored,
// and the whole command of the students' screen, its grid refilled.
#include <benchmark/benchmark.h>
#include <xlsxwriter.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "app/estado.h"
#include "app/inicio.h"
#include "masters/carga_alumnos.h"
#include "masters/screens/frm_alumnos.h"
#include "platform/planilla_lectura.h"

namespace {

QString Rut(int cuerpo) {
    int suma = 0, factor = 2;
    for (int n = cuerpo; n > 0; n /= 10) {
        suma += n % 10 * factor;
        factor = factor == 7 ? 2 : factor + 1;
    }
    const int r = 11 - suma % 11;
    return QString::number(cuerpo) + u'-' +
           (r == 10   ? QStringLiteral("K")
            : r == 11 ? QStringLiteral("0")
                      : QString::number(r));
}

// A started store and a workbook of `filas` students over 40 courses, written by libxlsxwriter.
struct Lista {
    explicit Lista(int filas) {
        static int argc = 1;
        static char nombre[] = "bench_maestros";
        static char* argv[] = {nombre, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static QApplication app(argc, argv);
        qputenv("ZORTA_DATOS", dir.path().toLocal8Bit());
        estado() = Estado{};
        MDIForm_Load();
        ruta = QDir(dir.path()).filePath("alumnos.xlsx");
        lxw_workbook* libro = workbook_new(ruta.toLocal8Bit().constData());
        lxw_worksheet* hoja = workbook_add_worksheet(libro, nullptr);
        for (int i = 0; i < filas; ++i) {
            worksheet_write_string(hoja, i, 0, Rut(15000000 + i).toUtf8().constData(), nullptr);
            worksheet_write_string(hoja, i, 1,
                                   QStringLiteral("ALUMNO NÚMERO %1").arg(i).toUtf8().constData(),
                                   nullptr);
            worksheet_write_string(
                hoja, i, 2, QStringLiteral("CURSO %1").arg(i % 40).toUtf8().constData(), nullptr);
            worksheet_write_number(hoja, i, 3, i, nullptr);
        }
        workbook_close(libro);
    }
    QTemporaryDir dir;
    QString ruta;
};

void Lee_Planilla_10000(benchmark::State& s) {
    Lista lista(10000);
    for (auto _ : s) benchmark::DoNotOptimize(PlanillaLectura::Abre(lista.ruta).Filas());
}
BENCHMARK(Lee_Planilla_10000)->Unit(benchmark::kMillisecond);

void Carga_Alumnos_10000(benchmark::State& s) {
    Lista lista(10000);
    for (auto _ : s) benchmark::DoNotOptimize(Carga_Alumnos_Planilla(lista.ruta).fila);
    s.SetItemsProcessed(s.iterations() * 10000);
}
BENCHMARK(Carga_Alumnos_10000)->Unit(benchmark::kMillisecond);

// What the operator waits for: the load, the course list and the grid of 10,000 rows.
void Pantalla_Alumnos_Carga_10000(benchmark::State& s) {
    Lista lista(10000);
    FrmAlumnos pantalla;
    for (auto _ : s) {
        pantalla.Carga_Masiva_Por_Archivo(lista.ruta);
        pantalla.Carga_Grilla_Alumnos();
    }
}
BENCHMARK(Pantalla_Alumnos_Carga_10000)->Unit(benchmark::kMillisecond);

}  // namespace
