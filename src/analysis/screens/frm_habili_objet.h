// FrmHabiliObjet, "Analisis Ejes Tematicos" or "Analisis Habilidades" by Tipo_Analisis: the
// current test regrouped by thematic axis or by skill, for the course (with a chart, following
// the chosen form) and for each student (computed once at load).
#pragma once

#include <QWidget>

#include "analysis/analisis_ejes.h"
#include "analysis/exporta_planilla.h"
#include "platform/grafico.h"
#include "platform/grilla.h"

class QComboBox;
class QLabel;
class QPrinter;
class QTableView;

class FrmHabiliObjet : public QWidget {
    Q_OBJECT
  public:
    explicit FrmHabiliObjet(QWidget* padre = nullptr);

    void Form_Load();
    void CboForma_Click();           // the course grid and chart for the form shown
    void XPButton1_Click();          // "Exportar a Excel", kind 5 with SprSuperior
    void CmdExportaAlumnos_Click();  // "Exportar a Excel", kind 6 with SprPantalla
    void XPButton4_Click();          // "Resultados Curso SEP", kind 7 with SprSep
    void XPButton5_Click();          // "Excel solo SEP", kind 8 with SprSoloSep
    void XPButton6_Click();          // "Logros por Curso SEP", kind 9 with SprSoloSep
    void XPButton2_Click();          // "Imprimir" SprSuperior, form by form
    void XPButton3_Click();          // "Imprimir" SprPantalla

    // Hidden: key entries by question; question and axis pairs sorted by axis.
    Grilla SprRespuestas{0, 2};
    Grilla SprObjetivos{0, 2};
    // Course per axis: buenas, % buenas, malas, % malas, omitidas, % omisión, rendimiento.
    Grilla SprSuperior{0, 7};
    // Students: form, then five columns per axis from 5k-3.
    Grilla SprPantalla{0, 1};
    // Students with a SEP level, five columns per axis from 5k-2; courses in four levels.
    Grilla SprSoloSep{0, 7};
    Grilla SprSep{0, 9};
    Grafico MSChart1;
    QComboBox* CboForma;
    QLabel* LblForma;
    // Where prints go; none: the operator picks a printer.
    QPrinter* Impresora = nullptr;

  private:
    void Genero_Grafico();
    // Names by mode, caption, Pareo_Objetivos_Preguntas and Genero_Grafico for the form shown.
    void Recalcula_Forma();
    void Selecciona_Forma(int k);
    FuentesExportacion Fuentes();
    // The export protocol; with several forms every form is written as kind `tipo_varias` of
    // `varias`.
    void Exporta(Grilla& grilla, int16_t tipo, Grilla& varias, int16_t tipo_varias);
    void Imprime(const Grilla& grilla, const QString& titulo);
    void Muestra_Cabecera();

    NivelesLogro niveles_;
    QTableView* vista_pantalla_;
};
