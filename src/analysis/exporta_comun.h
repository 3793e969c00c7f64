// Pieces shared by the layouts of Exporta_Planilla: the two styles, the "Spr_" rule, the chart
// picture and the layouts of the axis reports.
#pragma once

#include <QString>
#include <array>

#include "analysis/exporta_planilla.h"
#include "platform/planilla.h"

// The heading cell: fill 41, white bold text of size 12.
void Celda_Encabezado(Hoja& hoja, int fila, int columna);
// The title range: style "Arial", size 10, bold, merged (a single cell too), centred, then text.
void Titulo(Rango rango, const QString& texto);
// A grid cell whose text holds "Spr_" never reaches the sheet.
inline bool Marcada(const QString& texto) {
    return texto.contains(QLatin1String("Spr_"));
}
// The chart's picture on the sheet at `izquierda`, `arriba`, 600 by 300 points.
void Pega_Grafico(Hoja& hoja, const Grafico* grafico, double izquierda, double arriba);

// The axis names: row heads 1 to MaxRows of SprSuperior, upper-cased; element 0 unused.
struct NombresEjes {
    std::array<QString, 26> nombres;
    int n = 0;
};
NombresEjes Lee_Nombres(Grilla* superior);

void Planilla_Tipo_5(Hoja& hoja, Grilla& grilla, const FuentesExportacion& fuentes);
void Planilla_Tipo_6(Hoja& hoja, Grilla& grilla, const FuentesExportacion& fuentes);
void Planilla_Tipo_7(Hoja& hoja, Grilla& grilla, const FuentesExportacion& fuentes);
void Planilla_Tipo_8(Hoja& hoja, Grilla& grilla);
void Planilla_Tipo_9(Hoja& hoja, Grilla& grilla, const FuentesExportacion& fuentes);
