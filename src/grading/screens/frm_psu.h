// FrmPsu, "Ensayo PSU": for each student of the current test three linear PSU estimates (low,
// medium and high level) and the score read from the test's score table, with a chart of how
// the medium estimates spread over score bands. It writes nothing to the store.
#pragma once

#include <QWidget>

#include "platform/grafico.h"
#include "platform/grilla.h"

class QComboBox;
class QLineEdit;

class FrmPsu : public QWidget {
    Q_OBJECT
  public:
    explicit FrmPsu(QWidget* padre = nullptr);

    void Form_Load();
    void Combo1_Click();     // the chart type chosen
    void XPButton1_Click();  // "Exportar Excel", report kind 3
    void XPButton2_Click();  // "Imprimir"

    // 1 Rut, 2 Nombre, 3 Buenas, 4 Malas, 5 Nulas, 6 Omitidas, 7 Nivel Bajo, 8 Nivel Medio,
    // 9 Nivel Alto, 10 Puntaje PSU.
    Grilla SprPSU{0, 10};
    // The subject's score table: 1 right answers, 2 score.
    Grilla Spr_Puntaje_PSU{0, 2};
    Grafico MSChart1;
    QLineEdit* Txt_Base;
    QLineEdit* TxtMaximo;
    QComboBox* Combo1;

  private:
    void Construye();
    void Tipo_Prueba();
    void Carga_Puntajes_PSU();
    void Pongo_Aciertos();
    void Pon_Fila(int fila, const class Recordset& rs);
    QString Puntaje_Tabla(int16_t buenas) const;
    void Genere_Grafico_Prueba();
};
