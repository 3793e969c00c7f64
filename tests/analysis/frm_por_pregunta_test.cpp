// The per-question analysis: shares and their roundings, the walk over the sorted lists with
// its stop flag, the load for one and for several forms, the export and the boxes.
#include "analysis/screens/frm_por_pregunta.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>

#include "analysis/analisis_pregunta.h"
#include "app/estado.h"
#include "platform/planilla_lectura.h"
#include "support/base_temporal.h"

namespace {

using Pares = std::vector<std::pair<int, int>>;

Grilla Lista(const Pares& pares) {
    Grilla g(static_cast<int>(pares.size()), 2);
    for (size_t i = 0; i < pares.size(); ++i) {
        g.FijaCelda(static_cast<int>(i) + 1, 1, QString::number(pares[i].first));
        g.FijaCelda(static_cast<int>(i) + 1, 2, QString::number(pares[i].second));
    }
    return g;
}

// Rows of a table, cells from column 1 to `columnas` joined by blanks; "vacía" for a spare row.
QStringList Filas(const Grilla& g, int columnas) {
    QStringList filas;
    for (int r = 1; r <= g.MaxRows(); ++r) {
        QStringList celdas;
        for (int c = 1; c <= columnas; ++c) celdas << g.Celda(r, c);
        const QString fila = celdas.join(' ');
        filas << (fila.trimmed().isEmpty() ? QStringLiteral("vacía") : fila);
    }
    return filas;
}

TEST(AnalisisPregunta, PorcentajeSinDecimalesEmpateAlPar) {
    const struct {
        int cantidad, total;
        const char* texto;
    } casos[] = {{1, 3, "33"}, {2, 3, "67"}, {1, 8, "12"}, {3, 8, "38"},  {5, 8, "62"},
                 {1, 2, "50"}, {0, 0, "0"},  {0, 4, "0"},  {4, 4, "100"}, {1, 40, "2"}};
    for (const auto& c : casos)
        EXPECT_EQ(Porcentaje_Pregunta(c.cantidad, c.total), c.texto)
            << c.cantidad << "/" << c.total;
}

TEST(AnalisisPregunta, ArchivoDeCadaFormaPartidoEnElPrimerPunto) {
    EXPECT_EQ(Archivo_Forma("informe.xlsx", 1), "informe_FORMA_1.xlsx");
    EXPECT_EQ(Archivo_Forma("informe", 2), "informe_FORMA_2..xlsx");
    EXPECT_EQ(Archivo_Forma("a.b.csv", 3), "a_FORMA_3.b.csv");
}

TEST(AnalisisPregunta, RecorridoDeLasListasOrdenadas) {
    const struct {
        const char* caso;
        Pares pauta, respuestas;
        QStringList aciertos, frecuencias;
    } casos[] = {
        // Question 2 has no answers: zeros, nothing deleted. The last walk meets an empty row
        // left by the deletions: it stops there and no spare row is added. Key 6 marked 6 is right.
        {"tres preguntas",
         {{1, 1}, {2, 2}, {3, 6}},
         {{1, 1}, {1, 1}, {1, 2}, {1, 6}, {3, 3}, {3, 6}, {3, 6}},
         {"2 50 1 25 1 25", "0 0 0 0 0 0", "2 67 1 33 0 0"},
         {"2 50 1 25 0 0 0 0 0 0 1 25", "0 0 0 0 0 0 0 0 0 0 0 0", "0 0 0 0 1 33 0 0 0 0 2 67"}},
        // One question walks every row: no stop, the spare row stays. 1 of 8 is 12, 7 of 8 is 88.
        {"una pregunta",
         {{1, 3}},
         {{1, 1}, {1, 3}, {1, 3}, {1, 3}, {1, 3}, {1, 3}, {1, 3}, {1, 3}},
         {"7 88 1 12 0 0", "vacía"},
         {"1 12 0 0 7 88 0 0 0 0 0 0", "vacía"}},
        // A null answer (7) is wrong, but no alternative: the shares of the frequencies leave it
        // out.
        {"codigo 7",
         {{1, 1}},
         {{1, 1}, {1, 7}},
         {"1 50 1 50 0 0", "vacía"},
         {"1 100 0 0 0 0 0 0 0 0 0 0", "vacía"}},
        // An answer to a question the key lacks is never deleted: every later walk stops on it.
        {"pregunta fuera de la pauta",
         {{1, 1}, {3, 1}, {4, 1}},
         {{1, 1}, {2, 1}, {3, 1}, {4, 1}},
         {"1 100 0 0 0 0", "0 0 0 0 0 0", "0 0 0 0 0 0", "vacía"},
         {"1 100 0 0 0 0 0 0 0 0 0 0", "0 0 0 0 0 0 0 0 0 0 0 0", "0 0 0 0 0 0 0 0 0 0 0 0",
          "vacía"}},
    };
    for (const auto& c : casos) {
        const Grilla pauta = Lista(c.pauta);
        Grilla respuestas = Lista(c.respuestas);
        Grilla aciertos(0, 8);
        Pongo_Aciertos(respuestas, pauta, aciertos);
        EXPECT_EQ(Filas(aciertos, 6), c.aciertos) << c.caso;
        respuestas = Lista(c.respuestas);
        Grilla frecuencias(0, 14);
        Pongo_Frecuencias(respuestas, pauta, frecuencias);
        EXPECT_EQ(Filas(frecuencias, 12), c.frecuencias) << c.caso;
    }
}

class PorPregunta : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Ejecuta(
            "insert into prueba_rj values (7, 'Control 2', 'GENERAL', 'Luis Soto', "
            "'Química', '3° Medio A', 1, '02-03-2026', 3, 0, 5, 'S', null)");
        Estado& e = estado();
        e.Id_Prueba_Actual = 7;
        e.Nombre_Prueba_Actual = "Control 2";
        e.Profesor_Actual = "Luis Soto";
        e.Curso_Actual = "3° Medio A";
        e.Tipo_Prueba_Actual = "GENERAL";
        e.Asignatura_Actual = "Química";
    }
    void Pauta(int forma, const Pares& pares) {
        for (const auto& [p, a] : pares)
            Ejecuta("insert into Resp_preguntas_pautas values (7, ?, ?, ?)", {p, forma, a});
    }
    // Answers stored in no particular order; the query sorts them.
    void Respuestas(int forma, const Pares& pares) {
        int alumno = 0;
        for (const auto& [p, a] : pares)
            Ejecuta("insert into respuesta_alumnos_por_rut values (7, ?, ?, ?, ?)",
                    {p, forma, a, QString("%1-K").arg(++alumno)});
    }
    void Ocho_Preguntas() {
        Pauta(1, {{1, 2}, {2, 1}, {3, 4}, {4, 5}, {5, 3}, {6, 1}, {7, 2}, {8, 3}});
        Respuestas(1, {{1, 2},
                       {1, 2},
                       {1, 3},
                       {2, 1},
                       {2, 6},
                       {3, 4},
                       {3, 1},
                       {3, 4},
                       {4, 5},
                       {4, 2},
                       {5, 3},
                       {5, 3},
                       {6, 6},
                       {6, 1},
                       {7, 2},
                       {7, 4},
                       {8, 3},
                       {8, 3}});
    }
};

TEST_F(PorPregunta, UnaFormaSeCalculaAlCargar) {
    Pauta(1, {{1, 2}, {2, 1}, {3, 4}});
    Respuestas(1, {{2, 6}, {1, 2}, {3, 4}, {1, 5}, {2, 1}, {3, 4}, {1, 2}});
    Respuestas(2, {{1, 1}});
    FrmPorPregunta f;
    EXPECT_TRUE(f.FrameFormas->isHidden());
    EXPECT_EQ(f.CboFormas->count(), 1);
    EXPECT_EQ(Filas(f.SprAciertos, 6),
              QStringList({"2 67 1 33 0 0", "1 50 0 0 1 50", "2 100 0 0 0 0"}));
    EXPECT_EQ(Filas(f.SprFrecuencia, 12).value(0), "0 0 2 67 0 0 0 0 1 33 0 0");
    EXPECT_EQ(f.MSChart1.datos,
              (std::vector<std::vector<double>>{{1, 2, 0}, {0, 1, 1}, {0, 2, 0}}));
    EXPECT_EQ(f.MSChart1.chartType, 1);
}

TEST_F(PorPregunta, ElBloqueDeLaPruebaLlenaLasFilas2A7) {
    Ocho_Preguntas();
    FrmPorPregunta f;
    const QStringList esperado = {"Nombre Prueba : Control 2", "Profesor      : Luis Soto",
                                  "Curso         : 3° Medio A", "Tipo Prueba   : GENERAL",
                                  "Asignatura    : Química"};
    for (int r = 2; r <= 6; ++r) {
        EXPECT_EQ(f.SprAciertos.Celda(r, 8), esperado[r - 2]);
        EXPECT_EQ(f.SprFrecuencia.Celda(r, 14), esperado[r - 2]);
    }
    EXPECT_TRUE(f.SprAciertos.Celda(7, 8).startsWith("Fecha         : "));
}

TEST_F(PorPregunta, SinRespuestasSoloLaPrimeraPreguntaLlevaCeros) {
    Pauta(1, {{1, 1}, {2, 1}, {3, 1}});
    FrmPorPregunta f;
    EXPECT_EQ(Filas(f.SprAciertos, 6), QStringList({"0 0 0 0 0 0"}));
    EXPECT_EQ(Filas(f.SprFrecuencia, 12), QStringList({"0 0 0 0 0 0 0 0 0 0 0 0"}));
}

TEST_F(PorPregunta, SinPruebaAvisaYQuedaVacia) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Corrección de pruebas");
    FrmPorPregunta f;
    ASSERT_EQ(guion->cajas.size(), 1u);
    EXPECT_EQ(guion->cajas[0].texto,
              "UD. no tiene asociado a una prueba para esta carga, verifique sus datos");
    EXPECT_EQ(guion->cajas[0].estilo, vbCritical);
    EXPECT_EQ(f.SprAciertos.MaxRows(), 0);
}

TEST_F(PorPregunta, UnaFormaExportaUnArchivoConElNombreEscrito) {
    Pauta(1, {{1, 2}, {2, 1}});
    Respuestas(1, {{1, 2}, {1, 3}, {1, 3}, {2, 6}});
    FrmPorPregunta f;
    const QString ruta = Ruta("preguntas.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Zorta");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en " + ruta);
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);
    const PlanillaLectura l = PlanillaLectura::Abre(ruta);
    EXPECT_EQ(l.Celda(3, "A"), "1");
    EXPECT_EQ(QStringList({l.Celda(3, "B"), l.Celda(3, "C"), l.Celda(3, "D"), l.Celda(3, "E")}),
              QStringList({"1", "33", "2", "67"}));
    EXPECT_EQ(l.Celda(4, "F"), "1");
    // The frequencies start at H with the grid's column 0: they cover the test's block in I.
    EXPECT_EQ(QStringList({l.Celda(3, "I"), l.Celda(3, "J"), l.Celda(3, "K"), l.Celda(3, "L"),
                           l.Celda(3, "M"), l.Celda(3, "N")}),
              QStringList({"0", "0", "1", "33", "2", "67"}));
    EXPECT_EQ(l.Celda(1, "I"), "ALTERNATIVA A");
}

TEST_F(PorPregunta, VariasFormasEsperanLaEleccionYExportanCadaForma) {
    Pauta(1, {{1, 1}, {2, 2}});
    Pauta(2, {{1, 3}});
    Respuestas(1, {{1, 1}, {2, 1}});
    Respuestas(2, {{1, 3}, {1, 3}, {1, 6}});
    FrmPorPregunta f;
    EXPECT_FALSE(f.FrameFormas->isHidden());
    EXPECT_EQ(f.SprAciertos.MaxRows(), 0);
    f.CboFormas->setCurrentIndex(1);
    f.CboFormas_Click();
    EXPECT_EQ(Filas(f.SprAciertos, 6), QStringList({"2 67 0 0 1 33", "vacía"}));
    // The fill emptied the tables: the test's block is not written again.
    EXPECT_EQ(f.SprAciertos.Celda(2, 8), "");

    f.CboFormas->setCurrentIndex(0);
    const QString nombre = Ruta("resumen");
    guion->EsperaArchivo(nombre);
    guion->Espera("Exportación Excel Analisis por Pregunta");
    f.XPButton1_Click();
    const QString primera = nombre + "_FORMA_1..xlsx", segunda = nombre + "_FORMA_2..xlsx";
    EXPECT_EQ(guion->cajas.back().texto,
              " Datos exportados en \r" + primera + "\r \r" + segunda + "\r ");
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);
    EXPECT_EQ(PlanillaLectura::Abre(primera).Celda(4, "D"), "1");
    EXPECT_EQ(PlanillaLectura::Abre(segunda).Celda(3, "B"), "2");
    // The screen ends on the last form, whatever the list shows.
    EXPECT_EQ(f.CboFormas->currentText(), "1");
    EXPECT_EQ(f.SprAciertos.Celda(1, 1), "2");
}

TEST_F(PorPregunta, SinPautaLaExportacionNoEscribeNada) {
    FrmPorPregunta f;
    guion->EsperaArchivo(Ruta("nada.xlsx"));
    guion->Espera("Exportación Excel Analisis por Pregunta");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en ");
    EXPECT_FALSE(QFile::exists(Ruta("nada.xlsx")));
    guion->EsperaArchivo(" ");
    f.XPButton1_Click();
    EXPECT_TRUE(guion->Agotado());
}

TEST_F(PorPregunta, Captura) {
    const QString carpeta = qEnvironmentVariable("ZORTA_CAPTURAS");
    if (carpeta.isEmpty()) GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
    Ocho_Preguntas();
    FrmPorPregunta f;
    f.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(f.grab().save(QDir(carpeta).filePath("frm_por_pregunta.png")));
}

}  // namespace
