// FrmPorPregunta, "Analisis por Pregunta": for one form of the current test, how each question
// was answered (right, wrong, omitted) and how often each alternative was marked, with a chart
// of the first table. With several forms nothing is shown until a form is chosen.
#pragma once

#include <QWidget>

#include "platform/grafico.h"
#include "platform/grilla.h"

class QComboBox;
class QGroupBox;

class FrmPorPregunta : public QWidget {
    Q_OBJECT
  public:
    explicit FrmPorPregunta(QWidget* padre = nullptr);

    void Form_Load();
    void CboFormas_Click();  // recomputes for the form shown in the list's text
    void XPButton1_Click();  // "Exportar a Excel", report kind 1
    void XPButton2_Click();  // "Imprimir Aciertos por Pregunta"
    void XPButton3_Click();  // "Imprimir Frecuencia por Pregunta"

    // Hidden working tables: pregunta, alternativa.
    Grilla Spr_Pregunta_Respuesta{0, 2};
    Grilla Spr_Respuesta_Pauta{0, 2};
    // Count and share of buenas, malas, omitidas; 7 a spacer; 8 the test's identity.
    Grilla SprAciertos{0, 8};
    // Count and share of A to E and of omitted; 13 a spacer; 14 the test's identity.
    Grilla SprFrecuencia{0, 14};
    Grafico MSChart1;
    QGroupBox* FrameFormas;
    QComboBox* CboFormas;

  private:
    void Setea_Grilla();
    void Setea_Grilla_Fre();
    // Carga_Grafico_Aciertos, Pongo_Aciertos, again Carga_Grafico_Aciertos, Pongo_Frecuencias
    // and Genero_Grafico for one form.
    void Calcula_Forma(int16_t forma);
    void Genero_Grafico();
};
