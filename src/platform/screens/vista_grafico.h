// Shows a Grafico with Qt Charts: bars for codes 0 and 1 (Qt Charts draws no depth, so the
// three-dimensional bars are flat too), lines for code 3, in the colours of its picture.
#pragma once

#include <QChartView>

#include "platform/grafico.h"

class VistaGrafico : public QChartView {
    Q_OBJECT
  public:
    // The chart must outlive the view; the view redraws on its Refresh.
    explicit VistaGrafico(Grafico& grafico, QWidget* padre = nullptr);
    ~VistaGrafico() override;

  private:
    Grafico& grafico_;
};

// A new QChart drawing the data of `grafico`.
QChart* Arma_Grafico(const Grafico& grafico);
