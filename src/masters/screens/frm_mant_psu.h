// " Mantenedor de puntajes PSU" / " Mantenedor de puntajes SIMCE": the defined trial tests with
// their number of questions, wrong-answer penalty and score range.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FrmMantPSU : public QWidget {
    Q_OBJECT
  public:
    explicit FrmMantPSU(QWidget* padre = nullptr);

    // Name, questions, "SI"/"NO", wrong answers a right one, minimum, maximum, key.
    Grilla Spr_PSU{0, 7};
    QLineEdit* TxtNombrePSU;
    QComboBox* CboNumeroPreguntas;
    QCheckBox* Chk_SI;
    QLabel* lbl_texto;
    QComboBox* CboEliminaMalas;
    QLineEdit* TxtPuntajeMin;
    QLineEdit* TxtPuntajeMax;
    QLineEdit* TxtIndicePSU;
    QPushButton* CmdPuntajes_PSU;

    void Carga_Grilla_PSU();
    bool fcn_Valida_Campos();
    void XPButAceptar_Click();
    void XPButton1_Click();  // delete
    void Spr_PSU_Click(int fila);
    void Limpia_Pantalla();
    const QString& Tipo() const { return tipo_; }

  private:
    void Chk_SI_Click();
    QString tipo_;
};
