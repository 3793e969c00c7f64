// The axes and skills analysis as its screen holds it: the working grids, the chart and the
// thresholds, with the steps of the load and of a change of form. The SEP screen is the same
// analysis with its switch on; the command line exports these grids without any screen.
#pragma once

#include <QString>

#include "analysis/analisis_ejes.h"
#include "analysis/exporta_planilla.h"
#include "platform/grafico.h"
#include "platform/grilla.h"

class TablasEjes {
  public:
    // `sep`: the SEP variant, which fills no SEP level (SprSoloSep stays empty), fails on a
    // course without students, and leaves the chart's own row labels.
    explicit TablasEjes(bool sep = false);
    virtual ~TablasEjes() = default;

    // The load once the form list is known, `forma` its first entry ("" for an empty list).
    // False, after the box that tells so, when no question of the test has an axis.
    bool Carga_Ejes(const QString& forma);
    // The course grid and chart for `forma`: names by mode, Pareo_Objetivos_Preguntas and
    // Genero_Grafico.
    void Recalcula_Forma(const QString& forma);
    void Genero_Grafico();
    // What kinds 5 to 9 read besides their grid: this chart and these axis names.
    FuentesExportacion Fuentes_Propias();
    bool Es_Sep() const { return sep_; }

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
    NivelesLogro niveles;

  private:
    bool sep_;
};
