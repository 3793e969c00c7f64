// FrmSIMCE, "Ensayo SIMCE": for each student of the current test a SIMCE-like score from the
// right answers, and the achievement level by course level and subject, with a summary per
// level and its chart. It writes nothing to the store.
#pragma once

#include <QWidget>

#include "platform/grafico.h"
#include "platform/grilla.h"

class QLineEdit;

class FrmSIMCE : public QWidget {
    Q_OBJECT
  public:
    explicit FrmSIMCE(QWidget* padre = nullptr);

    void Form_Load();
    void XPButton1_Click();  // "Exportar Excel", report kind 4
    void XPButton2_Click();  // "Imprimir"

    // 1 Rut, 2 Nombre, 3 Buenas, 4 Malas, 5 Omitidas, 6 Nivel, 7 Puntaje Normal, 8 Puntaje Simce.
    Grilla SprPSU{0, 8};
    // One row per level: 1 Nivel, 2 Alumnos, 3 Promedio Simce.
    Grilla SprNiveles{3, 3};
    Grafico MSChart1;
    QLineEdit* Txt_Base;
    QLineEdit* TxtMaximo;

  private:
    void Construye();
    void Tipo_Prueba();
    void Pongo_Aciertos();
    void Calcula_Promedio_Nivel();
    void Genere_Grafico_Prueba();
};
