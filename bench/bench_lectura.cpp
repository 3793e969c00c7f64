// Speed of one sheet's reading: open a full sheet (100 questions, rut, form) from a BMP file and
// read it, load included. Run with --benchmark_repetitions=9 for the median.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include "reading/generador_hoja.h"
#include "reading/lectura_hoja.h"

namespace {

// A filled sheet written once to a temporary file.
QString Hoja_De_Prueba(QTemporaryDir& dir, int distancia, bool grandes) {
    DisenoHoja d;
    d.distancia = distancia;
    d.marcas_grandes = grandes;
    d.rotacion = 0.7;
    d.ruido = 20;
    d.formas = {2};
    d.rut = QStringLiteral("123456785");
    for (int q = 1; q <= 100; ++q) d.respuestas.push_back({q, (q * 7) % 5 + 1});
    const QString ruta = dir.filePath(QStringLiteral("hoja.bmp"));
    Dibuja_Hoja(d).Guarda_Bmp(ruta);
    return ruta;
}

void Lee_Una_Hoja(benchmark::State& state) {
    QTemporaryDir dir;
    const QString ruta = Hoja_De_Prueba(dir, static_cast<int>(state.range(0)), state.range(1) != 0);
    for (auto _ : state) {
        const Imagen imagen = Imagen::Abre(ruta);
        ResultadoHoja r = Lee_Hoja(imagen, {});
        benchmark::DoNotOptimize(r);
    }
    state.SetItemsProcessed(state.iterations());
}

// Only the reading, the image already in memory.
void Lee_Sin_Abrir(benchmark::State& state) {
    QTemporaryDir dir;
    const Imagen imagen = Imagen::Abre(Hoja_De_Prueba(dir, 874, false));
    for (auto _ : state) {
        ResultadoHoja r = Lee_Hoja(imagen, {});
        benchmark::DoNotOptimize(r);
    }
    state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(Lee_Una_Hoja)
    ->Args({852, 0})
    ->Args({874, 0})
    ->Args({898, 0})
    ->Args({874, 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Lee_Sin_Abrir)->Unit(benchmark::kMillisecond);
