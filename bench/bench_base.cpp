// The store and the start-up: what every screen and every sheet of a run pays.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"
#include "platform/numeros.h"

namespace {

struct Carpeta {
    Carpeta() {
        static int argc = 1;
        static char nombre[] = "bench_base";
        static char* argv[] = {nombre, nullptr};
        static QCoreApplication app(argc, argv);
        qputenv("ZORTA_DATOS", dir.path().toLocal8Bit());
    }
    QTemporaryDir dir;
};

void Arranque_Base_Existente(benchmark::State& s) {
    Carpeta c;
    MDIForm_Load();
    for (auto _ : s) {
        estado() = Estado{};
        benchmark::DoNotOptimize(MDIForm_Load());
    }
}
BENCHMARK(Arranque_Base_Existente)->Unit(benchmark::kMillisecond);

// One sheet of 100 answers stored in one transaction, as a reading run does.
void Graba_Hoja_100_Respuestas(benchmark::State& s) {
    Carpeta c;
    MDIForm_Load();
    BaseDatos& b = *estado().BaseDatos;
    int alumno = 0;
    for (auto _ : s) {
        const QString rut = QString::number(++alumno) + "-9";
        b.BeginTrans();
        for (int p = 1; p <= 100; ++p)
            b.Execute("insert into respuesta_alumnos_por_rut values (1, ?, 1, ?, ?)", {p, p % 5 + 1, rut});
        b.CommitTrans();
    }
    s.SetItemsProcessed(s.iterations());
}
BENCHMARK(Graba_Hoja_100_Respuestas)->Unit(benchmark::kMillisecond);

void Lee_10000_Filas(benchmark::State& s) {
    Carpeta c;
    MDIForm_Load();
    BaseDatos& b = *estado().BaseDatos;
    b.BeginTrans();
    for (int i = 0; i < 10000; ++i)
        b.Execute("insert into ResultadoAlumnos_rj values (?, ?, 30, 10, 5, 0, 30, 5.5, 0, 66, 1)",
                  {i % 200 + 1, QString::number(i) + "-K"});
    b.CommitTrans();
    for (auto _ : s) {
        Recordset rs = b.OpenRecordset("select * from ResultadoAlumnos_rj");
        int n = 0;
        for (; !rs.Eof(); rs.MoveNext()) n += rs["Buenas"].toInt();
        benchmark::DoNotOptimize(n);
    }
}
BENCHMARK(Lee_10000_Filas)->Unit(benchmark::kMillisecond);

void Redondeo(benchmark::State& s) {
    double x = 2.675;
    for (auto _ : s) {
        benchmark::DoNotOptimize(Round(x, 2));
        x += 1e-9;
    }
}
BENCHMARK(Redondeo);

}  // namespace
