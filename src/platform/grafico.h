// The chart layer: a chart as the system keeps it (type code, rows of data by series, row
// labels) and its picture for the spreadsheets. Drawing belongs to the screens layer, which
// installs it; the core only asks for a picture.
#pragma once

#include <QImage>
#include <QSize>
#include <QStringList>
#include <functional>
#include <vector>

// Chart type codes as the system stores them.
enum TipoGrafico : int {
    GraficoBarras3D = 0,
    GraficoBarras2D = 1,
    GraficoLineas2D = 3,
};

class Grafico {
  public:
    int chartType = GraficoBarras2D;
    QStringList etiquetas;                   // one per data row
    QStringList series;                      // one name per series
    std::vector<std::vector<double>> datos;  // [row][series]

    // The chart's data: each row a label and its values, one per series.
    void ChartData(const QStringList& etiquetas_filas,
                   const std::vector<std::vector<double>>& filas);
    // Redraws whoever shows the chart.
    void Refresh() const;
    std::function<void()> al_refrescar;

    // Writes the chart as a PNG picture of `tamano` pixels; ErrorEjecucion when no drawing is
    // installed or the file can't be written.
    void Guarda_Imagen(const QString& ruta, QSize tamano = {800, 400}) const;
};

// How charts are drawn to a picture; installed by the chart view of the screens layer.
using DibujoGrafico = std::function<QImage(const Grafico&, QSize)>;
void Instala_Dibujo_Graficos(DibujoGrafico dibujo);
