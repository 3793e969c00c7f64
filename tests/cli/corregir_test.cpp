// `zorta corregir` as a child process on a real store: its policy and summary, and a run
// killed halfway and run again, which must end with every sheet stored once and none left.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <cstdio>
#include <random>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "reading/generador_hoja.h"
#include "store/rut.h"
#include "support/base_temporal.h"

namespace {

const char* const kLetras = "ABCDEABCDE";

class ZortaCorregir : public BaseArrancada {
  public:
    void SetUp() override {
        BaseArrancada::SetUp();
        escaneo = Ruta("escaneo");
        QDir().mkpath(escaneo);
        QFile ini(Ruta("scaner.ini"));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write((escaneo + "\ntrue\n").toUtf8());
        Ejecuta(
            "insert into prueba_rj values (7, 'Historia', 'GENERAL', 'Ana Rojas', 'Historia', "
            "'1A', 1, "
            "'02-03-2026', 10, 0, 5, 'S', 1)");
        for (int i = 0; i < 10; ++i)
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, 1, ?)",
                    {i + 1, kLetras[i] - 'A' + 1});
    }
    void Ejecuta(const QString& sql, const QVariantList& p = {}) {
        estado().BaseDatos->Execute(sql, p);
    }
    // A student and a 1-bit sheet of theirs; ruts ending in K are skipped (not read at 852).
    QString Alumno_Con_Hoja(int n) {
        QString rut;
        for (int cuerpo = 10000000 + n * 13;; ++cuerpo)
            if (!(rut = Rut_Con_Digito(cuerpo)).endsWith('K')) break;
        Ejecuta("insert or ignore into ALUMNOS values (?, 'Alumno', '1A', '')", {rut});
        DisenoHoja d;
        d.formas = {1};
        d.rut = QString(rut).remove('-');
        for (int q = 0; q < 10; ++q) d.respuestas.push_back({q + 1, (q + n) % 5 + 1});
        Dibuja_Hoja(d).Guarda_Bmp(
            QDir(escaneo).filePath(QStringLiteral("h%1.bmp").arg(n, 3, 10, QChar('0'))), 1);
        return rut;
    }
    QProcess* Zorta(const QStringList& args) {
        auto* p = new QProcess;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("ZORTA_DATOS", carpeta.path());
        p->setProcessEnvironment(env);
        p->start(ZORTA_EJECUTABLE, QStringList{"corregir"} + args);
        procesos.emplace_back(p);
        return p;
    }
    int Termina(QProcess* p) {
        EXPECT_TRUE(p->waitForFinished(120000));
        salida = QString::fromUtf8(p->readAllStandardOutput());
        return p->exitCode();
    }
    int Guardados() {
        return Valor("select count(distinct rut_alumno) from respuesta_alumnos_por_rut").toInt();
    }
    QStringList En_Carpeta() {
        return QDir(escaneo).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    }

    QString escaneo, salida;
    std::vector<std::unique_ptr<QProcess>> procesos;
};

}  // namespace

TEST_F(ZortaCorregir, PrintsEveryBoxAndASummary) {
    const QString rut = Alumno_Con_Hoja(1);
    DisenoHoja sin_registro;
    sin_registro.filas_marcas = 1;
    Dibuja_Hoja(sin_registro).Guarda_Bmp(QDir(escaneo).filePath("x.bmp"), 1);
    EXPECT_EQ(Termina(Zorta({"--prueba", "7"})), 0);
    EXPECT_TRUE(salida.contains(
        "[Corrector ZORTA] La hoja esta fuera de los margenes maximos permitidos para la "
        "lectura. / La prueba x.bmp sera eliminada"))
        << salida.toStdString();
    EXPECT_TRUE(salida.contains("[Fin Coreccion] Se han Corregido la cantidad de 1 pruebas"));
    EXPECT_TRUE(salida.endsWith("Hojas leídas: 2, guardadas: 1, fallidas: 1\n"))
        << salida.toStdString();
    EXPECT_EQ(En_Carpeta(), QStringList{"no_guardadas"}) << "what was not stored is kept aside";
    EXPECT_TRUE(QFile::exists(QDir(escaneo).filePath("no_guardadas/x.bmp")));
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj where rut = ?", {rut}).toInt(), 1);

    // Read again: the replace question is answered OK, so the sheet replaces itself.
    Alumno_Con_Hoja(1);
    QDir(escaneo + "/no_guardadas").removeRecursively();
    EXPECT_EQ(Termina(Zorta({"--prueba", "7", "--carpeta", escaneo})), 0);
    EXPECT_TRUE(salida.contains("[Corrección de Pruebas] El rut " + rut +
                                " ya existe en la Base de Datos, desea reemplazarlo -> Aceptar"));
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), 10);
}

// Answers stored by a run that stopped before grading them are graded by the next
// `zorta corregir`, even with nothing left in the folder, and it says so.
TEST_F(ZortaCorregir, GradesStoredAnswersThatHaveNoResult) {
    const QString rut = Rut_Con_Digito(12345678);
    Ejecuta("insert into ALUMNOS values (?, 'Alumno', '1A', '')", {rut});
    for (int q = 0; q < 10; ++q)
        Ejecuta(
            "insert into respuesta_alumnos_por_rut (idprueba, pregunta, forma, alternativa, "
            "rut_alumno) values (7, ?, 1, ?, ?)",
            {q + 1, q < 8 ? kLetras[q] - 'A' + 1 : 6, rut});
    EXPECT_EQ(Termina(Zorta({"--prueba", "7"})), 0) << salida.toStdString();
    EXPECT_TRUE(
        salida.contains("Se calcularon las notas de 1 alumnos que tenían respuestas "
                        "grabadas y no tenían nota"))
        << salida.toStdString();
    EXPECT_EQ(
        Valor("select buenas || '/' || omitidas from ResultadoAlumnos_rj where rut = ?", {rut})
            .toString(),
        "8/2");
    EXPECT_EQ(Termina(Zorta({"--prueba", "7"})), 0);
    EXPECT_FALSE(salida.contains("Se calcularon las notas")) << "only once";
}

TEST_F(ZortaCorregir, ArgumentsAndExitStatus) {
    EXPECT_EQ(Termina(Zorta({"--help"})), 0);
    EXPECT_TRUE(salida.startsWith("Uso: zorta corregir --prueba N"));
    EXPECT_EQ(Termina(Zorta({})), 2);
    EXPECT_EQ(Termina(Zorta({"--prueba", "x"})), 2);
    EXPECT_EQ(Termina(Zorta({"--prueba", "9"})), 1) << "no such test";
    QFile::remove(Ruta("scaner.ini"));
    EXPECT_EQ(Termina(Zorta({"--prueba", "7"})), 1);
    EXPECT_TRUE(salida.contains(
        "[Error de ejecución] No se encuentra el archivo de configuración del escáner"));
}

// Kill soak: `zorta corregir` killed at many moments of its run: at random sheets, then right
// after the last sheet is stored, while it grades; then run to its end. Every sheet
// is stored once and every student graded. A long soak: ZORTA_SOAK_HOJAS (200 by default) and
// ZORTA_SOAK_MUERTES (16).
TEST_F(ZortaCorregir, KillSoakLosesNoSheetAndNoGrade) {
    const int hojas = qEnvironmentVariableIntValue("ZORTA_SOAK_HOJAS") ?: 200;
    const int muertes = qEnvironmentVariableIntValue("ZORTA_SOAK_MUERTES") ?: 16;
    for (int n = 0; n < hojas; ++n) Alumno_Con_Hoja(n);
    std::mt19937 azar(20261125);
    int al_corregir = 0;  // kills after the last sheet was stored and before it was graded
    for (int i = 0; i < muertes && !En_Carpeta().isEmpty(); ++i) {
        const int quedan = int(En_Carpeta().size());
        // Two kills in three at an early sheet of what is left, the rest while grading.
        const bool ultima = i >= muertes * 2 / 3;
        const int hoja = ultima ? quedan : int(azar() % std::max(1, quedan / 8)) + 1;
        QProcess* p = Zorta({"--prueba", "7"});
        QByteArray visto;
        const QByteArray marca = "Hoja " + QByteArray::number(hoja) + " de ";
        while (!visto.contains(marca) && p->waitForReadyRead(60000))
            visto += p->readAllStandardOutput();
        // The last sheet's kill waits for its commit, and lands while the run grades.
        for (int espera = 0; ultima && espera < 5000 && Guardados() < hojas; ++espera)
            QThread::msleep(1);
        QThread::msleep(azar() % (ultima ? 4 : 25));
        p->kill();
        p->waitForFinished();
        if (Guardados() == hojas &&
            Valor("select count(*) from ResultadoAlumnos_rj").toInt() < hojas)
            ++al_corregir;
    }
    std::printf("%d hojas, %d muertes, %d entre la última hoja y las notas\n", hojas, muertes,
                al_corregir);
    EXPECT_EQ(Termina(Zorta({"--prueba", "7"})), 0) << salida.toStdString();
    EXPECT_TRUE(En_Carpeta().isEmpty());
    EXPECT_EQ(Guardados(), hojas);
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut").toInt(), hojas * 10)
        << "none twice";
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj").toInt(), hojas);
    EXPECT_EQ(Valor("select count(*) from ResultadoAlumnos_rj where Buenas + Malas <> 10").toInt(),
              0);
}
