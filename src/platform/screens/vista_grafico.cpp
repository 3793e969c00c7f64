// Shows a Grafico with Qt Charts, and draws its picture for the spreadsheets.
#include "platform/screens/vista_grafico.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QLineSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

namespace {

double Maximo(const Grafico& g) {
    double m = 0;
    for (const auto& fila : g.datos)
        for (double v : fila) m = std::max(m, v);
    return m;
}

QString Serie(const Grafico& g, size_t s) {
    return static_cast<qsizetype>(s) < g.series.size() ? g.series[s] : QString();
}

void Agrega_Barras(QChart* chart, const Grafico& g, size_t series) {
    auto* barras = new QBarSeries;
    for (size_t s = 0; s < series; ++s) {
        auto* conjunto = new QBarSet(Serie(g, s));
        conjunto->setColor(Color_Serie(s));
        for (const auto& fila : g.datos) *conjunto << (s < fila.size() ? fila[s] : 0);
        barras->append(conjunto);
    }
    chart->addSeries(barras);
}

void Agrega_Lineas(QChart* chart, const Grafico& g, size_t series) {
    for (size_t s = 0; s < series; ++s) {
        auto* linea = new QLineSeries;
        linea->setName(Serie(g, s));
        linea->setColor(Color_Serie(s));
        for (size_t i = 0; i < g.datos.size(); ++i)
            linea->append(static_cast<double>(i), s < g.datos[i].size() ? g.datos[i][s] : 0);
        chart->addSeries(linea);
    }
}

}  // namespace

QChart* Arma_Grafico(const Grafico& g) {
    auto* chart = new QChart;
    size_t series = 0;
    for (const auto& fila : g.datos) series = std::max(series, fila.size());
    if (g.chartType == GraficoLineas2D)
        Agrega_Lineas(chart, g, series);
    else
        Agrega_Barras(chart, g, series);
    auto* x = new QBarCategoryAxis;
    x->append(g.etiquetas);
    // Band labels such as "1.00 - 1.50" stand upright in a small type, so they stay whole.
    x->setLabelsAngle(-90);
    QFont letra = x->labelsFont();
    letra.setPointSize(7);
    x->setLabelsFont(letra);
    auto* y = new QValueAxis;
    // Counts of students: whole steps on the value axis.
    const double tope = std::max(1.0, std::ceil(Maximo(g)));
    y->setRange(0, tope);
    y->setTickCount(std::min(11, int(tope) + 1));
    y->setLabelFormat(QStringLiteral("%g"));
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    for (QAbstractSeries* s : chart->series()) {
        s->attachAxis(x);
        s->attachAxis(y);
    }
    chart->legend()->setVisible(g.series.size() > 1);
    return chart;
}

VistaGrafico::VistaGrafico(Grafico& grafico, QWidget* padre)
    : QChartView(padre), grafico_(grafico) {
    setRenderHint(QPainter::Antialiasing);
    setChart(Arma_Grafico(grafico_));
    grafico_.al_refrescar = [this] {
        QChart* viejo = chart();
        setChart(Arma_Grafico(grafico_));
        delete viejo;
    };
}

VistaGrafico::~VistaGrafico() {
    grafico_.al_refrescar = nullptr;
}
