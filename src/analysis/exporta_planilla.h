// Exporta_Planilla: turns what an analysis screen shows into a spreadsheet file, one layout for
// each report kind 1 to 9, on the first sheet of a new workbook.
#pragma once

#include <QString>
#include <cstdint>

class Grafico;
class Grilla;
class Hoja;

// What a report takes besides its grids: the chart whose picture goes on the sheet (kinds 1
// to 5 and 9), and the axis screen's upper grid, whose row heads name the axes (kinds 5 to 9).
struct FuentesExportacion {
    const Grafico* grafico = nullptr;
    Grilla* SprSuperior = nullptr;
};

// Writes the report of kind `Tipo` under `Ruta`. `Grilla2` is read by kind 1 only. False after
// an error, which the operator is told of in the box "Exportacion Excel".
bool Exporta_Planilla(const QString& Ruta, Grilla& Grilla1, Grilla& Grilla2, int16_t Tipo,
                      const FuentesExportacion& fuentes = {});

// The layout of one report on its sheet; ErrorEjecucion where the export fails.
void Arma_Planilla(Hoja& hoja, Grilla& Grilla1, Grilla& Grilla2, int16_t Tipo,
                   const FuentesExportacion& fuentes);

// The callers' protocol for one file: the save dialog, the export, and " Datos exportados en "
// with the name when it went well. Nothing happens when no name is chosen.
void Exporta_Con_Dialogo(Grilla& grilla, int16_t Tipo, const FuentesExportacion& fuentes = {});
