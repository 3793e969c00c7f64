// FrmSIMCE, "Ensayo SIMCE": for each student of the current test a SIMCE-like score from the
// right answers, and the achievement level by course level and subject, with a summary per
// level and its chart. It writes nothing to the store.
#pragma once

#include <QWidget>

#include "grading/tablas_ensayo.h"

class QLineEdit;

class FrmSIMCE : public QWidget, public TablasSimce {
    Q_OBJECT
  public:
    explicit FrmSIMCE(QWidget* padre = nullptr);

    void Form_Load();
    void XPButton1_Click();  // "Exportar Excel", report kind 4
    void XPButton2_Click();  // "Imprimir"

    QLineEdit* Txt_Base;
    QLineEdit* TxtMaximo;

  private:
    void Construye();
};
