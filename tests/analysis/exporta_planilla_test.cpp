// Exporta_Planilla: where each report kind puts its cells, the "Spr_" rule, the required
// offsets, the files written and the failure box.
#include "analysis/exporta_planilla.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "app/estado.h"
#include "platform/grafico.h"
#include "platform/grilla.h"
#include "platform/planilla.h"
#include "platform/planilla_lectura.h"
#include "support/base_temporal.h"

namespace {

class Exportacion : public BaseTemporal {
  protected:
    void SetUp() override {
        BaseTemporal::SetUp();
        grafico.ChartData({"a", "b"}, {{1}, {2}});
        Estado& e = estado();
        e.Curso_Actual = "2° Medio B";
        e.Nombre_Prueba_Actual = "Diagnóstico";
        e.Asignatura_Actual = "Historia";
        e.Profesor_Actual = "Ana Díaz";
        e.Tipo_Analisis = "EJE TEMATICO";
    }
    // A grid whose cell (r, c) reads "r.c"; row heads "eje r".
    static Grilla Llena(int filas, int columnas) {
        Grilla g(filas, columnas);
        for (int r = 1; r <= filas; ++r) {
            g.FijaCelda(r, 0, QStringLiteral("eje %1").arg(r));
            for (int c = 1; c <= columnas; ++c)
                g.FijaCelda(r, c, QStringLiteral("%1.%2").arg(r).arg(c));
        }
        return g;
    }
    Hoja Arma(Grilla& g1, int16_t tipo, Grilla* g2 = nullptr, Grilla* superior = nullptr) {
        Hoja h(QStringLiteral("Hoja2"));
        Arma_Planilla(h, g1, g2 ? *g2 : g1, tipo, {&grafico, superior ? superior : &g1});
        return h;
    }
    static bool Encabezado(const Hoja& h, int f, int c) {
        const CeldaHoja* x = h.Celda(f, c);
        return x && x->fondo == 41 && x->color_letra == 2 && x->negrita;
    }
    Grafico grafico;
};

TEST_F(Exportacion, TipoFueraDeRangoCopiaLaGrillaSinFormatoYGraba) {
    for (int16_t tipo : {0, 10, -1}) {
        Grilla g = Llena(2, 3);
        g.FijaCelda(1, 2, "x Spr_x");
        const QString ruta = Ruta(QStringLiteral("t%1.xlsx").arg(tipo));
        ASSERT_TRUE(Exporta_Planilla(ruta, g, g, tipo));
        const PlanillaLectura l = PlanillaLectura::Abre(ruta);
        EXPECT_EQ(l.Celda(1, "A"), "");
        EXPECT_EQ(l.Celda(2, "A"), "1.1");
        EXPECT_EQ(l.Celda(2, "B"), "");  // marked cell skipped, its neighbour still copied
        EXPECT_EQ(l.Celda(2, "C"), "1.3");
        EXPECT_EQ(l.Celda(3, "C"), "2.3");
        const Hoja h = Arma(g, tipo);
        EXPECT_EQ(h.Name, "Hoja2");
        EXPECT_FALSE(Encabezado(h, 2, 1));
    }
}

TEST_F(Exportacion, Tipo2IdentidadEnFila2YGrillaDesdeLaColumnaF) {
    Grilla g = Llena(12, 5);
    const Hoja h = Arma(g, 2);
    EXPECT_EQ(h.Name, "Analisis Cualitativo Prueba");
    const QStringList fila1 = {"CURSO", "PRUEBA", "ASIGNATURA", "PROFESOR",
                               "",      "RANGO",  "ALUMNO",     "PROCENTAJE"};
    for (int c = 1; c <= 8; ++c) {
        EXPECT_EQ(h.Valor(1, c), fila1[c - 1]);
        EXPECT_EQ(Encabezado(h, 1, c), c != 5) << c;
    }
    EXPECT_EQ(h.Celda(1, 1)->tamano, 10);  // the title's size over the heading's
    EXPECT_EQ(h.Celda(1, 1)->estilo_letra, "Arial");
    EXPECT_EQ(h.Uniones().front(), (Area{1, 1, 1, 1}));  // a one-cell title is merged too
    EXPECT_EQ(QStringList({h.Valor(2, 1), h.Valor(2, 2), h.Valor(2, 3), h.Valor(2, 4)}),
              QStringList({"2° Medio B", "Diagnóstico", "Historia", "Ana Díaz"}));
    EXPECT_EQ(h.Valor(3, 6), "1.1");
    EXPECT_EQ(h.Valor(3, 8), "1.3");
    EXPECT_EQ(h.Valor(4, 10), "2.5");
    EXPECT_EQ(h.Valor(14, 6), "12.1");
    const std::map<int, double> anchos = {{1, 10}, {2, 10}, {3, 25}, {4, 50}, {5, 2},
                                          {6, 10}, {7, 10}, {8, 10}, {9, 2},  {10, 50}};
    EXPECT_EQ(h.Anchos(), anchos);
    ASSERT_EQ(h.Imagenes().size(), 1u);
    EXPECT_EQ(h.Imagenes()[0].izquierda, 50);
    EXPECT_EQ(h.Imagenes()[0].arriba, 250);
    EXPECT_EQ(h.Imagenes()[0].ancho, 600);
}

TEST_F(Exportacion, Tipo1NumeraLasFilasYLaFrecuenciaEntraPorLaColumnaH) {
    Grilla aciertos = Llena(2, 6);
    Grilla frecuencia = Llena(2, 13);
    frecuencia.FijaCelda(2, 0, "1");
    const Hoja h = Arma(aciertos, 1, &frecuencia);
    EXPECT_EQ(h.Name, "Aciertos y Frecuencia");
    EXPECT_EQ(h.Valor(2, 1), "Pregunta");
    EXPECT_EQ(QStringList({h.Valor(3, 1), h.Valor(4, 1)}), QStringList({"1", "2"}));
    EXPECT_EQ(h.Valor(3, 2), "1.1");
    EXPECT_EQ(h.Valor(1, 2), "BUENAS");
    EXPECT_EQ(h.Valor(1, 19), "OMITIDAS");
    EXPECT_EQ(h.Valor(2, 20), "Porcentaje");
    EXPECT_EQ(h.Valor(3, 8), "eje 1");  // column 0 in the unstyled column H
    EXPECT_EQ(h.Valor(4, 8), "1");
    EXPECT_EQ(h.Valor(3, 20), "1.12");
    EXPECT_EQ(h.Valor(3, 21), "");  // the last column stays out
    EXPECT_FALSE(Encabezado(h, 1, 8));
    EXPECT_TRUE(Encabezado(h, 2, 20));
    EXPECT_EQ(h.Imagenes()[0].arriba, 750);
}

TEST_F(Exportacion, Tipos3Y4DejanLaFila2Vacia) {
    for (int16_t tipo : {3, 4}) {
        Grilla g = Llena(1, 3);
        const Hoja h = Arma(g, tipo);
        EXPECT_EQ(h.Name, tipo == 3 ? "Ensayo PSU" : "Ensayo SIMCE");
        EXPECT_EQ(h.Valor(1, 8), tipo == 3 ? "Nivel Medio" : "PUNTAJE SIMCE");
        EXPECT_EQ(h.Valor(2, 1), "");
        EXPECT_EQ(h.Valor(3, 1), "1.1");
        EXPECT_EQ(h.Anchos().at(2), 40);
        EXPECT_EQ(h.Imagenes()[0].arriba, 450);
    }
}

TEST_F(Exportacion, Tipo6ConVeintiunEjes) {
    Grilla g = Llena(21, 3);
    g.FijaCelda(1, 0, "historia");
    const Hoja h = Arma(g, 6);
    EXPECT_EQ(h.Name, "Analisis Ejes Tematicos");
    EXPECT_EQ(h.Valor(1, 2), "HISTORIA");
    EXPECT_EQ(h.Valor(2, 2), "FORMA");
    EXPECT_EQ(h.Valor(2, 7), "LOGRO");
    // From group 2 on the title stands one column left of its labels.
    EXPECT_EQ(h.Valor(1, 7), "EJE 2");
    EXPECT_EQ(h.Valor(2, 7), "LOGRO");
    EXPECT_EQ(h.Valor(2, 8), "BUENAS");
    const auto& u = h.Uniones();
    EXPECT_NE(std::find(u.begin(), u.end(), Area{1, 7, 1, 11}), u.end());
    EXPECT_NE(std::find(u.begin(), u.end(), Area{1, 93, 1, 96}), u.end());  // group 19, short
    EXPECT_EQ(h.Valor(1, 93), "EJE 19");
    EXPECT_EQ(h.Valor(2, 102), "LOGRO");
    // Group 21: element 25 of the name table, empty here, and no labels.
    EXPECT_EQ(h.Valor(1, 122), "");
    EXPECT_EQ(h.Valor(2, 103), "");
    EXPECT_EQ(h.Valor(23, 1), "EJE 21");
    EXPECT_EQ(h.Valor(3, 2), "1.1");
    EXPECT_EQ(h.Anchos().at(1), 45);
    EXPECT_TRUE(Encabezado(h, 23, 1));
    estado().Tipo_Analisis = "HABILIDAD";
    EXPECT_EQ(Arma(g, 6).Name, "Analisis Habilidades");
}

TEST_F(Exportacion, Tipo7DejaFueraLaUltimaFilaYMarcaLosPorcentajes) {
    Grilla g = Llena(3, 9);
    const Hoja h = Arma(g, 7);
    EXPECT_EQ(h.Name, "Hoja2");
    EXPECT_EQ(h.Valor(4, 2), "EJE TEMATICO");
    EXPECT_EQ(h.Valor(4, 3), "N°");
    EXPECT_EQ(h.Valor(5, 1), "2° Medio B");
    EXPECT_EQ(h.Valor(5, 2), "1.1");
    EXPECT_EQ(h.Valor(5, 4), "1.3%");
    EXPECT_EQ(h.Valor(6, 10), "2.9%");
    EXPECT_EQ(h.Valor(7, 2), "");
    EXPECT_EQ(h.Anchos().at(1), 21);
}

TEST_F(Exportacion, Tipo8NoExportaLasDosPrimerasFilas) {
    Grilla corta = Llena(2, 6);
    EXPECT_EQ(Arma(corta, 8).Valor(2, 1), "2° Medio B");
    EXPECT_EQ(Arma(corta, 8).Celdas().count({1, 1}), 0u);
    Grilla g = Llena(4, 6);
    const Hoja h = Arma(g, 8);
    EXPECT_EQ(h.Valor(1, 2), " RESPUESTAS ");
    EXPECT_EQ(h.Valor(2, 2), " BUENAS");
    EXPECT_EQ(h.Valor(2, 7), " CALIFICACION ");
    EXPECT_EQ(h.Valor(3, 1), "3.1");
    EXPECT_EQ(h.Valor(4, 6), "4.6");
    EXPECT_EQ(h.Anchos().at(7), 15);
}

TEST_F(Exportacion, Tipo9LaColumna1SobreescribeElNombre) {
    Grilla g = Llena(2, 3);
    g.FijaCelda(2, 1, "Spr_oculta");
    const Hoja h = Arma(g, 9);
    EXPECT_EQ(h.Name, "Analisis Ejes Tematicos SEP");
    EXPECT_EQ(h.Valor(1, 1), "2° Medio B");
    EXPECT_EQ(h.Valor(1, 3), "EJE 1");
    EXPECT_EQ(h.Valor(2, 3), "BUENAS");
    EXPECT_EQ(h.Valor(3, 1), "1.1");
    EXPECT_EQ(h.Valor(4, 1), "EJE 2");
    EXPECT_EQ(h.Imagenes()[0].izquierda, 200);
}

TEST_F(Exportacion, Tipo5NombraLosEjesEnMayusculas) {
    Grilla g = Llena(2, 7);
    const Hoja h = Arma(g, 5);
    EXPECT_EQ(h.Valor(1, 8), "RENDIMIENTO");
    EXPECT_EQ(h.Valor(2, 1), "EJE 1");
    EXPECT_EQ(h.Valor(2, 2), "1.1");
    EXPECT_TRUE(Encabezado(h, 3, 1));
    EXPECT_FALSE(Encabezado(h, 4, 1));
}

// The picture shows the chart: the bar of 2 stands twice as tall as the bar of 1, whichever
// report carries it, and no screen has to have drawn the chart before.
TEST_F(Exportacion, ElGraficoDeLaPlanillaMuestraSusDatos) {
    for (int16_t tipo : {1, 2, 3, 4, 5, 9}) {
        Grilla g = Llena(2, 7);
        const Hoja h = Arma(g, tipo);
        ASSERT_EQ(h.Imagenes().size(), 1u) << tipo;
        QImage imagen;
        ASSERT_TRUE(imagen.loadFromData(h.Imagenes()[0].png));
        const QRgb barra = Color_Serie(0).rgb();
        int izquierda = 0, derecha = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixel(x, y) == barra) ++(x < imagen.width() / 2 ? izquierda : derecha);
        ASSERT_GT(izquierda, 1000) << tipo;
        EXPECT_NEAR(double(derecha) / izquierda, 2.0, 0.05) << tipo;
    }
}

TEST_F(Exportacion, UnErrorAvisaYNoGraba) {
    Grilla g = Llena(26, 2);  // a 26th axis has no place in the name table
    for (int16_t tipo : {6, 7, 9}) {
        guion->Espera("Exportacion Excel");
        EXPECT_FALSE(Exporta_Planilla(Ruta("e.xlsx"), g, g, tipo, {&grafico, &g}));
        EXPECT_EQ(guion->cajas.back().texto,
                  "Ha ocurrido un error inesperado, intentelo nuevamente");
        EXPECT_EQ(guion->cajas.back().estilo, vbExclamation);
        EXPECT_FALSE(QFile::exists(Ruta("e.xlsx")));
    }
    g.FijaCelda(26, 0, "");
    EXPECT_TRUE(Exporta_Planilla(Ruta("e.xlsx"), g, g, 6, {&grafico, &g}));
}

}  // namespace
