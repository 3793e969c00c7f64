// FrmPsu, "Ensayo PSU": for each student of the current test three linear PSU estimates (low,
// medium and high level) and the score read from the test's score table, with a chart of how
// the medium estimates spread over score bands. It writes nothing to the store.
#pragma once

#include <QWidget>

#include "grading/tablas_ensayo.h"

class QComboBox;
class QLineEdit;

class FrmPsu : public QWidget, public TablasPsu {
    Q_OBJECT
  public:
    explicit FrmPsu(QWidget* padre = nullptr);

    void Form_Load();
    void Combo1_Click();     // the chart type chosen
    void XPButton1_Click();  // "Exportar Excel", report kind 3
    void XPButton2_Click();  // "Imprimir"

    QLineEdit* Txt_Base;
    QLineEdit* TxtMaximo;
    QComboBox* Combo1;

  private:
    void Construye();
};
