// FrmNivelEva, "Nivel de Evaluacion": the minimum grade of the system, row NM of
// NivelesCalificacion. The achievement boxes and the score lists beside it are never saved.
#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;

class FrmNivelEva : public QWidget {
    Q_OBJECT
  public:
    explicit FrmNivelEva(QWidget* padre = nullptr);

    void XPButAceptar_Click();

    QComboBox* Cbo_Nota_Base;
    QComboBox* Cbo_Puntaje_Maximo;
    QComboBox* Cbo_Puntaje_Minimo;
    QLineEdit *TxtLDesde, *TxtLHasta, *TxtNLDesde, *TxtNLHasta, *TxtPLDesde, *TxtPLHasta;

  private:
    void Form_Load();
    QWidget* Arma_Logros();
};
