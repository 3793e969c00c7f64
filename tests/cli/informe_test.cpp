// `zorta informe` as a child process on a real store: every report kind, the same cells as the
// screen's own export, and the refusals with their exit status.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include "analysis/screens/frm_analisis_cua.h"
#include "analysis/screens/frm_habili_objet.h"
#include "analysis/screens/frm_por_pregunta.h"
#include "app/estado.h"
#include "grading/screens/frm_psu.h"
#include "platform/planilla_lectura.h"
#include "store/copias_prueba.h"
#include "support/base_temporal.h"
#include "support/prueba_informes.h"

namespace {

class ZortaInforme : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Crea_Prueba_Informes(1, QStringLiteral("3° Medio A"), 30);
        Ejecuta(
            "insert into prueba_rj values (2, 'Sin corregir', 'GENERAL', 'Ana Díaz', "
            "'Matemática', '3° Medio A', 1, '02-03-2026', 40, 0, 5, 'S', 1)");
    }
    // Runs the command; its exit status, with what it wrote to stderr in `err`.
    int Zorta(const QStringList& args, QString* err = nullptr) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("ZORTA_DATOS", carpeta.path());
        p.setProcessEnvironment(env);
        p.start(ZORTA_EJECUTABLE, QStringList{"informe"} + args);
        EXPECT_TRUE(p.waitForFinished(120000));
        if (err) *err = QString::fromUtf8(p.readAllStandardError());
        return p.exitCode();
    }
    int Informe(const QString& tipo, const QString& salida, const QStringList& mas = {}) {
        return Zorta(QStringList{"--prueba", "1", "--tipo", tipo, "--salida", Ruta(salida)} + mas);
    }
    // Every cell of the first 130 columns.
    static QStringList Celdas(const QString& ruta) {
        const PlanillaLectura l = PlanillaLectura::Abre(ruta);
        QStringList c;
        for (int f = 1; f <= l.Filas(); ++f)
            for (int k = 1; k <= 130; ++k) {
                QString letras;
                for (int n = k; n > 0; n = (n - 1) / 26) letras.prepend(QChar(u'A' + (n - 1) % 26));
                c << l.Celda(f, letras);
            }
        return c;
    }
    // The file the screen's button writes under `nombre`.
    template <class Pantalla>
    QString Exporta_Pantalla(Pantalla& p, void (Pantalla::*boton)(), const QString& nombre,
                             const QString& titulo) {
        guion->EsperaArchivo(Ruta(nombre));
        guion->Espera(titulo);
        (p.*boton)();
        return Ruta(nombre);
    }
};

// What the command writes is what the screen's button writes, cell for cell.
TEST_F(ZortaInforme, LasMismasCeldasQueLaPantalla) {
    ASSERT_TRUE(Fija_Prueba_Actual(1));
    estado().Tipo_Analisis = "EJE TEMATICO";
    FrmAnalisis_Cua cua;
    FrmPorPregunta pregunta;
    FrmHabiliObjet ejes;
    FrmPsu psu;
    const QString por_forma = "Exportación Excel Por Forma";
    const struct {
        QString pantalla, tipo;
        QStringList mas;
        QString comando;
    } casos[] = {
        {Exporta_Pantalla(cua, &FrmAnalisis_Cua::XPButton3_Click, "p2.xlsx", "Zorta"),
         "curso",
         {},
         "c2.xlsx"},
        {Exporta_Pantalla(pregunta, &FrmPorPregunta::XPButton1_Click, "p1.xlsx",
                          "Exportación Excel Analisis por Pregunta"),
         "pregunta",
         {},
         "c1.xlsx"},
        {Exporta_Pantalla(ejes, &FrmHabiliObjet::XPButton1_Click, "p5.xlsx", por_forma),
         "ejes",
         {},
         "c5.xlsx"},
        {Exporta_Pantalla(ejes, &FrmHabiliObjet::XPButton6_Click, "p6.xlsx", por_forma),
         "ejes",
         {"--planilla", "logros-sep"},
         "c6.xlsx"},
        {Exporta_Pantalla(psu, &FrmPsu::XPButton1_Click, "p3.xlsx", "Zorta"), "psu", {}, "c3.xlsx"},
    };
    for (const auto& c : casos) {
        ASSERT_EQ(Informe(c.tipo, c.comando, c.mas), 0) << c.comando.toStdString();
        for (const QString& forma :
             {QString(), QStringLiteral("_FORMA_1"), QStringLiteral("_FORMA_2")}) {
            const QString p = QString(c.pantalla).replace(".xlsx", forma + ".xlsx");
            const QString k = Ruta(c.comando).replace(".xlsx", forma + ".xlsx");
            ASSERT_EQ(QFile::exists(p), QFile::exists(k)) << k.toStdString();
            if (QFile::exists(p)) {
                EXPECT_EQ(Celdas(p), Celdas(k)) << k.toStdString();
            }
        }
    }
}

TEST_F(ZortaInforme, CadaTipoEscribeSuPlanilla) {
    const struct {
        const char* tipo;
        QStringList mas;
        const char* celda;
        const char* texto;
    } casos[] = {
        {"curso", {}, "F1", "RANGO"},
        {"pregunta", {"--forma", "2"}, "B1", "BUENAS"},
        {"ejes", {"--forma", "1"}, "B1", "CANTIDAD"},
        {"habilidades", {"--forma", "1", "--planilla", "alumnos"}, "B2", "FORMA"},
        {"ejes", {"--forma", "1", "--planilla", "resultados-sep"}, "B1", "LOGROS DEL CURSO"},
        {"ejes", {"--forma", "1", "--planilla", "solo-sep"}, "B2", " BUENAS"},
        {"ejes", {"--forma", "1", "--planilla", "logros-sep"}, "C2", "BUENAS"},
        {"sep",
         {"--forma", "1", "--modo", "ejes", "--planilla", "resultados-sep"},
         "B5",
         "álgebra"},
        {"psu", {}, "J1", "Puntaje Corregido"},
        {"simce", {}, "H1", "PUNTAJE SIMCE"},
        {"correccion", {}, "C1", "Nombre"},
    };
    int n = 0;
    for (const auto& c : casos) {
        const QString salida = QStringLiteral("k%1.xlsx").arg(++n);
        ASSERT_EQ(Informe(c.tipo, salida, c.mas), 0) << c.tipo;
        const QString celda = QString::fromLatin1(c.celda);
        EXPECT_EQ(PlanillaLectura::Abre(Ruta(salida)).Celda(celda.mid(1).toInt(), celda.left(1)),
                  QString::fromUtf8(c.texto))
            << c.tipo;
    }
}

TEST_F(ZortaInforme, RechazaConMensajeYEstado2) {
    const struct {
        QStringList args;
        const char* mensaje;
    } casos[] = {
        {{"--prueba", "2", "--tipo", "curso", "--salida", "x.xlsx"},
         "zorta informe: la prueba 2 no tiene resultados"},
        {{"--prueba", "1", "--tipo", "notas", "--salida", "x.xlsx"},
         "zorta informe: tipo de informe desconocido: notas"},
        {{"--prueba", "9", "--tipo", "curso", "--salida", "x.xlsx"},
         "zorta informe: no existe la prueba 9"},
        {{"--prueba", "1", "--tipo", "curso", "--salida", "/no/existe/x.xlsx"},
         "zorta informe: no se escribió /no/existe/x.xlsx"},
        {{"--prueba", "1", "--tipo", "curso"}, "zorta informe: opciones no válidas"},
    };
    for (const auto& c : casos) {
        QString err;
        EXPECT_EQ(Zorta(c.args, &err), 2) << c.mensaje;
        EXPECT_TRUE(err.contains(QString::fromUtf8(c.mensaje))) << err.toStdString();
    }
}

}  // namespace
