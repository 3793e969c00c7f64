// The chart layer: a chart as the system keeps it (type code, rows of data by series, row
// labels) and its picture for the spreadsheets, drawn here with QPainter so that a report
// written without any screen has its chart too. The screens show the same data with Qt Charts.
#pragma once

#include <QColor>
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

    // Writes the chart as a PNG picture of `tamano` pixels; ErrorEjecucion when the file can't
    // be written.
    void Guarda_Imagen(const QString& ruta, QSize tamano = {800, 400}) const;
};

// The chart's picture: white ground, value axis from 0 with its grid, one bar group (or one
// point of each line, for code 3) per row, the row labels below and the series' legend above.
QImage Dibuja_Grafico(const Grafico& grafico, QSize tamano);
// The colour of series `s`, the same on screen and in the picture.
QColor Color_Serie(size_t s);
