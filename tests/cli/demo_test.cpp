// `zorta demo` then `zorta corregir`: the demonstration of the main job, as the headless demo
// script runs it, ends with every student graded.
#include <gtest/gtest.h>

#include <QProcess>

#include "app/estado.h"
#include "app/inicio.h"
#include "platform/base_datos.h"
#include "support/base_temporal.h"

namespace {

class ZortaDemo : public BaseTemporal {
  protected:
    // Runs the executable on this test's data folder; its exit status and its output.
    std::pair<int, QString> Corre(const QStringList& args) {
        QProcess p;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert("ZORTA_DATOS", carpeta.path());
        p.setProcessEnvironment(entorno);
        p.start(ZORTA_EJECUTABLE, args);
        EXPECT_TRUE(p.waitForFinished(60000));
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput())};
    }
};

}  // namespace

TEST_F(ZortaDemo, TheDemonstrationIsReadAndGraded) {
    const auto [estado_demo, salida_demo] = Corre({"demo", "--alumnos", "6"});
    ASSERT_EQ(estado_demo, 0);
    EXPECT_TRUE(salida_demo.startsWith("Prueba 1 \"Ensayo de demostración\": 6 hojas en "))
        << salida_demo.toStdString();
    const auto [estado_corre, salida_corre] = Corre({"corregir", "--prueba", "1"});
    EXPECT_EQ(estado_corre, 0);
    EXPECT_TRUE(salida_corre.contains("[Valida Rut] Rut Incorrecto... "))
        << "the sheet with a wrong check character";
    EXPECT_TRUE(salida_corre.contains("Hojas leídas: 6, guardadas: 6, fallidas: 0"));
    ASSERT_TRUE(Arranca());
    EXPECT_EQ(
        Valor("select count(distinct rut) from ResultadoAlumnos_rj where idprueba = 1").toInt(), 5)
        << "the sheet without its form is stored but waits for a form to be graded";
    EXPECT_EQ(Valor("select count(*) from respuesta_alumnos_por_rut where forma = 99").toInt(), 30);
    EXPECT_EQ(Corre({"demo", "--alumnos", "1"}).first, 2);
}
