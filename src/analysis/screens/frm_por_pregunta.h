// FrmPorPregunta, "Analisis por Pregunta": for one form of the current test, how each question
// was answered (right, wrong, omitted) and how often each alternative was marked, with a chart
// of the first table. With several forms nothing is shown until a form is chosen.
#pragma once

#include <QWidget>

#include "analysis/analisis_pregunta.h"

class QComboBox;
class QGroupBox;

class FrmPorPregunta : public QWidget, public TablasPregunta {
    Q_OBJECT
  public:
    explicit FrmPorPregunta(QWidget* padre = nullptr);

    void Form_Load();
    void CboFormas_Click();  // recomputes for the form shown in the list's text
    void XPButton1_Click();  // "Exportar a Excel", report kind 1
    void XPButton2_Click();  // "Imprimir Aciertos por Pregunta"
    void XPButton3_Click();  // "Imprimir Frecuencia por Pregunta"

    QGroupBox* FrameFormas;
    QComboBox* CboFormas;
};
