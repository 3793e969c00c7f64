// The SIMCE score range: the one row of Puntaje_SIMCE.
#pragma once

#include <QWidget>

class QLineEdit;

class FrmMantSimce : public QWidget {
    Q_OBJECT
  public:
    explicit FrmMantSimce(QWidget* padre = nullptr);

    QLineEdit* TxtMinimo;
    QLineEdit* TxtMaximo;
    // Leaving a box empty is told at once.
    void Verifica_Vacio(QLineEdit* caja);
    void XPButAceptar_Click();
};
