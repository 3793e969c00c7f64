// The spreadsheet layer: workbooks written by libxlsxwriter.
#pragma once

// True when a workbook can be written here: the writer works and the temporary folder
// takes a file. The exports need both.
bool Planilla_Disponible();
