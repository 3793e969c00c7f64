// Exporta_Planilla: turns what an analysis screen shows into a spreadsheet file, one layout for
// each report kind 1 to 9, on the first sheet of a new workbook.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

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

// The several-forms branch of the callers' protocol: for each form k from 1 to `formas`,
// `prepara`(k) recomputes the screen and `exporta` writes the file Archivo_Forma(nombre, k),
// its result ignored. Gives the list of the final message: each file between "\r" and "\r ".
QString Exporta_Formas(const QString& nombre, int formas, const std::function<void(int)>& prepara,
                       const std::function<void(const QString&)>& exporta);

// The export of the correction evaluation, written by itself and not by Exporta_Planilla: sheet
// "Evaluacion de Correccion", the students' grid copied into Spr_Pauta_Respuesta and from there
// under its heading cells by the "Spr_" rule, then the test's data with the stored percentages
// `minima_4` and `maxima_7`. ErrorEjecucion when the file can't be written.
void Exportar_Excel_Correccion(const QString& ruta, const Grilla& SprEvaCorrec,
                               Grilla& Spr_Pauta_Respuesta, const QString& minima_4,
                               const QString& maxima_7);
// Its sheet.
void Arma_Planilla_Correccion(Hoja& hoja, const Grilla& SprEvaCorrec, Grilla& Spr_Pauta_Respuesta,
                              const QString& minima_4, const QString& maxima_7);
