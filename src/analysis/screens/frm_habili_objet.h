// FrmHabiliObjet, "Analisis Ejes Tematicos" or "Analisis Habilidades" by Tipo_Analisis: the
// current test regrouped by thematic axis or by skill, for the course (with a chart, following
// the chosen form) and for each student (computed once at load). FrmSEP is this screen with
// the SEP switch on.
#pragma once

#include <QWidget>

#include "analysis/tablas_ejes.h"

class QComboBox;
class QLabel;
class QPrinter;
class QTableView;

class FrmHabiliObjet : public QWidget, public TablasEjes {
    Q_OBJECT
  public:
    explicit FrmHabiliObjet(QWidget* padre = nullptr);

    void Form_Load();
    void CboForma_Click();           // the course grid and chart for the form shown
    void XPButton1_Click();          // "Exportar a Excel", kind 5 with SprSuperior
    void CmdExportaAlumnos_Click();  // "Exportar a Excel", kind 6 with SprPantalla
    void XPButton4_Click();          // kind 7 with SprSep
    void XPButton5_Click();          // "Excel solo SEP", kind 8 with SprSoloSep
    void XPButton6_Click();          // "Logros por Curso SEP", kind 9 with SprSoloSep
    void XPButton2_Click();          // "Imprimir" SprSuperior, form by form
    void XPButton3_Click();          // "Imprimir" SprPantalla

    QComboBox* CboForma;
    QLabel* LblForma;
    // Where prints go; none: the operator picks a printer.
    QPrinter* Impresora = nullptr;

  protected:
    FrmHabiliObjet(QWidget* padre, bool sep);
    // The chart and axis names that kinds 5 to 9 read.
    virtual FuentesExportacion Fuentes();

  private:
    void Construye();
    QTableView* Vista_Niveles();
    void Selecciona_Forma(int k);
    // The export protocol; with several forms (or none) every form is written as kind
    // `tipo_varias` of `varias`.
    void Exporta(Grilla& grilla, int16_t tipo, Grilla& varias, int16_t tipo_varias);
    void Imprime(const Grilla& grilla, const QString& titulo);
    void Muestra_Cabecera();

    QTableView* vista_pantalla_;
};
