// FrmAnalisis_Cua, "Analisis Cuantitativo Prueba": how the grades of the current test spread
// over twelve bands of half a point, with a chart and the test's identity. All its work is done
// on load; the buttons change the chart, export and print.
#pragma once

#include <QWidget>

#include "analysis/analisis_curso.h"

class QLabel;
class VistaGrafico;

class FrmAnalisis_Cua : public QWidget, public TablasCurso {
    Q_OBJECT
  public:
    explicit FrmAnalisis_Cua(QWidget* padre = nullptr);

    void Form_Load();
    void XPButton1_Click();  // "Grafico Linea": type code 1
    void XPButton2_Click();  // "Grafico Barra": type code 0
    void XPButton3_Click();  // "Exportar Excel", report kind 2
    void XPButton4_Click();  // "Imprimir"

    QLabel* LblPrueba;
    QLabel* LblProfesor;
    QLabel* LblAsignatura;
    QLabel* LblCurso;

  private:
    void Cambia_Tipo(int tipo);
};
