// "Ingreso de Puntajes por Prueba PSU" / "... SIMCE": for one defined test, the table from the
// count of right answers to the score, loaded from a spreadsheet.
#pragma once

#include <QWidget>

#include "platform/grilla.h"

class QComboBox;
class QLineEdit;
class QPushButton;

class frmPuntajesPSU : public QWidget {
    Q_OBJECT
  public:
    explicit frmPuntajesPSU(QWidget* padre = nullptr);

    QComboBox* CboPSU;
    // The definitions: 1 name, 2 id_psu, 3 puntaje_min, 4 puntaje_max, 5 numero_preguntas.
    Grilla SprBasePSU{0, 5};
    // Right answers and the score they give.
    Grilla Spr_PSU{0, 2};
    QLineEdit* TxtIdPSU;
    QLineEdit* TxtPuntajeMin;
    QLineEdit* TxtPuntajeMax;
    QLineEdit* TxtNumPreguntas;
    QPushButton* CmdViaFile;
    QPushButton* XPButAceptar;

    void CboPSU_Click();
    void Carga_Puntajes_Base();
    void CmdViaFile_Click();
    void Carga_Masiva_Por_Archivo(const QString& ruta);
    bool Fnc_Valida_Puntos_PSU();
    void Insert_Puntajes_PSU();
    void XPButAceptar_Click();

  private:
    QString tipo_;
};
