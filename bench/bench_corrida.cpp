// A whole reading run without windows: 500 generated sheets of 100 questions read, stored one
// transaction a sheet, deleted, and graded at the end. Sheets a second is the figure.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"
#include "platform/dialogos_consola.h"
#include "reading/corrida_lectura.h"
#include "reading/generador_hoja.h"

namespace {

constexpr int kHojas = 500;
constexpr int kPreguntas = 100;

QString Rut(int n) {
    for (int cuerpo = 10000000 + n * 17;; ++cuerpo) {
        const QString d = QString::number(cuerpo);
        int suma = 0, factor = 2;
        for (int i = d.size() - 1; i >= 0; --i, factor = factor == 7 ? 2 : factor + 1)
            suma += d[i].digitValue() * factor;
        const int r = 11 - suma % 11;
        if (r != 10)
            return d + QLatin1Char('-') + (r == 11 ? QStringLiteral("0") : QString::number(r));
    }
}

// A store with test 7, its key and 500 students, and their 500 sheets drawn once (1 bit a
// pixel, as a scanner set for mark reading leaves them).
struct Escenario {
    Escenario() {
        static int argc = 1;
        static char nombre[] = "bench_corrida";
        static char* argv[] = {nombre, nullptr};
        static QCoreApplication app(argc, argv);
        qputenv("ZORTA_DATOS", dir.path().toLocal8Bit());
        Instala_Dialogos(std::make_unique<DialogosConsola>(cajas));
        MDIForm_Load();
        BaseDatos& b = *estado().BaseDatos;
        b.Execute(
            "insert into prueba_rj values (7, 'Historia', 'GENERAL', 'Ana', 'Historia', '1A', 1, "
            "'02-03-2026', ?, 0, 5, 'S', 1)",
            {kPreguntas});
        b.BeginTrans();
        for (int q = 1; q <= kPreguntas; ++q)
            b.Execute("insert into Resp_preguntas_pautas values (7, ?, 1, ?)", {q, q % 5 + 1});
        QDir().mkpath(Hojas());
        for (int n = 0; n < kHojas; ++n) {
            b.Execute("insert into ALUMNOS values (?, 'Alumno', '1A', '')", {Rut(n)});
            DisenoHoja d;
            d.formas = {1};
            d.rut = QString(Rut(n)).remove('-');
            for (int q = 1; q <= kPreguntas; ++q) d.respuestas.push_back({q, (q * 3 + n) % 5 + 1});
            Dibuja_Hoja(d).Guarda_Bmp(
                QDir(Hojas()).filePath(QStringLiteral("h%1.bmp").arg(n, 3, 10, QChar('0'))), 1);
        }
        b.CommitTrans();
        QFile ini(QDir(dir.path()).filePath("scaner.ini"));
        ini.open(QIODevice::WriteOnly);
        ini.write((Escaneo() + "\ntrue\n").toUtf8());
    }
    QString Hojas() const { return QDir(dir.path()).filePath("hojas"); }
    QString Escaneo() const { return QDir(dir.path()).filePath("escaneo"); }
    // The scan folder filled again and the answers of the last run gone.
    void Prepara() {
        QDir(Escaneo()).removeRecursively();
        QDir().mkpath(Escaneo());
        for (const QString& h : QDir(Hojas()).entryList(QDir::Files))
            QFile::copy(QDir(Hojas()).filePath(h), QDir(Escaneo()).filePath(h));
        estado().BaseDatos->Execute("delete from respuesta_alumnos_por_rut");
        estado().BaseDatos->Execute("delete from ResultadoAlumnos_rj");
        Estado& e = estado();
        e.Id_Prueba_Actual = 7;
        e.Numero_Formas_Actual = 1;
        e.Preguntas_Actual = e.Ptje_Max_Actual = kPreguntas;
        e.Alternativas_Actual = 5;
        e.Curso_Actual = "1A";
        e.Corrige_Pruebas = true;
    }

    QTemporaryDir dir;
    QString texto;
    QTextStream cajas{&texto};
};

void Corrida_500_Hojas(benchmark::State& s) {
    static Escenario escenario;
    for (auto _ : s) {
        s.PauseTiming();
        escenario.Prepara();
        CorridaLectura corrida;
        corrida.Form_Load();
        s.ResumeTiming();
        corrida.CmdCorregir_Pruebas();
        if (corrida.resumen.guardadas != kHojas) s.SkipWithError("no se guardaron todas las hojas");
    }
    s.SetItemsProcessed(s.iterations() * kHojas);
}
BENCHMARK(Corrida_500_Hojas)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
